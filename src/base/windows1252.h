// The code page of Western Europe's Windows.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>

namespace ordex {

// The code points of the bytes 0x80 to 0x9F; the five that Windows-1252 leaves open stand for the
// control characters of the same number, as Windows itself reads them. All other bytes stand for
// the code point of their own number.
inline constexpr std::array<std::int32_t, 32> kWindows1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr std::int32_t CodeOfWindows1252(unsigned char byte) {
  return byte >= 0x80 && byte < 0xA0 ? kWindows1252.at(byte - 0x80U) : byte;
}

// Whether a byte of the code page stands for that code point; not so the five that are left open.
constexpr bool InWindows1252(std::int32_t code) {
  if (code < 0xA0) return code >= 0 && code < 0x80;
  return code <= 0xFF ||
         std::find(kWindows1252.begin(), kWindows1252.end(), code) != kWindows1252.end();
}

}  // namespace ordex
