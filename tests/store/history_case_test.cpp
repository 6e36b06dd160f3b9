// A history page written into its case: the events first, then the case.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/case_record_fixture.h"

namespace ordex::testing {
namespace {

using Texts = std::vector<std::string>;
using Steps = std::vector<RecordingProgress::Step>;

// A history page carries neither a register number nor any other value of the case.
struct HistoryRecord : CaseRecordFixture {
  HistoryRecord() : CaseRecordFixture(Office::Data::kSample) {
    page.iOrdexPage = kPageHistory;
    page.pageAtOpening = kPageHistory;
    page.szNumeroRG.clear();
    page.cDatiFasc.Clear();
  }

  void Event(const std::string& number, const std::string& text, const std::string& pages = "2/3") {
    lstImport.rows.push_back({number, {"12/05/2025", text, pages}, ""});
  }
  Texts Events() {
    return office.Rows(
        "SELECT ID_PraRel, Progressivo, Descrizione, NrPagina FROM EventiPraOrdex ORDER BY "
        "ID_Evento");
  }
  std::string CaseRow(const std::string& idPra) {
    return office.Row(
        "SELECT NumeroRegGenerale, Sezione, Istruttore, Oggetto FROM Pratica WHERE ID_Pra = " +
        idPra);
  }
};

constexpr const char* kCaseThree = "907/2024|Prima Civile|Dott. Grimaldesi Nicolò|Cortile comune";

TEST(HistoryIntoCase, WritesTheEventsThenTheCaseThenItsProfileInTheseWords) {
  HistoryRecord record;
  record.Event("16", "Intervento");
  record.Event("17", "Scambio di note");
  ASSERT_TRUE(record.Write(3));
  EXPECT_EQ(record.office.diagnostics.sql,
            (Texts{"SELECT * from EventiPraOrdex where ID_PraRel = 3 and Progressivo = 16",
                   "SELECT * from EventiPraOrdex where ID_PraRel = 3 and Progressivo = 17",
                   "SELECT * FROM Pratica WHERE Id_Pra = 3",
                   "SELECT * from PraOrdex where ID_PraRel = 3"}));
}

TEST(HistoryIntoCase, NumbersEachEventByItsRow) {
  HistoryRecord record;
  record.Event("17", "Scambio di note");
  record.Event("16", "Intervento", "1/3");
  ASSERT_TRUE(record.Write(3));
  EXPECT_EQ(record.Events(), (Texts{"3|17|Scambio di note|2", "3|16|Intervento|1"}));
}

TEST(HistoryIntoCase, WithoutANumberLeavesTheCaseAsItIs) {
  HistoryRecord record;
  record.Event("1", "Iscrizione");
  ASSERT_TRUE(record.Write(3));
  EXPECT_EQ(record.CaseRow("3"), kCaseThree);
  EXPECT_EQ(record.office.connection().Count("UPDATE Pratica"), 0U);
}

TEST(HistoryIntoCase, WithANumberWritesItAndOfTheValuesJudgeAndSubjectButNoSection) {
  HistoryRecord record;
  record.page.szNumeroRG = "9/2026";
  record.page.cDatiFasc.Add("Settima", "Sezione");
  record.page.cDatiFasc.Add("Dott. Neri", "Istruttore");
  record.page.cDatiFasc.Add("Locazione", "Oggetto");
  ASSERT_TRUE(record.Write(3));
  EXPECT_EQ(record.CaseRow("3"), "9/2026|Prima Civile|Dott. Neri|Locazione");
}

TEST(HistoryIntoCase, StampsTheProfileAndKeepsItsValues) {
  HistoryRecord record;
  record.office.Do(
      "INSERT INTO PraOrdex (ID_PraRel, Rito, DUUd, DataAcquisizione) VALUES (3, 'Ordinario', "
      "'2025-11-18 10:15:00', '2025-01-01 00:00:00')");
  ASSERT_TRUE(record.Write(3));
  EXPECT_EQ(record.office.Row("SELECT ID_PraRel, Rito, DUUd, DataAcquisizione FROM PraOrdex"),
            "3|Ordinario|18/11/2025 10:15:00|20/02/2026");
  EXPECT_TRUE(record.agenda.taken.empty());
}

TEST(HistoryIntoCase, TwiceRefreshesTheSameRows) {
  HistoryRecord record;
  record.Event("16", "Intervento");
  record.Event("17", "Scambio di note");
  ASSERT_TRUE(record.Write(3));
  const std::string identities = "SELECT ID_Evento, Progressivo FROM EventiPraOrdex ORDER BY 1";
  const Texts once = record.office.Rows(identities);
  ASSERT_TRUE(record.Write(3));
  EXPECT_EQ(once.size(), 2U);
  EXPECT_EQ(record.office.Rows(identities), once);
}

TEST(HistoryIntoCase, DeletesNoEventThatThePageDoesNotShow) {
  HistoryRecord record;
  record.office.Do(
      "INSERT INTO EventiPraOrdex (ID_PraRel, Progressivo, Descrizione) VALUES (3, 1, 'Prima')");
  record.Event("16", "Intervento");
  ASSERT_TRUE(record.Write(3));
  EXPECT_EQ(record.Events(), (Texts{"3|1|Prima|NULL", "3|16|Intervento|2"}));
  EXPECT_EQ(record.office.connection().Count("EXECUTE"), 0U);
}

TEST(HistoryIntoCase, WithoutRowsStillStampsTheProfile) {
  HistoryRecord record;
  ASSERT_TRUE(record.Write(3));
  EXPECT_TRUE(record.Events().empty());
  EXPECT_EQ(record.office.Row("SELECT ID_PraRel, DataAcquisizione FROM PraOrdex"), "3|20/02/2026");
}

TEST(HistoryIntoCase, IsThatOfThePageAtOpeningWhateverPageWasRefusedSince) {
  HistoryRecord record;
  record.page.iOrdexPage = kPageProfile;
  record.Event("16", "Intervento");
  ASSERT_TRUE(record.Write(3));
  EXPECT_EQ(record.Events(), (Texts{"3|16|Intervento|2"}));
  EXPECT_EQ(record.CaseRow("3"), kCaseThree);
}

TEST(HistoryIntoCase, IsWrittenInOneTransaction) {
  HistoryRecord record;
  record.Event("16", "Intervento");
  record.Event("17", "Scambio di note");
  ASSERT_TRUE(record.Write(3));
  const FakeConnection& connection = record.office.connection();
  EXPECT_EQ(connection.Count("BEGIN"), 1U);
  EXPECT_EQ(connection.Count("COMMIT"), 1U);
  EXPECT_EQ(connection.statements().front(), "BEGIN");
  EXPECT_EQ(connection.statements().back(), "COMMIT");
}

TEST(HistoryIntoCase, TellsHowFarItHasComeBehindEachEvent) {
  HistoryRecord record;
  for (const char* number : {"1", "2", "3"}) record.Event(number, "Evento");
  ASSERT_TRUE(record.Write(3));
  EXPECT_EQ(record.progress.steps, (Steps{{1, 3}, {2, 3}, {3, 3}}));
}

// --- failures -----------------------------------------------------------------------------------

TEST(HistoryThatFails, AtARowWithoutANumberKeepsTheEventsBeforeItAndNothingElse) {
  HistoryRecord record;
  record.Event("16", "Intervento");
  record.Event("17 bis", "Scambio di note");
  record.Event("18", "Memoria");
  EXPECT_FALSE(record.Write(3));
  EXPECT_EQ(record.Events(), (Texts{"3|16|Intervento|2"}));
  EXPECT_EQ(record.office.Row("SELECT COUNT(*) FROM PraOrdex"), "0");
  EXPECT_EQ(record.CaseRow("3"), kCaseThree);
  ASSERT_EQ(record.office.diagnostics.trapped.size(), 1U);
  EXPECT_EQ(record.office.diagnostics.trapped[0].routine, "RegistraPratica");
  EXPECT_EQ(record.office.diagnostics.trapped[0].number, 13);
  EXPECT_TRUE(record.person.boxes.shown.empty());
  EXPECT_FALSE(record.office.connection().InTransaction());
}

TEST(HistoryThatFails, AtANumberOfMoreThanSixteenBits) {
  HistoryRecord record;
  record.Event("32767", "Ultimo");
  record.Event("32768", "Troppo");
  EXPECT_FALSE(record.Write(3));
  EXPECT_EQ(record.Events(), (Texts{"3|32767|Ultimo|2"}));
  ASSERT_EQ(record.office.diagnostics.trapped.size(), 1U);
  EXPECT_EQ(record.office.diagnostics.trapped[0].number, 6);
}

// The event's own handler absorbs the error: the caller goes on as if the write had succeeded.
TEST(HistoryThatFails, AtOneEventCostsNeitherTheOthersNorTheCase) {
  HistoryRecord record;
  record.Event("16", "Intervento");
  record.Event("17", "Scambio di note");
  record.office.connection().FailOn("INSERT EventiPraOrdex");
  EXPECT_TRUE(record.Write(3));
  EXPECT_EQ(record.Events(), (Texts{"3|17|Scambio di note|2"}));
  EXPECT_EQ(record.office.Row("SELECT ID_PraRel FROM PraOrdex"), "3");
  EXPECT_EQ(record.progress.steps, (Steps{{1, 2}, {2, 2}}));
}

TEST(HistoryThatFails, BecauseTheEngineEndedTheTransactionLeavesNothing) {
  FakeFailure deadlock;
  deadlock.endsTransaction = true;
  HistoryRecord record;
  record.Event("16", "Intervento");
  record.Event("17", "Scambio di note");
  record.office.connection().FailOn("Progressivo = 17", deadlock);
  EXPECT_FALSE(record.Write(3));
  EXPECT_TRUE(record.Events().empty());
  EXPECT_EQ(record.office.Row("SELECT COUNT(*) FROM PraOrdex"), "0");
  EXPECT_TRUE(record.person.boxes.shown.empty());
}

TEST(HistoryThatFails, AtTheCaseKeepsTheEvents) {
  HistoryRecord record;
  record.Event("16", "Intervento");
  record.office.connection().FailOn("FETCH SELECT * FROM Pratica");
  EXPECT_FALSE(record.Write(3));
  EXPECT_EQ(record.Events(), (Texts{"3|16|Intervento|2"}));
  EXPECT_EQ(record.office.Row("SELECT COUNT(*) FROM PraOrdex"), "0");
}

TEST(HistoryThatFails, ForACaseThatIsGoneSaysNothingAndMakesNoNewCase) {
  HistoryRecord record;
  record.Event("16", "Intervento");
  EXPECT_FALSE(record.Write(99));
  EXPECT_EQ(record.office.Row("SELECT COUNT(*) FROM Pratica"), "10");
  EXPECT_EQ(record.office.Row("SELECT COUNT(*) FROM PraOrdex"), "0");
  EXPECT_TRUE(record.person.boxes.shown.empty());
  EXPECT_FALSE(record.office.connection().InTransaction());
}

}  // namespace
}  // namespace ordex::testing
