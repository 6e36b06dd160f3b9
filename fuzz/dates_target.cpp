// Dates, times of day and numbers.
#include <string>

#include "base/date.h"
#include "base/error.h"
#include "base/number.h"
#include "support/input.h"

namespace ordex::fuzz {
namespace {

void CheckDate(const DateTime& date, int days) {
  Require(date.year >= 1753 && date.year <= 9999, "a date lies within the engines' range");
  Require(ParseIso(FormatIso(date)) == date, "an ISO date is read back");
  Require(ParseDayFirst(FormatForUser(date)) == date, "a shown date is read back");
  Require(ParseMonthFirst(FormatMonthFirst(date)) == DateOnly(date), "so is one month first");
  try {
    const DateTime moved = AddDays(date, days);
    Require((moved < date) == (days < 0) && (moved == date) == (days == 0), "days move a date");
    Require(AddDays(moved, -days) == date, "there and back");
  } catch (const RunTimeError& error) {
    Require(error.code() == ErrorNumber::kOverflow, "only the range can be left");
  }
}

void CheckNumber(std::string_view text) {
  try {
    const std::int32_t number = ToInt32(text);
    Require(ToInt32(std::to_string(number)) == number, "a number is read back");
    Require(ToInt16(text) == number, "a small number is the same number");
  } catch (const RunTimeError& error) {
    Require(error.code() == ErrorNumber::kTypeMismatch || error.code() == ErrorNumber::kOverflow,
            "a text is no number or one too large");
  }
}

}  // namespace
}  // namespace ordex::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace ordex;
  using namespace ordex::fuzz;
  Input input(data, size);
  int days = input.Byte() << 16 | input.Byte() << 8 | input.Byte();
  if (days % 2 != 0) days = -days;
  const std::string_view text = input.Rest();
  for (const auto& date : {ParseDayFirst(text), ParseMonthFirst(text), ParseIso(text)}) {
    if (date) CheckDate(*date, days);
  }
  if (const auto time = FormatTimeOfDay(text)) {
    Require(FormatTimeOfDay(*time) == time, "a time of day is read back");
  }
  try {
    Require(ParseDayFirst(text) == ToDate(text), "both read the same");
  } catch (const RunTimeError&) {
    Require(!ParseDayFirst(text), "only what is no date is refused");
  }
  CheckNumber(text);
  return 0;
}
