// Whole imports while the database refuses one statement after the other: what stands in the tables
// afterwards, and what the user was told.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <set>
#include <string>
#include <vector>

#include "abuse/whole_imports.h"
#include "base/text.h"

namespace ordex::testing {
namespace {

using Labels = std::vector<std::string>;

constexpr const char* kReport =
    "Errore di run-time '-2147467259': Errore del database: errore chiesto dalla prova";
constexpr const char* kNotChosen = "Pratica Praxion non selezionata";

// The office's rows, each with a label in front: "event 6/2" and then all of its columns but its
// own identity, which engines may leave gaps in.
struct Label {
  const char* table;
  const char* text;
};

constexpr Label kLabels[] = {
    {"Utenti", "'user ' || ID_Utente"},
    {"Anagrafica", "'person ' || ID_Ana || ' ' || Cognome"},
    {"Pratica", "'case ' || ID_Pra || ' of client ' || ID_Cliente"},
    {"PraOrdex", "'profile of ' || ID_PraRel"},
    {"SCADENZE", "'agenda ' || Codice_Pra || ' ' || Scadenza"},
    {"EventiPraOrdex", "'event ' || ID_PraRel || '/' || Progressivo"},
};

struct LabelledRow {
  std::string label;
  std::string columns;
  auto operator<=>(const LabelledRow&) const = default;
};

using Rows = std::multiset<LabelledRow>;

Rows RowsOf(Office& office) {
  Rows rows;
  for (const Label& label : kLabels) {
    const std::string select = std::string("SELECT * FROM ") + label.table + " ORDER BY rowid";
    const std::string labels =
        std::string("SELECT ") + label.text + " FROM " + label.table + " ORDER BY rowid";
    const Labels texts = office.Rows(labels);
    const Labels all = office.Rows(select);
    for (std::size_t i = 0; i < all.size(); ++i) {
      rows.insert({texts[i], all[i].substr(all[i].find('|'))});
    }
  }
  return rows;
}

Rows Difference(const Rows& one, const Rows& other) {
  Rows rest;
  std::set_difference(one.begin(), one.end(), other.begin(), other.end(),
                      std::inserter(rest, rest.end()));
  return rest;
}

Labels LabelsOf(const Rows& rows) {
  Labels labels;
  for (const LabelledRow& row : rows) labels.push_back(row.label);
  return labels;
}

Labels Sorted(Labels labels) {
  std::sort(labels.begin(), labels.end());
  return labels;
}

struct Expected {
  Labels boxes;
  Labels reports;
  std::optional<EndReason> ended;
};

// The course that ends so. `before` are the boxes ahead of the closing one.
Expected CourseOf(const WholeImport& whole, Ending ending, bool personError, bool behindQuestion) {
  Labels before;
  if (behindQuestion) before.assign(whole.boxes.begin(), whole.boxes.end() - 1);
  if (personError) before.emplace_back("Praxion");
  const auto with = [&](const std::string& title) {
    Labels boxes = before;
    boxes.push_back(title);
    return boxes;
  };
  switch (ending) {
    case Ending::kDone:
      return {with(whole.boxes.back()),
              {},
              whole.name == "Agenda" ? std::nullopt : std::optional(EndReason::kDone)};
    case Ending::kReport:
      return {with("Ordex"), {kReport}, EndReason::kError};
    case Ending::kSilent:
      return {before, {}, EndReason::kFailed};
    case Ending::kAskedAgain:
      break;
  }
  return {with(kNotChosen), {}, std::nullopt};
}

// What every course has to keep to, wherever the failure struck.
void ExpectSoundOffice(Office& office, const Course& course) {
  EXPECT_FALSE(course.transactionLeftOpen);
  EXPECT_EQ(office.Row("PRAGMA integrity_check"), "ok");
  EXPECT_EQ(office.Rows("SELECT ID_PraRel, Progressivo, count(*) FROM EventiPraOrdex "
                        "GROUP BY 1, 2 HAVING count(*) > 1"),
            Labels{});
  EXPECT_EQ(office.Rows("SELECT Codice_Pra, Scadenza, Data_End, count(*) FROM SCADENZE "
                        "GROUP BY 1, 2, 3 HAVING count(*) > 1"),
            Labels{});
  EXPECT_EQ(office.Rows("SELECT ID_PraRel, count(*) FROM PraOrdex GROUP BY 1 HAVING count(*) > 1"),
            Labels{});
}

class FailingStatements : public ::testing::TestWithParam<WholeImport> {
 protected:
  FailingStatements() {
    CreateSqliteDatabase(original_, true);
    Office office(original_);
    course_ = RunImport(office, GetParam().script);
    undisturbed_ = RowsOf(office);
  }

