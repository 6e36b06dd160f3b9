#include "ui/desktop/ordex_app.h"

#include <wx/clipbrd.h>
#include <wx/richmsgdlg.h>
#include <wx/utils.h>

#include <exception>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "base/error.h"
#include "base/number.h"
#include "ui/common/clocks.h"
#include "ui/common/process.h"
#include "ui/common/program_folder.h"
#include "ui/common/settings_store.h"
#include "ui/desktop/platform.h"
#include "ui/desktop/wx_text.h"

namespace ordex::desktop {
namespace {

// The first instance may be just ending, or still loading with more callers waiting than the system
// lets wait: on a busy machine that takes seconds.
constexpr int kTries = 50;
constexpr int kPause = 100;  // milliseconds

void Tell(const std::string& text, long icon) {
  wxRichMessageDialog box(nullptr, Wx(text), "Ordex", wxOK | icon);
  box.SetOKLabel("OK");
  box.ShowModal();
}

std::string TimeText(const DateTime& time) {
  return wxString::Format("%02d:%02d:%02d", time.hour, time.minute, time.second).utf8_string();
}

}  // namespace

bool OrdexApp::Initialize(int& argumentCount, wxChar** arguments) {
  PrepareDesktop();
  return wxApp::Initialize(argumentCount, arguments);
}

bool OrdexApp::OnInit() {
  SetAppName("Ordex");
  SetAppDisplayName("Ordex");
  UseCompactControls();
  try {
    if (!TakeOptions()) return true;
    if (ClaimOrHandOver()) OpenWindow();
  } catch (const RunTimeError& error) {
    Tell(ReportText(error), wxICON_ERROR);
    Finish(ExitCode::kError);
  }
  return true;
}

bool OrdexApp::TakeOptions() {
  std::vector<std::string> arguments;
  for (int i = 1; i < argc; ++i) arguments.push_back(Utf8(argv[i]));
  try {
    options_ = ReadOptions(arguments);
  } catch (const std::invalid_argument& wrong) {
    Tell(wrong.what(), wxICON_EXCLAMATION);
    Finish(ExitCode::kWrongCall);
    return false;
  }
  if (options_.help) {
    Tell(OptionsHelp(), wxICON_INFORMATION);
    Finish(ExitCode::kWell);
    return false;
  }
  settings_ = OpenSettings(options_.settings);
  if (options_.now) {
    clock_ = std::make_unique<FixedClock>(*options_.now);
  } else {
    clock_ = std::make_unique<SystemClock>();
  }
  return true;
}

bool OrdexApp::ClaimOrHandOver() {
  for (int tried = 0; tried < kTries; ++tried) {
    if (tried > 0) wxMilliSleep(kPause);
    if (lock_.Acquire()) return true;
    if (PokeFirstInstance(LinkService(), TimeText(clock_->Now()))) {
      ShowOrdex();
      Finish(ExitCode::kWell);
      return false;
    }
  }
  Tell("Ordex è già in esecuzione ma non risponde. Chiudere la finestra di Ordex e riprovare.",
       wxICON_EXCLAMATION);
  Finish(ExitCode::kError);
  return false;
}

void OrdexApp::ShowOrdex() const {
  RaiseWindow(ToInt32(settings_->Get("Shared", "OrdexHandle")));
}

void OrdexApp::OpenWindow() {
  // The link first: whoever finds the lock taken looks for it. A poke that comes while the window
  // is made or loads waits for the end of that.
  server_ = std::make_unique<LinkServer>([this] { desk_->frame()->CallAfter(&MainFrame::Poke); });
  if (!server_->Create(Wx(LinkService()))) {
    throw MakeError(ErrorNumber::kFileAccess, "impossibile aprire \"" + LinkService() +
                                                  "\", il collegamento tra due avvii. Chiudere "
                                                  "ogni finestra di Ordex e riprovare");
  }
  const std::filesystem::path folder =
      ProgramFolder(options_.dir, ExecutableFile(Utf8(argv[0]).c_str()));
  desk_ = std::make_unique<Desk>(folder, *settings_, *clock_,
                                 [this](EndReason reason) { Finish(ExitCodeOf(reason)); });
  desk_->Start();
}

void OrdexApp::Finish(ExitCode exitCode) {
  exitCode_ = exitCode;
  over_ = true;
  server_.reset();
  if (desk_ != nullptr) desk_->Close();
  if (IsMainLoopRunning()) ExitMainLoop();
}

int OrdexApp::OnRun() {
  if (!over_) wxApp::OnRun();
  return static_cast<int>(exitCode_);
}

// What the user copied from the lists outlives the program.
int OrdexApp::OnExit() {
  if (wxTheClipboard->Open()) {
    wxTheClipboard->Flush();
    wxTheClipboard->Close();
  }
  return wxApp::OnExit();
}

bool OrdexApp::OnExceptionInMainLoop() {
  try {
    throw;
  } catch (const std::exception& error) {
    Tell("Errore imprevisto: " + std::string(error.what()), wxICON_ERROR);
  }
  Finish(ExitCode::kError);
  return false;
}

}  // namespace ordex::desktop

wxIMPLEMENT_APP(ordex::desktop::OrdexApp);
