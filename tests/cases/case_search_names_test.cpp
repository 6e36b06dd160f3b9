// The search of the case header: what it finds and in which order.
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

class CaseSearch : public ::testing::Test {
 protected:
  std::vector<std::int32_t> Find(std::string_view text) {
    std::vector<std::int32_t> ids;
    for (const FoundCase& found : SearchCases(office_.connection(), text)) {
      ids.push_back(found.idPra);
    }
    return ids;
  }
  // A case with nothing but those columns.
  void AddCase(const std::string& columns, const std::string& values) {
    office_.Do("INSERT INTO Pratica (" + columns + ") VALUES (" + values + ")");
  }

  Office office_{Office::Data::kSample};
};

TEST_F(CaseSearch, GivesEachCasesNumberAndTitle) {
  const std::vector<FoundCase> found = SearchCases(office_.connection(), "1842/2025");
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].idPra, 2);
  EXPECT_EQ(found[0].numeroRG, "1842/2025");
  EXPECT_EQ(found[0].title,
            "EDILIZIA VALLEBRUNA S.R.L. / IMMOBILIARE PONTEMIRTO S.P.A. - R.G. 1842/2025");
}

TEST_F(CaseSearch, FindsARegisterNumberWholeOrByItsBeginning) {
  EXPECT_THAT(Find("907/2024"), UnorderedElementsAre(3, 4));
  EXPECT_THAT(Find("1842"), ElementsAre(2));
}

TEST_F(CaseSearch, PutsTheNumberItselfBeforeLongerOnes) {
  AddCase("ID_Pra, NumeroRegGenerale", "20, '44/2026-1'");
  AddCase("ID_Pra, NumeroRegGenerale", "21, '44/2026'");
  EXPECT_THAT(Find("44/2026"), ElementsAre(21, 20));
}

TEST_F(CaseSearch, FindsNoMiddleOfARegisterNumber) {
  EXPECT_THAT(Find("842/2025"), IsEmpty());
}

TEST_F(CaseSearch, FindsAClientBySurname) {
  EXPECT_THAT(Find("STARNOTTI"), UnorderedElementsAre(6, 10));
  EXPECT_THAT(Find("STARN"), UnorderedElementsAre(6, 10));
}

TEST_F(CaseSearch, FindsAPartyBySurnameAndFirstName) {
  EXPECT_THAT(Find("STARNOTTI GELINDA"), UnorderedElementsAre(6, 10));
  EXPECT_THAT(Find("BALDRACCHI ERM"), ElementsAre(3));
  EXPECT_THAT(Find("BALDRACCHI ANNA"), IsEmpty());
}

TEST_F(CaseSearch, FindsASurnameOfTwoWordsWithItsFirstName) {
  office_.Do("INSERT INTO Anagrafica (ID_Ana, Cognome, Nome) VALUES (30, 'DE LUCA', 'MARIA PIA')");
  AddCase("ID_Pra, ID_Cliente", "20, 30");
  EXPECT_THAT(Find("DE LUCA MARIA PIA"), ElementsAre(20));
  EXPECT_THAT(Find("DE LUCA MAR"), ElementsAre(20));
}

TEST_F(CaseSearch, FindsARegisteredCounterpart) {
  EXPECT_THAT(Find("BALDRACCHI"), ElementsAre(3));
  EXPECT_THAT(Find("IMMOBILIARE"), ElementsAre(2));
}

TEST_F(CaseSearch, FindsACompanyByTheMiddleOfItsName) {
  EXPECT_THAT(Find("VALLEBRUNA"), ElementsAre(2));
  EXPECT_THAT(Find("SAN GIRIO"), UnorderedElementsAre(7, 9));
}

TEST_F(CaseSearch, FindsACounterpartThatIsOnlyAName) {
  EXPECT_THAT(Find("ALTOBRANDI"), ElementsAre(6));
  EXPECT_THAT(Find("COMUNE DI CASTELMIRTO"), ElementsAre(8));
  EXPECT_THAT(Find("CASTELMIRTO"), ElementsAre(8));
}

TEST_F(CaseSearch, FindsWordsOfTheSubject) {
  EXPECT_THAT(Find("Opposizione"), UnorderedElementsAre(7, 8));
  EXPECT_THAT(Find("decreto ingiuntivo"), ElementsAre(7));
}

