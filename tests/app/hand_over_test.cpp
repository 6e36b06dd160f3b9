// A further page that a second start hands over.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/window_fixture.h"

namespace ordex::testing {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* kAgendaPage = "Agenda dell'avvocato - Impegni del periodo\n";
constexpr const char* kHistoryPage = "Storico del fascicolo - Elenco eventi\n";
constexpr const char* kCompleteFirst =
    "Completare l'operazione corrente oppure chiudere il programma.";

// --- a profile into the window of a profile -----------------------------------------------------

TEST(HandOverOfAProfile, RefillsTheListAndLooksTheCaseUp) {
  WindowFixture fixture;
  fixture.Start();
  fixture.Poke(ProfilePage("633/2025", "Rito: Ordinario\n"));
  const Window& state = fixture.state();
  EXPECT_FALSE(fixture.window.ended().has_value());
  EXPECT_EQ(state.frmMain.caption, std::string("Ordex - ") + kProfilePhrase);
  ASSERT_EQ(state.lstImport.rows.size(), 2U);
  EXPECT_EQ(state.lstImport.rows[0].sub[1], "633/2025");
  EXPECT_EQ(state.lstImport.rows[1].sub[1], "Ordinario");
  EXPECT_EQ(state.lstImport.order.size(), 2U);
  EXPECT_EQ(state.page.szNumeroRG, "633/2025");
  EXPECT_EQ(state.choice.iCountPra, 1);
  EXPECT_EQ(state.choice.lIdPratica, 6);
  EXPECT_EQ(state.choice.ctlTestata1.idPra, 6);
  EXPECT_EQ(state.status.text,
            "Trovata una sola pratica sulla base del N. Registro Generale : 633/2025");
  EXPECT_EQ(fixture.office.diagnostics.sql.back(),
            "Select ID_Pra from Pratica where NumeroRegGenerale = '633/2025'");
}

TEST(HandOverOfAProfile, LeavesNoPageFileBehind) {
  WindowFixture fixture;
  fixture.Start();
  fixture.Sample("profilo-condominio.txt");
  EXPECT_EQ(fixture.folder.FileCount(), 3U);
}

TEST(HandOverOfAProfile, OfAnUnknownCaseKeepsTheCaseShown) {
  WindowFixture fixture;
  fixture.Start();
  fixture.Sample("profilo-lavoro.txt");
  EXPECT_EQ(fixture.state().choice.iCountPra, 0);
  EXPECT_EQ(fixture.state().choice.lIdPratica, 2);
  EXPECT_EQ(fixture.state().choice.ctlTestata1.idPra, 2);
  EXPECT_EQ(fixture.state().commands.cmdAzione.caption, "Crea");
}

TEST(HandOverOfAProfile, KeepsTheCollectionOfTaggedRowsGrowing) {
  WindowFixture fixture;
  fixture.Start();
  ASSERT_EQ(fixture.state().lstImport.taggedRows.size(), 3U);
  fixture.Poke(ProfilePage("633/2025", "Termini assegnati dal giudice\nNote: 20/03/2026\n\n"));
  EXPECT_EQ(fixture.state().lstImport.taggedRows.size(), 4U);
  EXPECT_EQ(fixture.state().lstImport.taggedRows.back(), 2U);
}

TEST(HandOverOfAProfile, WritesTheDeadlinesOfTheSecondPageAlone) {
  WindowFixture fixture;
  fixture.Start();
  fixture.Poke(ProfilePage("633/2025", "Termini assegnati dal giudice\nNote: 20/03/2026\n\n"));
  fixture.window.PressAzione();
  EXPECT_EQ(fixture.window.ended(), EndReason::kDone);
  EXPECT_EQ(fixture.office.Rows("SELECT Scadenza, Data_End, Codice_Pra FROM SCADENZE"),
            (Texts{"Note|20/03/2026|6"}));
}

TEST(HandOverOfAProfile, WithinTheSameSecondCountsEachTime) {
  WindowFixture fixture;
  fixture.Start();
  fixture.Poke(ProfilePage("633/2025"));
  fixture.Poke(ProfilePage("1190/2025"));
  EXPECT_EQ(fixture.state().page.szNumeroRG, "1190/2025");
  EXPECT_EQ(fixture.state().choice.ctlTestata1.idPra, 7);
}

TEST(HandOverOfAProfile, ThatStopsIsToldAndLeavesNoPageFile) {
  WindowFixture fixture;
  fixture.Start();
  fixture.Poke(ProfilePage("633/2025", "Termini assegnati dal giudice\nNote\n"));
  EXPECT_FALSE(fixture.window.ended().has_value());
  EXPECT_EQ(fixture.boxes.shown.size(), 1U);
  EXPECT_FALSE(fixture.folder.Holds(kProfileFile));
  EXPECT_EQ(fixture.state().choice.ctlTestata1.idPra, 6);
}

TEST(HandOverOfAProfile, WhoseLookUpFailsEndsTheProgramAndLeavesNoPageFile) {
  WindowFixture fixture;
  fixture.Start();
  fixture.Poke(ProfilePage("1'2"));
  EXPECT_EQ(fixture.window.ended(), EndReason::kError);
  EXPECT_FALSE(fixture.folder.Holds(kProfileFile));
}

// --- a page of another kind ---------------------------------------------------------------------

TEST(HandOverOfAnotherKind, IsRefusedWithABeepAndAMessage) {
  WindowFixture fixture;
  fixture.Start();
  fixture.Poke(kAgendaPage);
  EXPECT_EQ(fixture.desktop.events, (Texts{"Beep"}));
  EXPECT_EQ(fixture.state().status.picture, "Stop");
  EXPECT_EQ(fixture.state().status.text, kCompleteFirst);
  EXPECT_TRUE(fixture.boxes.shown.empty());
  EXPECT_FALSE(fixture.window.ended().has_value());
}

TEST(HandOverOfAnotherKind, ChangesNothingButTheKindOfThePage) {
  WindowFixture fixture;
  fixture.Start();
  const std::size_t rows = fixture.state().lstImport.rows.size();
  const std::size_t asked = fixture.office.diagnostics.sql.size();
  const std::size_t values = fixture.state().page.cDatiFasc.Count();
  fixture.Poke(kAgendaPage);
  const Window& state = fixture.state();
  EXPECT_EQ(state.page.iOrdexPage, 3);
  EXPECT_EQ(state.page.pageAtOpening, 1);
  EXPECT_EQ(state.lstImport.rows.size(), rows);
  EXPECT_TRUE(state.lstImport.visible);
  EXPECT_TRUE(state.lstAgendaAvv.rows.empty());
  EXPECT_EQ(state.page.szNumeroRG, "1842/2025");
  EXPECT_EQ(state.page.szNameTxt, kProfilePhrase);
  EXPECT_EQ(state.page.cDatiFasc.Count(), values);
  EXPECT_EQ(state.frmMain.caption, std::string("Ordex - ") + kProfilePhrase);
  EXPECT_EQ(state.commands.cmdAzione.caption, "Aggiorna");
  EXPECT_EQ(fixture.office.diagnostics.sql.size(), asked);
  EXPECT_EQ(fixture.clipboard.clears, 0U);
  EXPECT_EQ(fixture.folder.FileCount(), 3U);
}

TEST(HandOverOfAnotherKind, AHistoryIsRefusedByTheWindowOfAProfile) {
  WindowFixture fixture;
  fixture.Start();
  fixture.Poke(kHistoryPage);
  EXPECT_EQ(fixture.desktop.events, (Texts{"Beep"}));
  EXPECT_EQ(fixture.state().page.iOrdexPage, 2);
  EXPECT_EQ(fixture.state().status.text, kCompleteFirst);
}

TEST(HandOverOfAnotherKind, LeavesTheButtonWorkingForThePageAtOpening) {
  WindowFixture fixture;
  fixture.Start();
  fixture.Poke(kAgendaPage);
  fixture.window.PressAzione();
  EXPECT_EQ(fixture.window.ended(), EndReason::kDone);
  EXPECT_EQ(fixture.office.Row("SELECT COUNT(*) FROM PraOrdex WHERE ID_PraRel = 2"), "1");
}

TEST(HandOverOfAnotherKind, IsFollowedByAProfileThatIsTaken) {
  WindowFixture fixture;
  fixture.Start();
  fixture.Poke(kAgendaPage);
  fixture.Poke(ProfilePage("633/2025"));
  EXPECT_EQ(fixture.state().page.iOrdexPage, 1);
  EXPECT_EQ(fixture.state().choice.ctlTestata1.idPra, 6);
}

// --- a page of no known kind --------------------------------------------------------------------

TEST(HandOverOfAnUnknownPage, EndsTheRunningProgramWithoutUnloadingIt) {
  WindowFixture fixture;
  fixture.Start();
  fixture.Poke("altro");
  EXPECT_EQ(fixture.boxes.shown, (std::vector<BoxText>{RefusedPageBox()}));
  EXPECT_EQ(fixture.clipboard.clears, 1U);
  EXPECT_EQ(fixture.window.ended(), EndReason::kRefused);
  EXPECT_EQ(fixture.settings.saved, (Texts{"Shared/OrdexHandle=4711"}));
}

}  // namespace
}  // namespace ordex::testing