  // The statements of the undisturbed import, one stretch for each.
  std::vector<const Stretch*> Statements() const {
    std::vector<const Stretch*> all;
    for (const Stretch& stretch : GetParam().stretches) {
      all.insert(all.end(), stretch.count, &stretch);
    }
    return all;
  }

  // The number of the transaction's first statement, and of its last.
  std::size_t Place(std::string_view statement) const {
    std::size_t place = 1;
    for (const Stretch& stretch : GetParam().stretches) {
      if (stretch.first == statement) return place;
      place += stretch.count;
    }
    return 0;
  }

  // Whether the question that precedes the writing has been answered when that statement runs.
  bool BehindQuestion(std::size_t number) const {
    const std::size_t asked = GetParam().creates ? 2 : Place("BEGIN") - 2;
    return GetParam().boxes.size() > 1 && number > asked;
  }

  // Runs the import with that failure and compares course and rows.
  void ExpectCourse(std::size_t number, Failing failing, Ending ending, const Labels& written,
                    bool personError) {
    SCOPED_TRACE("statement " + std::to_string(number));
    Office office(original_);
    const Rows before = RowsOf(office);
    const Course course = RunImport(office, GetParam().script, number, failing);
    const Rows after = RowsOf(office);
    const Expected expected = CourseOf(GetParam(), ending, personError, BehindQuestion(number));
    EXPECT_EQ(course.boxes, expected.boxes);
    EXPECT_EQ(course.reports, expected.reports);
    EXPECT_EQ(course.ended, expected.ended);
    EXPECT_EQ(LabelsOf(Difference(after, before)), Sorted(written));
    // No row goes but for those that were changed, and a row that is written is written whole.
    for (const LabelledRow& row : Difference(before, after)) {
      EXPECT_TRUE(std::count(written.begin(), written.end(), row.label)) << row.label;
    }
    for (const LabelledRow& row : Difference(after, before)) {
      const bool known = std::any_of(undisturbed_.begin(), undisturbed_.end(),
                                     [&](const auto& each) { return each.label == row.label; });
      EXPECT_TRUE(!known || undisturbed_.contains(row)) << row.label << row.columns;
    }
    ExpectSoundOffice(office, course);
  }

