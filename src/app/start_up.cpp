// The main window's life: how it starts, takes pages in and goes.
#include <string>

#include "app/intake.h"
#include "app/main_window.h"
#include "app/review_lists.h"
#include "app/window_commands.h"
#include "base/number.h"
#include "cases/case_choice_rules.h"
#include "parse/mapping_files.h"
#include "parse/recognition.h"

namespace ordex {
namespace {

constexpr std::string_view kShared = "Shared";
constexpr std::string_view kIdUtente = "Id_Utente";
constexpr std::int32_t kNobodyLoggedOn = -1;
constexpr std::int32_t kFallbackUser = 2;

// Where an import puts what it reads: the lists and the parties boxes of the window.
class WindowSink : public ImportSink {
 public:
  explicit WindowSink(Window& window) : window_(window) {}

  void SetWidthlstImport(int kind) override { ordex::SetWidthlstImport(window_.lstImport, kind); }
  void WriteListView(std::string_view ValueItem, std::string_view FirstSubItem,
                     std::string_view SecondSubItem, std::string_view ThirdSubItem,
                     std::string_view szTag) override {
    ordex::WriteListView(window_.lstImport, ValueItem, FirstSubItem, SecondSubItem, ThirdSubItem,
                         szTag);
  }
  void AggiungiRigaAgenda(std::string_view ValueItem, std::string_view FirstSubItem,
                          bool bold) override {
    ordex::AggiungiRigaAgenda(window_.lstAgendaAvv, ValueItem, FirstSubItem, bold);
  }
  void LoadcmbParti(std::string_view szSoggetto, std::string_view szDifensore) override {
    ordex::LoadcmbParti(window_.choice, szSoggetto, szDifensore);
  }

 private:
  Window& window_;
};

}  // namespace

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
  SetCaption();
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

// The fragments bring their own semicolons and keys.
void MainWindow::SetDb() {
  const std::string security = world_.settings.Get("startup", "Security");
  const std::string server = world_.settings.Get("startup", "Server");
  connection_ =
      world_.openDatabase("Provider=SQLNCLI.1" + security + "Initial Catalog=Zelmo32;" + server);
  database_.emplace(Database{*connection_, world_.diagnostics});
  ctlTestata1_.SetConnection(*connection_);
}

void MainWindow::GestUtente() {
  const std::int32_t user = ToInt32(world_.settings.Get(kShared, kIdUtente));
  if (user != kNobodyLoggedOn) {
    ctlTestata1_.SetUser(user);
    return;
  }
  ctlTestata1_.SetUser(kFallbackUser);
  world_.settings.Save(kShared, kIdUtente, std::to_string(kFallbackUser));
}

// The page kind's phrase names the page file and stands in the title.
void MainWindow::SetCaption() {
  const auto kind = static_cast<std::size_t>(window_.page.iOrdexPage);
  window_.page.szNameTxt = window_.mappings.cRestr.At(kind).value;
  window_.frmMain.caption = "Ordex - " + window_.page.szNameTxt;
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
      cmdAzione.symbol = kSymbolUpdate;
      cmdAzione.enabled = false;
      break;
    case kPageAgenda:
      MostraAgenda(window_);
      window_.status.picture = "Praxion";
      GestCountAgenda(window_.page.iNrEventiAgenda, window_.status);
      cmdAzione.caption = "Aggiorna";
      cmdAzione.symbol = kSymbolUpdate;
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

void MainWindow::TakeFurtherProfile() {
  SetCaption();
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
  SetCaption();
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
