#include "store/db/odbc_engine.h"

#include "store/db/ascii.h"

namespace ordex {

std::unique_ptr<OdbcEngine> MakeOdbcEngine(std::string_view dbmsName) {
  if (LowerAscii(dbmsName).find("sqlite") != std::string::npos) return MakeOdbcSqliteEngine();
  return MakeSqlServerEngine();
}

std::string BracketedName(std::string_view name) {
  std::string quoted = "[";
  for (const char character : name) {
    quoted.push_back(character);
    if (character == ']') quoted.push_back(']');
  }
  return quoted + "]";
}

std::string PlainInsertSql(const std::string& table, std::span<const std::string> columns) {
  std::string sql = "INSERT INTO " + BracketedName(table);
  if (columns.empty()) return sql + " DEFAULT VALUES";
  std::string places;
  const char* separator = " (";
  for (const std::string& column : columns) {
    sql.append(separator).append(BracketedName(column));
    places.append(places.empty() ? "?" : ", ?");
    separator = ", ";
  }
  return sql.append(") VALUES (").append(places).append(")");
}

std::string PlainUpdateSql(const std::string& table, std::span<const std::string> columns,
                           const std::string& key) {
  std::string sql = "UPDATE " + BracketedName(table);
  const char* separator = " SET ";
  for (const std::string& column : columns) {
    sql.append(separator).append(BracketedName(column)).append(" = ?");
    separator = ", ";
  }
  return sql.append(" WHERE ").append(BracketedName(key)).append(" = ?");
}

}  // namespace ordex
