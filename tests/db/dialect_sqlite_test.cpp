#include "store/db/dialect_sqlite.h"

#include <gtest/gtest.h>

#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/text.h"
#include "store/db/ascii.h"
#include "store/db/sql_text.h"
#include "support/db_raised.h"

namespace ordex {
namespace {

// Two tables with a bit column each, and one with text columns of the same names.
class Catalog final : public TableCatalog {
 public:
  bool IsBitColumn(std::span<const std::string> tables, std::string_view column) override {
    ++questions;
    for (const std::string& table : tables) {
      const auto known = bits.find(Lower(table));
      if (known != bits.end() && EqualAscii(known->second, column)) return true;
    }
    return false;
  }

  std::map<std::string, std::string> bits = {{"utenti", "TitContabilita"}, {"scadenze", "IsOrdex"}};
  int questions = 0;
};

std::string Rewritten(std::string_view sql) {
  Catalog catalog;
  return RewriteForSqlite(Tokenize(sql), catalog);
}

void ExpectUnchanged(const std::string& sql) {
  EXPECT_EQ(Rewritten(sql), sql);
}

TEST(RewriteForSqlite, ADateConversionBecomesADateText) {
  EXPECT_EQ(Rewritten("select * from SCADENZE where  Data_End =" + FormattaDataSql("05/03/2024") +
                      " and Codice_Pra = 7"),
            "select * from SCADENZE where  Data_End ='2024-03-05 00:00:00'  and Codice_Pra = 7");
  EXPECT_EQ(Rewritten(FormattaDataSql("05-03-2024")), "'2024-03-05 00:00:00' ");
}

TEST(RewriteForSqlite, ADateConversionMayBeWrittenInAnyLetterCaseAndWithAnyBlanks) {
  EXPECT_EQ(Rewritten("convert(smalldatetime,'5-3-2024',105)"), "'2024-03-05 00:00:00'");
  EXPECT_EQ(Rewritten("Convert \t( SmallDateTime , '05-03-2024 09:30' ,\n105 )"),
            "'2024-03-05 09:30:00'");
}

TEST(RewriteForSqlite, ADateConversionOfATextThatIsNoDateIsAnError) {
  EXPECT_EQ(DbRaisedBy([] { Rewritten("select CONVERT (SMALLDATETIME,'31/02/2024', 105) "); }),
            DbError("interrogazione rifiutata: '31/02/2024' non è una data (GG/MM/AAAA)"));
  EXPECT_EQ(DbRaisedBy([] { Rewritten("CONVERT (SMALLDATETIME,'', 105)"); }).number,
            kDatabaseNumber);
}

TEST(RewriteForSqlite, AnotherConversionIsLeftAlone) {
  ExpectUnchanged("CONVERT (VARCHAR, '05-03-2024', 105)");
  ExpectUnchanged("CONVERT (SMALLDATETIME, '05-03-2024', 103)");
  ExpectUnchanged("CONVERT (SMALLDATETIME, Data, 105)");
  ExpectUnchanged("select convert from T");
  ExpectUnchanged("convert");
}

TEST(RewriteForSqlite, ADateBetweenNumberSignsIsReadMonthFirst) {
  EXPECT_EQ(Rewritten(" Data_End =#03/05/2024# and"), " Data_End ='2024-03-05 00:00:00' and");
}

TEST(RewriteForSqlite, ATextBetweenNumberSignsThatIsNoDateIsAnError) {
  EXPECT_EQ(DbRaisedBy([] { Rewritten("Data_End =#13/05/2024#"); }),
            DbError("interrogazione rifiutata: #13/05/2024# non è una data (MM/GG/AAAA)"));
}

TEST(RewriteForSqlite, ADoubleQuotedTextBecomesALiteralBetweenApostrophes) {
  EXPECT_EQ(Rewritten("Parti = \"ROSSI \\ D'AMICO\""), "Parti = 'ROSSI \\ D''AMICO'");
  EXPECT_EQ(Rewritten("a = \"detto \"\"il lungo\"\"\""), "a = 'detto \"il lungo\"'");
  EXPECT_EQ(Rewritten("a = \"\""), "a = ''");
  EXPECT_EQ(Rewritten("a = \"\"\"\""), "a = '\"'");
}

TEST(RewriteForSqlite, LiteralsOfDifferentKindsThatTouchStayTwo) {
  EXPECT_EQ(Rewritten("select \"a\"'b'"), "select 'a' 'b'");
  EXPECT_EQ(Rewritten("select 'a'\"b\"'c'"), "select 'a' 'b' 'c'");
  EXPECT_EQ(Rewritten("select #05/13/2024#'b'"), "select '2024-05-13 00:00:00' 'b'");
  EXPECT_EQ(Rewritten("select 'b'#05/13/2024#"), "select 'b' '2024-05-13 00:00:00'");
}

TEST(RewriteForSqlite, ABitThatTouchesANumberOrAWordDoesNotJoinIt) {
  EXPECT_EQ(Rewritten("select * from Utenti where TitContabilita = 'TRUE'5"),
            "select * from Utenti where TitContabilita = 1 5");
  EXPECT_EQ(Rewritten("select * from Utenti where TitContabilita = 'FALSE'or 1"),
            "select * from Utenti where TitContabilita = 0 or 1");
}

TEST(RewriteForSqlite, UcaseBecomesUpperBeforeAParenthesisOnly) {
  EXPECT_EQ(Rewritten("ucase(Scadenza) = UCASE (\"X\")"), "UPPER(Scadenza) = UPPER ('X')");
  ExpectUnchanged("select ucase from T");
  ExpectUnchanged("select Xucase(a), ucases(b)");
}

TEST(RewriteForSqlite, ABitColumnAgainstTrueOrFalseIsComparedWithANumber) {
  EXPECT_EQ(Rewritten("Select ID_Utente, NomeUtente from Utenti where TitContabilita = 'TRUE'"),
            "Select ID_Utente, NomeUtente from Utenti where TitContabilita = 1");
  EXPECT_EQ(Rewritten("select 1 from Utenti where titcontabilita='False'"),
            "select 1 from Utenti where titcontabilita=0");
}

TEST(RewriteForSqlite, ATextColumnAgainstTrueStays) {
  ExpectUnchanged("select 1 from Utenti where NomeUtente = 'TRUE'");
}

TEST(RewriteForSqlite, ABitColumnOfATableThatIsNotNamedStays) {
  ExpectUnchanged("select 1 from Utenti where IsOrdex = 'TRUE'");
}

TEST(RewriteForSqlite, AQualifiedColumnBelongsToItsTableOrAlias) {
  EXPECT_EQ(Rewritten("select 1 from Pratica inner join Utenti on a = b where "
                      "Utenti.TitContabilita = 'TRUE'"),
            "select 1 from Pratica inner join Utenti on a = b where Utenti.TitContabilita = 1");
  EXPECT_EQ(Rewritten("select 1 from Pratica p, dbo.Utenti AS u where u.TitContabilita = 'TRUE'"),
            "select 1 from Pratica p, dbo.Utenti AS u where u.TitContabilita = 1");
  EXPECT_EQ(Rewritten("select 1 from [Utenti] where [Utenti].[TitContabilita] = 'TRUE'"),
            "select 1 from [Utenti] where [Utenti].[TitContabilita] = 1");
}

TEST(RewriteForSqlite, AColumnThatIsTextInTheQualifyingTableStays) {
  ExpectUnchanged("select 1 from Pratica, Utenti where Pratica.TitContabilita = 'TRUE'");
  ExpectUnchanged("select 1 from Pratica p, Utenti u where p.TitContabilita = 'TRUE'");
}

TEST(RewriteForSqlite, ATableInParenthesesIsNamedToo) {
  EXPECT_EQ(Rewritten("select 1 from (Utenti) where TitContabilita = 'TRUE'"),
            "select 1 from (Utenti) where TitContabilita = 1");
}

TEST(RewriteForSqlite, OnlyAComparisonWithEqualsIsRewritten) {
  ExpectUnchanged("select 1 from Utenti where TitContabilita <> 'TRUE'");
  ExpectUnchanged("select 1 from Utenti where TitContabilita >= 'TRUE'");
  ExpectUnchanged("select 'TRUE' from Utenti");
  ExpectUnchanged("select 1 from Utenti where TitContabilita = 'TRUE '");
}

TEST(RewriteForSqlite, BitsAreRewrittenInStatementsThatAreNoSelectToo) {
  EXPECT_EQ(Rewritten("delete from SCADENZE where IsOrdex = 'TRUE'"),
            "delete from SCADENZE where IsOrdex = 1");
  EXPECT_EQ(Rewritten("update SCADENZE set IsOrdex = 'FALSE'"), "update SCADENZE set IsOrdex = 0");
}

TEST(RewriteForSqlite, TheAgendaDuplicateTestIsRewrittenAsAWhole) {
  EXPECT_EQ(
      Rewritten("SELECT * from SCADENZE where  Data_End =#06/10/2024# and Codice_Pra = 12 and "
                "Parti = \"ROSSI \\ L'ALTRO\" and ucase(Scadenza) = \"PROVA \"\"A\"\"\""),
      "SELECT * from SCADENZE where  Data_End ='2024-06-10 00:00:00' and Codice_Pra = 12 and "
      "Parti = 'ROSSI \\ L''ALTRO' and UPPER(Scadenza) = 'PROVA \"A\"'");
}

TEST(RewriteForSqlite, NothingInsideALiteralAQuotedNameOrACommentIsTouched) {
  ExpectUnchanged("select 'ucase(x) #03/05/2024# CONVERT (SMALLDATETIME,''x'', 105) \"a\"' from T");
  ExpectUnchanged("select [ucase(x) = 'TRUE'] from Utenti");
  ExpectUnchanged("select 1 -- ucase(x) #1# \"a\"\n from T");
  ExpectUnchanged("select 1 /* ucase(x) \"a\" */ from T");
  EXPECT_EQ(Rewritten("\"#03/05/2024# ucase(x)\""), "'#03/05/2024# ucase(x)'");
}

TEST(RewriteForSqlite, WhatNeedsNoRewritingPassesByteForByteAndAsksNothing) {
  const std::string sql =
      "SELECT *\r\n from  Pratica\tinner join Utenti on Pratica.ID_Contab = Utenti.ID_Utente  "
      "where "
      "Pratica.NumeroRegGenerale = '12/2024 è'";
  Catalog catalog;
  EXPECT_EQ(RewriteForSqlite(Tokenize(sql), catalog), sql);
  EXPECT_EQ(catalog.questions, 0);
}

}  // namespace
}  // namespace ordex
