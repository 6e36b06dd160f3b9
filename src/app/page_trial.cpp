#include "app/page_trial.h"

#include <random>
#include <system_error>

#include "app/intake.h"
#include "app/review_lists.h"
#include "app/window_commands.h"
#include "app/window_sink.h"
#include "parse/mapping_files.h"
#include "parse/recognition.h"

namespace ordex {
namespace fs = std::filesystem;
namespace {

class TrialClipboard : public Clipboard {
 public:
  explicit TrialClipboard(std::string_view text) : text_(text) {}
  std::string GetText() const override { return text_; }
  void Clear() override {}

 private:
  std::string text_;
};

// Nobody is there to read a box.
class NoBoxes : public MessageBoxes {
 public:
  BoxAnswer Show(const BoxText&) override { return BoxAnswer::kOk; }
};

// A folder for the page file, gone with this object.
class TrialFolder {
 public:
  TrialFolder() {
    std::random_device random;
    std::error_code failure;
    const fs::path parent = fs::temp_directory_path(failure);
    bool created = false;
    while (!created && !failure) {
      path_ = parent / ("ordex-prova-" + std::to_string(random()));
      created = fs::create_directory(path_, failure);
    }
    if (failure) {
      throw MakeError(ErrorNumber::kFileAccess,
                      "impossibile creare una cartella temporanea. Controllare che la cartella dei "
                      "file temporanei esista e che i diritti bastino.");
    }
    fs::permissions(path_, fs::perms::owner_all, failure);
  }
  ~TrialFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }
  TrialFolder(const TrialFolder&) = delete;
  TrialFolder& operator=(const TrialFolder&) = delete;

  const fs::path& path() const { return path_; }

 private:
  fs::path path_;
};

// Passes rows on to the window and notes which line they came from.
class TrialRecorder : public WindowSink, public ImportTrace {
 public:
  explicit TrialRecorder(PageTrial& trial) : WindowSink(trial.window), trial_(trial) {}

  void Read(const PageLine& line) override {
    trial_.lines.push_back({line.number, std::string(line.text), {}, {}, {}});
    inWork_ = line.number;
  }
  void Taken(const PageLine& line, std::string_view rule) override {
    LineReport& report = ReportOf(line.number);
    if (report.rule.empty()) report.rule = rule;
  }
  void WorkOn(const PageLine& line) override { inWork_ = line.number; }

  void WriteListView(std::string_view ValueItem, std::string_view FirstSubItem,
                     std::string_view SecondSubItem, std::string_view ThirdSubItem,
                     std::string_view szTag) override {
    ReportOf(inWork_).reviewRows.push_back(trial_.window.lstImport.rows.size());
    WindowSink::WriteListView(ValueItem, FirstSubItem, SecondSubItem, ThirdSubItem, szTag);
  }
  void AggiungiRigaAgenda(std::string_view ValueItem, std::string_view FirstSubItem,
                          bool bold) override {
    ReportOf(inWork_).agendaRows.push_back(trial_.window.lstAgendaAvv.rows.size());
    WindowSink::AggiungiRigaAgenda(ValueItem, FirstSubItem, bold);
  }

 private:
  LineReport& ReportOf(std::size_t number) { return trial_.lines[number - 1]; }

  PageTrial& trial_;
  std::size_t inWork_ = 1;
};

}  // namespace

std::unique_ptr<PageTrial> TryPage(const fs::path& programFolder, std::string_view pageText) {
  auto trial = std::make_unique<PageTrial>();
  Window& window = trial->window;
  TrialClipboard clipboard(pageText);
  NoBoxes boxes;
  LocateMappings(window.mappings, programFolder);
  LoadRestr(window.mappings);
  SetWidthlstAgenda(window.lstAgendaAvv);
  try {
    if (!RiconosciPagina(window.mappings, window.page, window.paging, clipboard, boxes)) {
      return nullptr;
    }
  } catch (const FileLineError&) {
    throw;
  } catch (const RunTimeError& error) {
    // The history's place cannot be read: a fault of the page, like those of the import.
    trial->stop = ImportStop{error, 0, {}, false};
  }
  LoadOrdexMap(window.mappings);
  // The import loads them itself, but takes a broken file for a fault of the page.
  LoadDelimitatori(window.mappings);
  SetCaption(window);
  window.page.pageAtOpening = window.page.iOrdexPage;
  if (trial->stop) return trial;

  const TrialFolder folder;
  TxtfromClipboard(folder.path(), window.page.szNameTxt, clipboard);
  TrialRecorder recorder(*trial);
  trial->stop =
      Import({folder.path(), window.mappings, window.page, window.paging, recorder, &recorder},
             window.page.szNameTxt, window.page.iOrdexPage);
  return trial;
}

}  // namespace ordex
