// Sorting the review list by its column headers.
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "app/review_lists.h"
#include "support/office_fixture.h"

namespace ordex::testing {
namespace {

using Texts = std::vector<std::string>;

ReviewList ThreeRows() {
  ReviewList list;
  WriteListView(list, "b", "due", "Z", "", "");
  WriteListView(list, "C", "tre", "x", "", "tag");
  WriteListView(list, "a", "uno", "Y", "", "");
  return list;
}

// The first column's texts in the order shown.
Texts Shown(const ReviewList& list) {
  Texts texts;
  for (const std::uint32_t place : list.order) texts.emplace_back(list.rows[place].text);
  return texts;
}

std::array<int, 4> Icons(const ReviewList& list) {
  std::array<int, 4> icons{};
  for (std::size_t i = 0; i < icons.size(); ++i) icons[i] = static_cast<int>(list.columns[i].icon);
  return icons;
}

using Icons4 = std::array<int, 4>;

TEST(SortReviewList, ThreeClicksOnAColumnSortUpDownAndUpAgain) {
  ReviewList list = ThreeRows();
  OrdinaColonna(list, 2);
  EXPECT_EQ(Shown(list), (Texts{"b", "C", "a"}));  // due, tre, uno
  EXPECT_EQ(Icons(list), (Icons4{0, 1, 0, 0}));
  EXPECT_EQ(list.sortOrder, SortOrder::kAscending);
  OrdinaColonna(list, 2);
  EXPECT_EQ(Shown(list), (Texts{"a", "C", "b"}));
  EXPECT_EQ(Icons(list), (Icons4{0, 2, 0, 0}));
  EXPECT_EQ(list.sortOrder, SortOrder::kDescending);
  OrdinaColonna(list, 2);
  EXPECT_EQ(Shown(list), (Texts{"b", "C", "a"}));
  EXPECT_EQ(Icons(list), (Icons4{0, 1, 0, 0}));
}

TEST(SortReviewList, AnotherColumnTakesTheIconAndSortsUp) {
  ReviewList list = ThreeRows();
  OrdinaColonna(list, 2);
  OrdinaColonna(list, 2);
  OrdinaColonna(list, 3);
  EXPECT_EQ(Icons(list), (Icons4{0, 0, 1, 0}));
  EXPECT_EQ(Shown(list), (Texts{"C", "a", "b"}));  // x, Y, Z
  EXPECT_EQ(list.sortOrder, SortOrder::kAscending);
  EXPECT_EQ(list.tag, "3");
  EXPECT_EQ(list.sortKey, 2);
}

// The list starts as sorted by column 1, ascending.
TEST(SortReviewList, TheVeryFirstClickOnColumnOneSortsDown) {
  ReviewList list = ThreeRows();
  EXPECT_EQ(list.tag, "1");
  EXPECT_EQ(list.sortOrder, SortOrder::kAscending);
  OrdinaColonna(list, 1);
  EXPECT_EQ(Shown(list), (Texts{"C", "b", "a"}));
  EXPECT_EQ(Icons(list), (Icons4{2, 0, 0, 0}));
}

TEST(SortReviewList, IgnoresLetterCaseAlsoOfAccentedLetters) {
  ReviewList list;
  for (const char* text : {"Ò", "b", "ò", "A"}) WriteListView(list, text, "", "", "", "");
  list.tag = "2";
  OrdinaColonna(list, 1);
  EXPECT_EQ(Shown(list), (Texts{"A", "b", "Ò", "ò"}));
}

TEST(SortReviewList, KeepsRowsOfEqualTextInTheirOrderUpAndDown) {
  ReviewList list;
  for (const char* text : {"1", "2", "3"}) WriteListView(list, text, "same", "", "", "");
  OrdinaColonna(list, 2);
  EXPECT_EQ(Shown(list), (Texts{"1", "2", "3"}));
  OrdinaColonna(list, 2);
  EXPECT_EQ(Shown(list), (Texts{"1", "2", "3"}));
}

TEST(SortReviewList, RowsAddedLaterAreAppendedUnsorted) {
  ReviewList list = ThreeRows();
  OrdinaColonna(list, 3);
  WriteListView(list, "new", "", "A", "", "");
  EXPECT_EQ(Shown(list), (Texts{"C", "a", "b", "new"}));
}

TEST(SortReviewList, DoesNotTouchTheIndexesOfTaggedRows) {
  ReviewList list = ThreeRows();
  OrdinaColonna(list, 3);
  EXPECT_EQ(list.taggedRows, (std::vector<std::size_t>{2}));
  EXPECT_EQ(list.rows[1].tag, "tag");
}

TEST(SortReviewList, WithATagThatIsNoNumberIsATypeMismatch) {
  ReviewList list = ThreeRows();
  list.tag = "";
  EXPECT_EQ(ErrorNumberOf([&] { OrdinaColonna(list, 1); }), 13);
}

}  // namespace
}  // namespace ordex::testing
