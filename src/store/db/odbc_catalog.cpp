#include "store/db/odbc_catalog.h"

#include <algorithm>
#include <initializer_list>
#include <optional>

#include "base/error.h"
#include "store/db/ascii.h"
#include "store/db/declared_type.h"

namespace ordex {

struct OdbcCatalog::Reported {
  std::string schema;
  std::string column;
  std::string typeName;
  OdbcResultColumn type;
  std::int64_t place = 0;
};

namespace {

std::int64_t Number(const Value& value) {
  const auto* number = std::get_if<std::int64_t>(&value);
  return number == nullptr ? 0 : *number;
}

// Names of types say more than their numbers: an older driver reports a date as a text.
OdbcResultColumn TypeNamed(const std::string& typeName, const OdbcResultColumn& described) {
  const std::optional<DeclaredType> declared = ParseDeclaredType(typeName.c_str());
  if (!declared) return described;
  OdbcResultColumn type = described;
  const bool whole = declared->type == ColumnType::kReal && type.type == ColumnType::kInteger;
  if (!whole) type.type = declared->type;
  if (type.type == ColumnType::kInteger && !whole) type.size = declared->size;
  const bool sized = type.type == ColumnType::kText || type.type == ColumnType::kInteger;
  if (!sized) type.size = 0;
  return type;
}

bool IsNamed(std::string_view typeName, std::initializer_list<std::string_view> names) {
  const std::string lower = LowerAscii(typeName);
  return std::any_of(names.begin(), names.end(),
                     [&](std::string_view name) { return lower.starts_with(name); });
}

bool HoldsName(const std::vector<std::string>& names, std::string_view wanted) {
  return std::any_of(names.begin(), names.end(),
                     [&](const std::string& name) { return EqualAscii(name, wanted); });
}

}  // namespace

const std::vector<ColumnInfo>& OdbcCatalog::Columns(const std::string& table) {
  return Find(table).columns;
}

OdbcColumnType OdbcCatalog::TypeOf(const std::string& table, std::string_view column) {
  const Table& known = Find(table);
  for (std::size_t i = 0; i < known.columns.size(); ++i) {
    if (!EqualAscii(known.columns[i].name, column)) continue;
    return known.types[i];
  }
  return {};
}

bool OdbcCatalog::IsBitColumn(std::span<const std::string> tables, std::string_view column) {
  return std::any_of(tables.begin(), tables.end(), [&](const std::string& table) {
    return TypeOf(table, column).type == ColumnType::kBit;
  });
}

const OdbcCatalog::Table& OdbcCatalog::Find(const std::string& table) {
  static const Table kNone;
  std::string key = LowerAscii(std::string_view(table));
  const auto known = tables_.find(key);
  if (known != tables_.end()) return known->second;
  Table asked = Ask(table);
  if (asked.columns.empty()) return kNone;  // not kept: the table may yet be made
  return tables_.emplace(std::move(key), std::move(asked)).first->second;
}

OdbcCatalog::Table OdbcCatalog::Ask(const std::string& table) {
  std::vector<Reported> reported = AskColumns(table);
  if (reported.empty()) return {};
  const std::string schema = SchemaOf(reported);
  std::erase_if(reported, [&](const Reported& each) { return each.schema != schema; });
  const std::vector<std::string> key = AskKey(table, schema);
  const auto is_only_key = [&](const Reported& each) {
    return key.size() == 1 && EqualAscii(key.front(), each.column);
  };
  const auto is_identity = [&](const Reported& each) {
    return link_->engine().IsIdentityType(each.typeName, is_only_key(each));
  };
  std::vector<std::string> identity;
  if (std::none_of(reported.begin(), reported.end(), is_identity)) identity = AskIdentity(table);

  Table found;
  for (const Reported& each : reported) {
    found.columns.push_back({each.column, each.type.type, each.type.size, table,
                             is_identity(each) || HoldsName(identity, each.column),
                             is_only_key(each)});
    found.types.push_back({each.type.type, IsNamed(each.typeName, {"smalldatetime"}),
                           IsNamed(each.typeName, {"varchar", "char", "text"})});
  }
  return found;
}

// The columns of the result stand where the standard puts them; their names differ.
std::vector<OdbcCatalog::Reported> OdbcCatalog::AskColumns(const std::string& table) {
  constexpr SQLSMALLINT kSchema = 2;
  constexpr SQLSMALLINT kTable = 3;
  constexpr SQLSMALLINT kColumn = 4;
  constexpr SQLSMALLINT kDataType = 5;
  constexpr SQLSMALLINT kTypeName = 6;
  constexpr SQLSMALLINT kColumnSize = 7;
  constexpr SQLSMALLINT kDigits = 9;
  constexpr SQLSMALLINT kPlace = 17;
  OdbcStatement statement(link_);
  WideText name = ToWide(table);
  statement.Check(SQLColumnsW(statement.get(), nullptr, 0, nullptr, 0, name.data(),
                              static_cast<SQLSMALLINT>(name.size()), nullptr, 0));
  const CloseLater close(statement);
  std::vector<Reported> reported;
  while (statement.Fetch()) {
    Reported each;
    each.schema = ToText(statement.Get(kSchema, ColumnType::kText));
    const std::string reported_table = ToText(statement.Get(kTable, ColumnType::kText));
    each.column = ToText(statement.Get(kColumn, ColumnType::kText));
    const auto type =
        static_cast<SQLSMALLINT>(Number(statement.Get(kDataType, ColumnType::kInteger)));
    each.typeName = ToText(statement.Get(kTypeName, ColumnType::kText));
    const auto size =
        static_cast<SQLULEN>(Number(statement.Get(kColumnSize, ColumnType::kInteger)));
    const auto digits =
        static_cast<SQLSMALLINT>(Number(statement.Get(kDigits, ColumnType::kInteger)));
    each.place = Number(statement.Get(kPlace, ColumnType::kInteger));
    each.type = TypeNamed(each.typeName, DescribeType(type, size, digits));
    // The name is a pattern, in which "_" stands for any letter.
    if (EqualAscii(reported_table, table)) reported.push_back(std::move(each));
  }
  std::stable_sort(reported.begin(), reported.end(),
                   [](const Reported& a, const Reported& b) { return a.place < b.place; });
  return reported;
}

std::vector<std::string> OdbcCatalog::AskKey(const std::string& table, const std::string& schema) {
  constexpr SQLSMALLINT kColumn = 4;
  OdbcStatement statement(link_);
  WideText name = ToWide(table);
  WideText owner = ToWide(schema);
  statement.Check(SQLPrimaryKeysW(
      statement.get(), nullptr, 0, owner.empty() ? nullptr : owner.data(),
      static_cast<SQLSMALLINT>(owner.size()), name.data(), static_cast<SQLSMALLINT>(name.size())));
  const CloseLater close(statement);
  std::vector<std::string> key;
  while (statement.Fetch()) key.push_back(ToText(statement.Get(kColumn, ColumnType::kText)));
  return key;
}

std::vector<std::string> OdbcCatalog::AskIdentity(const std::string& table) {
  const std::string sql = link_->engine().IdentitySql(table);
  std::vector<std::string> names;
  if (sql.empty()) return names;
  OdbcStatement statement(link_);
  statement.ExecuteDirect(sql);
  const CloseLater close(statement);
  while (statement.Fetch()) names.push_back(ToText(statement.Get(1, ColumnType::kText)));
  return names;
}

// Where several schemas hold such a table, the one that the bare name stands for.
std::string OdbcCatalog::SchemaOf(const std::vector<Reported>& reported) {
  std::string first = reported.front().schema;
  const auto holds = [&](std::string_view schema) {
    return std::any_of(reported.begin(), reported.end(),
                       [&](const Reported& each) { return each.schema == schema; });
  };
  const bool several = std::any_of(reported.begin(), reported.end(),
                                   [&](const Reported& each) { return each.schema != first; });
  const std::string sql(link_->engine().DefaultSchemaSql());
  if (!several || sql.empty()) return first;
  OdbcStatement statement(link_);
  statement.ExecuteDirect(sql);
  const CloseLater close(statement);
  std::string own = statement.Fetch() ? ToText(statement.Get(1, ColumnType::kText)) : "";
  if (holds(own)) return own;
  return holds("dbo") ? "dbo" : first;
}

}  // namespace ordex
