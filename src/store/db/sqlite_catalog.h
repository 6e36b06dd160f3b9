// What the embedded engine knows of its tables.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "store/db/connection.h"
#include "store/db/sqlite_statement.h"

namespace ordex {

// What a declared type such as "NVARCHAR(200)" says of a column. The engine itself keeps to it only
// loosely.
struct DeclaredType {
  ColumnType type = ColumnType::kText;
  std::size_t size = 0;
};
// nullopt where there is no declared type (`declared` is null or says nothing known): then each
// value is of the type that it is stored with.
std::optional<DeclaredType> ParseDeclaredType(const char* declared);

// Holds the connection's handle, so that a query may outlive the connection object.
class SqliteCatalog final : public TableCatalog {
 public:
  explicit SqliteCatalog(SqliteHandle database) : database_(std::move(database)) {}

  sqlite3* database() const { return database_.get(); }

  // As Connection::TableColumns. Asked of the engine once for each table.
  const std::vector<ColumnInfo>& Columns(const std::string& table);
  bool IsBitColumn(std::span<const std::string> tables, std::string_view column) override;

 private:
  SqliteHandle database_;
  std::unordered_map<std::string, std::vector<ColumnInfo>> tables_;  // by lower-case name
};

}  // namespace ordex
