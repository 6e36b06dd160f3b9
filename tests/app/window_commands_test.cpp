// The small commands of the window, and its layout for an agenda page.
#include <gtest/gtest.h>

#include "app/window_commands.h"

namespace ordex::testing {
namespace {

constexpr ScreenSize kScreen{28800, 16200};

Window WindowOf(PageKind kind, int height) {
  Window window;
  window.page.iOrdexPage = kind;
  window.page.pageAtOpening = kind;
  window.frmMain.height = height;
  window.frmMain.width = 12000;
  window.status = {"old picture", "old text"};
  window.commands.cmdAzione = {"Conferma", Symbol::kUpdate, true, true, ""};
  return window;
}

// The toggle changes its state before its handler runs.
void Toggle(Window& window) {
  window.commands.chkDettagli.pressed = !window.commands.chkDettagli.pressed;
  chkDettagli_Click(window, kScreen);
}

// --- the design ---------------------------------------------------------------------------------

TEST(DesignOfTheWindow, HasItsTexts) {
  const Window window;
  EXPECT_EQ(window.frmMain.caption, "Ordex");
  EXPECT_EQ(window.frmMain.height, 6555);
  EXPECT_EQ(window.choice.frameUtenteCont.caption, "Titolare Contabilità :");
  const Commands& commands = window.commands;
  EXPECT_EQ(commands.cmdNo.caption, "&Chiudi");
  EXPECT_EQ(commands.cmdNo.toolTip,
            "I dati di OrdexWeb non saranno importati in Praxion. Il programma verrà chiuso");
  EXPECT_EQ(commands.cmdAnnulla.caption, "&Annulla");
  EXPECT_EQ(commands.cmdAnnulla.toolTip, "Annulla la creazione");
  EXPECT_EQ(commands.cmdAzione.caption, "Azione");
  EXPECT_EQ(commands.cmdAzione.toolTip,
            "I dati di OrdexWeb saranno allineati con la pratica di Praxion selezionata");
  EXPECT_EQ(commands.cmdAzione.symbol, Symbol::kNone);
  EXPECT_EQ(commands.chkDettagli.caption, "&Dettagli ...");
  EXPECT_EQ(commands.chkDettagli.toolTip, "Mostra i dettagli");
  EXPECT_EQ(commands.cmdPulisci.toolTip, "Pulisci campi");
  EXPECT_EQ(commands.HIWarning.caption,
            "Verificare la correttezza dei dati prima di qualsiasi operazione cliccando su "
            "DETTAGLI !");
}

// --- details ------------------------------------------------------------------------------------

TEST(Details, OfAProfileOpenAndCloseCentredEachTime) {
  Window window = WindowOf(kPageProfile, 4320);
  Toggle(window);
  EXPECT_EQ(window.frmMain.height, 6555);
  EXPECT_EQ(window.frmMain.top, 4822);   // (16200 - 6555) / 2
  EXPECT_EQ(window.frmMain.left, 8400);  // (28800 - 12000) / 2
  Toggle(window);
  EXPECT_EQ(window.frmMain.height, 4320);
  EXPECT_EQ(window.frmMain.top, 5940);  // (16200 - 4320) / 2
}

TEST(Details, FromAnyOtherHeightClose) {
  Window window = WindowOf(kPageProfile, 5000);
  Toggle(window);
  EXPECT_EQ(window.frmMain.height, 4320);
}

TEST(Details, OfAnAgendaAreLowerThanTheClosedWindow) {
  Window window = WindowOf(kPageAgenda, 4320);
  Toggle(window);
  EXPECT_EQ(window.frmMain.height, 2050);
  Toggle(window);
  EXPECT_EQ(window.frmMain.height, 4320);
}

TEST(Details, OfAnAgendaAtDesignHeightGiveTheClosedHeightFirst) {
  Window window = WindowOf(kPageAgenda, 6555);
  Toggle(window);
  EXPECT_EQ(window.frmMain.height, 4320);
}

TEST(Details, ChangeThePictureAndTheToolTipOfTheToggle) {
  Window window = WindowOf(kPageProfile, 4320);
  Toggle(window);
  EXPECT_EQ(window.commands.chkDettagli.picture, "keyCollapse");
  EXPECT_EQ(window.commands.chkDettagli.toolTip, "Nascondi dettagli");
  Toggle(window);
  EXPECT_EQ(window.commands.chkDettagli.picture, "keyExpand");
  EXPECT_EQ(window.commands.chkDettagli.toolTip, "Mostra dettagli");
}

TEST(Details, AfterARefusedAgendaPageAreThoseOfThePageAtOpening) {
  Window window = WindowOf(kPageProfile, 4320);
  window.page.iOrdexPage = kPageAgenda;
  Toggle(window);
  EXPECT_EQ(window.frmMain.height, 6555);
}

TEST(CentraForm, CentresAWindowLargerThanTheScreenToo) {
  FrmMain form;
  form.width = 12000;
  form.height = 6555;
  CentraForm(form, {10000, 6001});
  EXPECT_EQ(form.left, -1000);
  EXPECT_EQ(form.top, -277);
}

// --- clear --------------------------------------------------------------------------------------

TEST(Clear, WaitsForAnotherCaseToBeChosen) {
  for (const PageKind kind : {kPageProfile, kPageAgenda, kPageJusticeOfThePeace}) {
    Window window = WindowOf(kind, 4320);
    window.choice.ctlTestata1.idPra = 7;
    window.choice.ctlTestata1.title = "ROSSI";
    CaseHeaderControl header(window.choice.ctlTestata1);
    cmdPulisci_Click(window, header);
    EXPECT_EQ(window.choice.ctlTestata1.idPra, 0);
    EXPECT_EQ(window.choice.ctlTestata1.title, "");
    EXPECT_EQ(window.commands.cmdAzione.caption, "Crea");
    EXPECT_EQ(window.commands.cmdAzione.symbol, Symbol::kCreate);
    EXPECT_FALSE(window.commands.cmdAzione.enabled);
    EXPECT_EQ(window.status.picture, "Exclamation");
    EXPECT_EQ(window.status.text, "Selezionare una pratica.");
  }
}

TEST(Clear, OnAHistoryPageClearsTheHeaderAlone) {
  Window window = WindowOf(kPageHistory, 4320);
  window.choice.ctlTestata1.idPra = 7;
  CaseHeaderControl header(window.choice.ctlTestata1);
  cmdPulisci_Click(window, header);
  EXPECT_EQ(window.choice.ctlTestata1.idPra, 0);
  EXPECT_EQ(window.commands.cmdAzione.caption, "Conferma");
  EXPECT_TRUE(window.commands.cmdAzione.enabled);
  EXPECT_EQ(window.status.picture, "old picture");
  EXPECT_EQ(window.status.text, "old text");
}

TEST(Clear, AfterARefusedHistoryPageIsThatOfThePageAtOpening) {
  Window window = WindowOf(kPageProfile, 4320);
  window.page.iOrdexPage = kPageHistory;
  CaseHeaderControl header(window.choice.ctlTestata1);
  cmdPulisci_Click(window, header);
  EXPECT_EQ(window.status.text, "Selezionare una pratica.");
}

// --- cancel -------------------------------------------------------------------------------------

TEST(Cancel, TakesAPendingCreateBack) {
  for (const bool enabled : {true, false}) {
    Window window = WindowOf(kPageProfile, 4320);
    window.commands.bConferma = true;
    window.commands.cmdAnnulla.enabled = true;
    window.commands.cmdAzione.enabled = enabled;
    window.choice.frameCliente.visible = true;
    window.choice.frameUtenteCont.visible = true;
    cmdAnnulla_Click(window);
    EXPECT_FALSE(window.commands.cmdAnnulla.enabled);
    EXPECT_FALSE(window.choice.frameCliente.visible);
    EXPECT_FALSE(window.choice.frameUtenteCont.visible);
    EXPECT_FALSE(window.commands.bConferma);
    EXPECT_EQ(window.commands.cmdAzione.caption, "Crea");
    EXPECT_EQ(window.commands.cmdAzione.symbol, Symbol::kCreate);
    EXPECT_EQ(window.commands.cmdAzione.enabled, enabled);
    EXPECT_EQ(window.status.text, "old text");
  }
}

// --- an agenda page -----------------------------------------------------------------------------

TEST(MostraAgendaTest, PutsTheAgendaListInThePlaceOfTheReviewList) {
  Window window = WindowOf(kPageAgenda, 6555);
  MostraAgenda(window);
  EXPECT_TRUE(window.lstAgendaAvv.visible);
  EXPECT_EQ(window.lstAgendaAvv.top, 1725);
  EXPECT_FALSE(window.lstImport.visible);
  EXPECT_FALSE(window.choice.ctlTestata1.visible);
  EXPECT_FALSE(window.commands.cmdPulisci.visible);
  EXPECT_TRUE(window.commands.chkDettagli.pressed);
  EXPECT_EQ(window.frmMain.frameButtonsTop, 480);
  EXPECT_EQ(window.frmMain.height, 6555);
}

}  // namespace
}  // namespace ordex::testing
