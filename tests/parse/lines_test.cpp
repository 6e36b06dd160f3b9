#include "parse/lines.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "parse/page_reader.h"
#include "raised.h"
#include "support/recording_sink.h"

namespace ordex::testing {
namespace {

std::vector<std::string> All(std::string_view text) {
  std::vector<std::string> all;
  for (Lines lines(text); !lines.AtEnd();) all.emplace_back(lines.Next());
  return all;
}

using Texts = std::vector<std::string>;

TEST(Lines, EndAtLfAndAtCrLf) {
  EXPECT_EQ(All("uno\ndue\r\ntre\n"), (Texts{"uno", "due", "tre"}));
}

TEST(Lines, TheLastLineNeedsNoLineEnd) {
  EXPECT_EQ(All("uno\r\ndue"), (Texts{"uno", "due"}));
}

TEST(Lines, ALineEndAtTheEndOfTheTextOpensNoFurtherLine) {
  EXPECT_EQ(All("uno\r\n\r\n"), (Texts{"uno", ""}));
}

TEST(Lines, AnEmptyTextHasNoLines) {
  EXPECT_EQ(All(""), Texts{});
}

TEST(Lines, OnlyTheCarriageReturnOfTheLineEndIsDropped) {
  EXPECT_EQ(All("a\rb\r\r\nc\r"), (Texts{"a\rb\r", "c\r"}));
}

TEST(PageReader, CountsLinesFromOne) {
  PageReader reader("uno\ndue\n", nullptr);
  EXPECT_EQ(reader.Next().number, 1U);
  const PageLine second = reader.Next();
  EXPECT_EQ(second.number, 2U);
  EXPECT_EQ(second.text, "due");
  EXPECT_TRUE(reader.AtEnd());
}

TEST(PageReader, HandsOutLinesUntrimmed) {
  PageReader reader("  uno  \n", nullptr);
  EXPECT_EQ(reader.Next().text, "  uno  ");
}

TEST(PageReader, ReadingPastTheEndIsAnErrorAndTheLastLineStaysInWork) {
  PageReader reader("uno\ndue\n", nullptr);
  reader.Next();
  reader.Next();
  EXPECT_EQ(RaisedBy([&] { reader.Next(); }),
            (Raised{62,
                    "Input oltre la fine del file: la pagina finisce dove si attendeva altro "
                    "testo"}));
  EXPECT_EQ(reader.InWork().number, 2U);
  EXPECT_EQ(reader.InWork().text, "due");
}

TEST(PageReader, ALineHandedBackIsTheNextOneAgain) {
  PageReader reader("uno\ndue\ntre\n", nullptr);
  reader.Next();
  const PageLine second = reader.Next();
  reader.HandBack(second);
  EXPECT_EQ(reader.Next().text, "due");
  EXPECT_EQ(reader.InWork().number, 2U);
  EXPECT_EQ(reader.Next().text, "tre");
  EXPECT_EQ(reader.InWork().number, 3U);
}

TEST(PageReader, ALineHandedBackIsWorkedOnAlsoWhenItWasTheLastOfTheFile) {
  PageReader reader("uno", nullptr);
  const PageLine line = reader.Next();
  EXPECT_TRUE(reader.AtEnd());
  reader.HandBack(line);
  ASSERT_FALSE(reader.AtEnd());
  EXPECT_EQ(reader.Next().text, "uno");
  EXPECT_TRUE(reader.AtEnd());
}

TEST(PageReader, AnEmptyLineCanBeHandedBackToo) {
  PageReader reader("uno\n\n", nullptr);
  reader.Next();
  const PageLine empty = reader.Next();
  reader.HandBack(empty);
  ASSERT_FALSE(reader.AtEnd());
  EXPECT_EQ(reader.Next().number, 2U);
}

TEST(PageReader, ALineHandedBackIsToldAsReadOnlyOnce) {
  RecordingTrace trace;
  PageReader reader("uno\ndue\n", &trace);
  reader.HandBack(reader.Next());
  reader.Next();
  reader.Next();
  EXPECT_EQ(trace.lines, (std::vector<RecordingTrace::ReadLine>{{1, "uno"}, {2, "due"}}));
  EXPECT_EQ(trace.workedOn, (std::vector<std::size_t>{1}));
}

TEST(PageReader, GoingBackToAnEarlierLineMakesItTheLineInWork) {
  RecordingTrace trace;
  PageReader reader("uno\ndue\n", &trace);
  const PageLine first = reader.Next();
  reader.Next();
  reader.WorkOn(first);
  EXPECT_EQ(reader.InWork().number, 1U);
  EXPECT_EQ(trace.workedOn, (std::vector<std::size_t>{1}));
}

}  // namespace
}  // namespace ordex::testing
