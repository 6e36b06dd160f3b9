// Dates with a time of day, in the proleptic Gregorian calendar, without a time zone.
#pragma once

#include <compare>
#include <optional>
#include <string>
#include <string_view>

namespace ordex {

// A point in time to the second. Always valid when it comes from the functions below: years 1753
// to 9999, the range that every engine's date column can hold.
struct DateTime {
  int year = 1900;
  int month = 1;
  int day = 1;
  int hour = 0;
  int minute = 0;
  int second = 0;

  // Year first, down to the second.
  auto operator<=>(const DateTime&) const = default;  // NOLINT(modernize-use-nullptr)
};

// Day first: "DD/MM/YYYY" or "DD-MM-YYYY" (one or two digits for day and month, four for the
// year), with or without a time "H:MM", "HH:MM" or "HH:MM:SS" behind one or more blanks; blanks
// around the whole are ignored. nullopt for anything else, impossible dates included.
std::optional<DateTime> ParseDayFirst(std::string_view text);
// Month first: "MM/DD/YYYY", otherwise the same.
std::optional<DateTime> ParseMonthFirst(std::string_view text);
// "YYYY-MM-DD", with or without "HH:MM[:SS]" behind a blank or a "T"; the digits of a fraction
// behind the time are dropped.
std::optional<DateTime> ParseIso(std::string_view text);

// A time of day, "H:MM", "HH:MM" or "HH:MM:SS", written as "HH:MM"; nullopt for anything else.
std::optional<std::string> FormatTimeOfDay(std::string_view text);

// ParseDayFirst, or a type-mismatch error that names the text.
DateTime ToDate(std::string_view text);

std::string FormatDayFirst(const DateTime& date);    // "05/03/2024"
std::string FormatMonthFirst(const DateTime& date);  // "03/05/2024"
std::string FormatIso(const DateTime& date);         // "2024-03-05 09:30:00"
// As a date is shown to the user: "05/03/2024", with " 09:30:00" where it is not midnight.
std::string FormatForUser(const DateTime& date);

DateTime DateOnly(const DateTime& date);
// `days` may be negative. The time of day stays. Error: overflow outside the years above.
DateTime AddDays(const DateTime& date, int days);

}  // namespace ordex
