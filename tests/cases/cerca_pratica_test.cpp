// The page's register number looked up among the cases.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "cases/case_choice_rules.h"
#include "support/office_fixture.h"

namespace ordex::testing {
namespace {

using Texts = std::vector<std::string>;

class CercaPraticaTest : public ::testing::Test {
 protected:
  CercaPraticaTest() { header_.SetConnection(office_.connection()); }

  void Search(std::string_view number) {
    CercaPratica(office_.database(), number, choice_, header_);
  }

  Office office_{Office::Data::kSample};
  CaseChoice choice_;
  CaseHeaderControl header_{choice_.ctlTestata1};
};

TEST_F(CercaPraticaTest, AsksInTheseWords) {
  Search("1842/2025");
  EXPECT_EQ(office_.diagnostics.sql,
            (Texts{"Select ID_Pra from Pratica where NumeroRegGenerale = '1842/2025'"}));
}

TEST_F(CercaPraticaTest, OneCaseIsCountedAndShown) {
  Search("1842/2025");
  EXPECT_EQ(choice_.iCountPra, 1);
  EXPECT_EQ(choice_.lIdPratica, 2);
  EXPECT_EQ(choice_.ctlTestata1.idPra, 2);
  EXPECT_EQ(choice_.ctlTestata1.numeroRG, "1842/2025");
}

TEST_F(CercaPraticaTest, OfTwoCasesTheFirstIsShown) {
  Search("907/2024");
  EXPECT_EQ(choice_.iCountPra, 2);
  EXPECT_EQ(choice_.lIdPratica, 3);
  EXPECT_EQ(choice_.ctlTestata1.idPra, 3);
}

TEST_F(CercaPraticaTest, NoCaseLeavesTheIdentifierAndTheHeaderAsTheyWere) {
  Search("1842/2025");
  Search("3056/2025");
  EXPECT_EQ(choice_.iCountPra, 0);
  EXPECT_EQ(choice_.lIdPratica, 2);
  EXPECT_EQ(choice_.ctlTestata1.idPra, 2);
}

TEST_F(CercaPraticaTest, AnEmptyNumberFindsNoCaseThatHasNone) {
  Search("");
  EXPECT_EQ(choice_.iCountPra, 0);
  EXPECT_EQ(choice_.ctlTestata1.idPra, 0);
}

TEST_F(CercaPraticaTest, ComparesTheWholeNumber) {
  Search("842/2025");
  EXPECT_EQ(choice_.iCountPra, 0);
  Search("1842/20");
  EXPECT_EQ(choice_.iCountPra, 0);
}

TEST_F(CercaPraticaTest, MoreCasesThan16BitsCanCountAreAnOverflow) {
  office_.Do(
      "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 32768) "
      "INSERT INTO Pratica (NumeroRegGenerale) SELECT '9/9' FROM n");
  EXPECT_EQ(ErrorNumberOf([this] { Search("9/9"); }), 6);
}

// --- a number that holds an apostrophe ----------------------------------------------------------

class HostileNumber : public CercaPraticaTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(HostileNumber, IsToldToTheHookAsItStandsAndThenRefused) {
  const Texts cases = office_.Rows("SELECT * FROM Pratica ORDER BY ID_Pra");
  choice_.iCountPra = 5;
  choice_.lIdPratica = 6;
  EXPECT_EQ(ErrorNumberOf([this] { Search(GetParam()); }), kDatabaseErrorNumber);
  EXPECT_EQ(office_.diagnostics.sql,
            (Texts{"Select ID_Pra from Pratica where NumeroRegGenerale = '" +
                   std::string(GetParam()) + "'"}));
  EXPECT_TRUE(office_.connection().statements().empty());
  EXPECT_EQ(choice_.iCountPra, 5);
  EXPECT_EQ(choice_.lIdPratica, 6);
  EXPECT_EQ(choice_.ctlTestata1.idPra, 0);
  EXPECT_EQ(office_.Rows("SELECT * FROM Pratica ORDER BY ID_Pra"), cases);
}

INSTANTIATE_TEST_SUITE_P(Apostrophes, HostileNumber,
                         ::testing::Values("12/O'2025", "x' OR '1'='1", "x' UNION SELECT 2 --",
                                           "x'; DELETE FROM Pratica; --", "'", "1842/2025''"));

}  // namespace
}  // namespace ordex::testing
