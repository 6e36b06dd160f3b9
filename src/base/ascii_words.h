// Eight bytes of a text at a time, for what every line of a page goes through: nearly all text is
// ASCII, and eight such bytes are looked at for the price of one.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace ordex {

using Word = std::uint64_t;

inline constexpr std::size_t kWordSize = sizeof(Word);
inline constexpr Word kOneInEachByte = 0x0101010101010101;
inline constexpr Word kTopBits = kOneInEachByte * 0x80;

inline Word LoadWord(const char* bytes) {
  Word word = 0;
  std::memcpy(&word, bytes, kWordSize);
  return word;
}

// The last eight bytes of a text (after its whole words they look at some again, which does no
// harm); a text shorter than that is filled up with zero bytes.
inline Word LastWord(std::string_view text) {
  if (text.size() >= kWordSize) return LoadWord(text.data() + text.size() - kWordSize);
  Word word = 0;
  for (const char byte : text) word = word << 8 | static_cast<unsigned char>(byte);
  return word;
}

inline bool IsAsciiWord(Word word) {
  return (word & kTopBits) == 0;
}

// Turns round the case of the ASCII letters from `first` ('A' or 'a') to the 26th; all other
// bytes, those that are not ASCII among them, stay.
inline Word TurnLettersOfWord(Word word, char first) {
  const auto letter = static_cast<unsigned char>(first);
  const Word low = word & ~kTopBits;
  // A sum's top bit tells that the byte is not below the first letter, or is past the last.
  const Word from_first = low + kOneInEachByte * (0x80U - letter);
  const Word past_last = low + kOneInEachByte * (0x80U - letter - 26U);
  const Word letters = (from_first ^ past_last) & kTopBits & ~word;
  return word ^ (letters >> 2);  // 0x80 to 0x20, the bit between the two cases
}

inline Word LowerAsciiWord(Word word) {
  return TurnLettersOfWord(word, 'A');
}

// Whether two texts of one size are equal when the case of their ASCII letters is ignored.
inline bool EqualIgnoringAsciiCase(std::string_view a, std::string_view b) {
  for (std::size_t at = 0; at + kWordSize < a.size(); at += kWordSize) {
    if (LowerAsciiWord(LoadWord(a.data() + at)) != LowerAsciiWord(LoadWord(b.data() + at))) {
      return false;
    }
  }
  return LowerAsciiWord(LastWord(a)) == LowerAsciiWord(LastWord(b));
}

}  // namespace ordex
