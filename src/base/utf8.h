// Text one character at a time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace ordex {

// Its code point, and its length in bytes. A byte that is no part of valid UTF-8 is a character of
// length 1 without a code point.
struct Character {
  std::int32_t code;  // kNoCode where there is none
  std::size_t length;
};

inline constexpr std::int32_t kNoCode = -1;

// `text` is not empty.
Character FirstCharacter(std::string_view text);

// `code` is a code point.
void AppendCodePoint(std::int32_t code, std::string& out);

}  // namespace ordex
