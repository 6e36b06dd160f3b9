// Writing the events of a history page into a case: how the cost grows, and next to the same
// statements on the bare engine in as many transactions.
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "app/review_lists.h"
#include "benchmarks.h"
#include "cases/hearings.h"
#include "statement_log.h"
#include "store/case_record.h"
#include "store/db/sqlite_connection.h"
#include "store/db/sqlite_create.h"
#include "support/fake_ports.h"
#include "support/temp_folder.h"

namespace ordex::bench {
namespace {

constexpr std::int32_t kCase = 2;
constexpr char kForget[] = "DELETE FROM EventiPraOrdex";

class HistoryOffice {
 public:
  explicit HistoryOffice(int events) {
    CreateSqliteDatabase(file(), true);
    page_.pageAtOpening = kPageHistory;
    for (int i = 1; i <= events; ++i) {
      WriteListView(lstImport_, std::to_string(i), "12/05/2025",
                    "Deposito della memoria integrativa n. " + std::to_string(i), "1/1", "");
    }
  }

  std::filesystem::path file() const { return folder_ / "office.db"; }

  void Register() {
    const auto connection = OpenSqlite(file());
    const Database database{*connection, diagnostics_};
    HearingWriter agenda(database, page_, clock_);
    PersonDialog dialog(card_, linked_, dialogs_, desktop_, boxes_);
    if (!RegistraPratica({database, page_, lstImport_, choice_, linked_, dialog, boxes_, clock_,
                          agenda, progress_},
                         kCase)) {
      throw std::runtime_error("the history could not be written");
    }
  }

  void Forget() const { RunOnBareEngine(file(), {kForget}); }

 private:
  // Takes no notes: a list of what was asked would be part of the cost.
  class Silent : public Diagnostics, public Progress {
   public:
    void DebugszSql(std::string_view) override {}
    void Trapped(std::string_view, const RunTimeError&) override {}
    void Failed(const RunTimeError&, std::optional<std::size_t>) override {}
    void Advance(std::size_t, std::size_t) override {}
  };

  testing::TempFolder folder_;
  Page page_;
  ReviewList lstImport_;
  CaseChoice choice_;
  PersonCard card_;
  bool linked_ = false;
  testing::FakeMessageBoxes boxes_;
  testing::FakeDialogs dialogs_;
  testing::FakeDesktop desktop_;
  testing::FakeClock clock_;
  Silent diagnostics_;
  Silent progress_;
};

void AddProgram(const std::string& name, HistoryOffice& office) {
  benchmark::RegisterBenchmark(name.c_str(), [&office](benchmark::State& state) {
    for (auto _ : state) {
      state.PauseTiming();
      office.Forget();
      state.ResumeTiming();
      office.Register();
    }
  });
}

}  // namespace

void AddHistoryBenchmarks(RatioReporter& reporter) {
  static HistoryOffice hundred(100);
  static HistoryOffice thousand(1000);
  static HistoryOffice tenThousand(10000);
  static const std::vector<std::string> statements = StatementsOf([] { tenThousand.Register(); });
  AddProgram("history 100 to 10,000/baseline", hundred);
  AddProgram("history 100 to 10,000/program", tenThousand);
  reporter.Aim("history 100 to 10,000", 110.0);
  AddProgram("history 1,000 to 10,000/baseline", thousand);
  AddProgram("history 1,000 to 10,000/program", tenThousand);
  reporter.Aim("history 1,000 to 10,000", 11.0);
  benchmark::RegisterBenchmark("history of 10,000 events/baseline", [](benchmark::State& state) {
    for (auto _ : state) {
      state.PauseTiming();
      tenThousand.Forget();
      state.ResumeTiming();
      RunOnBareEngine(tenThousand.file(), statements);
    }
  });
  AddProgram("history of 10,000 events/program", tenThousand);
  reporter.Aim("history of 10,000 events", 1.5);
}

}  // namespace ordex::bench
