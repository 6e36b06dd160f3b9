// The case-header control: what it shows of a case.
#include <gtest/gtest.h>

#include <string>

#include "cases/case_header.h"
#include "support/office_fixture.h"

namespace ordex::testing {
namespace {

struct HeaderFixture {
  explicit HeaderFixture(Office::Data data = Office::Data::kSample) : office(data) {}

  bool Load(std::int32_t idPra) {
    control.SetConnection(office.connection());
    return control.LoadCase(idPra);
  }

  Office office;
  CaseHeader header;
  CaseHeaderControl control{header};
};

TEST(CaseHeader, ShowsTheCaseWithItsPartiesTextsAndNumber) {
  HeaderFixture fixture;
  ASSERT_TRUE(fixture.Load(3));
  const CaseHeader& header = fixture.header;
  EXPECT_EQ(header.idPra, 3);
  EXPECT_EQ(header.numeroRG, "907/2024");
  EXPECT_EQ(header.title, "CONDOMINIO VIA DEI TIGLI 14 / BALDRACCHI ERMINIA - R.G. 907/2024");
  EXPECT_EQ(header.descriptions[0], "Cortile comune");
  EXPECT_EQ(header.descriptions[1], "Prima Civile");
  EXPECT_EQ(header.istruttore, "Dott. Grimaldesi Nicolò");
  EXPECT_EQ(header.posizione, "3");
  EXPECT_EQ(header.cliente.idAna, 5);
  EXPECT_EQ(header.cliente.name, "CONDOMINIO VIA DEI TIGLI 14");
  EXPECT_EQ(header.controparte.idAna, 6);
  EXPECT_EQ(header.controparte.name, "BALDRACCHI ERMINIA");
  EXPECT_FALSE(header.penale);
}

TEST(CaseHeader, ShowsACounterpartThatIsNoRegisteredPersonByItsName) {
  HeaderFixture fixture;
  ASSERT_TRUE(fixture.Load(4));
  EXPECT_EQ(fixture.header.title,
            "CONDOMINIO VIA DEI TIGLI 14 / D'AGNOLO E FIGLI S.N.C. - R.G. 907/2024");
  EXPECT_EQ(fixture.header.controparte.idAna, 0);
  EXPECT_EQ(fixture.header.controparte.name, "D'AGNOLO E FIGLI S.N.C.");
}

TEST(CaseHeader, TitlesWhatTheCaseHas) {
  HeaderFixture fixture;
  fixture.Load(5);
  EXPECT_EQ(fixture.header.title, "MOTTALINI BRUNO - R.G. 2210/2025");
  fixture.Load(10);
  EXPECT_EQ(fixture.header.title, "STARNOTTI GELINDA");
  fixture.office.Do("UPDATE Pratica SET NumeroRegGenerale = '1/1' WHERE ID_Pra = 1");
  fixture.Load(1);
  EXPECT_EQ(fixture.header.title, "R.G. 1/1");
  fixture.office.Do("UPDATE Pratica SET ControCognome = 'NERI' WHERE ID_Pra = 1");
  fixture.Load(1);
  EXPECT_EQ(fixture.header.title, "NERI - R.G. 1/1");
}

TEST(CaseHeader, OfTheCaseThatStandsForNoneHasNoTextAtAll) {
  HeaderFixture fixture;
  ASSERT_TRUE(fixture.Load(1));
  EXPECT_EQ(fixture.header.idPra, 1);
  EXPECT_EQ(fixture.header.title, "");
  EXPECT_EQ(fixture.header.numeroRG, "");
  EXPECT_EQ(fixture.header.descriptions[0], "");
  EXPECT_EQ(fixture.header.descriptions[1], "");
  EXPECT_EQ(fixture.header.cliente.idAna, 0);
}

TEST(CaseHeader, TellsAPenalCase) {
  HeaderFixture fixture;
  ASSERT_TRUE(fixture.Load(5));
  EXPECT_TRUE(fixture.header.penale);
  ASSERT_TRUE(fixture.Load(3));
  EXPECT_FALSE(fixture.header.penale);
}

TEST(CaseHeader, WhereTheTableHasNoPenalColumnNoCaseIsPenal) {
  HeaderFixture fixture;
  fixture.office.Do("ALTER TABLE Pratica DROP COLUMN IsPenale");
  ASSERT_TRUE(fixture.Load(5));
  EXPECT_EQ(fixture.header.numeroRG, "2210/2025");
  EXPECT_FALSE(fixture.header.penale);
}

TEST(CaseHeader, ACaseWhosePenalFlagIsNullIsNotPenal) {
  HeaderFixture fixture;
  fixture.office.Do("UPDATE Pratica SET IsPenale = NULL WHERE ID_Pra = 5");
  ASSERT_TRUE(fixture.Load(5));
  EXPECT_FALSE(fixture.header.penale);
}

TEST(CaseHeader, OfACaseThatIsNotThereShowsNone) {
  HeaderFixture fixture;
  ASSERT_TRUE(fixture.Load(5));
  EXPECT_FALSE(fixture.Load(99));
  EXPECT_EQ(fixture.header.idPra, 0);
  EXPECT_EQ(fixture.header.title, "");
  EXPECT_FALSE(fixture.header.penale);
}

TEST(CaseHeader, ReadsTheCaseAnewEachTime) {
  HeaderFixture fixture;
  fixture.Load(5);
  fixture.office.Do("UPDATE Pratica SET NumeroRegGenerale = '7/7' WHERE ID_Pra = 5");
  fixture.Load(5);
  EXPECT_EQ(fixture.header.numeroRG, "7/7");
}

TEST(CaseHeader, ClearAndResetKeepTheUserAndTheVisibilityAlone) {
  for (const bool clear : {true, false}) {
    HeaderFixture fixture;
    fixture.control.SetUser(7);
    fixture.header.visible = false;
    fixture.Load(5);
    fixture.control.Search("STARNOTTI");
    if (clear) {
      fixture.control.Clear();
    } else {
      fixture.control.Reset();
    }
    EXPECT_EQ(fixture.header.idUtente, 7);
    EXPECT_FALSE(fixture.header.visible);
    EXPECT_EQ(fixture.header.idPra, 0);
    EXPECT_EQ(fixture.header.title, "");
    EXPECT_EQ(fixture.header.numeroRG, "");
    EXPECT_EQ(fixture.header.cliente.idAna, 0);
    EXPECT_EQ(fixture.header.searchText, "");
    EXPECT_TRUE(fixture.header.found.empty());
    EXPECT_FALSE(fixture.header.penale);
  }
}

TEST(CaseHeader, LoadingACaseKeepsTheUser) {
  HeaderFixture fixture;
  fixture.control.SetUser(7);
  fixture.Load(5);
  EXPECT_EQ(fixture.header.idUtente, 7);
}

TEST(CaseHeader, SearchKeepsTheCaseShown) {
  HeaderFixture fixture;
  fixture.Load(5);
  fixture.control.Search("633/2025");
  EXPECT_EQ(fixture.header.idPra, 5);
  EXPECT_EQ(fixture.header.searchText, "633/2025");
  ASSERT_EQ(fixture.header.found.size(), 1U);
  EXPECT_EQ(fixture.header.found[0].idPra, 6);
}

}  // namespace
}  // namespace ordex::testing