TEST_F(CaseSearch, PutsNamesThatBeginWithTheTextBeforeThoseThatHoldIt) {
  office_.Do("INSERT INTO Anagrafica (ID_Ana, Cognome, Nome) VALUES (30, 'OLMETO', 'ANNA')");
  AddCase("ID_Pra, ID_Cliente", "20, 30");
  AddCase("ID_Pra, ControCognome", "21, 'OLMETO BRUNO'");
  const std::vector<std::int32_t> found = Find("OLMETO");
  ASSERT_EQ(found.size(), 3U);
  EXPECT_THAT(std::vector(found.begin(), found.begin() + 2), UnorderedElementsAre(20, 21));
  EXPECT_EQ(found[2], 7);
}

TEST_F(CaseSearch, PutsNamesBeforeSubjects) {
  office_.Do("UPDATE Pratica SET Oggetto = 'Taglio dei tigli' WHERE ID_Pra = 2");
  const std::vector<std::int32_t> found = Find("TIGLI");
  ASSERT_EQ(found.size(), 3U);
  EXPECT_THAT(std::vector(found.begin(), found.begin() + 2), UnorderedElementsAre(3, 4));
  EXPECT_EQ(found[2], 2);
}

TEST_F(CaseSearch, NamesACaseOnceThatIsFoundInSeveralWays) {
  office_.Do(
      "UPDATE Pratica SET Oggetto = 'STARNOTTI', ControCognome = 'STARNOTTI' WHERE ID_Pra = 6");
  EXPECT_THAT(Find("STARNOTTI"), UnorderedElementsAre(6, 10));
}

// --- a title pasted whole -----------------------------------------------------------------------

TEST_F(CaseSearch, FindsACaseByItsWholeTitle) {
  EXPECT_THAT(Find("EDILIZIA VALLEBRUNA S.R.L. / IMMOBILIARE PONTEMIRTO S.P.A. - R.G. 1842/2025"),
              ElementsAre(2));
  EXPECT_THAT(Find("RUSTIGNÈ MAURO / COMUNE DI CASTELMIRTO - R.G. 4417/2025"), ElementsAre(8));
  EXPECT_THAT(Find("MOTTALINI BRUNO - R.G. 2210/2025"), ElementsAre(5));
}

TEST_F(CaseSearch, FindsByItsWholeTitleACaseWithoutANumber) {
  EXPECT_THAT(Find("STARNOTTI GELINDA"), UnorderedElementsAre(6, 10));
  AddCase("ID_Pra, ID_Cliente, ID_Controparte, ControCognome", "20, 6, 1, 'NERI UGO'");
  EXPECT_THAT(Find("BALDRACCHI ERMINIA / NERI UGO"), UnorderedElementsAre(3, 20));
}

TEST_F(CaseSearch, FindsByItsWholeTitleACaseWithoutAClient) {
  AddCase("ID_Pra, ID_Cliente, ID_Controparte, ControCognome", "20, 1, 1, 'NERI UGO'");
  EXPECT_THAT(Find("NERI UGO"), ElementsAre(20));
}

// --- how many -----------------------------------------------------------------------------------

TEST_F(CaseSearch, StopsAtFiftyCases) {
  office_.Do(
      "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 60) "
      "INSERT INTO Pratica (ID_Cliente, NumeroRegGenerale) SELECT 7, '88/' || i FROM n");
  EXPECT_EQ(Find("88/").size(), 50U);
  EXPECT_EQ(Find("STARNOTTI").size(), 50U);
}

TEST_F(CaseSearch, FindsNothingForAnEmptyText) {
  EXPECT_THAT(Find(""), IsEmpty());
  EXPECT_THAT(Find("   "), IsEmpty());
}

TEST_F(CaseSearch, IgnoresBlanksAroundTheText) {
  EXPECT_THAT(Find("  1842/2025  "), ElementsAre(2));
}

TEST_F(CaseSearch, DoesNotFindThePersonWhoStandsForNobody) {
  EXPECT_THAT(Find("NULLO"), IsEmpty());
}

}  // namespace
}  // namespace ordex::testing
