// A new case from a profile page.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "support/case_record_fixture.h"

namespace ordex::testing {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* kHowManyCases = "SELECT COUNT(*) FROM Pratica";

TEST(CreateCase, WritesEveryColumnOfTheNewRow) {
  CaseRecordFixture record;
  ASSERT_TRUE(record.Create());
  EXPECT_EQ(record.office.Row("SELECT ID_Pra, Posizione, ID_Cliente, ID_Controparte, ID_Acp, "
                              "DataInizio, ID_Cla, ID_FatturareA, NumPos, ID_Riservata, Fk_Gruppo, "
                              "ID_Corrispondente, Cambio, Valuta, Rilevanza FROM Pratica WHERE "
                              "ID_Pra > 1"),
            "2|1|2|1|1|20/02/2026|1|2|1|0|NULL|1|1936,27|EURO|100");
  EXPECT_EQ(record.office.Row("SELECT ControCognome, AcpCognome, ID_Contab, NumeroRegGenerale, "
                              "Sezione, Istruttore, Oggetto, IsPenale FROM Pratica WHERE ID_Pra > "
                              "1"),
            "BIANCHI S.R.L.|Avv. Due|2|77/2026|Prima Civile|Dott. Neri|Locazione|Falso");
}

TEST(CreateCase, SetsItsColumnsInTheirOrder) {
  CaseRecordFixture record;
  ASSERT_TRUE(record.Create());
  const Texts& statements = record.office.connection().statements();
  EXPECT_EQ(std::count(statements.begin(), statements.end(),
                       "INSERT Pratica (Posizione, ID_Cliente, ID_Controparte, ID_Acp, DataInizio, "
                       "ID_Cla, ID_FatturareA, NumPos, ID_Riservata, Fk_Gruppo, ID_Corrispondente, "
                       "Cambio, Valuta, Rilevanza, ControCognome, AcpCognome, ID_Contab, "
                       "NumeroRegGenerale, Sezione, Istruttore, Oggetto)"),
            1);
}

// The position is computed twice: for `Posizione` and again for `NumPos`.
TEST(CreateCase, AsksTheseQuestionsInThisOrder) {
  CaseRecordFixture record;
  ASSERT_TRUE(record.Create());
  EXPECT_EQ(
      record.office.diagnostics.sql,
      (Texts{"SELECT * FROM Pratica WHERE Id_Pra = 0",
             "SELECT * from Anagrafica where  LOWER(Cognome) = 'verdi' AND  LOWER(Nome) = 'anna'",
             "SELECT MAX(NumPos) AS PosMax FROM Pratica",
             "SELECT MAX(NumPos) AS PosMax FROM Pratica",
             "SELECT * from PraOrdex where ID_PraRel = 2"}));
}

TEST(CreateCase, GivesTheNextPositionAfterTheHighestInUse) {
  CaseRecordFixture record(Office::Data::kSample);
  ASSERT_TRUE(record.Create());
  EXPECT_EQ(record.office.Row("SELECT Posizione, NumPos FROM Pratica WHERE NumeroRegGenerale = "
                              "'77/2026'"),
            "11|11");
}

TEST(CreateCase, NamesThePersonThatTheUserLinkedAsClientAndAsPartyInvoiced) {
  CaseRecordFixture record;
  record.office.Do("INSERT INTO Anagrafica (ID_Ana, Cognome, Nome) VALUES (20, 'VERDI', 'ANNA')");
  record.person.Answer(CardAnswer::kYes);
  ASSERT_TRUE(record.Create());
  EXPECT_EQ(record.office.Row("SELECT ID_Cliente, ID_FatturareA FROM Pratica WHERE ID_Pra = 2"),
            "20|20");
}

TEST(CreateCase, TakesTheAccountingUserThatWasChosen) {
  CaseRecordFixture record;
  record.choice.lIdContab = 31;
  ASSERT_TRUE(record.Create());
  EXPECT_EQ(record.office.Row("SELECT ID_Contab FROM Pratica WHERE ID_Pra = 2"), "31");
}

TEST(CreateCase, WritesThePortalProfileOfTheNewCase) {
  CaseRecordFixture record;
  ASSERT_TRUE(record.Create());
  EXPECT_EQ(record.office.Row("SELECT ID_PraRel, NumeroRegGenerale, Oggetto FROM PraOrdex"),
            "2|77/2026|Locazione");
}

TEST(CreateCase, ShowsNoMessageOfItsOwn) {
  CaseRecordFixture record;
  ASSERT_TRUE(record.Create());
  EXPECT_TRUE(record.person.boxes.shown.empty());
}

// --- what the page does not hold ----------------------------------------------------------------

TEST(CreateCase, LeavesWhatThePageDoesNotHoldNull) {
  CaseRecordFixture record;
  for (const char* key : {"Sezione", "Istruttore", "Oggetto"}) record.page.cDatiFasc.Remove(key);
  ASSERT_TRUE(record.Create());
  EXPECT_EQ(record.office.Row("SELECT NumeroRegGenerale, Sezione, Istruttore, Oggetto FROM Pratica "
                              "WHERE ID_Pra = 2"),
            "77/2026|NULL|NULL|NULL");
}

TEST(CreateCase, WithoutARegisterNumberOnTheProfileFailsInSilence) {
  CaseRecordFixture record;
  record.page.cDatiFasc.Remove("NumeroRegGenerale");
  EXPECT_FALSE(record.Create());
  EXPECT_EQ(record.office.Row(kHowManyCases), "1");
  EXPECT_TRUE(record.person.boxes.shown.empty());
  ASSERT_EQ(record.office.diagnostics.trapped.size(), 1U);
  EXPECT_EQ(record.office.diagnostics.trapped[0].routine, "RegistraPratica");
  EXPECT_EQ(record.office.diagnostics.trapped[0].number, 5);
}

TEST(CreateCase, WithoutTheCounterpartsCounselFailsInSilence) {
  CaseRecordFixture record;
  record.choice.difensori.Remove("CO1");
  EXPECT_FALSE(record.Create());
  EXPECT_EQ(record.office.Row(kHowManyCases), "1");
  EXPECT_TRUE(record.person.boxes.shown.empty());
  ASSERT_EQ(record.office.diagnostics.trapped.size(), 1U);
  EXPECT_EQ(record.office.diagnostics.trapped[0].number, 5);
}

TEST(CreateCase, OnAnEmptyCaseTableFailsInSilence) {
  CaseRecordFixture record;
  record.office.Do("DELETE FROM Pratica");
  EXPECT_FALSE(record.Create());
  EXPECT_EQ(record.office.Row(kHowManyCases), "0");
  EXPECT_TRUE(record.person.boxes.shown.empty());
  ASSERT_EQ(record.office.diagnostics.trapped.size(), 1U);
  EXPECT_EQ(record.office.diagnostics.trapped[0].routine, "RegistraPratica");
  EXPECT_EQ(record.office.diagnostics.trapped[0].number, 94);
}

TEST(CreateCase, WithoutAClientInTheRegistryNamesPersonZeroAfterTheErrorWasShown) {
  CaseRecordFixture record;
  record.person.bCollegareAna = true;  // a Yes left over, and nothing found
  ASSERT_TRUE(record.Create());
  EXPECT_EQ(record.person.boxes.shown.size(), 1U);
  EXPECT_EQ(record.office.Row("SELECT ID_Cliente, ID_FatturareA FROM Pratica WHERE ID_Pra = 2"),
            "0|0");
}

// --- other page kinds ---------------------------------------------------------------------------

TEST(CreateCase, FromAJusticeOfThePeacePageTakesThePagesNumberAndNoSection) {
  CaseRecordFixture record;
  record.page.pageAtOpening = kPageJusticeOfThePeace;
  record.page.szNumeroRG = "5230/2025";
  ASSERT_TRUE(record.Create());
  EXPECT_EQ(record.office.Row("SELECT NumeroRegGenerale, Sezione, Istruttore, Oggetto FROM Pratica "
                              "WHERE ID_Pra = 2"),
            "5230/2025|NULL|Dott. Neri|Locazione");
}

TEST(CreateCase, WorksOnTheKindAtOpeningAfterAPageOfAnotherKindWasRefused) {
  CaseRecordFixture record;
  record.page.iOrdexPage = kPageAgenda;
  record.page.szNumeroRG = "other";
  ASSERT_TRUE(record.Create());
  EXPECT_EQ(record.office.Row("SELECT NumeroRegGenerale, Sezione FROM Pratica WHERE ID_Pra = 2"),
            "77/2026|Prima Civile");
}

// --- the transaction ----------------------------------------------------------------------------

TEST(CreateCase, WritesInOneTransactionAfterThePersonWasFound) {
  CaseRecordFixture record;
  bool open = false;
  record.page.cDatiFasc.Add("12/03/2026 09:30", "DPUd");
  record.agenda.onTake = [&] { open = record.office.connection().InTransaction(); };
  ASSERT_TRUE(record.Create());

  const FakeConnection& connection = record.office.connection();
  EXPECT_EQ(connection.Count("BEGIN"), 1U);
  EXPECT_EQ(connection.Count("COMMIT"), 1U);
  EXPECT_EQ(connection.Count("ROLLBACK"), 0U);
  EXPECT_EQ(connection.statements().back(), "COMMIT");
  const Texts& all = connection.statements();
  const auto begin = std::find(all.begin(), all.end(), "BEGIN");
  EXPECT_TRUE(std::none_of(begin, all.end(), [](const std::string& statement) {
    return statement.find("Anagrafica") != std::string::npos;
  }));
  EXPECT_EQ(record.agenda.taken, (Texts{"udienza DPUd"}));
  EXPECT_TRUE(open);
}

TEST(CreateCase, HasNoTransactionOpenWhileThePersonCardIsUp) {
  CaseRecordFixture record;
  record.office.Do("INSERT INTO Anagrafica (ID_Ana, Cognome, Nome) VALUES (20, 'VERDI', 'ANNA')");
  record.person.Answer(CardAnswer::kNo);
  ASSERT_TRUE(record.Create());
  EXPECT_EQ(record.person.questions.size(), 1U);
  EXPECT_FALSE(record.person.transactionWhileOpen);
}

TEST(CreateCase, HasNoTransactionOpenWhileTheErrorBoxIsUp) {
  CaseRecordFixture record;
  record.person.bCollegareAna = true;
  bool open = true;
  record.person.boxes.onShow = [&](const BoxText&) {
    open = record.office.connection().InTransaction();
  };
  ASSERT_TRUE(record.Create());
  EXPECT_EQ(record.person.boxes.shown.size(), 1U);
  EXPECT_FALSE(open);
}

TEST(CreateCase, LeavesNoTransactionOpenAfterAFailure) {
  CaseRecordFixture record;
  record.choice.difensori.Remove("CO1");
  EXPECT_FALSE(record.Create());
  EXPECT_FALSE(record.office.connection().InTransaction());
}

}  // namespace
}  // namespace ordex::testing
