// Parsing a page of 20,000 lines of each kind, next to a plain std::getline loop over the same
// file and next to grep, which looks for the same delimiters; and how the cost of a page grows.
#include <cstdlib>
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
  std::size_t lines;
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
    LoadDelimitatori(mappings);
    folder.Write("delimiters", Delimiters());
  }

  // One a line.
  std::string Delimiters() const {
    std::string lines;
    for (const KeyedTable::Entry& entry : mappings.cDelimitatori.Entries()) {
      if (!entry.value.empty()) lines.append(entry.value).append("\n");
    }
    return lines;
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

// The lines that hold a delimiter, counted by a process of its own.
void Grep(benchmark::State& state, const ParseSetup& setup, const Kind& kind) {
  const std::string command = "LC_ALL=C grep -c -F -f '" + (setup.folder / "delimiters").string() +
                              "' '" + setup.File(kind).string() + "' >/dev/null";
  for (auto _ : state) {
    if (std::system(command.c_str()) != 0) state.SkipWithError("grep found nothing");
  }
}

void ImportPage(benchmark::State& state, ParseSetup& setup, const Kind& kind) {
  for (auto _ : state) {
    ListSink sink;
    Page page;
    HistoryPaging paging;
    const auto stop =
        Import({setup.folder.path(), setup.mappings, page, paging, sink}, kind.name, kind.kind);
    if (stop || sink.Rows() < kind.lines) state.SkipWithError("the import stopped");
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(kind.text.size()));
}

void AddImport(const std::string& name, ParseSetup& setup, const Kind& kind) {
  benchmark::RegisterBenchmark(
      name.c_str(), [&setup, &kind](benchmark::State& state) { ImportPage(state, setup, kind); });
}

// A page next to one that is so many times shorter.
void AddGrowth(RatioReporter& reporter, ParseSetup& setup, const Kind& shorter, const Kind& longer,
               int times) {
  const std::string group = "parse history x" + std::to_string(times);
  AddImport(group + "/baseline", setup, shorter);
  AddImport(group + "/import", setup, longer);
  reporter.Aim(group, 1.1 * times);
}

}  // namespace

void AddParseBenchmarks(RatioReporter& reporter) {
  static ParseSetup setup;
  static const std::vector<Kind> kinds = {
      {kPageProfile, "profile", kLines, ProfilePage(kLines)},
      {kPageHistory, "history", kLines, HistoryPage(kLines)},
      {kPageAgenda, "agenda", kLines, AgendaPage(kLines)},
      {kPageJusticeOfThePeace, "justice of the peace", kLines, JusticeOfThePeacePage(kLines)},
      {kPageHistory, "history of a tenth", kLines / 10, HistoryPage(kLines / 10)},
      {kPageHistory, "history of ten times", kLines * 10, HistoryPage(kLines * 10)}};
  for (const Kind& kind : kinds) setup.folder.Write(kind.name + ".txt", kind.text);
  for (std::size_t i = 0; i < 4; ++i) {
    const Kind& kind = kinds[i];
    const std::string group = "parse " + kind.name;
    benchmark::RegisterBenchmark((group + "/baseline").c_str(),
                                 [&kind](benchmark::State& state) { Getline(state, setup, kind); });
    AddImport(group + "/import", setup, kind);
    reporter.Aim(group, 2.0);
    const std::string toGrep = group + " to grep -F";
    benchmark::RegisterBenchmark((toGrep + "/baseline").c_str(),
                                 [&kind](benchmark::State& state) { Grep(state, setup, kind); });
    AddImport(toGrep + "/import", setup, kind);
  }
  AddGrowth(reporter, setup, kinds[4], kinds[1], 10);
  AddGrowth(reporter, setup, kinds[4], kinds[5], 100);
}

}  // namespace ordex::bench
