// A rare delimiter that is searched for ahead of the lines answers as if each line were searched.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "base/keyed_table.h"
#include "base/text.h"
#include "parse/lines.h"
#include "parse/page_rules.h"
#include "raised.h"

namespace ordex::testing {
namespace {

KeyedTable TableOf(const std::string& text) {
  KeyedTable table;
  table.Add(text, "DELPF4");
  return table;
}

// Asks for every line of the page in order, trimmed.
std::vector<bool> InLines(const std::string& page, const std::string& wanted) {
  const KeyedTable table = TableOf(wanted);
  Landmark landmark(table, "DELPF4", page);
  std::vector<bool> answers;
  for (Lines lines(page); !lines.AtEnd();) answers.push_back(landmark.In(Trim(lines.Next())));
  return answers;
}

using Answers = std::vector<bool>;

TEST(Landmark, IsInEveryLineThatHoldsItsText) {
  EXPECT_EQ(InLines("a\nTermini\nb Termini c\n\nTermin\ni Termini", "Termini"),
            (Answers{false, true, true, false, false, true}));
}

TEST(Landmark, MayStandSeveralTimesInOneLine) {
  EXPECT_EQ(InLines("xx xx xx\nxx\ny\nxx\n", "xx"), (Answers{true, true, false, true}));
}

TEST(Landmark, DoesNotReachFromOneLineIntoTheNext) {
  EXPECT_EQ(InLines("ab\ncd\nabcd\n", "b\ncd"), (Answers{false, false, false}));
  EXPECT_EQ(InLines("ab\r\n", "b\r"), (Answers{false}));
}

TEST(Landmark, BlanksThatTheTrimmingTakesAwayAreNotFound) {
  EXPECT_EQ(InLines(" x\na x\nx \nx y\n", " x"), (Answers{false, true, false, false}));
  EXPECT_EQ(InLines("x \nx y\n", "x "), (Answers{false, true}));
}

TEST(Landmark, AnEmptyTextIsInEveryLine) {
  EXPECT_EQ(InLines("a\n\n  \nb", ""), (Answers{true, true, true, true}));
}

TEST(Landmark, AnswersForAnEarlierLineToo) {
  const std::string page = "uno x\ndue\ntre x\n";
  const KeyedTable table = TableOf("x");
  Landmark landmark(table, "DELPF4", page);
  const std::string_view whole = page;
  EXPECT_TRUE(landmark.In(whole.substr(10, 5)));
  EXPECT_FALSE(landmark.In(whole.substr(6, 3)));
  EXPECT_TRUE(landmark.In(whole.substr(0, 5)));
  EXPECT_TRUE(landmark.In(whole.substr(10, 5)));
}

TEST(Landmark, ItsMissingKeyIsAnErrorWheneverALineIsAsked) {
  const KeyedTable table;
  const std::string page = "a\n\n";
  Landmark landmark(table, "DELPF4", page);
  const Raised missing{5,
                       "Chiave non trovata: \"DELPF4\" manca nel file \"MapDelimitatori.txt\": "
                       "aggiungere la riga testo=DELPF4"};
  EXPECT_EQ(RaisedBy([&] { landmark.In({}); }), missing);
  EXPECT_EQ(RaisedBy([&] { landmark.In(std::string_view(page).substr(0, 1)); }), missing);
}

TEST(Landmark, AnswersForRandomPartsOfRandomPagesAsASearchOfThePartDoes) {
  std::mt19937 random(1842);
  constexpr std::string_view kLetters = "ab \n";
  for (int run = 0; run < 2000; ++run) {
    std::string page(1 + random() % 60, 'a');
    for (char& letter : page) letter = kLetters[random() % kLetters.size()];
    std::string wanted(1 + random() % 3, 'a');
    for (char& letter : wanted) letter = kLetters[random() % 3];
    const KeyedTable table = TableOf(wanted);
    Landmark landmark(table, "DELPF4", page);
    for (int part = 0; part < 20; ++part) {
      const std::size_t start = random() % page.size();
      const std::string_view line = std::string_view(page).substr(start, random() % 10);
      ASSERT_EQ(landmark.In(line), line.find(wanted) != std::string_view::npos)
          << "run " << run << ", \"" << wanted << "\" in \"" << line << "\"";
    }
  }
}

}  // namespace
}  // namespace ordex::testing
