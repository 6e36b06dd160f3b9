#include "store/db/fit_to_column.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <string>
#include <system_error>

#include "base/error.h"
#include "base/text.h"
#include "store/db/ascii.h"

namespace ordex {
namespace {

// Long values are shown by their beginning.
std::string Shown(const Value& value) {
  constexpr std::size_t kMost = 60;
  const std::string text = ToText(value);
  const std::string_view start = Left(text, kMost);
  return "\"" + std::string(start) + (start.size() < text.size() ? "…\"" : "\"");
}

RunTimeError Mismatch(const Value& value, const ColumnInfo& column, std::string_view wanted) {
  std::string text = Shown(value) + " non è ";
  text.append(wanted).append(", come vuole la colonna \"").append(column.name).append("\"");
  return MakeError(ErrorNumber::kTypeMismatch, text);
}

RunTimeError Overflow(const Value& value, const ColumnInfo& column) {
  return MakeError(ErrorNumber::kOverflow,
                   Shown(value) + " è fuori dall'intervallo della colonna \"" + column.name + "\"");
}

// --- text -------------------------------------------------------------------------------------

Value FitText(const Value& value, const ColumnInfo& column) {
  std::string text = ToText(value);
  if (column.size == 0 || ShorterThan(text, column.size + 1)) return text;
  throw MakeError(ErrorNumber::kDatabase,
                  "il testo " + Shown(value) + " ha " + std::to_string(CharCount(text)) +
                      " caratteri, la colonna \"" + column.name + "\" ne contiene al più " +
                      std::to_string(column.size));
}

// --- integers ---------------------------------------------------------------------------------

constexpr std::string_view kWholeNumber = "un numero intero";

struct Range {
  std::int64_t least;
  std::int64_t most;
};

template <class Integer>
constexpr Range RangeOf() {
  return {std::numeric_limits<Integer>::min(), std::numeric_limits<Integer>::max()};
}

Range RangeOf(const ColumnInfo& column) {
  switch (column.size) {
    case 1:
      return RangeOf<std::uint8_t>();  // the engines' one-byte number has no sign
    case 2:
      return RangeOf<std::int16_t>();
    case 4:
      return RangeOf<std::int32_t>();
    default:
      return RangeOf<std::int64_t>();
  }
}

std::int64_t WholeNumber(double number, const Value& value, const ColumnInfo& column) {
  if (std::trunc(number) != number) throw Mismatch(value, column, kWholeNumber);
  // The first power of two that 64 bits do not hold.
  constexpr double kLimit = 9223372036854775808.0;
  if (number < -kLimit || number >= kLimit) throw Overflow(value, column);
  return static_cast<std::int64_t>(number);
}

std::int64_t WholeNumber(std::string_view text, const Value& value, const ColumnInfo& column) {
  std::string_view digits = Trim(text);
  if (digits.starts_with('+') && !digits.starts_with("+-")) digits.remove_prefix(1);
  std::int64_t number = 0;
  const char* const end = digits.data() + digits.size();
  const auto result = std::from_chars(digits.data(), end, number);
  if (digits.empty() || result.ptr != end || result.ec == std::errc::invalid_argument) {
    throw Mismatch(value, column, kWholeNumber);
  }
  if (result.ec == std::errc::result_out_of_range) throw Overflow(value, column);
  return number;
}

Value FitInteger(const Value& value, const ColumnInfo& column) {
  std::int64_t number = 0;
  if (const auto* bit = std::get_if<bool>(&value)) {
    number = *bit ? 1 : 0;
  } else if (const auto* whole = std::get_if<std::int64_t>(&value)) {
    number = *whole;
  } else if (const auto* real = std::get_if<double>(&value)) {
    number = WholeNumber(*real, value, column);
  } else if (const auto* text = std::get_if<std::string>(&value)) {
    number = WholeNumber(std::string_view(*text), value, column);
  } else {
    throw Mismatch(value, column, kWholeNumber);
  }
  const Range range = RangeOf(column);
  if (number < range.least || number > range.most) throw Overflow(value, column);
  return number;
}

// --- fractions --------------------------------------------------------------------------------

// Digits with a decimal point or comma; no separators of thousands, which would be taken for one.
double RealNumber(std::string_view text, const Value& value, const ColumnInfo& column) {
  constexpr std::string_view kNumber = "un numero";
  std::string digits(Trim(text));
  if (digits.find_first_not_of("0123456789+-.,eE") != std::string::npos) {
    throw Mismatch(value, column, kNumber);
  }
  const std::size_t comma = digits.find(',');
  if (comma != std::string::npos) {
    if (digits.find('.') != std::string::npos) throw Mismatch(value, column, kNumber);
    digits[comma] = '.';
  }
  if (digits.starts_with('+') && !digits.starts_with("+-")) digits.erase(0, 1);
  double number = 0;
  const char* const end = digits.data() + digits.size();
  const auto result = std::from_chars(digits.data(), end, number);
  if (digits.empty() || result.ptr != end || result.ec == std::errc::invalid_argument) {
    throw Mismatch(value, column, kNumber);
  }
  if (result.ec == std::errc::result_out_of_range) throw Overflow(value, column);
  return number;
}

Value FitReal(const Value& value, const ColumnInfo& column) {
  if (const auto* bit = std::get_if<bool>(&value)) return *bit ? 1.0 : 0.0;
  if (const auto* whole = std::get_if<std::int64_t>(&value)) return static_cast<double>(*whole);
  if (const auto* text = std::get_if<std::string>(&value)) return RealNumber(*text, value, column);
  if (const auto* real = std::get_if<double>(&value)) {
    // The engines have no such value; one of them would store Null.
    if (!std::isfinite(*real)) throw Overflow(value, column);
    return *real;
  }
  throw Mismatch(value, column, "un numero");
}

// --- bits and dates ---------------------------------------------------------------------------

Value FitBit(const Value& value, const ColumnInfo& column) {
  if (std::holds_alternative<bool>(value)) return value;
  if (const auto* whole = std::get_if<std::int64_t>(&value)) {
    // -1 is how the routines' platform writes a true value as a number.
    if (*whole == 1 || *whole == -1) return true;
    if (*whole == 0) return false;
  }
  if (const auto* written = std::get_if<std::string>(&value)) {
    const std::string_view text = Trim(*written);
    if (text == "1" || EqualAscii(text, "true") || EqualAscii(text, "vero")) return true;
    if (text == "0" || EqualAscii(text, "false") || EqualAscii(text, "falso")) return false;
  }
  throw Mismatch(value, column, "un valore vero o falso");
}

Value FitDate(const Value& value, const ColumnInfo& column) {
  if (std::holds_alternative<DateTime>(value)) return value;
  if (const auto* text = std::get_if<std::string>(&value)) {
    if (Trim(*text).empty()) return Null{};
    if (const auto date = ParseDayFirst(*text)) return *date;
  }
  throw Mismatch(value, column, "una data (GG/MM/AAAA)");
}

}  // namespace

Value FitToColumn(const Value& value, const ColumnInfo& column) {
  if (IsNull(value)) return value;
  switch (column.type) {
    case ColumnType::kText:
      return FitText(value, column);
    case ColumnType::kInteger:
      return FitInteger(value, column);
    case ColumnType::kReal:
      return FitReal(value, column);
    case ColumnType::kBit:
      return FitBit(value, column);
    case ColumnType::kDate:
      return FitDate(value, column);
  }
  return value;
}

}  // namespace ordex
