#include "base/number.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <string>

#include "raised.h"

namespace ordex {
namespace {

TEST(Number, DecimalDigitsWithAnOptionalSignAreAnInteger) {
  EXPECT_EQ(ToInt16("0"), 0);
  EXPECT_EQ(ToInt16("42"), 42);
  EXPECT_EQ(ToInt16("+42"), 42);
  EXPECT_EQ(ToInt16("-42"), -42);
  EXPECT_EQ(ToInt16("007"), 7);
  EXPECT_EQ(ToInt16("-0"), 0);
}

TEST(Number, BlanksAroundTheNumberAreAllowed) {
  EXPECT_EQ(ToInt16("  42 "), 42);
  EXPECT_EQ(ToInt32(" -7  "), -7);
}

TEST(Number, TheLimitsOf16BitsFitAndTheirNeighboursOverflow) {
  EXPECT_EQ(ToInt16("32767"), 32767);
  EXPECT_EQ(ToInt16("-32768"), -32768);
  EXPECT_EQ(RaisedBy([] { ToInt16("32768"); }), (Raised{6, "Overflow: \"32768\""}));
  EXPECT_EQ(RaisedBy([] { ToInt16("-32769"); }), (Raised{6, "Overflow: \"-32769\""}));
}

TEST(Number, TheLimitsOf32BitsFitAndTheirNeighboursOverflow) {
  EXPECT_EQ(ToInt32("2147483647"), 2147483647);
  EXPECT_EQ(ToInt32("-2147483648"), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(RaisedBy([] { ToInt32("2147483648"); }).number, 6);
  EXPECT_EQ(RaisedBy([] { ToInt32("-2147483649"); }).number, 6);
}

TEST(Number, LeadingZerosDoNotOverflow) {
  EXPECT_EQ(ToInt16("0000000000000000000000000032767"), 32767);
}

TEST(Number, ANumberFarBeyondEveryIntegerOverflows) {
  // 2^64 and 2^64 + 1: they must not come round as 0 and 1.
  EXPECT_EQ(RaisedBy([] { ToInt32("18446744073709551616"); }).number, 6);
  EXPECT_EQ(RaisedBy([] { ToInt32("18446744073709551617"); }).number, 6);
  EXPECT_EQ(RaisedBy([] { ToInt32(std::string(1000, '9')); }).number, 6);
}

TEST(Number, AnythingElseIsATypeMismatchThatNamesTheText) {
  EXPECT_EQ(RaisedBy([] { ToInt16("dieci"); }), (Raised{13, "Tipo non corrispondente: \"dieci\""}));
  for (const char* text :
       {"",      " ",   "+",   "-",    "--1", "+-1", "- 1", "1 2", "1.5",     "1,5",
        "1.000", "12a", "a12", "0x10", "1e3", "\t1", "1\r", "1\n", "\u00A01", "١"}) {
    EXPECT_EQ(RaisedBy([&] { ToInt16(text); }).number, 13) << '"' << text << '"';
    EXPECT_EQ(RaisedBy([&] { ToInt32(text); }).number, 13) << '"' << text << '"';
  }
}

TEST(Number, ATooLongNumberThatEndsInALetterIsATypeMismatch) {
  EXPECT_EQ(RaisedBy([] { ToInt16("99999999999999999999x"); }).number, 13);
}

TEST(Number, AnErrorNamesTheTextWithItsBlanks) {
  EXPECT_EQ(RaisedBy([] { ToInt16(" x "); }), (Raised{13, "Tipo non corrispondente: \" x \""}));
}

TEST(Number, EveryIntegerOf16BitsReadsBackFromItsDigits) {
  for (int value = -32768; value <= 32767; ++value) {
    ASSERT_EQ(ToInt16(std::to_string(value)), value);
  }
}

TEST(Number, IntegersOf32BitsReadBackFromTheirDigits) {
  std::mt19937 random(20240305);
  for (int i = 0; i < 10000; ++i) {
    const auto value = static_cast<std::int32_t>(random());
    ASSERT_EQ(ToInt32(std::to_string(value)), value);
  }
}

}  // namespace
}  // namespace ordex
