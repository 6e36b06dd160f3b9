#include "store/db/write_sql.h"

namespace ordex {

std::vector<std::string> NamesOf(std::span<const NamedValue> values) {
  std::vector<std::string> names;
  names.reserve(values.size());
  for (const NamedValue& value : values) names.push_back(value.first);
  return names;
}

std::string QuotedName(std::string_view name, NameQuotes quotes) {
  std::string quoted(1, quotes.open);
  for (const char character : name) {
    quoted.push_back(character);
    if (character == quotes.close) quoted.push_back(character);
  }
  quoted.push_back(quotes.close);
  return quoted;
}

std::string InsertSql(std::string_view table, std::span<const std::string> columns,
                      NameQuotes quotes) {
  std::string sql = "INSERT INTO " + QuotedName(table, quotes);
  if (columns.empty()) return sql + " DEFAULT VALUES";
  std::string places;
  const char* separator = " (";
  for (const std::string& column : columns) {
    sql.append(separator).append(QuotedName(column, quotes));
    places.append(places.empty() ? "?" : ", ?");
    separator = ", ";
  }
  return sql.append(") VALUES (").append(places).append(")");
}

std::string UpdateSql(std::string_view table, std::span<const std::string> columns,
                      std::string_view key, NameQuotes quotes) {
  std::string sql = "UPDATE " + QuotedName(table, quotes);
  const char* separator = " SET ";
  for (const std::string& column : columns) {
    sql.append(separator).append(QuotedName(column, quotes)).append(" = ?");
    separator = ", ";
  }
  return sql.append(" WHERE ").append(QuotedName(key, quotes)).append(" = ?");
}

}  // namespace ordex
