// What the engines behind ODBC do not have in common. Which one it is, the engine itself says when
// the connection stands.
#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "store/db/connection.h"
#include "store/db/odbc_error.h"
#include "store/db/sql_tokens.h"

namespace ordex {

// A writing statement and how the number that it gives (identity, or rows touched) is asked for.
struct OdbcWrite {
  // With a "?" for each value. May be a batch that ends in a SELECT of the number.
  std::string sql;
  // A SELECT of its own that gives the number; empty where `sql` gives it.
  std::string numberSql;
};

class OdbcEngine {
 public:
  virtual ~OdbcEngine() = default;

  // The dialect. Errors as the dialect's function.
  virtual std::string Rewrite(const std::vector<Token>& tokens, TableCatalog& catalog) const = 0;
  virtual std::string Limited(const std::string& select, std::size_t count) const = 0;

  // What the session is told when it begins, each a statement of its own.
  virtual std::vector<std::string> SessionSettings() const = 0;
  // Without one of them a session may do harm.
  virtual bool NeedsSessionSettings() const = 0;

  // The number is the new row's identity where `hasIdentity`, else the rows added.
  virtual OdbcWrite Insert(const std::string& table, std::span<const std::string> columns,
                           bool hasIdentity) const = 0;
  // The number is that of the rows touched; the key is the last parameter.
  virtual OdbcWrite Update(const std::string& table, std::span<const std::string> columns,
                           const std::string& key) const = 0;

  virtual std::string_view BeginSql() const = 0;
  virtual std::string_view CommitSql() const = 0;
  virtual std::string_view RollbackSql() const = 0;
  // A SELECT of one number: 1 where a transaction is open that can be committed, 0 where none is,
  // -1 where it can only be rolled back. Empty where the engine cannot be asked so; then a second
  // beginning that is refused tells that one is open.
  virtual std::string_view TransactionStateSql() const = 0;

  // A SELECT of the names of the identity columns of a table; empty where `typeName` of SQLColumns
  // and the key tell them all.
  virtual std::string IdentitySql(const std::string& table) const = 0;
  // Whether a column of that type name is assigned by the engine, as far as the name tells it.
  virtual bool IsIdentityType(std::string_view typeName, bool onlyKey) const = 0;
  // A SELECT of the name of the schema that a bare table name stands for; empty where there are no
  // schemas.
  virtual std::string_view DefaultSchemaSql() const = 0;

  // The engine knows texts and numbers alone: dates travel as texts "YYYY-MM-DD HH:MM:SS", bits as
  // 0 and 1, as it stores them.
  virtual bool HoldsTextsAndNumbers() const = 0;
  // A SELECT that sends a text through the code page of the database and back; empty where there is
  // none.
  virtual std::string_view CodePageSql() const = 0;
  // Seconds that a statement may take; 0 for no limit.
  virtual SQLULEN QueryTimeOut() const = 0;

  virtual std::string ErrorText(std::span<const OdbcDiagnostic> diagnostics) const = 0;
};

// For the name that SQLGetInfo gives of the engine. What is not SQLite is taken for SQL Server: an
// engine that speaks T-SQL may have another name.
std::unique_ptr<OdbcEngine> MakeOdbcEngine(std::string_view dbmsName);

std::unique_ptr<OdbcEngine> MakeSqlServerEngine();
std::unique_ptr<OdbcEngine> MakeOdbcSqliteEngine();

}  // namespace ordex
