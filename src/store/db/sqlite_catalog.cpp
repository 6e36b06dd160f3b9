#include "store/db/sqlite_catalog.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "base/text.h"
#include "store/db/ascii.h"

namespace ordex {
namespace {

struct KnownType {
  std::string_view name;  // lower case
  DeclaredType declared;
};

// The first whose name the declared type begins with; so the longer names stand first.
constexpr std::array<KnownType, 22> kKnownTypes = {{
    {"bit", {ColumnType::kBit, 0}},
    {"bool", {ColumnType::kBit, 0}},
    {"smalldatetime", {ColumnType::kDate, 0}},
    {"date", {ColumnType::kDate, 0}},
    {"tinyint", {ColumnType::kInteger, 1}},
    {"smallint", {ColumnType::kInteger, 2}},
    {"mediumint", {ColumnType::kInteger, 4}},
    {"bigint", {ColumnType::kInteger, 8}},
    {"int8", {ColumnType::kInteger, 8}},
    {"int2", {ColumnType::kInteger, 2}},
    {"int", {ColumnType::kInteger, 4}},
    {"float", {ColumnType::kReal, 0}},
    {"real", {ColumnType::kReal, 0}},
    {"double", {ColumnType::kReal, 0}},
    {"money", {ColumnType::kReal, 0}},
    {"smallmoney", {ColumnType::kReal, 0}},
    {"decimal", {ColumnType::kReal, 0}},
    {"numeric", {ColumnType::kReal, 0}},
    {"nvarchar", {ColumnType::kText, 0}},
    {"varchar", {ColumnType::kText, 0}},
    {"nchar", {ColumnType::kText, 0}},
    {"char", {ColumnType::kText, 0}},
}};

// The number in "NVARCHAR(200)"; 0 where there is none, as in "NVARCHAR(MAX)".
std::size_t ParsedSize(std::string_view declared) {
  std::size_t size = 0;
  const std::size_t open = declared.find('(');
  if (open == std::string_view::npos) return size;
  const std::string_view digits = TrimLeft(declared.substr(open + 1));
  std::from_chars(digits.data(), digits.data() + digits.size(), size);
  return size;
}

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

std::optional<DeclaredType> ParseDeclaredType(const char* declared) {
  if (declared == nullptr) return std::nullopt;
  const std::string lower = LowerAscii(std::string_view(declared));
  for (const KnownType& known : kKnownTypes) {
    if (!lower.starts_with(known.name)) continue;
    DeclaredType type = known.declared;
    if (type.type == ColumnType::kText) type.size = ParsedSize(lower);
    return type;
  }
  if (Contains(lower, "text") || Contains(lower, "char")) return DeclaredType{ColumnType::kText, 0};
  return std::nullopt;
}

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
