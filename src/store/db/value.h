// A field's value, as it travels between the routines and the engine.
#pragma once

#include <cstdint>
#include <string>
#include <variant>

#include "base/date.h"

namespace ordex {

struct Null {
  bool operator==(const Null&) const = default;
};

// Whole numbers of every width travel as 64 bits; whether one fits its column is tested when the
// field is set. Text is UTF-8.
using Value = std::variant<Null, bool, std::int64_t, double, std::string, DateTime>;

inline bool IsNull(const Value& value) {
  return std::holds_alternative<Null>(value);
}

// The value as text: a date day first, a bit as "Vero" or "Falso", a fraction with a decimal comma,
// Null as an empty text.
std::string ToText(const Value& value);
// Errors: invalid use of Null; type mismatch where the value is no whole number; overflow.
std::int32_t AsInt32(const Value& value);
// A date, or a text that reads as one, day first. Errors: invalid use of Null; type mismatch.
DateTime AsDate(const Value& value);
// A bit, or a number other than 0. Null counts as false. Error: type mismatch.
bool ToBool(const Value& value);

}  // namespace ordex
