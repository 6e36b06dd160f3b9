#include "base/ascii_words.h"

#include <gtest/gtest.h>

#include <string>

namespace ordex {
namespace {

std::string Bytes(Word word) {
  std::string bytes(kWordSize, '\0');
  std::memcpy(bytes.data(), &word, kWordSize);
  return bytes;
}

TEST(AsciiWords, LowerAsciiTurnsEveryCapitalOfAWord) {
  EXPECT_EQ(Bytes(LowerAsciiWord(LoadWord("AbZzKk9 "))), "abzzkk9 ");
}

TEST(AsciiWords, TurningFromSmallAGivesCapitals) {
  EXPECT_EQ(Bytes(TurnLettersOfWord(LoadWord("AbZzKk9 "), 'a')), "ABZZKK9 ");
}

TEST(AsciiWords, EveryByteButACapitalStaysWhereverItStands) {
  for (int value = 0; value < 256; ++value) {
    const char byte = static_cast<char>(value);
    const bool capital = value >= 'A' && value <= 'Z';
    const char lowered = capital ? static_cast<char>(value + 32) : byte;
    for (std::size_t at = 0; at < kWordSize; ++at) {
      // The neighbours are the highest byte and the lowest: no carry may cross over.
      for (const char neighbour : {'\xFF', '\x00', 'Z'}) {
        std::string bytes(kWordSize, neighbour);
        std::string expected(kWordSize, neighbour == 'Z' ? 'z' : neighbour);
        bytes[at] = byte;
        expected[at] = lowered;
        EXPECT_EQ(Bytes(LowerAsciiWord(LoadWord(bytes.data()))), expected) << value << " " << at;
      }
    }
  }
}

TEST(AsciiWords, OneByteAbove127MakesAWordNotAscii) {
  for (std::size_t at = 0; at < kWordSize; ++at) {
    std::string bytes(kWordSize, '\x7F');
    EXPECT_TRUE(IsAsciiWord(LoadWord(bytes.data())));
    bytes[at] = '\x80';
    EXPECT_FALSE(IsAsciiWord(LoadWord(bytes.data()))) << at;
  }
}

TEST(AsciiWords, TheLastWordOfALongTextIsItsLastEightBytes) {
  EXPECT_EQ(Bytes(LastWord("0123456789")), "23456789");
  EXPECT_EQ(Bytes(LastWord("01234567")), "01234567");
}

TEST(AsciiWords, TheLastWordOfAShortTextTellsAllItsBytes) {
  EXPECT_EQ(LastWord(""), Word{0});
  EXPECT_EQ(LastWord("A"), Word{0x41});
  EXPECT_EQ(LastWord("AB"), Word{0x4142});
  EXPECT_EQ(LastWord("\xE8"), Word{0xE8});
}

}  // namespace
}  // namespace ordex
