#include "store/db/sqlite_catalog.h"

#include <algorithm>

#include "store/db/ascii.h"
#include "store/db/declared_type.h"

namespace ordex {
namespace {

const std::vector<ColumnInfo> kNoColumns;

std::string ColumnText(const SqliteStatement& statement, int column) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement.get(), column));
  return text == nullptr ? std::string() : std::string(text);
}

// Only this exact type makes a single primary key the number that the engine assigns.
bool IsAssigned(const std::string& declared) {
  return EqualAscii(declared, "INTEGER");
}

}  // namespace

const std::vector<ColumnInfo>& SqliteCatalog::Columns(const std::string& table) {
  std::string key = LowerAscii(std::string_view(table));
  const auto known = tables_.find(key);
  if (known != tables_.end()) return known->second;

  SqliteStatement statement(database(), "SELECT name, type, pk FROM pragma_table_info(?)");
  const ResetLater reset(statement);
  const Value name = table;
  statement.Bind(1, name);
  std::vector<ColumnInfo> columns;
  int keys = 0;
  while (statement.Step()) {
    const std::string declared = ColumnText(statement, 1);
    const DeclaredType type = ParseDeclaredType(declared.c_str()).value_or(DeclaredType{});
    const bool is_key = sqlite3_column_int(statement.get(), 2) != 0;
    if (is_key) ++keys;
    columns.push_back({ColumnText(statement, 0), type.type, type.size, table,
                       is_key && IsAssigned(declared), is_key});
  }
  if (columns.empty()) return kNoColumns;  // not kept: the table may yet be made
  if (keys > 1) {
    for (ColumnInfo& column : columns) column.identity = column.primaryKey = false;
  }
  return tables_.emplace(std::move(key), std::move(columns)).first->second;
}

bool SqliteCatalog::IsBitColumn(std::span<const std::string> tables, std::string_view column) {
  return std::any_of(tables.begin(), tables.end(), [&](const std::string& table) {
    const std::vector<ColumnInfo>& columns = Columns(table);
    return std::any_of(columns.begin(), columns.end(), [&](const ColumnInfo& info) {
      return info.type == ColumnType::kBit && EqualAscii(info.name, column);
    });
  });
}

}  // namespace ordex
