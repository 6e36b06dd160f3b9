#include "base/number.h"

#include <limits>
#include <string>

#include "base/error.h"
#include "base/text.h"

namespace ordex {
namespace {

[[noreturn]] void Fail(ErrorNumber number, std::string_view text) {
  throw MakeError(number, "\"" + std::string(text) + "\"");
}

template <class Integer>
Integer ToInteger(std::string_view text) {
  std::string_view digits = Trim(text);
  const bool negative = digits.starts_with('-');
  if (negative || digits.starts_with('+')) digits.remove_prefix(1);
  if (digits.empty()) Fail(ErrorNumber::kTypeMismatch, text);
  const std::int64_t limit = std::int64_t{std::numeric_limits<Integer>::max()} + (negative ? 1 : 0);
  std::int64_t value = 0;
  for (const char digit : digits) {
    if (digit < '0' || digit > '9') Fail(ErrorNumber::kTypeMismatch, text);
    // Once past the limit the value is only kept past it: what follows may still be no digit.
    if (value <= limit) value = value * 10 + (digit - '0');
  }
  if (value > limit) Fail(ErrorNumber::kOverflow, text);
  return static_cast<Integer>(negative ? -value : value);
}

}  // namespace

std::int16_t ToInt16(std::string_view text) {
  return ToInteger<std::int16_t>(text);
}

std::int32_t ToInt32(std::string_view text) {
  return ToInteger<std::int32_t>(text);
}

}  // namespace ordex
