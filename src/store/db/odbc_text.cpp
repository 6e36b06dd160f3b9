#include "store/db/odbc_text.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace ordex {
namespace {

constexpr std::uint32_t kReplacement = 0xFFFD;
constexpr std::uint32_t kBeyondBasicPlane = 0x10000;
constexpr std::uint32_t kHighSurrogates = 0xD800;
constexpr std::uint32_t kLowSurrogates = 0xDC00;
constexpr std::uint32_t kBehindSurrogates = 0xE000;

struct Decoded {
  std::uint32_t character;
  std::size_t bytes;
};

// How many bytes follow the first one; its own bits are left in `first`.
std::size_t Following(std::uint32_t& first) {
  if (first < 0x80) return 0;
  if (first >= 0xC2 && first < 0xE0) {
    first &= 0x1FU;
    return 1;
  }
  if (first >= 0xE0 && first < 0xF0) {
    first &= 0x0FU;
    return 2;
  }
  if (first >= 0xF0 && first < 0xF5) {
    first &= 0x07U;
    return 3;
  }
  first = kReplacement;
  return 0;
}

bool IsCharacter(std::uint32_t value, std::size_t following) {
  constexpr std::uint32_t kSmallest[] = {0, 0x80, 0x800, kBeyondBasicPlane};  // NOLINT
  const bool surrogate = value >= kHighSurrogates && value < kBehindSurrogates;
  return value >= kSmallest[following] && value <= 0x10FFFF && !surrogate;
}

// The first character of `text`, which is not empty.
Decoded Decode(std::string_view text) {
  std::uint32_t value = static_cast<unsigned char>(text.front());
  const std::size_t following = Following(value);
  if (following >= text.size()) return {kReplacement, 1};
  for (std::size_t i = 1; i <= following; ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if ((byte & 0xC0U) != 0x80U) return {kReplacement, 1};
    value = (value << 6U) | (byte & 0x3FU);
  }
  if (!IsCharacter(value, following)) return {kReplacement, 1};
  return {value, following + 1};
}

void AppendUtf8(std::string& out, std::uint32_t character) {
  const auto tail = [&](unsigned shift) {
    out.push_back(static_cast<char>(0x80U | ((character >> shift) & 0x3FU)));
  };
  if (character < 0x80) {
    out.push_back(static_cast<char>(character));
  } else if (character < 0x800) {
    out.push_back(static_cast<char>(0xC0U | (character >> 6U)));
    tail(0);
  } else if (character < kBeyondBasicPlane) {
    out.push_back(static_cast<char>(0xE0U | (character >> 12U)));
    tail(6);
    tail(0);
  } else {
    out.push_back(static_cast<char>(0xF0U | (character >> 18U)));
    tail(12);
    tail(6);
    tail(0);
  }
}

bool IsHigh(std::uint32_t unit) {
  return unit >= kHighSurrogates && unit < kLowSurrogates;
}

bool IsLow(std::uint32_t unit) {
  return unit >= kLowSurrogates && unit < kBehindSurrogates;
}

}  // namespace

WideText ToWide(std::string_view text) {
  WideText wide;
  wide.reserve(text.size());
  while (!text.empty()) {
    const Decoded next = Decode(text);
    text.remove_prefix(next.bytes);
    if (next.character < kBeyondBasicPlane) {
      wide.push_back(static_cast<SQLWCHAR>(next.character));
    } else {
      const std::uint32_t rest = next.character - kBeyondBasicPlane;
      wide.push_back(static_cast<SQLWCHAR>(kHighSurrogates + (rest >> 10U)));
      wide.push_back(static_cast<SQLWCHAR>(kLowSurrogates + (rest & 0x3FFU)));
    }
  }
  return wide;
}

std::string FromWide(const SQLWCHAR* text, std::size_t length) {
  std::string out;
  out.reserve(length);
  for (std::size_t i = 0; i < length; ++i) {
    const std::uint32_t unit = text[i];
    if (IsHigh(unit) && i + 1 < length && IsLow(text[i + 1])) {
      const std::uint32_t low = text[++i];
      AppendUtf8(out,
                 kBeyondBasicPlane + ((unit - kHighSurrogates) << 10U) + (low - kLowSurrogates));
    } else {
      AppendUtf8(out, IsHigh(unit) || IsLow(unit) ? kReplacement : unit);
    }
  }
  return out;
}

bool FitsWindows1252(std::string_view text) {
  // Those at 80 to 9F; the others have the numbers of Unicode.
  static constexpr std::array<SQLWCHAR, 27> kOthers = {
      0x20AC, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030,
      0x0160, 0x2039, 0x0152, 0x017D, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
      0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x017E, 0x0178};
  const WideText units = ToWide(text);
  return std::all_of(units.begin(), units.end(), [](SQLWCHAR unit) {
    return unit < 0x80 || (unit >= 0xA0 && unit <= 0xFF) ||
           std::find(kOthers.begin(), kOthers.end(), unit) != kOthers.end();
  });
}

}  // namespace ordex
