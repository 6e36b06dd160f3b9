// What the embedded engine knows of its tables.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "store/db/connection.h"
#include "store/db/sqlite_statement.h"

namespace ordex {

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
