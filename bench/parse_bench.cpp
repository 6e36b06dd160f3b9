// Parsing a page of 20,000 mapped lines, next to a plain std::getline loop over the same file.
#include <filesystem>
#include <fstream>
#include <string>

#include "app/review_lists.h"
#include "benchmarks.h"
#include "page_text.h"
#include "parse/import.h"
#include "parse/mapping_files.h"
#include "support/temp_folder.h"

namespace ordex::bench {
namespace {

constexpr std::size_t kLines = 20000;
constexpr char kStem[] = "profilo";

// The review list as the window keeps it, without the parties boxes.
class ListSink : public ImportSink {
 public:
  void SetWidthlstImport(int kind) override { ordex::SetWidthlstImport(list, kind); }
  void WriteListView(std::string_view ValueItem, std::string_view FirstSubItem,
                     std::string_view SecondSubItem, std::string_view ThirdSubItem,
                     std::string_view szTag) override {
    ordex::WriteListView(list, ValueItem, FirstSubItem, SecondSubItem, ThirdSubItem, szTag);
  }
  void AggiungiRigaAgenda(std::string_view, std::string_view, bool) override {}
  void LoadcmbParti(std::string_view, std::string_view) override {}

  ReviewList list;
};

struct ParseSetup {
  ParseSetup() {
    for (const std::string_view file : {kMapCampi, kMapRestr, kMapDelimitatori}) {
      std::filesystem::copy_file(std::filesystem::path(ORDEX_SOURCE_DIR) / "mapping" / file,
                                 folder / file);
    }
    folder.Write(std::string(kStem) + ".txt", ProfilePage(kLines));
    LocateMappings(mappings, folder.path());
    LoadOrdexMap(mappings);
    bytes = std::filesystem::file_size(folder / (std::string(kStem) + ".txt"));
  }

  testing::TempFolder folder;
  Mappings mappings;
  std::size_t bytes = 0;
};

void Getline(benchmark::State& state, const ParseSetup& setup) {
  for (auto _ : state) {
    std::ifstream in(setup.folder / (std::string(kStem) + ".txt"), std::ios::binary);
    std::string line;
    std::size_t count = 0;
    while (std::getline(in, line)) count += line.size();
    benchmark::DoNotOptimize(count);
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(setup.bytes));
}

void ImportProfile(benchmark::State& state, ParseSetup& setup) {
  for (auto _ : state) {
    ListSink sink;
    Page page;
    HistoryPaging paging;
    const auto stop =
        Import({setup.folder.path(), setup.mappings, page, paging, sink}, kStem, kPageProfile);
    if (stop || sink.list.rows.size() != kLines + 1) state.SkipWithError("the import stopped");
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(setup.bytes));
}

}  // namespace

void AddParseBenchmarks(RatioReporter& reporter) {
  static ParseSetup setup;
  benchmark::RegisterBenchmark("parse profile/baseline",
                               [](benchmark::State& state) { Getline(state, setup); });
  benchmark::RegisterBenchmark("parse profile/import",
                               [](benchmark::State& state) { ImportProfile(state, setup); });
  reporter.Aim("parse profile", 2.0);
}

}  // namespace ordex::bench
