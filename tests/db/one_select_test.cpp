#include "store/db/one_select.h"

#include <gtest/gtest.h>

#include <string_view>

#include "support/db_raised.h"

namespace ordex {
namespace {

DbRaised Refusal(std::string_view sql) {
  return DbRaisedBy([&] { RequireOneSelect(Tokenize(sql)); });
}

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

}  // namespace
}  // namespace ordex
