// The sample pages of every kind, imported with the shipped mapping files.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "base/text.h"
#include "import_bench.h"
#include "parse/lines.h"
#include "sample_import.h"
#include "sample_takers.h"

namespace ordex::testing {
namespace {

namespace fs = std::filesystem;

template <class Written>
void AppendPrinted(const std::vector<Written>& all, std::vector<std::string>& printed) {
  for (const Written& one : all) {
    std::ostringstream out;
    out << one;
    printed.push_back(out.str());
  }
}

// All that the page wrote into the two lists; no page writes into both.
std::vector<std::string> WrittenRows(const RecordingSink& sink) {
  std::vector<std::string> printed;
  AppendPrinted(sink.rows, printed);
  AppendPrinted(sink.agenda, printed);
  return printed;
}

// The stored rows; nothing where there are none yet.
std::optional<std::vector<std::string>> StoredRows(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  if (!in) return std::nullopt;
  std::ostringstream bytes;
  bytes << in.rdbuf();
  const std::string text = bytes.str();
  std::vector<std::string> rows;
  for (Lines lines(text); !lines.AtEnd();) rows.emplace_back(lines.Next());
  return rows;
}

void StoreRows(const fs::path& file, const std::vector<std::string>& rows) {
  fs::create_directories(file.parent_path());
  std::ofstream out(file, std::ios::binary);
  for (const std::string& row : rows) out << row << "\n";
}

class PageSample : public ::testing::TestWithParam<std::string> {};

TEST_P(PageSample, IsImportedToItsEnd) {
  const SampleImport sample(GetParam());
  EXPECT_EQ(sample.stop, Stop{});
}

TEST_P(PageSample, GivesTheStoredRows) {
  const SampleImport sample(GetParam());
  const fs::path file =
      fs::path(ORDEX_SOURCE_DIR) / "tests" / "parse" / "expected" / (GetParam() + ".rows");
  const std::vector<std::string> rows = WrittenRows(sample.sink);
  const auto stored = StoredRows(file);
  if (!stored) {
    StoreRows(file, rows);
    FAIL() << file << " was missing and is written now: read it against the page, line by line.";
  }
  EXPECT_EQ(rows, *stored);
}

TEST_P(PageSample, HasEachOfItsLinesReadExactlyOnceAndInOrder) {
  const SampleImport sample(GetParam());
  std::vector<RecordingTrace::ReadLine> expected;
  std::istringstream lines(sample.text);
  for (std::string line; std::getline(lines, line);) {
    if (line.ends_with('\r')) line.pop_back();
    expected.push_back({expected.size() + 1, line});
  }
  EXPECT_EQ(sample.trace.lines, expected);
}

TEST_P(PageSample, HasEachLineTakenByTheRuleThatFitsAndTheOthersByNone) {
  const SampleImport sample(GetParam());
  ASSERT_TRUE(ExpectedTakers().contains(GetParam())) << "no expectations for this page yet";
  Takers takers;
  for (const auto& line : sample.trace.lines) {
    const std::string taker = sample.trace.FirstTaker(line.number);
    if (taker != "none") takers[line.number] = taker;
  }
  EXPECT_EQ(takers, ExpectedTakers().at(GetParam()));
}

TEST_P(PageSample, HasNoLineTakenByTwoRules) {
  const SampleImport sample(GetParam());
  for (const auto& [line, rules] : sample.trace.takers) EXPECT_EQ(rules.size(), 1U) << line;
}

TEST_P(PageSample, GivesTheSameWhenTheFileHasOnlyLfLineEnds) {
  const SampleImport sample(GetParam());
  ImportBench bench;
  bench.Delimiters(SourceFile("mapping/MapDelimitatori.txt"));
  bench.Fields(SourceFile("mapping/MapCampi.txt"));
  bench.paging = sample.paging;
  EXPECT_EQ(bench.RunBytes(ReplaceAll(sample.text, "\r\n", "\n"), sample.page.iOrdexPage), Stop{});
  EXPECT_EQ(WrittenRows(bench.sink), WrittenRows(sample.sink));
  EXPECT_EQ(bench.trace.lines, sample.trace.lines);
}

INSTANTIATE_TEST_SUITE_P(Samples, PageSample, ::testing::ValuesIn(SamplesNamed("")),
                         [](const auto& test) { return ReplaceAll(test.param, "-", "_"); });

TEST(PageSamples, EveryOneHasExpectations) {
  EXPECT_EQ(SamplesNamed("").size(), ExpectedTakers().size());
}

}  // namespace
}  // namespace ordex::testing
