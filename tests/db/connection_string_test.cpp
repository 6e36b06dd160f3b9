#include "store/db/connection_string.h"

#include <gtest/gtest.h>

namespace ordex {

bool operator==(const ConnectionKey& a, const ConnectionKey& b) {
  return a.name == b.name && a.value == b.value;
}

namespace {

using Keys = std::vector<ConnectionKey>;

TEST(ConnectionString, TheFragmentsOfTheSettingsAreTakenApartInOrder) {
  const ConnectionString settings(
      "Provider=SQLNCLI.1;Integrated Security=SSPI;Initial Catalog=Zelmo32;Data Source=SRV");
  EXPECT_EQ(settings.keys(), (Keys{{"Provider", "SQLNCLI.1"},
                                   {"Integrated Security", "SSPI"},
                                   {"Initial Catalog", "Zelmo32"},
                                   {"Data Source", "SRV"}}));
}

TEST(ConnectionString, ALookedUpNameIgnoresLetterCase) {
  EXPECT_EQ(ConnectionString("DATA SOURCE=SRV").Value("Data Source"), "SRV");
}

TEST(ConnectionString, AnAbsentNameIsEmpty) {
  EXPECT_EQ(ConnectionString("Data Source=SRV").Value("Password"), "");
  EXPECT_EQ(ConnectionString("").Value("Data Source"), "");
}

TEST(ConnectionString, TheLastOfTwoEqualNamesCounts) {
  EXPECT_EQ(ConnectionString("Server=A;server=B").Value("SERVER"), "B");
}

TEST(ConnectionString, BlanksAroundNamesAndValuesAreDropped) {
  EXPECT_EQ(ConnectionString(" ; Data Source = SRV \\ ORD ; ").keys(),
            (Keys{{"Data Source", "SRV \\ ORD"}}));
}

TEST(ConnectionString, EmptyPiecesArePassedOver) {
  EXPECT_EQ(ConnectionString(";;A=1;;;B=2;;").keys(), (Keys{{"A", "1"}, {"B", "2"}}));
  EXPECT_EQ(ConnectionString(" ; ;").keys(), Keys{});
}

TEST(ConnectionString, APieceWithoutAnEqualSignIsANameWithoutAValue) {
  EXPECT_EQ(ConnectionString("A;B=2").keys(), (Keys{{"A", ""}, {"B", "2"}}));
}

TEST(ConnectionString, AValueMayHoldEqualSigns) {
  EXPECT_EQ(ConnectionString("Password=a=b==c;B=2").keys(),
            (Keys{{"Password", "a=b==c"}, {"B", "2"}}));
}

TEST(ConnectionString, AValueBetweenApostrophesMayHoldSemicolonsAndBlanks) {
  EXPECT_EQ(ConnectionString("A=' x;y ';B=2").keys(), (Keys{{"A", " x;y "}, {"B", "2"}}));
}

TEST(ConnectionString, AValueBetweenDoubleQuotesMayHoldApostrophes) {
  EXPECT_EQ(ConnectionString("A=\"l'una;l'altra\" ; B=2").keys(),
            (Keys{{"A", "l'una;l'altra"}, {"B", "2"}}));
}

TEST(ConnectionString, AValueBetweenBracesMayHoldBothQuotes) {
  EXPECT_EQ(ConnectionString("Driver={SQL \"Server\" 'x';};B=2").keys(),
            (Keys{{"Driver", "SQL \"Server\" 'x';"}, {"B", "2"}}));
}

TEST(ConnectionString, DoubledQuotesInsideStandForOne) {
  EXPECT_EQ(ConnectionString("A='it''s';B=\"a\"\"b\";C={x}}y}").keys(),
            (Keys{{"A", "it's"}, {"B", "a\"b"}, {"C", "x}y"}}));
}

TEST(ConnectionString, AnEmptyQuotedValueIsEmpty) {
  EXPECT_EQ(ConnectionString("A='';B=2").keys(), (Keys{{"A", ""}, {"B", "2"}}));
}

TEST(ConnectionString, AQuoteThatIsNotClosedIsAPartOfTheValue) {
  EXPECT_EQ(ConnectionString("A='x;B=2").keys(), (Keys{{"A", "'x"}, {"B", "2"}}));
}

TEST(ConnectionString, AQuoteFollowedByOtherTextIsAPartOfTheValue) {
  EXPECT_EQ(ConnectionString("A='x'y;B=2").keys(), (Keys{{"A", "'x'y"}, {"B", "2"}}));
}

TEST(ConnectionString, AForgottenSemicolonSwallowsOnlyTheFragmentBehindIt) {
  const ConnectionString settings(
      "Provider=SQLNCLI.1Initial Catalog=Zelmo32;Data Source=file:x.db");
  EXPECT_EQ(settings.Value("Data Source"), "file:x.db");
  EXPECT_EQ(settings.Value("Provider"), "SQLNCLI.1Initial Catalog=Zelmo32");
}

}  // namespace
}  // namespace ordex
