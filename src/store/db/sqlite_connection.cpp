#include "store/db/sqlite_connection.h"

#include <algorithm>
#include <string>
#include <utility>

#include "base/error.h"
#include "store/db/dialect_sqlite.h"
#include "store/db/one_select.h"
#include "store/db/sqlite_catalog.h"
#include "store/db/sqlite_driver.h"
#include "store/db/sqlite_error.h"
#include "store/db/sqlite_file.h"
#include "store/db/sqlite_functions.h"
#include "store/db/sqlite_idle_statements.h"
#include "store/db/sqlite_query.h"
#include "store/db/sqlite_statement.h"
#include "store/db/write_sql.h"

namespace ordex {
namespace {

// The last INSERT or UPDATE, kept prepared: rows of one shape mostly come in a row.
class KeptWrite {
 public:
  bool Fits(const std::string& table, std::span<const NamedValue> values,
            std::string_view key) const {
    return statement_ && table == table_ && key == key_ &&
           std::equal(values.begin(), values.end(), columns_.begin(), columns_.end(),
                      [](const NamedValue& value, const std::string& column) {
                        return value.first == column;
                      });
  }

  void Keep(SqliteStatement statement, const std::string& table, std::vector<std::string> columns,
            std::string_view key) {
    statement_ = std::move(statement);
    table_ = table;
    key_ = key;
    columns_ = std::move(columns);
  }

  // `keyValue` is the last parameter, where there is one.
  void Run(std::span<const NamedValue> values, const Value* keyValue) {
    const ResetLater reset(*statement_);
    int parameter = 0;
    for (const NamedValue& value : values) statement_->Bind(++parameter, value.second);
    if (keyValue != nullptr) statement_->Bind(++parameter, *keyValue);
    while (statement_->Step()) {
    }
  }

 private:
  std::optional<SqliteStatement> statement_;
  std::string table_;
  std::string key_;
  std::vector<std::string> columns_;
};

class SqliteConnection final : public Connection {
 public:
  explicit SqliteConnection(SqliteHandle database)
      : catalog_(std::make_shared<SqliteCatalog>(std::move(database))) {}

  std::unique_ptr<Query> Prepare(std::string_view sql) override {
    const std::vector<Token> tokens = Tokenize(sql);
    RequireOneSelect(tokens);
    // Its values stand in its text: it is not asked for again.
    const std::string rewritten = RewriteForSqlite(tokens, *catalog_);
    auto statement = std::make_unique<SqliteStatement>(database(), rewritten);
    return std::make_unique<SqliteQuery>(catalog_, LentStatement(statement.release()),
                                         std::vector<Value>());
  }

  std::unique_ptr<Query> PrepareNative(std::string_view sql,
                                       std::span<const Value> parameters) override {
    return std::make_unique<SqliteQuery>(catalog_, idle_->Lend(database(), sql),
                                         std::vector<Value>(parameters.begin(), parameters.end()));
  }

  void Execute(std::string_view sql) override {
    RequireWritable();
    const std::vector<Token> tokens = Tokenize(sql);
    RequireOneStatement(tokens);
    SqliteStatement statement(database(), RewriteForSqlite(tokens, *catalog_));
    const ResetLater reset(statement);
    while (statement.Step()) {
    }
  }

  const std::vector<ColumnInfo>& TableColumns(const std::string& table) override {
    return catalog_->Columns(table);
  }

  std::int64_t Insert(const std::string& table, std::span<const NamedValue> values) override {
    RequireWritable();
    if (!insert_.Fits(table, values, {})) {
      std::vector<std::string> columns = NamesOf(values);
      SqliteStatement statement(database(), InsertSql(table, columns, kDoubleQuotes),
                                SQLITE_PREPARE_PERSISTENT);
      insert_.Keep(std::move(statement), table, std::move(columns), {});
      const std::vector<ColumnInfo>& all = catalog_->Columns(table);
      insert_assigns_ = std::any_of(all.begin(), all.end(),
                                    [](const ColumnInfo& column) { return column.identity; });
    }
    insert_.Run(values, nullptr);
    return insert_assigns_ ? sqlite3_last_insert_rowid(database()) : 0;
  }

  std::int64_t UpdateRow(const std::string& table, std::span<const NamedValue> values,
                         const std::string& key, const Value& keyValue) override {
    if (values.empty()) return 0;
    RequireWritable();
    if (!update_.Fits(table, values, key)) {
      std::vector<std::string> columns = NamesOf(values);
      SqliteStatement statement(database(), UpdateSql(table, columns, key, kDoubleQuotes),
                                SQLITE_PREPARE_PERSISTENT);
      update_.Keep(std::move(statement), table, std::move(columns), key);
    }
    update_.Run(values, &keyValue);
    return sqlite3_changes64(database());
  }

  // Immediate: a reader that turns writer would be refused at once, however long it may wait.
  void Begin() override {
    RequireFileInPlace(database());
    RunSqlite(database(), "BEGIN IMMEDIATE");
  }
  void Commit() override {
    RequireFileInPlace(database());
    RunSqlite(database(), "COMMIT");
  }
  void Rollback() override { RunSqlite(database(), "ROLLBACK"); }
  bool InTransaction() const override { return sqlite3_get_autocommit(database()) == 0; }

  std::string Limited(const std::string& select, std::size_t count) const override {
    return select + " LIMIT " + std::to_string(count);
  }

 private:
  sqlite3* database() const { return catalog_->database(); }

  // Inside a transaction its end looks after the file, once for all statements.
  void RequireWritable() const {
    if (!InTransaction()) RequireFileInPlace(database());
  }

  std::shared_ptr<SqliteCatalog> catalog_;
  std::shared_ptr<IdleStatements> idle_ = std::make_shared<IdleStatements>();
  KeptWrite insert_;
  bool insert_assigns_ = false;
  KeptWrite update_;
};

void SetUp(sqlite3* database) {
  RunSqlite(database, "PRAGMA synchronous=FULL");
  RunSqlite(database, "PRAGMA foreign_keys=OFF");
  // Else a column that does not exist would quietly be taken for a text.
  sqlite3_db_config(database, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
  AddUnicodeFunctions(database);
}

}  // namespace

std::unique_ptr<Connection> OpenSqliteWaiting(const std::filesystem::path& file,
                                              std::chrono::milliseconds busyTimeOut) {
  SqliteHandle database = OpenSqliteFile(file, static_cast<int>(busyTimeOut.count()));
  SetUp(database.get());
  return std::make_unique<SqliteConnection>(std::move(database));
}

std::unique_ptr<Connection> OpenSqlite(const std::filesystem::path& file) {
  return OpenSqliteWaiting(file, kBusyTimeOut);
}

}  // namespace ordex
