// The window of a history page: its start, and the history carried into the database.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/page_texts.h"
#include "support/window_fixture.h"

namespace ordex::testing {
namespace {

using Texts = std::vector<std::string>;

struct HistoryWindow : WindowFixture {
  explicit HistoryWindow(std::string page = SourceFile("samples/storico-pagina-1.txt"))
      : WindowFixture(std::move(page)) {
    Start();
  }
};

TEST(StartWithAHistory, WaitsForACaseToBeChosen) {
  HistoryWindow fixture;
  const Window& state = fixture.state();
  EXPECT_FALSE(fixture.window.ended().has_value());
  EXPECT_EQ(state.page.iOrdexPage, 2);
  EXPECT_EQ(state.page.pageAtOpening, 2);
  EXPECT_EQ(state.frmMain.caption, std::string("Ordex - ") + kHistoryPhrase);
  EXPECT_EQ(state.frmMain.height, 4320);
  EXPECT_EQ(state.status.text, "Selezionare una pratica.");
  EXPECT_EQ(state.commands.cmdAzione.caption, "Aggiorna");
  EXPECT_EQ(state.commands.cmdAzione.symbol, Symbol::kUpdate);
  EXPECT_FALSE(state.commands.cmdAzione.enabled);
  EXPECT_EQ(state.choice.ctlTestata1.idPra, 0);
}

TEST(StartWithAHistory, FillsTheReviewListInItsOwnLayout) {
  HistoryWindow fixture;
  const ReviewList& list = fixture.state().lstImport;
  EXPECT_TRUE(list.visible);
  EXPECT_EQ(list.columns[1].header, "Data");
  EXPECT_EQ(list.columns[2].header, "Descrizione");
  ASSERT_EQ(list.rows.size(), 15U);
  EXPECT_EQ(list.rows[0].text, "1");
  EXPECT_EQ(list.rows[0].sub[0], "14/01/2025");
  EXPECT_EQ(list.rows[0].sub[1], "Iscrizione a ruolo generale");
  EXPECT_EQ(list.rows[0].sub[2], "1/3");
}

TEST(StartWithAHistory, LooksNoCaseUpAndLeavesNoPageFileBehind) {
  HistoryWindow fixture;
  EXPECT_TRUE(fixture.office.diagnostics.sql.empty());
  EXPECT_FALSE(fixture.folder.Holds(kHistoryFile));
  EXPECT_EQ(fixture.folder.FileCount(), 3U);
}

TEST(HistoryOfTheWindow, AChosenCaseEnablesTheButtonAndIsNamedInTheStatusBar) {
  HistoryWindow fixture;
  ASSERT_TRUE(fixture.window.ChooseCase(6));
  const Window& state = fixture.state();
  EXPECT_TRUE(state.commands.cmdAzione.enabled);
  EXPECT_EQ(state.status.picture, "Praxion");
  EXPECT_EQ(state.status.text, "Pratica selezionata : " + state.choice.ctlTestata1.title);
}

TEST(HistoryOfTheWindow, GoesIntoTheChosenCaseAndEndsTheProgram) {
  HistoryWindow fixture(HistoryPage(
      "Pagina 2 di 5", {"16 12/05/2025 Atto d'intervento", "17 14/05/2025 Scambio di note"}));
  fixture.window.ChooseCase(6);
  fixture.window.PressAzione();
  EXPECT_EQ(fixture.boxes.Texts(),
            (Texts{"La pratica di Praxion è stata aggiornata con i dati di OrdexWeb."}));
  EXPECT_EQ(fixture.window.ended(), EndReason::kDone);
  EXPECT_EQ(fixture.settings.saved, (Texts{"Shared/OrdexHandle=4711", "Shared/Id_Utente=-1"}));
  EXPECT_EQ(fixture.office.Rows("SELECT ID_PraRel, Progressivo, Data, Descrizione, NrPagina, "
                                "DataAcquisizione FROM EventiPraOrdex ORDER BY ID_Evento"),
            (Texts{"6|16|12/05/2025|Atto d'intervento|2|20/02/2026",
                   "6|17|14/05/2025|Scambio di note|2|20/02/2026"}));
  EXPECT_EQ(fixture.office.Row("SELECT NumeroRegGenerale FROM Pratica WHERE ID_Pra = 6"),
            "633/2025");
}

TEST(HistoryOfTheWindow, TellsHowFarItHasComeBehindEachEvent) {
  HistoryWindow fixture;
  fixture.window.ChooseCase(2);
  fixture.window.PressAzione();
  const auto& steps = fixture.progress.steps;
  ASSERT_EQ(steps.size(), 15U);
  EXPECT_EQ(steps.front(), (RecordingProgress::Step{1, 15}));
  EXPECT_EQ(steps.back(), (RecordingProgress::Step{15, 15}));
}

// Another program must be able to write while the user reads the message.
TEST(HistoryOfTheWindow, IsDurableAndHoldsNoLockWhileItsBoxIsUp) {
  HistoryWindow fixture;
  std::string seen;
  fixture.window.ChooseCase(2);
  fixture.boxes.onShow = [&](const BoxText&) {
    seen = fixture.office.Row("SELECT COUNT(*) FROM EventiPraOrdex");
    fixture.office.Do("UPDATE Pratica SET Oggetto = 'di un collega' WHERE ID_Pra = 6");
  };
  fixture.window.PressAzione();
  EXPECT_EQ(seen, "15");
  EXPECT_EQ(fixture.office.Row("SELECT Oggetto FROM Pratica WHERE ID_Pra = 6"), "di un collega");
}

TEST(HistoryOfTheWindow, IsNotWrittenIntoAPenalCaseAndTheWindowStaysOpen) {
  HistoryWindow fixture;
  fixture.window.ChooseCase(5);
  fixture.window.PressAzione();
  EXPECT_EQ(fixture.boxes.Texts(),
            (Texts{"La pratica è penale e non può essere aggiornata con i dati di OrdexWeb."}));
  EXPECT_FALSE(fixture.window.ended().has_value());
  EXPECT_EQ(fixture.office.Row("SELECT COUNT(*) FROM EventiPraOrdex"), "0");
}

TEST(HistoryOfTheWindow, IsNotWrittenOnceTheChosenCaseWasCleared) {
  HistoryWindow fixture;
  fixture.window.ChooseCase(2);
  fixture.window.PressPulisci();
  ASSERT_TRUE(fixture.state().commands.cmdAzione.enabled);
  fixture.window.PressAzione();
  EXPECT_EQ(fixture.state().status.picture, "Exclamation");
  EXPECT_EQ(fixture.state().status.text, "Selezionare una pratica.");
  EXPECT_TRUE(fixture.boxes.shown.empty());
  EXPECT_FALSE(fixture.window.ended().has_value());
  EXPECT_EQ(fixture.office.Row("SELECT COUNT(*) FROM EventiPraOrdex"), "0");
  EXPECT_EQ(fixture.office.Row("SELECT COUNT(*) FROM PraOrdex"), "0");
}

TEST(HistoryOfTheWindow, WithARowThatHasNoNumberEndsWithoutAWord) {
  HistoryWindow fixture(HistoryPage("", {"1 14/01/2025 Iscrizione", "bis 15/01/2025 Nota"}));
  fixture.window.ChooseCase(2);
  fixture.window.PressAzione();
  EXPECT_TRUE(fixture.boxes.shown.empty());
  EXPECT_EQ(fixture.window.ended(), EndReason::kFailed);
  EXPECT_EQ(fixture.settings.saved.back(), "Shared/Id_Utente=-1");
  EXPECT_EQ(fixture.office.Rows("SELECT Progressivo, NrPagina FROM EventiPraOrdex"),
            (Texts{"1|1"}));
}

}  // namespace
}  // namespace ordex::testing
