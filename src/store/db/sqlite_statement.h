// Handles of the engine's C interface, released when they go out of scope.
#pragma once

#include <sqlite3.h>

#include <memory>
#include <span>
#include <string_view>

#include "store/db/value.h"

namespace ordex {

struct SqliteCloser {
  // Waits for statements that are still alive, so the order of release does not matter.
  void operator()(sqlite3* database) const { sqlite3_close_v2(database); }
};
using SqliteHandle = std::unique_ptr<sqlite3, SqliteCloser>;

// One prepared statement. Whoever steps it also resets it (see ResetLater).
class SqliteStatement {
 public:
  // Errors (database): what the engine refuses, an empty text, more than one statement.
  SqliteStatement(sqlite3* database, std::string_view sql, unsigned flags = 0);

  sqlite3_stmt* get() const { return handle_.get(); }
  sqlite3* database() const { return sqlite3_db_handle(handle_.get()); }

  // Parameters count from 1. Texts are not copied: they must live until the statement is reset.
  // Dates that have no text of their own are kept by the engine.
  void Bind(int parameter, const Value& value);
  // True when there is a row, false at the end. Error (database): what the engine reports.
  bool Step();
  void Reset();

 private:
  struct Finalizer {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
  };

  std::unique_ptr<sqlite3_stmt, Finalizer> handle_;
};

// Resets the statement and forgets its parameters on every way out of a scope: a statement that
// stays open would pin a snapshot and block others.
class ResetLater {
 public:
  explicit ResetLater(SqliteStatement& statement) : statement_(statement) {}
  ~ResetLater() { statement_.Reset(); }
  ResetLater(const ResetLater&) = delete;
  ResetLater& operator=(const ResetLater&) = delete;
  ResetLater(ResetLater&&) = delete;
  ResetLater& operator=(ResetLater&&) = delete;

 private:
  SqliteStatement& statement_;
};

// Runs statements that give no rows that matter.
void RunSqlite(sqlite3* database, const char* sql);

}  // namespace ordex
