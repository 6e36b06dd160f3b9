#include "store/db/value.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "base/error.h"
#include "base/number.h"

namespace ordex {
namespace {

// The shortest digits that give the same number again, with the decimal comma of the user.
std::string NumberText(double number) {
  std::array<char, 64> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number).ptr;
  std::string text(buffer.data(), end);
  const std::size_t point = text.find('.');
  if (point != std::string::npos) text[point] = ',';
  return text;
}

std::int32_t Narrow(std::int64_t number) {
  if (number < std::numeric_limits<std::int32_t>::min() ||
      number > std::numeric_limits<std::int32_t>::max()) {
    throw MakeError(ErrorNumber::kOverflow, std::to_string(number));
  }
  return static_cast<std::int32_t>(number);
}

std::int32_t Narrow(double number) {
  if (std::trunc(number) != number) {
    throw MakeError(ErrorNumber::kTypeMismatch, NumberText(number) + " non è un numero intero");
  }
  if (std::abs(number) > 1e15) throw MakeError(ErrorNumber::kOverflow, NumberText(number));
  return Narrow(static_cast<std::int64_t>(number));
}

struct TextOf {
  std::string operator()(Null) const { return {}; }
  std::string operator()(bool bit) const { return bit ? "Vero" : "Falso"; }
  std::string operator()(std::int64_t number) const { return std::to_string(number); }
  std::string operator()(double number) const { return NumberText(number); }
  std::string operator()(const std::string& text) const { return text; }
  std::string operator()(const DateTime& date) const { return FormatForUser(date); }
};

}  // namespace

std::string ToText(const Value& value) {
  return std::visit(TextOf{}, value);
}

std::int32_t AsInt32(const Value& value) {
  if (IsNull(value)) throw MakeError(ErrorNumber::kInvalidNull);
  if (const auto* number = std::get_if<std::int64_t>(&value)) return Narrow(*number);
  if (const auto* number = std::get_if<double>(&value)) return Narrow(*number);
  if (const auto* text = std::get_if<std::string>(&value)) return ToInt32(std::string_view(*text));
  throw MakeError(ErrorNumber::kTypeMismatch, "\"" + ToText(value) + "\" non è un numero intero");
}

DateTime AsDate(const Value& value) {
  if (IsNull(value)) throw MakeError(ErrorNumber::kInvalidNull);
  if (const auto* date = std::get_if<DateTime>(&value)) return *date;
  if (const auto* text = std::get_if<std::string>(&value)) return ToDate(*text);
  throw MakeError(ErrorNumber::kTypeMismatch, "\"" + ToText(value) + "\" non è una data");
}

bool ToBool(const Value& value) {
  if (IsNull(value)) return false;
  if (const auto* bit = std::get_if<bool>(&value)) return *bit;
  if (const auto* number = std::get_if<std::int64_t>(&value)) return *number != 0;
  if (const auto* number = std::get_if<double>(&value)) return *number != 0;
  throw MakeError(ErrorNumber::kTypeMismatch, "\"" + ToText(value) + "\" non è né vero né falso");
}

}  // namespace ordex
