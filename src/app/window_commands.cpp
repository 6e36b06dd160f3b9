#include "app/window_commands.h"

namespace ordex {
namespace {

constexpr int kAgendaListTop = 1725;
constexpr int kAgendaButtonsTop = 480;
// Smaller than the closed height: with an agenda page there is nothing above the buttons.
constexpr int kAgendaClosedHeight = 2050;

void OfferCreate(Button& cmdAzione) {
  cmdAzione.caption = "Crea";
  cmdAzione.symbol = Symbol::kCreate;
}

}  // namespace

void SetCaption(Window& window) {
  const auto kind = static_cast<std::size_t>(window.page.iOrdexPage);
  window.page.szNameTxt = window.mappings.cRestr.At(kind).value;
  window.frmMain.caption = "Ordex - " + window.page.szNameTxt;
}

void CentraForm(FrmMain& frmMain, const ScreenSize& screen) {
  frmMain.top = (screen.height - frmMain.height) / 2;
  frmMain.left = (screen.width - frmMain.width) / 2;
}

void chkDettagli_Click(Window& window, const ScreenSize& screen) {
  const bool agenda = window.page.pageAtOpening == kPageAgenda;
  const int otherHeight = agenda ? kAgendaClosedHeight : kDesignHeight;
  int& height = window.frmMain.height;
  height = height == kClosedHeight ? otherHeight : kClosedHeight;
  ToggleButton& toggle = window.commands.chkDettagli;
  toggle.picture = toggle.pressed ? "keyCollapse" : "keyExpand";
  toggle.toolTip = toggle.pressed ? "Nascondi dettagli" : "Mostra dettagli";
  CentraForm(window.frmMain, screen);
}

void cmdPulisci_Click(Window& window, CaseHeaderControl& ctlTestata1) {
  ctlTestata1.Clear();
  if (window.page.pageAtOpening == kPageHistory) return;
  OfferCreate(window.commands.cmdAzione);
  window.status = {"Exclamation", "Selezionare una pratica."};
  window.commands.cmdAzione.enabled = false;
}

void cmdAnnulla_Click(Window& window) {
  window.commands.cmdAnnulla.enabled = false;
  window.choice.frameCliente.visible = false;
  window.choice.frameUtenteCont.visible = false;
  window.commands.bConferma = false;
  OfferCreate(window.commands.cmdAzione);
}

void MostraAgenda(Window& window) {
  window.lstAgendaAvv.visible = true;
  window.lstAgendaAvv.top = kAgendaListTop;
  window.lstImport.visible = false;
  window.choice.ctlTestata1.visible = false;
  window.commands.cmdPulisci.visible = false;
  window.commands.chkDettagli.pressed = true;
  window.frmMain.frameButtonsTop = kAgendaButtonsTop;
}

}  // namespace ordex
