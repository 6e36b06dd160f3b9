// Whole imports while the database may grow no further: from no page at all, page by page, to the
// size that is enough.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

#include "abuse/whole_imports.h"
#include "base/text.h"

namespace ordex::testing {
namespace {

constexpr const char* kFull = "il disco è pieno; liberare spazio e riprovare";

bool PersonErrorShown(const Course& course) {
  return std::count(course.boxes.begin(), course.boxes.end(), "Praxion") > 0;
}

class FullDisk : public ::testing::TestWithParam<WholeImport> {
 protected:
  FullDisk() {
    CreateSqliteDatabase(original_, true);
    UseSmallPages();
    Office untouched(original_);
    before_ = TablesOf(untouched);
    pages_ = std::stoul(untouched.Row("PRAGMA page_count"));
    Office office(original_);
    RunImport(office, LongerScript());
    whole_ = TablesOf(office);
  }

  // So that even a short import needs some more of them.
  void UseSmallPages() const {
    const auto connection = OpenSqlite(original_);
    for (const char* sql : {"PRAGMA journal_mode = DELETE", "PRAGMA page_size = 512", "VACUUM",
                            "PRAGMA journal_mode = WAL"}) {
      connection->Execute(sql);
    }
  }

  // The same import with longer texts, which need more room.
  static ImportScript LongerScript() {
    ImportScript script = GetParam().script;
    // An entry of the agenda has 200 characters at most.
    const std::string longer(GetParam().name == "Agenda" ? 150 : 600, 'x');
    for (const char* word : {"Uno", "Due", "Tre"}) {
      script.page = ReplaceAll(script.page, word, word + longer);
    }
    return script;
  }

  Course RunWithin(Office& office, std::size_t pages) const {
    ImportScript script = LongerScript();
    script.onDatabase = [pages](Connection& connection) {
      connection.Execute("PRAGMA max_page_count = " + std::to_string(pages));
    };
    return RunImport(office, script);
  }

  // The tables that the import writes ahead of its transaction may hold their rows.
  void ExpectNothingOrThePersonAhead(const Tables& now) const {
    for (const auto& [name, rows] : before_) {
      const bool ahead = name == "Anagrafica" && now.at(name) == whole_.at(name);
      EXPECT_TRUE(now.at(name) == rows || ahead) << name;
    }
  }

  TempFolder folder_;
  std::filesystem::path original_ = folder_ / "original.db";
  Tables before_;
  Tables whole_;
  std::size_t pages_ = 0;
};

TEST_P(FullDisk, LeavesNothingHalfWrittenAndIsNeverToldAsDone) {
  constexpr std::size_t kEnough = 40;
  std::size_t failed = 0;
  bool done = false;
  for (std::size_t more = 0; more < kEnough && !done; ++more) {
    SCOPED_TRACE(std::to_string(more) + " more pages");
    Office office(original_);
    const Course course = RunWithin(office, pages_ + more);
    const Tables now = TablesOf(office);
    EXPECT_EQ(office.Row("PRAGMA integrity_check"), "ok");
    EXPECT_FALSE(course.transactionLeftOpen);
    done = now == whole_;
    if (PersonErrorShown(course)) {
      // By rule the case, where there is still room for it, is then made without its client.
      EXPECT_EQ(office.Row("SELECT count(*) FROM Pratica WHERE ID_Pra > 10 AND ID_Cliente <> 0"),
                "0");
      ++failed;
      continue;
    }
    const bool told = std::count(course.boxes.begin(), course.boxes.end(), GetParam().boxes.back());
    EXPECT_EQ(told, done);
    if (done) continue;
    ++failed;
    ExpectNothingOrThePersonAhead(now);
    for (const std::string& report : course.reports) {
      EXPECT_TRUE(Contains(report, kFull)) << report;
    }
    // With room again the same page makes it good.
    RunImport(office, LongerScript());
    EXPECT_TRUE(GetParam().creates || TablesOf(office) == whole_);
  }
  EXPECT_TRUE(done);
  EXPECT_GT(failed, 0U);
}

constexpr auto kName = [](const auto& one) { return one.param.name; };
INSTANTIATE_TEST_SUITE_P(Of, FullDisk, ::testing::ValuesIn(WholeImports()), kName);

}  // namespace
}  // namespace ordex::testing
