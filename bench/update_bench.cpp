// One whole update from a sample profile page, start to end, next to the same statements on the
// bare engine, in as many transactions.
#include <memory>

#include "app/main_window.h"
#include "base/text_file.h"
#include "benchmarks.h"
#include "statement_log.h"
#include "store/db/open_connection.h"
#include "store/db/sqlite_connection.h"
#include "support/fake_ports.h"
#include "support/temp_folder.h"

namespace ordex::bench {
namespace {

namespace fs = std::filesystem;

struct Office {
  Office() {
    const fs::path source = ORDEX_SOURCE_DIR;
    for (const auto& file : fs::directory_iterator(source / "mapping")) {
      fs::copy_file(file.path(), folder / file.path().filename());
    }
    CreateSqliteDatabase(folder / "office.db", true);
    pageText = ReadTextFile(source / "samples" / "profilo-contratto.txt");
  }

  // The program from its start to its end, with one press of the action button.
  void Update() {
    testing::FakeMessageBoxes boxes;
    testing::FakeDialogs dialogs;
    testing::FakeDesktop desktop;
    testing::FakeClipboard clipboard(pageText);
    testing::RecordingDiagnostics diagnostics;
    testing::RecordingProgress progress;
    testing::FakeSettings settings;
    settings.values[{"startup", "Server"}] = "Data Source=file:office.db";
    settings.values[{"Shared", "Id_Utente"}] = "3";
    // Another second each time, so that there is something to write.
    clock.now.second = (clock.now.second + 1) % 60;
    MainWindow window(folder.path(),
                      {boxes, dialogs, desktop, clipboard, clock, settings, diagnostics, progress,
                       [this](std::string_view connectionString) {
                         return OpenConnection(connectionString, folder.path());
                       }});
    window.Start("0");
    window.PressAzione();
    if (window.ended() != EndReason::kDone) throw std::runtime_error("the update failed");
  }

  testing::TempFolder folder;
  testing::FakeClock clock;
  std::string pageText;
};

}  // namespace

void AddUpdateBenchmarks(RatioReporter& reporter) {
  static Office office;
  office.Update();
  // Two updates in turn: the engine writes nothing where a row stays as it is.
  static const std::vector<std::string> one = StatementsOf([] { office.Update(); });
  static const std::vector<std::string> other = StatementsOf([] { office.Update(); });
  benchmark::RegisterBenchmark("whole profile update/baseline", [](benchmark::State& state) {
    bool odd = false;
    for (auto _ : state) {
      odd = !odd;
      RunOnBareEngine(office.folder / "office.db", odd ? one : other);
    }
  });
  benchmark::RegisterBenchmark("whole profile update/program", [](benchmark::State& state) {
    for (auto _ : state) office.Update();
  });
  reporter.Aim("whole profile update", 1.5);
}

}  // namespace ordex::bench