  TempFolder folder_;
  std::filesystem::path original_ = folder_ / "original.db";
  Course course_;     // of an import that nothing disturbs
  Rows undisturbed_;  // what that one leaves
};

TEST_P(FailingStatements, AreThoseOfAnUndisturbedImport) {
  Office untouched(original_);
  std::size_t place = 0;
  for (const Stretch& stretch : GetParam().stretches) {
    ASSERT_LT(place, course_.statements.size()) << stretch.first;
    EXPECT_TRUE(course_.statements[place].starts_with(stretch.first))
        << "statement " << place + 1 << " is " << course_.statements[place] << " and not "
        << stretch.first;
    place += stretch.count;
  }
  EXPECT_EQ(course_.statements.size(), place);
  EXPECT_EQ(course_.boxes, GetParam().boxes);
  EXPECT_EQ(course_.reports, Labels{});
  EXPECT_EQ(LabelsOf(Difference(undisturbed_, RowsOf(untouched))), Sorted(GetParam().written));
}

TEST_P(FailingStatements, AloneCostTheUserWhatTheirHandlerSays) {
  const std::vector<const Stretch*> statements = Statements();
  for (std::size_t i = 0; i < statements.size(); ++i) {
    const Stretch& stretch = *statements[i];
    ExpectCourse(i + 1, Failing::kOnce, stretch.ending, stretch.written, stretch.personError);
  }
}

// The engine itself has taken back what the press had written: nothing of it may count as done.
TEST_P(FailingStatements, ThatEndTheTransactionLoseAllOfIt) {
  const WholeImport& whole = GetParam();
  const Ending ending = whole.name == "Agenda" ? Ending::kReport
                        : whole.creates        ? Ending::kAskedAgain
                                               : Ending::kSilent;
  for (std::size_t number = Place("BEGIN") + 1; number <= Place("COMMIT"); ++number) {
    ExpectCourse(number, Failing::kEndsTransaction, ending, whole.ahead, false);
  }
}

// Not even the way back works any more, so only what was durable before is there. Where the user is
// asked again whether to create the case, reading the users for it is what ends the program.
TEST_P(FailingStatements, OfALineThatStaysDeadLeaveNothingHalfWritten) {
  const WholeImport& whole = GetParam();
  for (std::size_t number = Place("BEGIN"); number <= Place("COMMIT"); ++number) {
    SCOPED_TRACE("from statement " + std::to_string(number));
    Office office(original_);
    const Rows before = RowsOf(office);
    const Course course = RunImport(office, whole.script, number, Failing::kFromThereOn);
    const bool silent = !whole.creates && whole.name != "Agenda";
    EXPECT_EQ(course.ended, silent ? EndReason::kFailed : EndReason::kError);
    EXPECT_EQ(course.reports, silent ? Labels{} : Labels{kReport});
    EXPECT_EQ(std::count(course.boxes.begin(), course.boxes.end(), whole.boxes.back()), 0);
    EXPECT_EQ(LabelsOf(Difference(RowsOf(office), before)), Sorted(whole.ahead));
    EXPECT_EQ(LabelsOf(Difference(before, RowsOf(office))), Labels{});
    ExpectSoundOffice(office, course);
  }
}

class FailingUpdates : public FailingStatements {};
class FailingCreates : public FailingStatements {};

// The user copies the page again. Whatever was lost is then there, and nothing stands there twice.
TEST_P(FailingUpdates, AreMadeGoodByImportingThePageAgain) {
  for (std::size_t number = 1; number <= Statements().size(); ++number) {
    SCOPED_TRACE("statement " + std::to_string(number));
    Office office(original_);
    RunImport(office, GetParam().script, number);
    RunImport(office, GetParam().script);
    EXPECT_EQ(LabelsOf(Difference(RowsOf(office), undisturbed_)), Labels{});
    EXPECT_EQ(LabelsOf(Difference(undisturbed_, RowsOf(office))), Labels{});
  }
}

// A second press, or the page copied again, never makes a second case where one was made.
TEST_P(FailingCreates, NeverMakeASecondCase) {
  const std::string number =
      Contains(GetParam().script.page, "5230/2025") ? "5230/2025" : "3056/2025";
  for (std::size_t i = 1; i <= Statements().size(); ++i) {
    SCOPED_TRACE("statement " + std::to_string(i));
    Office office(original_);
    RunImport(office, GetParam().script, i);
    RunImport(office, GetParam().script);
    EXPECT_EQ(office.Row("SELECT count(*) FROM Pratica WHERE NumeroRegGenerale = '" + number + "'"),
              "1");
  }
}

std::vector<WholeImport> ImportsThat(bool create) {
  std::vector<WholeImport> imports = WholeImports();
  std::erase_if(imports, [&](const WholeImport& whole) { return whole.creates != create; });
  return imports;
}

constexpr auto kName = [](const auto& one) { return one.param.name; };

INSTANTIATE_TEST_SUITE_P(Of, FailingStatements, ::testing::ValuesIn(WholeImports()), kName);
INSTANTIATE_TEST_SUITE_P(Of, FailingUpdates, ::testing::ValuesIn(ImportsThat(false)), kName);
INSTANTIATE_TEST_SUITE_P(Of, FailingCreates, ::testing::ValuesIn(ImportsThat(true)), kName);

}  // namespace
}  // namespace ordex::testing
