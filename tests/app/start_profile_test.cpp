// The window of a profile page after its start.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/window_fixture.h"

namespace ordex::testing {
namespace {

TEST(StartWithAProfile, ShowsThePageAndItsOneCase) {
  WindowFixture fixture;
  fixture.Start();
  const Window& state = fixture.state();
  EXPECT_FALSE(fixture.window.ended().has_value());
  EXPECT_EQ(state.frmMain.caption, std::string("Ordex - ") + kProfilePhrase);
  EXPECT_EQ(state.frmMain.height, 4320);
  EXPECT_EQ(state.page.iOrdexPage, 1);
  EXPECT_EQ(state.page.pageAtOpening, 1);
  EXPECT_EQ(state.page.szNameTxt, kProfilePhrase);
  EXPECT_EQ(state.page.szNumeroRG, "1842/2025");
  EXPECT_EQ(state.choice.iCountPra, 1);
  EXPECT_EQ(state.choice.lIdPratica, 2);
  EXPECT_EQ(state.choice.ctlTestata1.idPra, 2);
  EXPECT_EQ(state.status.picture, "Praxion");
  EXPECT_EQ(state.status.text,
            "Trovata una sola pratica sulla base del N. Registro Generale : 1842/2025");
  EXPECT_EQ(state.commands.cmdAzione.caption, "Aggiorna");
  EXPECT_EQ(state.commands.cmdAzione.symbol, Symbol::kUpdate);
  EXPECT_TRUE(fixture.boxes.shown.empty());
}

TEST(StartWithAProfile, FillsTheReviewListAndThePartiesBoxes) {
  WindowFixture fixture;
  fixture.Start();
  const Window& state = fixture.state();
  ASSERT_FALSE(state.lstImport.rows.empty());
  EXPECT_EQ(state.lstImport.rows[0].text, "NumeroRegGenerale");
  EXPECT_EQ(state.lstImport.rows[0].sub[0], "Numero di iscrizione a ruolo:");
  EXPECT_EQ(state.lstImport.rows[0].sub[1], "1842/2025");
  EXPECT_EQ(state.lstImport.taggedRows.size(), 3U);
  ASSERT_EQ(state.choice.cmbParti[kBoxClient].items.size(), 5U);
  EXPECT_EQ(state.choice.cmbParti[kBoxClient].items[0].text, "EDILIZIA VALLEBRUNA S.R.L.");
  EXPECT_EQ(state.choice.difensori.Item("CL0"), "Ferrigati Nora - Avv. Lumera Ottavio");
  EXPECT_EQ(state.choice.difensori.Item("CO1"), "Brandisio Clelia");
}

TEST(StartWithAProfile, SetsTheWidthOfTheAgendaListToo) {
  WindowFixture fixture;
  fixture.Start();
  EXPECT_EQ(fixture.state().lstAgendaAvv.columns[1].width, 9060);
}

TEST(StartWithAProfile, BeginsWithoutAPendingCreateOrALinkedPerson) {
  WindowFixture fixture;
  fixture.Start();
  EXPECT_FALSE(fixture.state().commands.bConferma);
  EXPECT_FALSE(fixture.state().commands.bCollegareAna);
  EXPECT_FALSE(fixture.state().commands.cmdAnnulla.enabled);
  EXPECT_FALSE(fixture.state().choice.frameCliente.visible);
  EXPECT_FALSE(fixture.state().choice.frameUtenteCont.visible);
}

TEST(StartWithAProfile, LeavesThePageOnTheClipboardAndNoPageFileBehind) {
  WindowFixture fixture;
  fixture.Start();
  EXPECT_EQ(fixture.clipboard.clears, 0U);
  EXPECT_FALSE(fixture.folder.Holds(kProfileFile));
  EXPECT_EQ(fixture.folder.FileCount(), 3U);
}

TEST(StartWithAProfile, OfAnUnknownCaseOffersToCreateIt) {
  WindowFixture fixture(SourceFile("samples/profilo-lavoro.txt"));
  fixture.Start();
  const Window& state = fixture.state();
  EXPECT_EQ(state.choice.iCountPra, 0);
  EXPECT_EQ(state.choice.lIdPratica, 0);
  EXPECT_EQ(state.choice.ctlTestata1.idPra, 0);
  EXPECT_EQ(state.status.picture, "NoPratiche");
  EXPECT_EQ(state.status.text,
            "Nessuna pratica trovata sulla base del N. Registro Generale : 3056/2025");
  EXPECT_EQ(state.commands.cmdAzione.caption, "Crea");
  EXPECT_EQ(state.commands.cmdAzione.symbol, Symbol::kCreate);
}

TEST(StartWithAProfile, OfTwoCasesShowsTheFirst) {
  WindowFixture fixture(SourceFile("samples/profilo-condominio.txt"));
  fixture.Start();
  const Window& state = fixture.state();
  EXPECT_EQ(state.choice.iCountPra, 2);
  EXPECT_EQ(state.choice.ctlTestata1.idPra, 3);
  EXPECT_EQ(state.status.text,
            "Sono state trovate 2 pratiche sulla base del N. Registro Generale : 907/2024");
}

TEST(StartWithAProfile, WhoseNumberHoldsAnApostropheEndsWithoutAPageFile) {
  WindowFixture fixture(ProfilePage("1' OR '1'='1"));
  fixture.Start();
  EXPECT_EQ(fixture.window.ended(), EndReason::kError);
  EXPECT_EQ(fixture.office.diagnostics.sql,
            (std::vector<std::string>{
                "Select ID_Pra from Pratica where NumeroRegGenerale = '1' OR '1'='1'"}));
  ASSERT_EQ(fixture.boxes.shown.size(), 1U);
  EXPECT_TRUE(fixture.boxes.shown[0].text.starts_with(
      "Errore di run-time '-2147467259': Errore del database: "));
  EXPECT_EQ(fixture.boxes.shown[0].title, "Ordex");
  EXPECT_EQ(fixture.boxes.shown[0].icon, BoxIcon::kStop);
  EXPECT_FALSE(fixture.folder.Holds(kProfileFile));
}

// --- a page of no known kind --------------------------------------------------------------------

TEST(StartWithAnUnknownPage, TellsTheUserClearsTheClipboardAndEnds) {
  WindowFixture fixture("Gentile collega, …");
  fixture.Start();
  EXPECT_EQ(fixture.boxes.shown, (std::vector<BoxText>{RefusedPageBox()}));
  EXPECT_EQ(fixture.clipboard.clears, 1U);
  EXPECT_EQ(fixture.clipboard.text, "");
  EXPECT_EQ(fixture.window.ended(), EndReason::kRefused);
}

TEST(StartWithAnUnknownPage, DoesNotUnloadAndOpensNoDatabase) {
  WindowFixture fixture("");
  fixture.Start();
  EXPECT_EQ(fixture.window.ended(), EndReason::kRefused);
  EXPECT_EQ(fixture.settings.saved, (std::vector<std::string>{"Shared/OrdexHandle=4711"}));
  EXPECT_TRUE(fixture.opened.empty());
  EXPECT_EQ(fixture.folder.FileCount(), 3U);
}

}  // namespace
}  // namespace ordex::testing
