// The search of the case header: letter case, and signs that mean something to the engine.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "cases/case_search.h"
#include "support/office_fixture.h"

namespace ordex::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

class CaseSearchSigns : public ::testing::Test {
 protected:
  std::vector<std::int32_t> Find(std::string_view text) {
    std::vector<std::int32_t> ids;
    for (const FoundCase& found : SearchCases(office_.connection(), text)) {
      ids.push_back(found.idPra);
    }
    return ids;
  }
  void Subject(const std::string& text, int idPra) {
    office_.Do("UPDATE Pratica SET Oggetto = '" + text +
               "' WHERE ID_Pra = " + std::to_string(idPra));
  }

  Office office_{Office::Data::kSample};
};

TEST_F(CaseSearchSigns, IgnoresLetterCaseEverywhere) {
  EXPECT_THAT(Find("vallebruna"), ElementsAre(2));
  EXPECT_THAT(Find("baldracchi erminia"), ElementsAre(3));
  EXPECT_THAT(Find("altobrandi"), ElementsAre(6));
  EXPECT_THAT(Find("DECRETO"), ElementsAre(7));
}

TEST_F(CaseSearchSigns, IgnoresLetterCaseOfARegisterNumber) {
  office_.Do("UPDATE Pratica SET NumeroRegGenerale = '12/2026/BIS' WHERE ID_Pra = 6");
  EXPECT_THAT(Find("12/2026/bis"), ElementsAre(6));
}

TEST_F(CaseSearchSigns, IgnoresLetterCaseOfAccentedLetters) {
  EXPECT_THAT(Find("rustignè"), ElementsAre(8));
  EXPECT_THAT(Find("Rustignè Mauro"), ElementsAre(8));
  EXPECT_THAT(Find("RUSTIGNÈ"), ElementsAre(8));
}

TEST_F(CaseSearchSigns, IgnoresLetterCaseOfAccentedLettersInTheSubject) {
  Subject("Qualità delle opere", 6);
  EXPECT_THAT(Find("QUALITÀ"), ElementsAre(6));
}

TEST_F(CaseSearchSigns, TakesAPercentSignAsItself) {
  Subject("Sconto del 100% lordo", 6);
  Subject("Sconto del 1000 lordo", 7);
  EXPECT_THAT(Find("100%"), ElementsAre(6));
  EXPECT_THAT(Find("%"), IsEmpty());
  EXPECT_THAT(Find("%%%"), IsEmpty());
}

TEST_F(CaseSearchSigns, TakesAnUnderscoreAsItself) {
  Subject("Lotto A_1", 6);
  Subject("Lotto AB1", 7);
  EXPECT_THAT(Find("Lotto A_1"), ElementsAre(6));
  EXPECT_THAT(Find("___"), IsEmpty());
}

TEST_F(CaseSearchSigns, TakesABracketAsItself) {
  Subject("Foglio [ab] particella", 6);
  Subject("Foglio a particella", 7);
  EXPECT_THAT(Find("Foglio [ab]"), ElementsAre(6));
}

TEST_F(CaseSearchSigns, TakesAnExclamationMarkAsItself) {
  Subject("Urgente! Sfratto", 6);
  Subject("Urgente Sfratto", 7);
  EXPECT_THAT(Find("Urgente!"), ElementsAre(6));
  EXPECT_THAT(Find("!%_"), IsEmpty());
}

TEST_F(CaseSearchSigns, TakesSignsInANumberAsThemselves) {
  EXPECT_THAT(Find("1842_2025"), IsEmpty());
  EXPECT_THAT(Find("1842%"), IsEmpty());
}

TEST_F(CaseSearchSigns, TakesApostrophesAsThemselves) {
  EXPECT_THAT(Find("D'AGNOLO"), ElementsAre(4));
  EXPECT_THAT(Find("dell'isola"), ElementsAre(9));
  EXPECT_THAT(Find("x' OR '1'='1"), IsEmpty());
  EXPECT_THAT(Find("'; DELETE FROM Pratica; --"), IsEmpty());
  EXPECT_EQ(office_.Row("SELECT COUNT(*) FROM Pratica"), "10");
}

TEST_F(CaseSearchSigns, TakesQuotesAndSemicolonsAsThemselves) {
  Subject("Nave \"Stella; Maris\"", 6);
  EXPECT_THAT(Find("\"Stella; Maris\""), ElementsAre(6));
}

}  // namespace
}  // namespace ordex::testing
