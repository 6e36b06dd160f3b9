// The history that a justice-of-the-peace page brings along, written behind its case.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "support/case_record_fixture.h"

namespace ordex::testing {
namespace {

using Texts = std::vector<std::string>;
using Steps = std::vector<RecordingProgress::Step>;

struct JusticeRecord : CaseRecordFixture {
  JusticeRecord() : CaseRecordFixture(Office::Data::kSample) {
    page.iOrdexPage = kPageJusticeOfThePeace;
    page.pageAtOpening = kPageJusticeOfThePeace;
    page.szNumeroRG = "4417/2025";
  }

  void Row(const std::string& label, const std::string& first, const std::string& second) {
    lstImport.rows.push_back({label, {first, second, ""}, ""});
  }
  void Movement(const std::string& text) { Row("Storico", "08/10/2025", text); }
  void StoreEvent(const std::string& idPratica, const std::string& text) {
    office.Do("INSERT INTO EventiPraOrdex (ID_PraRel, Progressivo, Descrizione) VALUES (" +
              idPratica + ", 1, '" + text + "')");
  }
  Texts Events() {
    return office.Rows(
        "SELECT ID_PraRel, Progressivo, Descrizione FROM EventiPraOrdex ORDER BY ID_Evento");
  }
};

TEST(MovementsIntoCase, AreNumberedFromOneInTheOrderOfTheList) {
  JusticeRecord record;
  record.Row("Materia", "Materia", "Sanzioni");
  record.Row("", "--STORICO DEL FASCICOLO--", "");
  record.Movement("Deposito");
  record.Row("Oggetto", "Oggetto", "Multa");
  record.Movement("Iscrizione");
  ASSERT_TRUE(record.Write(8));
  EXPECT_EQ(record.Events(), (Texts{"8|1|Deposito", "8|2|Iscrizione"}));
}

TEST(MovementsIntoCase, AreWrittenWithTheirDateAndTheDayOfTheImportButNoPage) {
  JusticeRecord record;
  record.Movement("Deposito");
  ASSERT_TRUE(record.Write(8));
  EXPECT_EQ(record.office.Row("SELECT Data, NrPagina, DataAcquisizione FROM EventiPraOrdex"),
            "08/10/2025|NULL|20/02/2026");
}

TEST(MovementsIntoCase, AreRowsOfExactlyThatText) {
  JusticeRecord record;
  for (const char* label : {"storico", "STORICO", "Storico ", "Storico del fascicolo", ""}) {
    record.Row(label, "08/10/2025", "Deposito");
  }
  ASSERT_TRUE(record.Write(8));
  EXPECT_TRUE(record.Events().empty());
}

TEST(MovementsIntoCase, ReplaceTheStoredOnesBeforeTheFirstInTheseWords) {
  JusticeRecord record;
  record.Movement("Deposito");
  record.Movement("Iscrizione");
  ASSERT_TRUE(record.Write(8));
  EXPECT_EQ(
      record.office.diagnostics.sql,
      (Texts{"SELECT * FROM Pratica WHERE Id_Pra = 8", "SELECT * from PraOrdex where ID_PraRel = 8",
             "Delete from EventiPraOrdex where ID_PraRel = 8",
             "SELECT * from EventiPraOrdex where ID_PraRel = 8",
             "SELECT * from EventiPraOrdex where ID_PraRel = 8"}));
}

TEST(MovementsIntoCase, OfASecondImportReplaceThoseOfTheFirst) {
  JusticeRecord record;
  for (const char* text : {"Deposito", "Iscrizione", "Assegnazione"}) record.Movement(text);
  ASSERT_TRUE(record.Write(8));
  record.lstImport.rows.clear();
  record.Movement("Riassunzione");
  ASSERT_TRUE(record.Write(8));
  EXPECT_EQ(record.Events(), (Texts{"8|1|Riassunzione"}));
}

TEST(MovementsIntoCase, LeaveTheEventsOfOtherCasesAlone) {
  JusticeRecord record;
  record.StoreEvent("7", "altra causa");
  record.StoreEvent("8", "questa causa");
  record.Movement("Deposito");
  ASSERT_TRUE(record.Write(8));
  EXPECT_EQ(record.Events(), (Texts{"7|1|altra causa", "8|1|Deposito"}));
}

TEST(MovementsIntoCase, ThatAPageDoesNotHaveDeleteNothing) {
  JusticeRecord record;
  record.StoreEvent("8", "di prima");
  record.Row("Materia", "Materia", "Sanzioni");
  ASSERT_TRUE(record.Write(8));
  EXPECT_EQ(record.Events(), (Texts{"8|1|di prima"}));
  EXPECT_EQ(record.office.connection().Count("EXECUTE"), 0U);
}

TEST(MovementsIntoCase, OfANewCaseStandUnderItsIdentifier) {
  JusticeRecord record;
  record.page.szNumeroRG = "5230/2025";
  record.Movement("Deposito");
  ASSERT_TRUE(record.Create());
  EXPECT_EQ(record.office.Row("SELECT ID_Pra, Sezione FROM Pratica WHERE NumeroRegGenerale = "
                              "'5230/2025'"),
            "11|NULL");
  EXPECT_EQ(record.Events(), (Texts{"11|1|Deposito"}));
}

TEST(MovementsIntoCase, AreWrittenInTheOneTransactionOfTheCase) {
  JusticeRecord record;
  record.Movement("Deposito");
  ASSERT_TRUE(record.Write(8));
  EXPECT_EQ(record.office.connection().Count("BEGIN"), 1U);
  EXPECT_EQ(record.office.connection().Count("COMMIT"), 1U);
  EXPECT_EQ(record.office.connection().statements().back(), "COMMIT");
}

TEST(MovementsIntoCase, TellHowFarTheListHasBeenRead) {
  JusticeRecord record;
  record.Row("", "--STORICO DEL FASCICOLO--", "");
  record.Movement("Deposito");
  record.Row("Oggetto", "Oggetto", "Multa");
  record.Movement("Iscrizione");
  ASSERT_TRUE(record.Write(8));
  EXPECT_EQ(record.progress.steps, (Steps{{2, 4}, {4, 4}}));
}

TEST(JusticeCase, WithoutANumberOnThePageKeepsTheStoredOne) {
  JusticeRecord record;
  record.page.szNumeroRG.clear();
  ASSERT_TRUE(record.Write(8));
  EXPECT_EQ(record.office.Row("SELECT NumeroRegGenerale FROM Pratica WHERE ID_Pra = 8"),
            "4417/2025");
}

// The hearing of the page then finds the case by that text.
TEST(JusticeCase, CreatedWithoutANumberHoldsAnEmptyOne) {
  JusticeRecord record;
  record.page.szNumeroRG.clear();
  ASSERT_TRUE(record.Create());
  EXPECT_EQ(record.office.Row("SELECT TYPEOF(NumeroRegGenerale), NumeroRegGenerale FROM Pratica "
                              "ORDER BY ID_Pra DESC LIMIT 1"),
            "text|");
}

// --- failures -----------------------------------------------------------------------------------

TEST(MovementThatFails, CostsNeitherTheOthersNorTheCase) {
  JusticeRecord record;
  for (const char* text : {"Deposito", "Iscrizione", "Assegnazione"}) record.Movement(text);
  record.office.connection().FailOn("INSERT EventiPraOrdex");
  EXPECT_TRUE(record.Write(8));
  EXPECT_EQ(record.Events(), (Texts{"8|2|Iscrizione", "8|3|Assegnazione"}));
  ASSERT_EQ(record.office.diagnostics.trapped.size(), 1U);
  EXPECT_EQ(record.office.diagnostics.trapped[0].routine, "RegistraEvento");
}

TEST(MovementThatFails, WhereTheStoredOnesCannotBeDeletedLeavesThemAndKeepsTheCase) {
  JusticeRecord record;
  record.StoreEvent("8", "di prima");
  record.Movement("Deposito");
  record.office.connection().FailOn("EXECUTE Delete");
  EXPECT_FALSE(record.Write(8));
  EXPECT_EQ(record.Events(), (Texts{"8|1|di prima"}));
  EXPECT_EQ(record.office.Row("SELECT Istruttore FROM Pratica WHERE ID_Pra = 8"), "Dott. Neri");
  EXPECT_TRUE(record.person.boxes.shown.empty());
}

TEST(MovementThatFails, AndLosesTheTransactionLeavesTheStoredOnesAndTheCaseAsTheyWere) {
  FakeFailure deadlock;
  deadlock.endsTransaction = true;
  JusticeRecord record;
  record.StoreEvent("8", "di prima");
  record.Movement("Deposito");
  record.office.connection().FailOn("INSERT EventiPraOrdex", deadlock);
  EXPECT_FALSE(record.Write(8));
  EXPECT_EQ(record.Events(), (Texts{"8|1|di prima"}));
  EXPECT_EQ(record.office.Row("SELECT Istruttore FROM Pratica WHERE ID_Pra = 8"), "NULL");
}

}  // namespace
}  // namespace ordex::testing
