// The client of a new case, looked up in the registry of persons or added to it.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "store/persons.h"
#include "support/person_fixture.h"

namespace ordex::testing {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* kHowMany = "SELECT COUNT(*) FROM Anagrafica";

class CercaAnagraficaTest : public ::testing::Test {
 protected:
  std::int32_t Search(std::string_view soggetto) {
    return CercaAnagrafica(office().database(), soggetto, person_.dialog, person_.bCollegareAna,
                           person_.boxes);
  }
  void Add(std::string_view names) {
    office().Do("INSERT INTO Anagrafica (ID_Ana, Cognome, Nome, IsFisicaGiuridica) VALUES (" +
                std::string(names) + ", 1)");
  }
  Office& office() { return person_.office; }

  PersonFixture person_;
};

// --- the look-up's words ------------------------------------------------------------------------

TEST_F(CercaAnagraficaTest, AsksForSurnameAndFirstNameWithItsDoubleBlanks) {
  Search("ROSSI MARIO");
  EXPECT_EQ(office().diagnostics.sql,
            (Texts{"SELECT * from Anagrafica where  LOWER(Cognome) = 'rossi' AND  LOWER(Nome) = "
                   "'mario'"}));
}

TEST_F(CercaAnagraficaTest, AsksForACompanyByItsWholeNameAndNoFirstName) {
  Search("EDILIZIA BIANCHI S.R.L.");
  EXPECT_EQ(office().diagnostics.sql,
            (Texts{"SELECT * from Anagrafica where  LOWER(Cognome) = 'edilizia bianchi s.r.l.' AND "
                   " Nome IS NULL"}));
}

TEST_F(CercaAnagraficaTest, DoublesAnApostrophe) {
  Search("D'AMICO LUCA");
  EXPECT_EQ(office().diagnostics.sql,
            (Texts{"SELECT * from Anagrafica where  LOWER(Cognome) = 'd''amico' AND  LOWER(Nome) = "
                   "'luca'"}));
}

TEST_F(CercaAnagraficaTest, AsksForANameThatCannotBeCutAsASurnameAlone) {
  Search("DE LUCA");
  EXPECT_EQ(
      office().diagnostics.sql,
      (Texts{"SELECT * from Anagrafica where  LOWER(Cognome) = 'de luca' AND  Nome IS NULL"}));
}

TEST_F(CercaAnagraficaTest, TakesTheTextOfACompanyUntrimmed) {
  Search(" BIANCHI S.R.L. ");
  EXPECT_EQ(office().diagnostics.sql,
            (Texts{"SELECT * from Anagrafica where  LOWER(Cognome) = ' bianchi s.r.l. ' AND  Nome "
                   "IS NULL"}));
  EXPECT_EQ(office().Row("SELECT Cognome FROM Anagrafica WHERE ID_Ana = 2"), " BIANCHI S.R.L. ");
}

TEST_F(CercaAnagraficaTest, LowersAccentedLettersToo) {
  Add("20, 'RUSTIGNÈ', 'MAURO'");
  person_.Answer(CardAnswer::kYes);
  EXPECT_EQ(Search("Rustignè Mauro"), 20);
}

// --- nothing found ------------------------------------------------------------------------------

TEST_F(CercaAnagraficaTest, AddsAPersonThatIsNotThereAndReturnsItsNumber) {
  EXPECT_EQ(Search("ROSSI MARIO"), 2);
  EXPECT_EQ(office().Row("SELECT Cognome, Nome, IsFisicaGiuridica, IsSostitutoImposta, Cambio, "
                         "Valuta, StatoCivile, TipoSocieta, Categoria FROM Anagrafica WHERE ID_Ana "
                         "= 2"),
            "ROSSI|MARIO|Vero|Falso|1936,27|EURO|1|1|CLIENTE");
  EXPECT_TRUE(person_.dialogs.shown.empty());
  EXPECT_TRUE(person_.boxes.shown.empty());
}

TEST_F(CercaAnagraficaTest, SetsTheColumnsOfANewPersonInTheirOrderAndNoOthers) {
  Search("ROSSI MARIO");
  EXPECT_EQ(office().connection().statements().back(),
            "INSERT Anagrafica (Cognome, Nome, IsFisicaGiuridica, IsSostitutoImposta, Cambio, "
            "Valuta, StatoCivile, TipoSocieta, Categoria)");
}

TEST_F(CercaAnagraficaTest, AddsACompanyWithTheSameDefaultsAndAnEmptyFirstName) {
  EXPECT_EQ(Search("EDILIZIA BIANCHI S.R.L."), 2);
  EXPECT_EQ(office().Row("SELECT Cognome, Nome, IsFisicaGiuridica, IsSostitutoImposta, Cambio, "
                         "Valuta, StatoCivile, TipoSocieta, Categoria FROM Anagrafica WHERE ID_Ana "
                         "= 2"),
            "EDILIZIA BIANCHI S.R.L.||Falso|Vero|1936,27|EURO|1|1|CLIENTE");
}

TEST_F(CercaAnagraficaTest, DoesNotFindACompanyAgainThatItAddedItself) {
  EXPECT_EQ(Search("EDILIZIA BIANCHI S.R.L."), 2);
  EXPECT_EQ(Search("EDILIZIA BIANCHI S.R.L."), 3);
  EXPECT_TRUE(person_.dialogs.shown.empty());
}

// --- found --------------------------------------------------------------------------------------

TEST_F(CercaAnagraficaTest, LinksToTheFoundPersonWhenTheUserSaysYes) {
  Add("20, 'Rossi', 'Mario'");
  person_.Answer(CardAnswer::kYes);
  EXPECT_EQ(Search("ROSSI MARIO"), 20);
  EXPECT_EQ(office().Row(kHowMany), "2");
  EXPECT_EQ(office().Row("SELECT Cognome, Nome, Valuta FROM Anagrafica WHERE ID_Ana = 20"),
            "Rossi|Mario|NULL");
}

TEST_F(CercaAnagraficaTest, AddsASecondPersonOfThatNameWhenTheUserSaysNo) {
  Add("20, 'ROSSI', 'MARIO'");
  person_.Answer(CardAnswer::kNo);
  EXPECT_EQ(Search("ROSSI MARIO"), 21);
  EXPECT_EQ(office().Rows("SELECT ID_Ana, Cognome, Nome, Valuta FROM Anagrafica WHERE ID_Ana >= 20 "
                          "ORDER BY ID_Ana"),
            (Texts{"20|ROSSI|MARIO|NULL", "21|ROSSI|MARIO|EURO"}));
}

TEST_F(CercaAnagraficaTest, AddsAPersonWhenTheDialogIsClosedWithoutAnAnswer) {
  Add("20, 'ROSSI', 'MARIO'");
  person_.bCollegareAna = true;
  person_.Answer(CardAnswer::kClosed);
  EXPECT_EQ(Search("ROSSI MARIO"), 21);
}

TEST_F(CercaAnagraficaTest, AsksAboutTheFirstOfTwoRowsAndLinksToIt) {
  Add("20, 'Rossi', 'Mario'");
  Add("21, 'ROSSI', 'MARIO'");
  person_.Answer(CardAnswer::kYes);
  EXPECT_EQ(Search("ROSSI MARIO"), 20);
  EXPECT_EQ(person_.questions,
            (Texts{"Sono stati trovati dati anagrafici corrispondenti a Rossi Mario.\r\n"
                   "Collegare il cliente a questi dati ?"}));
}

TEST_F(CercaAnagraficaTest, FindsACompanyThatHasNoFirstNameAtAll) {
  Add("20, 'Edilizia Bianchi s.r.l.', NULL");
  person_.Answer(CardAnswer::kYes);
  EXPECT_EQ(Search("EDILIZIA BIANCHI S.R.L."), 20);
}

TEST_F(CercaAnagraficaTest, HasNoTransactionOpenWhileTheUserIsAsked) {
  Add("20, 'ROSSI', 'MARIO'");
  person_.Answer(CardAnswer::kNo);
  Search("ROSSI MARIO");
  ASSERT_EQ(person_.questions.size(), 1U);
  EXPECT_FALSE(person_.transactionWhileOpen);
}

// While the card is open another program adds and changes rows freely: no statement pins them.
TEST_F(CercaAnagraficaTest, HindersNoOtherProgramWhileTheUserIsAsked) {
  Add("20, 'ROSSI', 'MARIO'");
  person_.dialogs.onPersonCard = [this] {
    Add("30, 'ALTRI', 'ANNA'");
    person_.dialog.cmdNo_Click();
  };
  EXPECT_EQ(Search("ROSSI MARIO"), 31);
}

// --- a Yes left over, and errors ----------------------------------------------------------------

TEST_F(CercaAnagraficaTest, AYesLeftOverFromAnEarlierUseIsAnErrorWhenNothingIsFound) {
  person_.bCollegareAna = true;
  EXPECT_EQ(Search("ROSSI MARIO"), 0);
  ASSERT_EQ(person_.boxes.shown.size(), 1U);
  EXPECT_EQ(person_.boxes.shown[0].text,
            "Errore del database: non c'è una riga corrente: il risultato è vuoto o finito");
  EXPECT_EQ(person_.boxes.shown[0].title, "Praxion");
  EXPECT_EQ(person_.boxes.shown[0].buttons, BoxButtons::kOk);
  EXPECT_EQ(office().Row(kHowMany), "1");
}

TEST_F(CercaAnagraficaTest, ShowsAnErrorOfTheLookUpAndReturnsNothing) {
  office().connection().FailOn("FETCH SELECT * from Anagrafica");
  EXPECT_EQ(Search("ROSSI MARIO"), 0);
  EXPECT_EQ(person_.boxes.Texts(), (Texts{"Errore del database: errore chiesto dalla prova"}));
  EXPECT_EQ(office().Row(kHowMany), "1");
}

TEST_F(CercaAnagraficaTest, ShowsAnErrorOfTheInsertAndReturnsNothing) {
  office().connection().FailOn("INSERT Anagrafica");
  EXPECT_EQ(Search("ROSSI MARIO"), 0);
  EXPECT_EQ(person_.boxes.Texts(), (Texts{"Errore del database: errore chiesto dalla prova"}));
}

TEST_F(CercaAnagraficaTest, ShowsAnErrorOfANameThatIsTooLong) {
  EXPECT_EQ(Search(std::string(32768, 'A')), 0);
  ASSERT_EQ(person_.boxes.shown.size(), 1U);
  EXPECT_TRUE(person_.boxes.shown[0].text.starts_with("Overflow: ")) << person_.boxes.shown[0];
}

}  // namespace
}  // namespace ordex::testing
