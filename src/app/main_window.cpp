#include "app/main_window.h"

#include <utility>

#include "app/review_lists.h"
#include "app/window_commands.h"
#include "base/number.h"
#include "base/on_the_way.h"
#include "cases/case_choice_rules.h"
#include "cases/hearings.h"
#include "store/case_record.h"

namespace ordex {

MainWindow::MainWindow(std::filesystem::path programFolder, const World& world)
    : programFolder_(std::move(programFolder)),
      world_(world),
      frmInfoAnagrafica_(window_.personCard, window_.commands.bCollegareAna, world.dialogs,
                         world.desktop, world.boxes),
      dlgParti_(
          window_.partiesForm, window_.page, window_.mappings,
          [this](std::string_view szSoggetto, std::string_view szDifensore) {
            LoadcmbParti(window_.choice, szSoggetto, szDifensore);
          },
          world.dialogs, world.desktop, world.boxes) {}

// An error that nothing traps is reported as the platform would, and ends the program; the window
// is not unloaded then.
void MainWindow::Run(const std::function<void()>& handler) {
  if (ended_) return;
  {
    const OnTheWay onTheWay(running_);
    try {
      handler();
    } catch (const RunTimeError& error) {
      world_.diagnostics.Failed(error, std::nullopt);
      ended_ = EndReason::kError;
      world_.boxes.Show({ReportText(error), "Ordex", BoxIcon::kStop, BoxButtons::kOk});
    }
  }
  if (running_ == 0) RunPendingPokes();
}

void MainWindow::RunPendingPokes() {
  while (pendingPokes_ > 0 && !ended_) {
    --pendingPokes_;
    Run([this] { lblLinkDDE_Change(); });
  }
}

void MainWindow::End(EndReason reason) {
  ended_ = reason;
}

void MainWindow::Start(std::string_view handle) {
  Run([this, handle] {
    Form_Initialize(handle);
    Form_Load();
  });
}

void MainWindow::Poke() {
  ++pendingPokes_;
  if (running_ == 0) RunPendingPokes();
}

void MainWindow::Close() {
  Run([this] {
    // A page that is being refused has no window.
    if (window_.page.iOrdexPage != kPageUnknown) Form_Unload();
    End(EndReason::kClosed);
  });
}

void MainWindow::PressAzione() {
  Run([this] { cmdAzione_Click(); });
}

void MainWindow::PressAnnulla() {
  Run([this] { cmdAnnulla_Click(window_); });
}

void MainWindow::PressPulisci() {
  Run([this] { cmdPulisci_Click(window_, ctlTestata1_); });
}

void MainWindow::PressNo() {
  Close();
}

void MainWindow::ToggleDettagli() {
  Run([this] {
    bool& pressed = window_.commands.chkDettagli.pressed;
    pressed = !pressed;
    chkDettagli_Click(window_, world_.desktop.Screen());
  });
}

void MainWindow::SelectParty(std::size_t box, int place) {
  Run([&] { ordex::SelectParty(window_.choice, box, place); });
}

void MainWindow::SelectUtenteCont(int place) {
  Run([&] { ordex::SelectUtenteCont(window_.choice, place); });
}

void MainWindow::FindCases(std::string_view text) {
  Run([&] { ctlTestata1_.Search(text); });
}

bool MainWindow::ChooseCase(std::int32_t idPra) {
  bool found = false;
  Run([&] {
    found = ctlTestata1_.LoadCase(idPra);
    if (!found) return;
    ctlTestata1_Event9(window_.page.pageAtOpening, window_.choice.ctlTestata1, window_.status,
                       window_.commands.cmdAzione);
  });
  return found;
}

bool MainWindow::ClickPerson(std::int32_t ID_Ana) {
  bool found = false;
  Run([&] { found = ctlTestata1_Event10(ID_Ana); });
  return found;
}

void MainWindow::ClickColumn(int column) {
  if (!window_.lstImport.visible) return;
  Run([&] { OrdinaColonna(window_.lstImport, column); });
}

void MainWindow::ClickRow(std::size_t place) {
  Run([&] {
    if (window_.lstImport.visible) {
      lstImport_ItemClick(window_.lstImport, place);
    } else {
      lstAgendaAvv_ItemClick(window_.lstAgendaAvv, place);
    }
  });
}

void MainWindow::MoveOverReviewList() {
  Run([&] { lstImport_MouseMove(window_.lstImport); });
}

// A person's link: shows the card, without its question. Returns false where there is no such
// person.
bool MainWindow::ctlTestata1_Event10(std::int32_t ID_Ana) {
  world_.desktop.SetMousePointer(MousePointer::kHourglass);
  DbRecord person;
  person.Open(*database_, "SELECT * FROM Anagrafica WHERE ID_Ana = " + std::to_string(ID_Ana),
              kForReading);
  const bool found = !person.recordset().Eof();
  if (found) {
    frmInfoAnagrafica_.ValorizzaInfo(person, CardMode::kOnly);
    frmInfoAnagrafica_.ShowModal();
  }
  world_.desktop.SetMousePointer(MousePointer::kDefault);
  return found;
}

void MainWindow::cmdAzione_Click() {
  HearingWriter agenda(*database_, window_.page, world_.clock);
  const CaseRecordTask record = {.database = *database_,
                                 .page = window_.page,
                                 .lstImport = window_.lstImport,
                                 .choice = window_.choice,
                                 .bCollegareAna = window_.commands.bCollegareAna,
                                 .frmInfoAnagrafica = frmInfoAnagrafica_,
                                 .boxes = world_.boxes,
                                 .clock = world_.clock,
                                 .agenda = agenda,
                                 .progress = world_.progress};
  const ActionTask task = {
      .database = *database_,
      .page = window_.page,
      .choice = window_.choice,
      .commands = window_.commands,
      .ctlTestata1 = ctlTestata1_,
      .status = window_.status,
      .lstAgendaAvv = window_.lstAgendaAvv,
      .boxes = world_.boxes,
      .desktop = world_.desktop,
      .ShowParties = [this] { dlgParti_.ShowModal(); },
      .RegistraPratica = [&record](std::int32_t idPra) { return RegistraPratica(record, idPra); }};
  const ActionOutcome outcome = ordex::cmdAzione_Click(task);
  if (outcome == ActionOutcome::kGoOn) return;
  Form_Unload();
  End(outcome == ActionOutcome::kDone ? EndReason::kDone : EndReason::kFailed);
}

}  // namespace ordex
