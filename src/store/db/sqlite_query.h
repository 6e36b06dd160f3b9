// One prepared SELECT of the embedded engine.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "store/db/connection.h"
#include "store/db/declared_type.h"
#include "store/db/sqlite_catalog.h"
#include "store/db/sqlite_idle_statements.h"

namespace ordex {

class SqliteQuery final : public Query {
 public:
  // Error (database): where the statement gives no rows or would change the database.
  SqliteQuery(std::shared_ptr<SqliteCatalog> catalog, LentStatement statement,
              std::vector<Value> parameters);

  const std::vector<ColumnInfo>& Columns() override;
  std::vector<Row> FetchAll() override;

 private:
  ColumnInfo Describe(int column);
  void FindTypes();

  std::shared_ptr<SqliteCatalog> catalog_;
  LentStatement statement_;
  std::vector<Value> parameters_;
  std::vector<ColumnInfo> columns_;  // filled when first asked for
  std::vector<std::optional<DeclaredType>> types_;
};

}  // namespace ordex
