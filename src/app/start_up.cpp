// The main window's life: how it starts, takes pages in and goes.
#include <string>

#include "app/intake.h"
#include "app/main_window.h"
#include "app/review_lists.h"
#include "app/window_commands.h"
#include "app/window_sink.h"
#include "base/error.h"
#include "base/number.h"
#include "cases/case_choice_rules.h"
#include "parse/mapping_files.h"
#include "parse/recognition.h"
#include "store/db/connection_fragments.h"

namespace ordex {
namespace {

constexpr std::string_view kShared = "Shared";
constexpr std::string_view kIdUtente = "Id_Utente";
constexpr std::int32_t kNobodyLoggedOn = -1;
constexpr std::int32_t kFallbackUser = 2;

// Errors: type mismatch, overflow.
std::int32_t UserOf(const std::string& setting) {
  try {
    return ToInt32(setting);
  } catch (const RunTimeError& error) {
    throw MakeError(
        error.code(),
        "nelle impostazioni di \"Zelmo32\", sezione \"Shared\", il valore di "
        "\"Id_Utente\" è \"" +
            setting +
            "\" e non il numero di un utente. Aprire Praxion e accedere, poi avviare di "
            "nuovo Ordex");
  }
}

}  // namespace

std::string ConnectionStringOf(const Settings& settings) {
  const std::string security = settings.Get("startup", "Security");
  return JoinConnectionFragments(security, settings.Get("startup", "Server"));
}

void MainWindow::Form_Initialize(std::string_view handle) {
  world_.settings.Save(kShared, "OrdexHandle", handle);
}

// The order of the steps is part of what other programs and users see: which error comes first,
// and what has been done before a page is refused.
void MainWindow::Form_Load() {
  LocateMappings(window_.mappings, programFolder_);
  LoadRestr(window_.mappings);
  SetWidthlstAgenda(window_.lstAgendaAvv);
  if (!RiconosciPagina(window_.mappings, window_.page, window_.paging, world_.clipboard,
                       world_.boxes)) {
    End(EndReason::kRefused);
    return;
  }
  SetDb();
  GestUtente();
  LoadOrdexMap(window_.mappings);
  SetCaption(window_);
  PageFileOnDisk pageFile(programFolder_, window_.page.szNameTxt);
  TxtfromClipboard(programFolder_, window_.page.szNameTxt, world_.clipboard);
  ImportPage();
  pageFile.Delete();
  ctlTestata1_.Reset();
  PrepareForKind();
  window_.page.pageAtOpening = window_.page.iOrdexPage;
}

void MainWindow::Form_Unload() {
  world_.settings.Save(kShared, kIdUtente, std::to_string(kNobodyLoggedOn));
}

void MainWindow::SetDb() {
  connection_ = world_.openDatabase(ConnectionStringOf(world_.settings));
  database_.emplace(Database{*connection_, world_.diagnostics});
  ctlTestata1_.SetConnection(*connection_);
}

void MainWindow::GestUtente() {
  const std::int32_t user = UserOf(world_.settings.Get(kShared, kIdUtente));
  if (user != kNobodyLoggedOn) {
    ctlTestata1_.SetUser(user);
    return;
  }
  ctlTestata1_.SetUser(kFallbackUser);
  world_.settings.Save(kShared, kIdUtente, std::to_string(kFallbackUser));
}

void MainWindow::ImportPage() {
  WindowSink sink(window_);
  const auto stop = Import({programFolder_, window_.mappings, window_.page, window_.paging, sink},
                           window_.page.szNameTxt, window_.page.iOrdexPage);
  if (!stop) return;
  world_.diagnostics.Failed(stop->error, stop->line);
  world_.boxes.Show(ImportStopBox(*stop));
}

void MainWindow::PrepareForKind() {
  Button& cmdAzione = window_.commands.cmdAzione;
  switch (window_.page.iOrdexPage) {
    case kPageProfile:
      window_.frmMain.height = kClosedHeight;
      FindCaseOfPage();
      break;
    case kPageJusticeOfThePeace:
      window_.frmMain.height = kClosedHeight;
      FindCaseOfPage();
      window_.choice.ctlTestata1.searchText = window_.page.szNumeroRG;
      break;
    case kPageHistory:
      window_.frmMain.height = kClosedHeight;
      window_.status.text = "Selezionare una pratica.";
      cmdAzione.caption = "Aggiorna";
      cmdAzione.symbol = Symbol::kUpdate;
      cmdAzione.enabled = false;
      break;
    case kPageAgenda:
      MostraAgenda(window_);
      window_.status.picture = "Praxion";
      GestCountAgenda(window_.page.iNrEventiAgenda, window_.status);
      cmdAzione.caption = "Aggiorna";
      cmdAzione.symbol = Symbol::kUpdate;
      break;
    default:
      break;
  }
}

void MainWindow::FindCaseOfPage() {
  CercaPratica(*database_, window_.page.szNumeroRG, window_.choice, ctlTestata1_);
  GestCount(window_.choice.iCountPra, window_.page.szNumeroRG, window_.status,
            window_.commands.cmdAzione);
}

// A create that waits for its confirmation is of the former page: with the new one's values it
// would make a case that mixes both.
void MainWindow::TakeFurtherProfile() {
  if (window_.commands.bConferma) cmdAnnulla_Click(window_);
  SetCaption(window_);
  PageFileOnDisk pageFile(programFolder_, window_.page.szNameTxt);
  TxtfromClipboard(programFolder_, window_.page.szNameTxt, world_.clipboard);
  ClearRows(window_.lstImport);
  ImportPage();
  FindCaseOfPage();
  pageFile.Delete();
}

// Unlike a profile page, a further history page adds its rows to those that are there, and its page
// file stays.
void MainWindow::TakeFurtherHistory() {
  SetCaption(window_);
  TxtfromClipboard(programFolder_, window_.page.szNameTxt, world_.clipboard);
  ImportPage();
}

void MainWindow::lblLinkDDE_Change() {
  if (!RiconosciPagina(window_.mappings, window_.page, window_.paging, world_.clipboard,
                       world_.boxes)) {
    End(EndReason::kRefused);
    return;
  }
  if (window_.page.pageAtOpening == kPageProfile && window_.page.iOrdexPage == kPageProfile) {
    TakeFurtherProfile();
    return;
  }
  if (window_.page.pageAtOpening == kPageHistory && window_.page.iOrdexPage == kPageHistory) {
    TakeFurtherHistory();
    return;
  }
  world_.desktop.Beep();
  window_.status = {"Stop", "Completare l'operazione corrente oppure chiudere il programma."};
}

}  // namespace ordex
