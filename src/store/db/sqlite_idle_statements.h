// Prepared statements kept for their next use: preparing one costs more than most look-ups do.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "store/db/sqlite_statement.h"

namespace ordex {

class IdleStatements;

// What happens to a statement when its user is done with it: it is brought back, or goes where it
// has no home.
class BackToIdle {
 public:
  BackToIdle() = default;
  BackToIdle(std::shared_ptr<IdleStatements> home, std::string sql)
      : home_(std::move(home)), sql_(std::move(sql)) {}
  void operator()(SqliteStatement* statement);

 private:
  std::shared_ptr<IdleStatements> home_;
  std::string sql_;
};

using LentStatement = std::unique_ptr<SqliteStatement, BackToIdle>;

// The statements of one connection that nobody uses at the moment, at most kMost of them.
class IdleStatements : public std::enable_shared_from_this<IdleStatements> {
 public:
  static constexpr std::size_t kMost = 16;

  IdleStatements() { idle_.reserve(kMost); }

  // The idle statement of that text, else a new one. Errors: as SqliteStatement.
  LentStatement Lend(sqlite3* database, std::string_view sql);

 private:
  friend class BackToIdle;
  struct Idle {
    std::string sql;
    std::unique_ptr<SqliteStatement> statement;
  };

  std::unique_ptr<SqliteStatement> Take(std::string_view sql);
  void Put(Idle idle);

  std::vector<Idle> idle_;  // the one that has waited longest first
};

}  // namespace ordex
