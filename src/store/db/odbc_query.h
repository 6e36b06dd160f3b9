// One prepared SELECT of an engine behind ODBC.
#pragma once

#include <memory>
#include <span>
#include <vector>

#include "store/db/connection.h"
#include "store/db/odbc_catalog.h"
#include "store/db/odbc_statement.h"
#include "store/db/sql_tokens.h"

namespace ordex {

class OdbcQuery final : public Query {
 public:
  // `written` is the statement as it was handed in, `sql` what the engine is given. Errors
  // (database): what the engine reports; a statement that gives no rows.
  OdbcQuery(std::shared_ptr<OdbcCatalog> catalog, const std::vector<Token>& written,
            std::string_view sql, std::span<const Value> parameters);

  const std::vector<ColumnInfo>& Columns() override { return columns_; }
  std::vector<Row> FetchAll() override;

 private:
  SQLSMALLINT Count() const { return static_cast<SQLSMALLINT>(columns_.size()); }
  // The columns as the driver describes them now.
  std::vector<ColumnInfo> Described();

  std::shared_ptr<OdbcCatalog> catalog_;
  OdbcStatement statement_;
  std::vector<ColumnInfo> columns_;
};

// `described` with the table, identity and key of each column that `statement` takes from a table
// under its own name: drivers do not tell them of a plain result. Without them where text and
// result do not agree.
std::vector<ColumnInfo> WithTables(std::vector<ColumnInfo> described,
                                   const std::vector<Token>& statement, OdbcCatalog& catalog);

}  // namespace ordex
