// Whole imports of sample pages, from the program's start to its end, next to the same statements
// on the bare engine, in as many transactions.
#include <array>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "app/main_window.h"
#include "base/text_file.h"
#include "benchmarks.h"
#include "statement_log.h"
#include "store/db/open_connection.h"
#include "store/db/sqlite_create.h"
#include "support/fake_ports.h"
#include "support/temp_folder.h"

namespace ordex::bench {
namespace {

namespace fs = std::filesystem;

// Of the sample office.
constexpr std::int32_t kSampleCase = 3;

// What the user does once the window is there.
using Hands = std::function<void(MainWindow&)>;

void PressAction(MainWindow& window) {
  window.PressAzione();
}

// Says which box holds the client and which the counterpart between the two presses.
void CreateTheCase(MainWindow& window) {
  window.PressAzione();
  window.SelectParty(0, 0);
  window.SelectParty(1, 1);
  window.PressAzione();
}

// The window stays open on an agenda page.
void PressActionAndClose(MainWindow& window) {
  window.PressAzione();
  window.Close();
}

// A history page does not say whose it is.
void ChooseTheCase(MainWindow& window) {
  window.FindCases("907/2024");
  if (!window.ChooseCase(kSampleCase)) throw std::runtime_error("no such case");
  window.PressAzione();
}

struct Job {
  std::string name;
  std::string page;  // the sample
  Hands hands;
};

// An office whose database is as the samples leave it before each import.
class Office {
 public:
  Office() {
    const fs::path source = ORDEX_SOURCE_DIR;
    for (const auto& file : fs::directory_iterator(source / "mapping")) {
      fs::copy_file(file.path(), folder_ / file.path().filename());
    }
    CreateSqliteDatabase(folder_ / "as-it-was.db", true);
  }

  fs::path file() const { return folder_ / "office.db"; }

  void Restore() const {
    fs::copy_file(folder_ / "as-it-was.db", file(), fs::copy_options::overwrite_existing);
  }

  void Import(const std::string& page, const Hands& hands) const {
    testing::FakeMessageBoxes boxes;
    testing::FakeDialogs dialogs;
    testing::FakeDesktop desktop;
    testing::FakeClipboard clipboard(page);
    testing::FakeClock clock;
    testing::RecordingDiagnostics diagnostics;
    testing::RecordingProgress progress;
    testing::FakeSettings settings;
    settings.values[{"startup", "Server"}] = "Data Source=file:office.db";
    settings.values[{"Shared", "Id_Utente"}] = "3";
    MainWindow window(folder_.path(),
                      {boxes, dialogs, desktop, clipboard, clock, settings, diagnostics, progress,
                       [this](std::string_view connectionString) {
                         return OpenConnection(connectionString, folder_.path());
                       }});
    dialogs.onPersonCard = [&window] { window.frmInfoAnagrafica().cmdSi_Click(); };
    window.Start("0");
    hands(window);
    if (window.ended() != EndReason::kDone && window.ended() != EndReason::kClosed) {
      throw std::runtime_error("an import failed");
    }
  }

 private:
  testing::TempFolder folder_;
};

// A job with the page at hand and the statements that it takes.
struct Measured {
  Measured(const Office& office, const Job& job)
      : hands(job.hands), page(ReadTextFile(fs::path(ORDEX_SOURCE_DIR) / "samples" / job.page)) {
    office.Restore();
    statements = StatementsOf([&] { office.Import(page, hands); });
  }

  Hands hands;
  std::string page;
  std::vector<std::string> statements;
};

// Each round begins with the database as it was, on both sides.
void Repeat(benchmark::State& state, const Office& office, const std::function<void()>& work) {
  for (auto _ : state) {
    state.PauseTiming();
    office.Restore();
    state.ResumeTiming();
    work();
  }
}

}  // namespace

void AddImportBenchmarks(RatioReporter& reporter) {
  static const Office office;
  const std::array<Job, 4> jobs = {{
      {"whole profile update", "profilo-contratto.txt", PressAction},
      {"whole case creation", "profilo-lavoro.txt", CreateTheCase},
      {"whole agenda import", "agenda-settimana.txt", PressActionAndClose},
      {"whole history import", "storico-unica.txt", ChooseTheCase},
  }};
  for (const Job& job : jobs) {
    const auto measured = std::make_shared<Measured>(office, job);
    benchmark::RegisterBenchmark(
        (job.name + "/baseline").c_str(), [measured](benchmark::State& state) {
          Repeat(state, office, [&] { RunOnBareEngine(office.file(), measured->statements); });
        });
    benchmark::RegisterBenchmark(
        (job.name + "/program").c_str(), [measured](benchmark::State& state) {
          Repeat(state, office, [&] { office.Import(measured->page, measured->hands); });
        });
    reporter.Aim(job.name, 1.5);
  }
}

}  // namespace ordex::bench
