#include "store/db/dialect.h"

#include <gtest/gtest.h>

#include <map>

#include "base/text.h"
#include "store/db/ascii.h"
#include "store/db/sql_text.h"
#include "support/db_raised.h"

namespace ordex {

bool operator==(const Token& a, const Token& b) {
  return a.kind == b.kind && a.text == b.text;
}

void PrintTo(const Token& token, std::ostream* out) {
  *out << static_cast<int>(token.kind) << " <" << token.text << ">";
}

namespace {

using Tokens = std::vector<Token>;

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

DbRaised Refusal(std::string_view sql) {
  return DbRaisedBy([&] { RequireOneSelect(Tokenize(sql)); });
}

// --- tokens -------------------------------------------------------------------------------------

TEST(Tokenize, EveryKindOfTokenIsToldApart) {
  EXPECT_EQ(Tokenize("a1 [b c]=1.5'd''e'\"f\"\"g\"#1#;--h\n/*i*/,"),
            (Tokens{{TokenKind::kWord, "a1"},
                    {TokenKind::kBlank, " "},
                    {TokenKind::kBracketed, "[b c]"},
                    {TokenKind::kSymbol, "="},
                    {TokenKind::kNumber, "1.5"},
                    {TokenKind::kText, "'d''e'"},
                    {TokenKind::kQuoted, "\"f\"\"g\""},
                    {TokenKind::kDate, "#1#"},
                    {TokenKind::kSemicolon, ";"},
                    {TokenKind::kComment, "--h"},
                    {TokenKind::kBlank, "\n"},
                    {TokenKind::kComment, "/*i*/"},
                    {TokenKind::kSymbol, ","}}));
}

TEST(Tokenize, NothingGivesNoTokens) {
  EXPECT_EQ(Tokenize(""), Tokens{});
}

TEST(Tokenize, TheTokensJoinedGiveTheText) {
  for (const std::string& text :
       {std::string("select 'a' # b"), std::string("1e+5 1e 0x1F .5 1..2"), std::string("[a]]b]"),
        std::string(R"('''' """" -- x)"), std::string("è'à' /*"), std::string("a\0b", 3),
        std::string("- / -- \n /* */ ]")}) {
    std::string joined;
    for (const Token& token : Tokenize(text)) joined += token.text;
    EXPECT_EQ(joined, text);
  }
}

TEST(Tokenize, ALiteralThatIsNotClosedIsUnfinished) {
  for (const char* text : {"'", "'a", "'a''", "\"a", "[a", "#05/03/2024", "/* a", "/*/"}) {
    EXPECT_EQ(Tokenize(text), (Tokens{{TokenKind::kUnfinished, text}})) << text;
  }
}

TEST(Tokenize, TwoDashesWithoutALineEndAreAComment) {
  EXPECT_EQ(Tokenize("--"), (Tokens{{TokenKind::kComment, "--"}}));
}

TEST(Tokenize, AWordMayStandDirectlyBehindANumber) {
  EXPECT_EQ(Tokenize("1DROP"), (Tokens{{TokenKind::kNumber, "1"}, {TokenKind::kWord, "DROP"}}));
  EXPECT_EQ(Tokenize("1e5"), (Tokens{{TokenKind::kNumber, "1e5"}}));
}

// --- one SELECT ---------------------------------------------------------------------------------

TEST(RequireOneSelect, TheRoutinesQueriesPass) {
  for (const char* sql :
       {"SELECT * from Anagrafica where  LOWER(Cognome) = 'd''amico' AND  Nome IS NULL",
        "Select ID_Pra from Pratica where NumeroRegGenerale = '1/2024'",
        "select * from SCADENZE where  Data_End =CONVERT (SMALLDATETIME,'05/03/2024', 105) ",
        "SELECT MAX(NumPos) AS PosMax FROM Pratica", "  select 1;", "/* a */ select 1 -- b",
        "select 1 ; \n -- fine"}) {
    EXPECT_EQ(Refusal(sql), DbRaised{}) << sql;
  }
}

TEST(RequireOneSelect, ASelectInsideParenthesesOrBehindUnionIsAPartOfTheFirst) {
  EXPECT_EQ(Refusal("select (select 1), a from (select 2) where a in ( select 3)"), DbRaised{});
  EXPECT_EQ(Refusal("select 1 union select 2 union all select 3"), DbRaised{});
  EXPECT_EQ(Refusal("select 1 except select 2 intersect select 3"), DbRaised{});
}

TEST(RequireOneSelect, ASecondStatementIsRefusedWithAndWithoutASemicolon) {
  const DbRaised wanted =
      DbError("interrogazione rifiutata: il testo SQL contiene più di un'istruzione");
  for (const char* sql :
       {"select 1; delete from Pratica", "select 1;;", "select 1; select 2", "select 1 select 2",
        "select 1 delete from Pratica", "select 1 DROP table Pratica", "select 1DROP table Pratica",
        "select 1 Update Pratica set NumPos = 1", "select * into X from Pratica",
        "select 1 exec xp", "select 1 /* */ truncate table Pratica", "select [a]drop table T"}) {
    EXPECT_EQ(Refusal(sql), wanted) << sql;
  }
}

TEST(RequireOneSelect, WhatStandsInALiteralOrAQuotedNameIsNoStatement) {
  EXPECT_EQ(Refusal("select 'a; delete from Pratica', [update], \"drop\" -- ; delete"), DbRaised{});
}

TEST(RequireOneSelect, AWordThatOnlyBeginsLikeAStatementIsAName) {
  EXPECT_EQ(Refusal("select Updated, Settore, Uso, Openings from Deleted_rows"), DbRaised{});
}

TEST(RequireOneSelect, WhatDoesNotBeginWithSelectIsRefused) {
  EXPECT_EQ(Refusal("Delete from EventiPraOrdex where ID_PraRel = 1"),
            DbError("interrogazione rifiutata: il testo SQL non comincia con SELECT: Delete"));
  for (const char* sql : {"(select 1)", "with a as (select 1) select * from a", "selecta 1",
                          "pragma user_version", "'select' 1"}) {
    EXPECT_EQ(Refusal(sql).number, kDatabaseNumber) << sql;
  }
}

TEST(RequireOneSelect, AnEmptyTextIsRefused) {
  const DbRaised wanted = DbError("interrogazione rifiutata: il testo SQL è vuoto");
  for (const char* sql : {"", "  ", "-- select 1", ";"}) EXPECT_EQ(Refusal(sql), wanted) << sql;
}

TEST(RequireOneSelect, AnUnfinishedLiteralOrCommentIsRefused) {
  EXPECT_EQ(Refusal("select 1 where a = 'x"),
            DbError("interrogazione rifiutata: un testo, una data o un commento non è chiuso: 'x"));
  for (const char* sql : {"select \"a", "select [a", "select #1", "select 1 /* x"}) {
    EXPECT_EQ(Refusal(sql).number, kDatabaseNumber) << sql;
  }
}

TEST(RequireOneSelect, ACommentInsideACommentIsRefusedForTheEnginesReadItDifferently) {
  EXPECT_EQ(Refusal("select 1 /* a /* b */ ' */ delete from Pratica --'"),
            DbError("interrogazione rifiutata: un commento ne contiene un altro: /* a /* b */"));
}

TEST(RequireOneStatement, AStatementThatIsNoSelectPasses) {
  EXPECT_EQ(DbRaisedBy([] {
              RequireOneStatement(Tokenize("Delete from EventiPraOrdex where ID_PraRel = 7"));
            }),
            DbRaised{});
}

TEST(RequireOneStatement, ASecondOneIsRefused) {
  EXPECT_EQ(DbRaisedBy([] { RequireOneStatement(Tokenize("delete from A; delete from B")); }),
            DbError("interrogazione rifiutata: il testo SQL contiene più di un'istruzione"));
}

// --- rewriting ----------------------------------------------------------------------------------

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
