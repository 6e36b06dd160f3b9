// Parsing a page of 20,000 lines of each kind, next to a plain std::getline loop over the same
// file.
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "app/review_lists.h"
#include "benchmarks.h"
#include "page_text.h"
#include "parse/import.h"
#include "parse/mapping_files.h"
#include "support/temp_folder.h"

namespace ordex::bench {
namespace {

constexpr std::size_t kLines = 20000;

// The review list as the window keeps it, without the parties boxes.
class ListSink : public ImportSink {
 public:
  void SetWidthlstImport(int kind) override { ordex::SetWidthlstImport(list, kind); }
  void WriteListView(std::string_view ValueItem, std::string_view FirstSubItem,
                     std::string_view SecondSubItem, std::string_view ThirdSubItem,
                     std::string_view szTag) override {
    ordex::WriteListView(list, ValueItem, FirstSubItem, SecondSubItem, ThirdSubItem, szTag);
  }
  void AggiungiRigaAgenda(std::string_view ValueItem, std::string_view FirstSubItem,
                          bool bold) override {
    ordex::AggiungiRigaAgenda(agenda, ValueItem, FirstSubItem, bold);
  }
  void LoadcmbParti(std::string_view, std::string_view) override {}

  std::size_t Rows() const { return list.rows.size() + agenda.rows.size(); }

  ReviewList list;
  AgendaList agenda;
};

struct Kind {
  std::int16_t kind;
  std::string name;
  std::string text;
};

struct ParseSetup {
  ParseSetup() {
    for (const std::string_view file : {kMapCampi, kMapRestr, kMapDelimitatori}) {
      std::filesystem::copy_file(std::filesystem::path(ORDEX_SOURCE_DIR) / "mapping" / file,
                                 folder / file);
    }
    LocateMappings(mappings, folder.path());
    LoadOrdexMap(mappings);
  }

  std::filesystem::path File(const Kind& kind) const { return folder / (kind.name + ".txt"); }

  testing::TempFolder folder;
  Mappings mappings;
};

void Getline(benchmark::State& state, const ParseSetup& setup, const Kind& kind) {
  for (auto _ : state) {
    std::ifstream in(setup.File(kind), std::ios::binary);
    std::string line;
    std::size_t count = 0;
    while (std::getline(in, line)) count += line.size();
    benchmark::DoNotOptimize(count);
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(kind.text.size()));
}

void ImportPage(benchmark::State& state, ParseSetup& setup, const Kind& kind) {
  for (auto _ : state) {
    ListSink sink;
    Page page;
    HistoryPaging paging;
    const auto stop =
        Import({setup.folder.path(), setup.mappings, page, paging, sink}, kind.name, kind.kind);
    if (stop || sink.Rows() < kLines) state.SkipWithError("the import stopped");
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(kind.text.size()));
}

}  // namespace

void AddParseBenchmarks(RatioReporter& reporter) {
  static ParseSetup setup;
  static const std::vector<Kind> kinds = {
      {kPageProfile, "profile", ProfilePage(kLines)},
      {kPageHistory, "history", HistoryPage(kLines)},
      {kPageAgenda, "agenda", AgendaPage(kLines)},
      {kPageJusticeOfThePeace, "justice of the peace", JusticeOfThePeacePage(kLines)}};
  for (const Kind& kind : kinds) {
    setup.folder.Write(kind.name + ".txt", kind.text);
    const std::string group = "parse " + kind.name;
    benchmark::RegisterBenchmark((group + "/baseline").c_str(),
                                 [&kind](benchmark::State& state) { Getline(state, setup, kind); });
    benchmark::RegisterBenchmark((group + "/import").c_str(), [&kind](benchmark::State& state) {
      ImportPage(state, setup, kind);
    });
    reporter.Aim(group, 2.0);
  }
}

}  // namespace ordex::bench
