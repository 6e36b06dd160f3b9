#include "store/db/sqlite_idle_statements.h"

#include <algorithm>

namespace ordex {

void BackToIdle::operator()(SqliteStatement* statement) {
  std::unique_ptr<SqliteStatement> idle(statement);
  if (home_ != nullptr) home_->Put({std::move(sql_), std::move(idle)});
}

LentStatement IdleStatements::Lend(sqlite3* database, std::string_view sql) {
  std::unique_ptr<SqliteStatement> statement = Take(sql);
  if (statement == nullptr) {
    statement = std::make_unique<SqliteStatement>(database, sql, SQLITE_PREPARE_PERSISTENT);
  }
  BackToIdle back(shared_from_this(), std::string(sql));
  return {statement.release(), std::move(back)};
}

std::unique_ptr<SqliteStatement> IdleStatements::Take(std::string_view sql) {
  const auto found =
      std::find_if(idle_.begin(), idle_.end(), [sql](const Idle& idle) { return idle.sql == sql; });
  if (found == idle_.end()) return nullptr;
  std::unique_ptr<SqliteStatement> statement = std::move(found->statement);
  idle_.erase(found);
  return statement;
}

void IdleStatements::Put(Idle idle) {
  if (idle_.size() == kMost) idle_.erase(idle_.begin());
  idle_.push_back(std::move(idle));
}

}  // namespace ordex
