#include "store/db/odbc_text.h"

#include <gtest/gtest.h>

#include <string>

namespace ordex {
namespace {

WideText Units(std::initializer_list<unsigned> units) {
  WideText text;
  for (const unsigned unit : units) text.push_back(static_cast<SQLWCHAR>(unit));
  return text;
}

std::string Narrow(const WideText& wide) {
  return FromWide(wide.data(), wide.size());
}

TEST(OdbcText, CharactersOfEveryLengthTravelBothWays) {
  // A, è, Ș, €, and a character beyond the basic plane.
  const std::string text = "A\xC3\xA8\xC8\x98\xE2\x82\xAC\xF0\x9F\x98\x80";
  const WideText wide = Units({0x41, 0xE8, 0x218, 0x20AC, 0xD83D, 0xDE00});
  EXPECT_EQ(ToWide(text), wide);
  EXPECT_EQ(Narrow(wide), text);
}

TEST(OdbcText, TheLastCharacterOfAllTravelsBothWays) {
  EXPECT_EQ(ToWide("\xF4\x8F\xBF\xBF"), Units({0xDBFF, 0xDFFF}));
  EXPECT_EQ(Narrow(Units({0xDBFF, 0xDFFF})), "\xF4\x8F\xBF\xBF");
}

TEST(OdbcText, AnEmptyTextIsEmpty) {
  EXPECT_EQ(ToWide(""), WideText{});
  EXPECT_EQ(FromWide(nullptr, 0), "");
}

TEST(OdbcText, ANullCharacterIsACharacter) {
  EXPECT_EQ(ToWide(std::string_view("a\0b", 3)), Units({'a', 0, 'b'}));
  EXPECT_EQ(Narrow(Units({'a', 0, 'b'})), std::string("a\0b", 3));
}

TEST(OdbcText, BytesThatAreNoUtf8BecomeReplacements) {
  EXPECT_EQ(ToWide("a\xFF\x62"), Units({'a', 0xFFFD, 'b'}));
  EXPECT_EQ(ToWide("\xC3"), Units({0xFFFD}));                          // cut off
  EXPECT_EQ(ToWide("\xC0\x80"), Units({0xFFFD, 0xFFFD}));              // too long a form
  EXPECT_EQ(ToWide("\xED\xA0\x80"), Units({0xFFFD, 0xFFFD, 0xFFFD}));  // a surrogate
}

TEST(OdbcText, AnUnpairedSurrogateBecomesAReplacement) {
  EXPECT_EQ(Narrow(Units({0xD83D})), "\xEF\xBF\xBD");
  EXPECT_EQ(Narrow(Units({0xD83D, 'a'})), "\xEF\xBF\xBD\x61");
  EXPECT_EQ(Narrow(Units({0xDE00, 'a'})), "\xEF\xBF\xBD\x61");
}

TEST(FitsWindows1252, ItalianTextsAndTypographicSignsDo) {
  EXPECT_TRUE(FitsWindows1252(""));
  EXPECT_TRUE(FitsWindows1252("Perché l'attività è così, € 5 – “sì” ÿ"));
}

TEST(FitsWindows1252, LettersOfEasternEuropeAndOtherScriptsDoNot) {
  for (const char* text : {"ȘTEFĂNESCU", "Łódź", "日本", "😀", "\xC2\x85"}) {
    EXPECT_FALSE(FitsWindows1252(text)) << text;
  }
}

}  // namespace
}  // namespace ordex
