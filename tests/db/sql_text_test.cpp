#include "store/db/sql_text.h"

#include <gtest/gtest.h>

#include "support/db_raised.h"

namespace ordex {
namespace {

TEST(FormattaStringaSql, AnApostropheIsDoubled) {
  EXPECT_EQ(FormattaStringaSql("L'Aquila"), "'L''Aquila'");
}

TEST(FormattaStringaSql, ANameWithTwoApostrophesIsWrittenWithBothDoubled) {
  EXPECT_EQ(FormattaStringaSql("D'ANGELO D'AMICO"), "'D''ANGELO D''AMICO'");
}

TEST(FormattaStringaSql, AnEmptyTextGivesTwoApostrophes) {
  EXPECT_EQ(FormattaStringaSql(""), "''");
}

TEST(FormattaStringaSql, NothingButTheApostropheIsEscaped) {
  EXPECT_EQ(FormattaStringaSql("a\"b\\c%_;--\r\n#è"), "'a\"b\\c%_;--\r\n#è'");
}

TEST(FormattaStringaSql, TheLongestTextHas32767CharactersAndOneMoreOverflows) {
  EXPECT_EQ(FormattaStringaSql(std::string(32767, 'x')).size(), 32769U);
  EXPECT_EQ(DbRaisedBy([] { FormattaStringaSql(std::string(32768, 'x')); }),
            (DbRaised{6,
                      "Overflow: un testo SQL può avere al più 32767 caratteri, questo ne ha "
                      "32768"}));
}

TEST(FormattaStringaSql, TheLimitCountsCharactersAndNotBytes) {
  std::string accents;
  for (int i = 0; i < 32767; ++i) accents += "è";
  EXPECT_EQ(FormattaStringaSql(accents).size(), 2 * 32767U + 2U);
}

TEST(FormattaDataSql, TheExpressionEndsInOneBlank) {
  EXPECT_EQ(FormattaDataSql("05-03-2024"), "CONVERT (SMALLDATETIME,'05-03-2024', 105) ");
}

TEST(FormattaDataSql, TheTextInsideIsNotEscaped) {
  EXPECT_EQ(FormattaDataSql("l'altro"), "CONVERT (SMALLDATETIME,'l'altro', 105) ");
}

TEST(SqlText, PiecesAreJoinedAsTheyAre) {
  SqlText text("SELECT * ");
  text.Append(" from T where ").Append(std::string("A = ")).AppendUndoubled("12/2024");
  EXPECT_EQ(text.text(), "SELECT *  from T where A = '12/2024'");
  EXPECT_TRUE(text.HoldsTogether());
}

TEST(SqlText, AnApostropheInAnUndoubledStretchIsRememberedAndTheTextStays) {
  SqlText text("A = ");
  text.AppendUndoubled("12' or 'a'='a");
  EXPECT_EQ(text.text(), "A = '12' or 'a'='a'");
  EXPECT_FALSE(text.HoldsTogether());
}

TEST(SqlText, ALiteralWithDoubledApostrophesHoldsTogether) {
  SqlText text("A = ");
  text.Append(FormattaStringaSql("D'AMICO"));
  EXPECT_TRUE(text.HoldsTogether());
}

TEST(SqlText, ABrokenPieceBreaksTheTextThatItIsAddedTo) {
  SqlText piece;
  piece.AppendUndoubled("a'b");
  SqlText text("A = ");
  text.Append(piece).Append(" and B = 1");
  EXPECT_EQ(text.text(), "A = 'a'b' and B = 1");
  EXPECT_FALSE(text.HoldsTogether());
}

}  // namespace
}  // namespace ordex
