// Rows, columns and widths of the review list.
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "app/review_lists.h"
#include "state/page.h"

namespace ordex::testing {
namespace {

std::array<std::string, 4> Headers(const ReviewList& list) {
  std::array<std::string, 4> headers;
  for (std::size_t i = 0; i < headers.size(); ++i) headers[i] = list.columns[i].header;
  return headers;
}

std::array<int, 4> Widths(const ReviewList& list) {
  std::array<int, 4> widths{};
  for (std::size_t i = 0; i < widths.size(); ++i) widths[i] = list.columns[i].width;
  return widths;
}

using Headers4 = std::array<std::string, 4>;
using Widths4 = std::array<int, 4>;

TEST(ReviewList, TakesARowsFiveTexts) {
  ReviewList list;
  WriteListView(list, "Rito", "Rito:", "Ordinario", "1/3", "Scadenza Termini");
  ASSERT_EQ(list.rows.size(), 1U);
  EXPECT_EQ(list.rows[0].text, "Rito");
  EXPECT_EQ(list.rows[0].sub[0], "Rito:");
  EXPECT_EQ(list.rows[0].sub[1], "Ordinario");
  EXPECT_EQ(list.rows[0].sub[2], "1/3");
  EXPECT_EQ(list.rows[0].tag, "Scadenza Termini");
}

TEST(ReviewList, CollectsTheIndexesOfTaggedRowsAlone) {
  ReviewList list;
  WriteListView(list, "a", "", "", "", "");
  EXPECT_FALSE(list.hasTaggedRows);
  WriteListView(list, "b", "", "", "", "x");
  WriteListView(list, "c", "", "", "", "");
  WriteListView(list, "d", "", "", "", "y");
  EXPECT_TRUE(list.hasTaggedRows);
  EXPECT_EQ(list.taggedRows, (std::vector<std::size_t>{2, 4}));
}

TEST(ReviewList, ClearedKeepsTheCollectionOfTaggedRowsAndItsFlag) {
  ReviewList list;
  WriteListView(list, "a", "", "", "", "x");
  ClearRows(list);
  EXPECT_TRUE(list.rows.empty());
  EXPECT_TRUE(list.order.empty());
  EXPECT_TRUE(list.hasTaggedRows);
  WriteListView(list, "b", "", "", "", "y");
  EXPECT_EQ(list.taggedRows, (std::vector<std::size_t>{1, 1}));
}

TEST(ReviewList, StartsInTheProfileLayout) {
  const ReviewList list;
  EXPECT_EQ(Headers(list), (Headers4{"NomeDb", "Descrizione", "Valore", "Pagina"}));
  // 11760 less 1500, 5000 and 350.
  EXPECT_EQ(Widths(list), (Widths4{1500, 5000, 4910, 0}));
}

TEST(ReviewList, OfAHistoryHasDateDescriptionAndPage) {
  ReviewList list;
  SetWidthlstImport(list, kPageHistory);
  EXPECT_EQ(Headers(list), (Headers4{"NomeDb", "Data", "Descrizione", "Pagina"}));
  EXPECT_EQ(Widths(list), (Widths4{1500, 1500, 7300, 1100}));
}

TEST(ReviewList, OfAProfileOrAJusticeOfThePeacePageHidesThePageColumn) {
  for (const int kind : {1, 4}) {
    ReviewList list;
    for (Column& column : list.columns) column.width = 100;
    SetWidthlstImport(list, kind);
    // 11760 less 100, 5000 and 350.
    EXPECT_EQ(Widths(list), (Widths4{100, 5000, 6310, 0})) << kind;
  }
}

TEST(ReviewList, OfAnyOtherPageKindStaysAsItIs) {
  for (const int kind : {0, 3, 5}) {
    ReviewList list;
    for (Column& column : list.columns) column = {"x", 100};
    SetWidthlstImport(list, kind);
    EXPECT_EQ(Headers(list), (Headers4{"x", "x", "x", "x"})) << kind;
    EXPECT_EQ(Widths(list), (Widths4{100, 100, 100, 100})) << kind;
  }
}

TEST(ReviewList, HoldsTheTextOfAColumnThatIsHidden) {
  ReviewList list;
  SetWidthlstImport(list, kPageProfile);
  WriteListView(list, "", "", "", "2/3", "");
  EXPECT_EQ(list.columns[3].width, 0);
  EXPECT_EQ(list.rows[0].sub[2], "2/3");
}

TEST(ReviewList, ShowsTheWholeValueOfAClickedRowAsToolTip) {
  ReviewList list;
  WriteListView(list, "b", "uno", "valore uno", "", "");
  WriteListView(list, "a", "due", "valore due", "", "");
  lstImport_ItemClick(list, 1);
  EXPECT_EQ(list.toolTip, "valore uno");
}

TEST(ReviewList, ShowsTheValueOfTheRowWhereItIsShownNow) {
  ReviewList list;
  WriteListView(list, "b", "", "valore b", "", "");
  WriteListView(list, "a", "", "valore a", "", "");
  list.tag = "2";
  OrdinaColonna(list, 1);
  lstImport_ItemClick(list, 1);
  EXPECT_EQ(list.toolTip, "valore a");
}

TEST(ReviewList, ShowsTheCustomPointerUnderTheMouse) {
  ReviewList list;
  EXPECT_NE(list.mousePointer, Pointer::kHand);
  lstImport_MouseMove(list);
  EXPECT_EQ(list.mousePointer, Pointer::kHand);
}

}  // namespace
}  // namespace ordex::testing
