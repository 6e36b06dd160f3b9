// Between UTF-8 and the system's UTF-16.
#include "ui/windows/wide_text.h"

#include <gtest/gtest.h>

namespace ordex::testing {
namespace {

TEST(WideText, LettersOfAllAlphabetsAndSignsOfTwoUnitsComeBack) {
  EXPECT_EQ(Wide("Sì Żółć 日本 𝄞"), L"Sì Żółć 日本 𝄞");
  EXPECT_EQ(Utf8(L"Sì Żółć 日本 𝄞"), "Sì Żółć 日本 𝄞");
}

TEST(WideText, OfAnEmptyTextIsEmpty) {
  EXPECT_EQ(Wide(""), L"");
  EXPECT_EQ(Utf8(L""), "");
}

TEST(WideText, WhatIsNotWellFormedBecomesTheReplacementCharacter) {
  EXPECT_EQ(Wide("a\xE8"), L"a\xFFFD");
  EXPECT_EQ(Utf8(std::wstring(1, wchar_t{0xD800}) + L"a"),
            "\xEF\xBF\xBD"
            "a");
}

}  // namespace
}  // namespace ordex::testing
