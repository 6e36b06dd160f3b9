#include "store/db/odbc_text.h"

#include <cstdint>

#include "base/utf8.h"
#include "base/windows1252.h"

namespace ordex {
namespace {

constexpr std::int32_t kReplacement = 0xFFFD;
constexpr std::int32_t kBeyondBasicPlane = 0x10000;
constexpr std::int32_t kHighSurrogates = 0xD800;
constexpr std::int32_t kLowSurrogates = 0xDC00;
constexpr std::int32_t kBehindSurrogates = 0xE000;
constexpr std::int32_t kOfOneHigh = 0x400;  // low surrogates that a high one goes with

bool IsHigh(std::int32_t unit) {
  return unit >= kHighSurrogates && unit < kLowSurrogates;
}

bool IsLow(std::int32_t unit) {
  return unit >= kLowSurrogates && unit < kBehindSurrogates;
}

}  // namespace

WideText ToWide(std::string_view text) {
  WideText wide;
  wide.reserve(text.size());
  while (!text.empty()) {
    const auto [code, length] = FirstCharacter(text);
    text.remove_prefix(length);
    if (code < kBeyondBasicPlane) {
      wide.push_back(static_cast<SQLWCHAR>(code == kNoCode ? kReplacement : code));
    } else {
      const std::int32_t rest = code - kBeyondBasicPlane;
      wide.push_back(static_cast<SQLWCHAR>(kHighSurrogates + rest / kOfOneHigh));
      wide.push_back(static_cast<SQLWCHAR>(kLowSurrogates + rest % kOfOneHigh));
    }
  }
  return wide;
}

std::string FromWide(const SQLWCHAR* text, std::size_t length) {
  std::string out;
  out.reserve(length);
  for (std::size_t i = 0; i < length; ++i) {
    const std::int32_t unit = text[i];
    if (IsHigh(unit) && i + 1 < length && IsLow(text[i + 1])) {
      const std::int32_t low = text[++i];
      AppendCodePoint(
          kBeyondBasicPlane + (unit - kHighSurrogates) * kOfOneHigh + (low - kLowSurrogates), out);
    } else {
      AppendCodePoint(IsHigh(unit) || IsLow(unit) ? kReplacement : unit, out);
    }
  }
  return out;
}

bool FitsWindows1252(std::string_view text) {
  while (!text.empty()) {
    const auto [code, length] = FirstCharacter(text);
    if (!InWindows1252(code)) return false;
    text.remove_prefix(length);
  }
  return true;
}

}  // namespace ordex
