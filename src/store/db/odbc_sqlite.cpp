// The embedded engine, reached through an ODBC driver of its own.
#include "store/db/ascii.h"
#include "store/db/dialect_sqlite.h"
#include "store/db/odbc_engine.h"
#include "store/db/sqlite_error.h"
#include "store/db/write_sql.h"

namespace ordex {
namespace {

class OdbcSqliteEngine final : public OdbcEngine {
 public:
  std::string Rewrite(const std::vector<Token>& tokens, TableCatalog& catalog) const override {
    return RewriteForSqlite(tokens, catalog);
  }
  std::string Limited(const std::string& select, std::size_t count) const override {
    return select + " LIMIT " + std::to_string(count);
  }

  std::vector<std::string> SessionSettings() const override {
    return {"PRAGMA synchronous=FULL", "PRAGMA foreign_keys=OFF"};
  }
  // They only make sure of what mostly is so already.
  bool NeedsSessionSettings() const override { return false; }

  OdbcWrite Insert(const std::string& table, std::span<const std::string> columns,
                   bool hasIdentity) const override {
    return {InsertSql(table, columns, kBrackets),
            hasIdentity ? "SELECT last_insert_rowid()" : "SELECT changes()"};
  }
  OdbcWrite Update(const std::string& table, std::span<const std::string> columns,
                   const std::string& key) const override {
    return {UpdateSql(table, columns, key, kBrackets), "SELECT changes()"};
  }

  // Immediate: a reader that turns writer would be refused at once, however long it may wait.
  std::string_view BeginSql() const override { return "BEGIN IMMEDIATE"; }
  std::string_view CommitSql() const override { return "COMMIT"; }
  std::string_view RollbackSql() const override { return "ROLLBACK"; }
  std::string_view TransactionStateSql() const override { return {}; }

  std::string IdentitySql(const std::string& /*table*/) const override { return {}; }
  // Only this exact type makes a single primary key the number that the engine assigns.
  bool IsIdentityType(std::string_view typeName, bool onlyKey) const override {
    return onlyKey && EqualAscii(typeName, "INTEGER");
  }
  std::string_view DefaultSchemaSql() const override { return {}; }

  bool HoldsTextsAndNumbers() const override { return true; }
  std::string_view CodePageSql() const override { return {}; }
  SQLULEN QueryTimeOut() const override { return 0; }

  std::string ErrorText(std::span<const OdbcDiagnostic> diagnostics) const override {
    if (diagnostics.empty()) return SqliteErrorText(SQLITE_ERROR, {});
    return SqliteErrorText(diagnostics.front().native, diagnostics.front().words);
  }
};

}  // namespace

std::unique_ptr<OdbcEngine> MakeOdbcSqliteEngine() {
  return std::make_unique<OdbcSqliteEngine>();
}

}  // namespace ordex
