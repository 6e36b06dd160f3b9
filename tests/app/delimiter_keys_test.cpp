// That the list of delimiter keys is what the page kinds ask for, no more and no less.
#include "parse/delimiter_keys.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "app/page_trial.h"
#include "base/text.h"
#include "findings.h"
#include "parse/mapping_files.h"
#include "parse/missing_delimiter.h"

namespace ordex::testing {
namespace {

namespace fs = std::filesystem;

constexpr std::array kKinds = {kPageProfile, kPageHistory, kPageAgenda, kPageJusticeOfThePeace};

std::vector<std::string> SamplesOf(PageKind kind) {
  switch (kind) {
    case kPageProfile:
      return {"profilo-contratto", "profilo-lavoro", "profilo-condominio"};
    case kPageHistory:
      return {"storico-pagina-1", "storico-pagina-2", "storico-pagina-3", "storico-unica",
              "storico-lavoro-pagina-2"};
    case kPageAgenda:
      return {"agenda-settimana", "agenda-vuota"};
    default:
      return {"giudice-di-pace-opposizione", "giudice-di-pace-sinistro"};
  }
}

// What stopped the sample, nothing where it was read to its end.
std::string StopOf(const EditedMapping& folder, const std::string& sample) {
  const auto trial = TryPage(folder.path(), SourceFile("samples/" + sample + ".txt"));
  if (trial == nullptr) return "refused";
  return trial->stop ? trial->stop->error.description() : "";
}

// Each line's rule and the rows it gave.
std::vector<std::string> Reading(const EditedMapping& folder, const std::string& sample) {
  const auto trial = TryPage(folder.path(), SourceFile("samples/" + sample + ".txt"));
  if (trial == nullptr) return {"refused"};
  std::vector<std::string> reading;
  for (const LineReport& line : trial->lines) {
    std::string text = line.text + " " + line.rule;
    for (const std::size_t place : line.reviewRows) {
      const ReviewRow row = trial->window.lstImport.rows.at(place);
      text.append(" | ").append(row.text);
      for (const std::string_view sub : row.sub) text.append(" | ").append(sub);
    }
    for (const std::size_t place : line.agendaRows) {
      const AgendaRow row = trial->window.lstAgendaAvv.rows.at(place);
      text.append(" | ").append(row.text).append(" | ").append(row.sub);
    }
    reading.push_back(std::move(text));
  }
  return reading;
}

std::set<std::string> KeysOf(PageKind kind) {
  std::set<std::string> keys;
  for (const DelimiterKey& one : kDelimiterKeys) {
    if (one.kind == kind) keys.emplace(one.key);
  }
  return keys;
}

TEST(DelimiterKeyList, IsThatOfTheShippedFile) {
  std::set<std::string> listed;
  for (const DelimiterKey& one : kDelimiterKeys) listed.emplace(one.key);
  std::set<std::string> shipped;
  for (const MappingLine& line :
       ReadMappingLines(fs::path(ORDEX_SOURCE_DIR) / "mapping" / kMapDelimitatori)) {
    shipped.insert(line.right);
  }
  EXPECT_EQ(listed, shipped);
}

TEST(DelimiterKeyList, NamesNoKeyOfAKindTwice) {
  std::set<std::pair<int, std::string>> seen;
  for (const DelimiterKey& one : kDelimiterKeys) {
    EXPECT_TRUE(seen.emplace(one.kind, one.key).second) << one.kind << " " << one.key;
  }
}

// Without a key that a kind asks for, a page of that kind stops or, where the error is absorbed, is
// read otherwise.
TEST(DelimiterKeyList, NamesNoKeyThatItsKindDoesNotAskFor) {
  const EditedMapping whole;
  const std::string shipped = whole.Read(kDelimitatori);
  for (const DelimiterKey& one : kDelimiterKeys) {
    const std::string key(one.key);
    EditedMapping folder;
    folder.Write(kDelimitatori, DelimitersWithout(shipped, key));
    std::size_t changed = 0;
    for (const std::string& sample : SamplesOf(static_cast<PageKind>(one.kind))) {
      const std::string stop = StopOf(folder, sample);
      if (!stop.empty()) {
        EXPECT_EQ(stop, MissingText(key)) << sample;
      }
      if (!stop.empty() || Reading(folder, sample) != Reading(whole, sample)) ++changed;
    }
    EXPECT_GT(changed, 0U) << one.kind << " does not ask for " << key;
  }
}

TEST(DelimiterKeyList, NamesAllThatAKindAsksFor) {
  const EditedMapping shipped;
  for (const PageKind kind : kKinds) {
    const std::set<std::string> keys = KeysOf(kind);
    std::string only;
    for (const MappingLine& line : ReadMappingLines(shipped.path() / kMapDelimitatori)) {
      if (keys.contains(line.right)) only.append(line.text).append("\n");
    }
    EditedMapping folder;
    folder.Write(kDelimitatori, only);
    for (const std::string& sample : SamplesOf(kind)) {
      EXPECT_EQ(StopOf(folder, sample), "") << sample;
      EXPECT_EQ(Reading(folder, sample), Reading(shipped, sample)) << sample;
    }
  }
}

}  // namespace
}  // namespace ordex::testing
