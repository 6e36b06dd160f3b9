// What the engine behind ODBC knows of its tables.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "store/db/connection.h"
#include "store/db/odbc_link.h"
#include "store/db/odbc_statement.h"

namespace ordex {

class OdbcCatalog final : public TableCatalog {
 public:
  explicit OdbcCatalog(std::shared_ptr<OdbcLink> link) : link_(std::move(link)) {}

  const std::shared_ptr<OdbcLink>& link() const { return link_; }

  // As Connection::TableColumns. Asked of the engine once for each table.
  const std::vector<ColumnInfo>& Columns(const std::string& table);
  // What a parameter for that column must know; a text's where there is no such column.
  OdbcColumnType TypeOf(const std::string& table, std::string_view column);
  bool IsBitColumn(std::span<const std::string> tables, std::string_view column) override;

 private:
  struct Table {
    std::vector<ColumnInfo> columns;
    std::vector<OdbcColumnType> types;  // of each column
  };
  // A row of SQLColumns.
  struct Reported;

  const Table& Find(const std::string& table);
  Table Ask(const std::string& table);
  std::vector<Reported> AskColumns(const std::string& table);
  std::vector<std::string> AskKey(const std::string& table, const std::string& schema);
  std::vector<std::string> AskIdentity(const std::string& table);
  std::string SchemaOf(const std::vector<Reported>& reported);

  std::shared_ptr<OdbcLink> link_;
  std::unordered_map<std::string, Table> tables_;  // by lower-case name
};

}  // namespace ordex
