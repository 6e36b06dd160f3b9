// A profile page carried through the window into the database.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/window_fixture.h"

namespace ordex::testing {
namespace {

using Texts = std::vector<std::string>;

TEST(ActionOfTheWindow, UpdatesTheOneCaseOfThePage) {
  WindowFixture fixture;
  fixture.Start();
  fixture.window.PressAzione();
  EXPECT_EQ(fixture.boxes.Texts(),
            (Texts{"La pratica di Praxion è stata aggiornata con i dati di OrdexWeb."}));
  EXPECT_EQ(fixture.office.Row("SELECT Istruttore FROM Pratica WHERE ID_Pra = 2"),
            "Dott.ssa Bracalenti Ersilia");
  EXPECT_EQ(fixture.office.Row("SELECT ID_PraRel, DUUd, DPUd, DataAcquisizione FROM PraOrdex"),
            "2|NULL|12/03/2026 09:30:00|20/02/2026");
  EXPECT_EQ(
      fixture.office.Rows("SELECT Scadenza, Data_End, Ora, Codice_Pra FROM SCADENZE ORDER BY 1, 2"),
      (Texts{"Deposito della lista dei testimoni|20/02/2026|NULL|2",
             "Note di trattazione del convenuto e dei terzi chiamati|06/03/2026|NULL|2",
             "Note di trattazione dell'attore|02/03/2026|NULL|2", "UDIENZA|12/03/2026|09:30|2"}));
}

// One press is durable when its message is shown.
TEST(ActionOfTheWindow, HasWrittenEverythingWhenItsMessageIsShown) {
  WindowFixture fixture;
  fixture.Start();
  Texts seen;
  fixture.boxes.onShow = [&](const BoxText&) {
    seen = fixture.office.Rows(
        "SELECT (SELECT COUNT(*) FROM PraOrdex), (SELECT COUNT(*) FROM SCADENZE)");
  };
  fixture.window.PressAzione();
  EXPECT_EQ(seen, (Texts{"1|4"}));
}

TEST(ActionOfTheWindow, CreatesACaseInTwoPresses) {
  WindowFixture fixture(SourceFile("samples/profilo-lavoro.txt"));
  fixture.Start();
  fixture.window.PressAzione();
  fixture.window.SelectParty(kBoxClient, 0);
  fixture.window.SelectParty(kBoxCounterpart, 1);
  fixture.window.SelectUtenteCont(1);
  fixture.dialogs.onPersonCard = [&] { fixture.window.frmInfoAnagrafica().cmdSi_Click(); };
  fixture.window.PressAzione();
  EXPECT_EQ(fixture.window.ended(), EndReason::kDone);
  EXPECT_EQ(fixture.boxes.shown.back().text, "La pratica è stata creata.");
  EXPECT_EQ(fixture.office.Row("SELECT ID_Cliente, ControCognome, ID_Contab, NumPos FROM Pratica "
                               "WHERE NumeroRegGenerale = '3056/2025'"),
            "4|LOGISTICA SERRAVENTO S.P.A.|3|11");
}

TEST(ActionOfTheWindow, ACancelledCreateStartsAgainWithTheQuestion) {
  WindowFixture fixture(SourceFile("samples/profilo-lavoro.txt"));
  fixture.Start();
  fixture.window.PressAzione();
  EXPECT_EQ(fixture.state().commands.cmdAzione.caption, "Conferma");
  fixture.window.PressAnnulla();
  EXPECT_EQ(fixture.state().commands.cmdAzione.caption, "Crea");
  fixture.window.PressAzione();
  EXPECT_EQ(fixture.boxes.shown.size(), 2U);
  EXPECT_EQ(fixture.boxes.shown[0], fixture.boxes.shown[1]);
}

TEST(ActionOfTheWindow, AnotherCaseCanBeFoundAndChosen) {
  WindowFixture fixture;
  fixture.Start();
  fixture.window.PressPulisci();
  EXPECT_FALSE(fixture.state().commands.cmdAzione.enabled);
  fixture.window.FindCases("ALTOBRANDI");
  ASSERT_EQ(fixture.state().choice.ctlTestata1.found.size(), 1U);
  EXPECT_TRUE(fixture.window.ChooseCase(fixture.state().choice.ctlTestata1.found[0].idPra));
  EXPECT_EQ(fixture.state().choice.ctlTestata1.idPra, 6);
  EXPECT_TRUE(fixture.state().commands.cmdAzione.enabled);
  EXPECT_EQ(fixture.state().commands.cmdAzione.caption, "Aggiorna");
}

TEST(ActionOfTheWindow, ACaseThatIsNotThereCannotBeChosen) {
  WindowFixture fixture;
  fixture.Start();
  fixture.window.PressPulisci();
  EXPECT_FALSE(fixture.window.ChooseCase(99));
  EXPECT_EQ(fixture.state().choice.ctlTestata1.idPra, 0);
  EXPECT_FALSE(fixture.state().commands.cmdAzione.enabled);
}

TEST(ListsOfTheWindow, AClickedHeaderSortsAndAClickedRowShowsItsValue) {
  WindowFixture fixture(ProfilePage("633/2025", "Rito: Ordinario\nMateria: Contratti\n"));
  fixture.Start();
  fixture.window.ClickColumn(3);
  fixture.window.ClickRow(2);
  EXPECT_EQ(fixture.state().lstImport.tag, "3");
  EXPECT_EQ(fixture.state().lstImport.toolTip, "Contratti");
}

TEST(DetailsOfTheWindow, OpenAndCloseOnTheScreenAsItIs) {
  WindowFixture fixture;
  fixture.Start();
  fixture.desktop.screen = {20000, 10000};
  fixture.window.ToggleDettagli();
  EXPECT_TRUE(fixture.state().commands.chkDettagli.pressed);
  EXPECT_EQ(fixture.state().frmMain.height, 6555);
  EXPECT_EQ(fixture.state().frmMain.top, 1722);  // (10000 - 6555) / 2
  fixture.window.ToggleDettagli();
  EXPECT_FALSE(fixture.state().commands.chkDettagli.pressed);
  EXPECT_EQ(fixture.state().frmMain.height, 4320);
}

}  // namespace
}  // namespace ordex::testing
