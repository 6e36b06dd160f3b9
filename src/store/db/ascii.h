// Letter case of names in SQL: keywords, tables and columns are compared in ASCII alone.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace ordex {

inline char LowerAscii(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + ('a' - 'A')) : letter;
}

// True when the two are equal but for the case of ASCII letters.
inline bool EqualAscii(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (LowerAscii(a[i]) != LowerAscii(b[i])) return false;
  }
  return true;
}

inline std::string LowerAscii(std::string_view text) {
  std::string lower(text);
  for (char& letter : lower) letter = LowerAscii(letter);
  return lower;
}

}  // namespace ordex
