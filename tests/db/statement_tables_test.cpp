#include "store/db/statement_tables.h"

#include <gtest/gtest.h>

#include <string>

namespace ordex {
namespace {

// "*", "T.*", "T.A", "A"; "?" for an expression; joined by blanks.
std::string Items(std::string_view sql) {
  std::string shown;
  for (const SelectItem& item : SelectItems(Tokenize(sql))) {
    if (!shown.empty()) shown += ' ';
    if (!item.qualifier.empty()) shown += item.qualifier + ".";
    switch (item.kind) {
      case SelectItemKind::kAll:
        shown += '*';
        break;
      case SelectItemKind::kColumn:
        shown += item.name;
        break;
      case SelectItemKind::kExpression:
        shown += '?';
        break;
    }
  }
  return shown;
}

std::string Tables(std::string_view sql) {
  std::string shown;
  for (const NamedTable& table : FindTables(Tokenize(sql))) {
    shown += table.name + (table.alias.empty() ? "" : "=" + table.alias) + " ";
  }
  return shown;
}

TEST(SelectItems, TheRoutinesLists) {
  EXPECT_EQ(Items("SELECT * from Pratica inner join Utenti on a = b"), "*");
  EXPECT_EQ(Items("SELECT ID_Pra,ID_Cliente,ID_Contab,Utenti.NomeUtente from Pratica"),
            "ID_Pra ID_Cliente ID_Contab Utenti.NomeUtente");
  EXPECT_EQ(Items("SELECT MAX(NumPos) AS PosMax FROM Pratica"), "?");
}

TEST(SelectItems, AColumnUnderAnotherNameIsAnExpression) {
  EXPECT_EQ(Items("SELECT A AS B, C D, E FROM T"), "? ? E");
}

TEST(SelectItems, ACommaInParenthesesCutsNothing) {
  EXPECT_EQ(Items("SELECT COALESCE(A, B), [C D], (E) FROM T"), "? C D ?");
}

TEST(SelectItems, AllOfOneTable) {
  EXPECT_EQ(Items("SELECT DISTINCT p.*, /* x */ u . Nome FROM T"), "p.* u.Nome");
}

TEST(SelectItems, AStatementOfSeveralLevelsTellsNothing) {
  EXPECT_EQ(Items("SELECT A FROM T UNION SELECT B FROM U"), "");
  EXPECT_EQ(Items("SELECT A FROM T WHERE B IN (SELECT C FROM U)"), "");
  EXPECT_EQ(Items("SELECT TOP (3) A FROM T"), "");
  EXPECT_EQ(Items("DELETE FROM T"), "");
  EXPECT_EQ(Items(""), "");
}

TEST(FindTables, WithTheirOtherNames) {
  EXPECT_EQ(Tables("SELECT 1 FROM dbo.Pratica p, [Utenti] LEFT JOIN Anagrafica AS c ON x = y"),
            "Pratica=p Utenti Anagrafica=c ");
}

}  // namespace
}  // namespace ordex
