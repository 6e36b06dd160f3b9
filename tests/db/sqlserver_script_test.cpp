// The tables of an empty test database in T-SQL.
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "base/text.h"
#include "store/db/declared_type.h"
#include "store/db/embedded_sql.h"
#include "store/db/sql_tokens.h"
#include "support/db_office.h"

namespace ordex {
namespace {

// What stands between "CREATE TABLE name (" and its closing line.
std::string_view Body(const std::string& table) {
  const std::string start = "CREATE TABLE " + table + " (\n";
  const std::size_t at = kSqlServerTables.find(start);
  if (at == std::string_view::npos) return {};
  const std::string_view rest = kSqlServerTables.substr(at + start.size());
  return rest.substr(0, rest.find("\n);"));
}

// "Name type" of each column; "identity" where the engine numbers it.
std::string Scripted(const std::string& table) {
  std::string shown;
  for (const std::string_view line : Split(Body(table), "\n")) {
    const auto halves = SplitOnce(Trim(line), " ");
    if (!halves) return "no column: " + std::string(line);
    const auto type = ParseDeclaredType(std::string(halves->right).c_str());
    shown.append(halves->left).append(" ").append(std::to_string(static_cast<int>(type->type)));
    shown.append(" ").append(std::to_string(type->size));
    shown.append(Contains(halves->right, "IDENTITY(1,1)") ? " identity\n" : "\n");
  }
  return shown;
}

std::string Embedded(DbOffice& office, const std::string& table) {
  std::string shown;
  for (const ColumnInfo& column : office.connection().TableColumns(table)) {
    shown.append(column.name).append(" ").append(std::to_string(static_cast<int>(column.type)));
    shown.append(" ").append(std::to_string(column.size));
    shown.append(column.identity ? " identity\n" : "\n");
  }
  return shown;
}

TEST(SqlServerScript, TheTablesHaveTheColumnsOfTheEmbeddedOnesInTheirOrder) {
  DbOffice office;
  for (const char* table :
       {"Pratica", "Utenti", "Anagrafica", "PraOrdex", "EventiPraOrdex", "SCADENZE"}) {
    EXPECT_EQ(Scripted(table), Embedded(office, table)) << table;
  }
}

TEST(SqlServerScript, EveryTextAndCommentIsClosed) {
  for (const Token& token : Tokenize(kSqlServerTables)) {
    EXPECT_NE(token.kind, TokenKind::kUnfinished) << token.text;
    EXPECT_NE(token.kind, TokenKind::kQuoted) << token.text;
  }
}

TEST(SqlServerScript, NothingIsMadeWhereATableOfThemExists) {
  const std::size_t guard = kSqlServerTables.find("RETURN;");
  ASSERT_NE(guard, std::string_view::npos);
  EXPECT_LT(guard, kSqlServerTables.find("CREATE TABLE"));
  for (const char* table :
       {"Pratica", "Utenti", "Anagrafica", "PraOrdex", "EventiPraOrdex", "SCADENZE"}) {
    EXPECT_LT(kSqlServerTables.find("OBJECT_ID('" + std::string(table) + "') IS NOT NULL"), guard);
  }
}

}  // namespace
}  // namespace ordex
