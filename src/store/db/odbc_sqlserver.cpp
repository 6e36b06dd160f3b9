// What only SQL Server can answer.
#include "store/db/ascii.h"
#include "store/db/dialect_sqlserver.h"
#include "store/db/odbc_engine.h"
#include "store/db/write_sql.h"

namespace ordex {
namespace {

constexpr SQLULEN kQueryTimeOut = 30;  // seconds

class SqlServerEngine final : public OdbcEngine {
 public:
  std::string Rewrite(const std::vector<Token>& tokens, TableCatalog& /*catalog*/) const override {
    return RewriteForSqlServer(tokens);
  }

  // "SELECT TOP (20) …", behind DISTINCT where that stands.
  std::string Limited(const std::string& select, std::size_t count) const override {
    const std::vector<Token> tokens = Tokenize(select);
    std::size_t at = NextToken(tokens, kNoToken);
    const std::size_t next = at == kNoToken ? kNoToken : NextToken(tokens, at);
    if (next != kNoToken && IsWord(tokens[next], "DISTINCT")) at = next;
    std::string limited;
    for (std::size_t i = 0; i < tokens.size(); ++i) {
      limited.append(tokens[i].text);
      if (i == at) limited.append(" TOP (").append(std::to_string(count)).append(")");
    }
    return limited;
  }

  std::vector<std::string> SessionSettings() const override {
    return {
        // Counts of rows would stand between the results of a batch.
        "SET NOCOUNT ON",
        // What was written before an error stays.
        "SET XACT_ABORT OFF",
        "SET IMPLICIT_TRANSACTIONS OFF",
        "SET TRANSACTION ISOLATION LEVEL READ COMMITTED",
        "SET QUOTED_IDENTIFIER ON",
        "SET ANSI_NULLS ON",
        "SET ANSI_PADDING ON",
        // Without it a text that is too long is cut in silence.
        "SET ANSI_WARNINGS ON",
        "SET CONCAT_NULL_YIELDS_NULL ON",
        // A driver's own limit would cut long texts in silence.
        "SET TEXTSIZE 2147483647",
        // Milliseconds; as long as a writer of the embedded database waits.
        "SET LOCK_TIMEOUT 5000",
    };
  }
  // A text must not be cut, nor what was written be undone, in silence.
  bool NeedsSessionSettings() const override { return true; }

  // SCOPE_IDENTITY, unlike @@IDENTITY, does not see the rows that a trigger adds; OUTPUT is refused
  // where a table has triggers. It holds for its own batch alone.
  OdbcWrite Insert(const std::string& table, std::span<const std::string> columns,
                   bool hasIdentity) const override {
    return {InsertSql(table, columns, kBrackets) +
                (hasIdentity ? "; SELECT CAST(SCOPE_IDENTITY() AS BIGINT)"
                             : "; SELECT CAST(@@ROWCOUNT AS BIGINT)"),
            {}};
  }

  OdbcWrite Update(const std::string& table, std::span<const std::string> columns,
                   const std::string& key) const override {
    return {UpdateSql(table, columns, key, kBrackets) + "; SELECT CAST(@@ROWCOUNT AS BIGINT)", {}};
  }

  // As statements, not as the driver's manual mode: in that a statement behind a transaction that
  // the server ended would quietly begin another one.
  std::string_view BeginSql() const override { return "BEGIN TRANSACTION"; }
  std::string_view CommitSql() const override { return "COMMIT TRANSACTION"; }
  std::string_view RollbackSql() const override { return "ROLLBACK TRANSACTION"; }
  std::string_view TransactionStateSql() const override {
    return "SELECT CASE WHEN @@TRANCOUNT = 0 THEN 0 ELSE CAST(XACT_STATE() AS INT) END";
  }

  std::string IdentitySql(const std::string& table) const override {
    return "SELECT name FROM sys.columns WHERE object_id = OBJECT_ID(" +
           SqlServerLiteral(QuotedName(table, kBrackets)) + ") AND is_identity = 1";
  }
  // "int identity"
  bool IsIdentityType(std::string_view typeName, bool /*onlyKey*/) const override {
    return LowerAscii(typeName).find("identity") != std::string::npos;
  }
  std::string_view DefaultSchemaSql() const override { return "SELECT SCHEMA_NAME()"; }

  bool HoldsTextsAndNumbers() const override { return false; }
  std::string_view CodePageSql() const override {
    return "SELECT CAST(CAST(? AS VARCHAR(MAX)) AS NVARCHAR(MAX))";
  }
  SQLULEN QueryTimeOut() const override { return kQueryTimeOut; }

  std::string ErrorText(std::span<const OdbcDiagnostic> diagnostics) const override {
    return SqlServerErrorText(diagnostics);
  }
};

}  // namespace

std::unique_ptr<OdbcEngine> MakeSqlServerEngine() {
  return std::make_unique<SqlServerEngine>();
}

}  // namespace ordex
