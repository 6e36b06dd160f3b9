#include "state/packed_texts.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace ordex {
namespace {

using Pairs = PackedTexts<2>;

TEST(PackedTexts, GivesBackWhatWasPutInAlsoAcrossManyBlocks) {
  Pairs pairs;
  // About 500 KB, eight blocks.
  for (int i = 0; i < 5000; ++i) pairs.push_back({std::to_string(i), std::string(95, 'x')});
  ASSERT_EQ(pairs.size(), 5000U);
  for (int i = 0; i < 5000; ++i) {
    ASSERT_EQ(pairs[static_cast<std::size_t>(i)],
              (Pairs::Row{std::to_string(i), std::string(95, 'x')}));
  }
}

TEST(PackedTexts, WhatWasHandedOutStaysWhereItIs) {
  Pairs pairs;
  pairs.push_back({"primo", "secondo"});
  const Pairs::Row first = pairs[0];
  for (int i = 0; i < 5000; ++i) pairs.push_back({std::string(100, 'y'), ""});
  EXPECT_EQ(first, (Pairs::Row{"primo", "secondo"}));
  EXPECT_EQ(first[0].data(), pairs[0][0].data());
}

TEST(PackedTexts, ARowMayBeLargerThanABlock) {
  Pairs pairs;
  const std::string large(200000, 'z');
  pairs.push_back({"prima", ""});
  pairs.push_back({large, "coda"});
  pairs.push_back({"dopo", ""});
  EXPECT_EQ(pairs[0], (Pairs::Row{"prima", ""}));
  EXPECT_EQ(pairs[1], (Pairs::Row{large, "coda"}));
  EXPECT_EQ(pairs[2], (Pairs::Row{"dopo", ""}));
}

TEST(PackedTexts, EmptyTextsCostNothingAndStayEmpty) {
  Pairs pairs;
  pairs.push_back({"", ""});
  pairs.push_back({});
  EXPECT_EQ(pairs[0], (Pairs::Row{"", ""}));
  EXPECT_EQ(pairs[1], (Pairs::Row{"", ""}));
}

TEST(PackedTexts, ACopyStandsOnItsOwn) {
  Pairs pairs;
  pairs.push_back({"a", "b"});
  Pairs copy = pairs;
  pairs.clear();
  pairs.push_back({"c", "d"});
  ASSERT_EQ(copy.size(), 1U);
  EXPECT_EQ(copy[0], (Pairs::Row{"a", "b"}));
  copy = pairs;
  ASSERT_EQ(copy.size(), 1U);
  EXPECT_EQ(copy[0], (Pairs::Row{"c", "d"}));
}

TEST(PackedTexts, WhatWasMovedFromStartsAnew) {
  Pairs pairs;
  pairs.push_back({"a", "b"});
  const Pairs moved = std::move(pairs);
  pairs.clear();
  pairs.push_back({"c", "d"});
  EXPECT_EQ(moved[0], (Pairs::Row{"a", "b"}));
  EXPECT_EQ(pairs[0], (Pairs::Row{"c", "d"}));
}

TEST(PackedTexts, AfterClearingItStartsAnew) {
  Pairs pairs;
  pairs.push_back({"a", "b"});
  pairs.clear();
  EXPECT_TRUE(pairs.empty());
  pairs.push_back({"c", "d"});
  EXPECT_EQ(pairs[0], (Pairs::Row{"c", "d"}));
}

}  // namespace
}  // namespace ordex
