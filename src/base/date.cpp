#include "base/date.h"

#include <array>
#include <chrono>
#include <cstdio>

#include "base/error.h"
#include "base/text.h"

namespace ordex {
namespace {

namespace chrono = std::chrono;

constexpr int kFirstYear = 1753;
constexpr int kLastYear = 9999;
constexpr chrono::sys_days kFirstDay = chrono::year{kFirstYear} / chrono::January / 1;
constexpr chrono::sys_days kLastDay = chrono::year{kLastYear} / chrono::December / 31;

// Walks over a text from left to right; every step says whether it succeeded.
class Scanner {
 public:
  explicit Scanner(std::string_view text) : rest_(text) {}

  bool AtEnd() const { return rest_.empty(); }

  std::optional<int> Digits(std::size_t least, std::size_t most) {
    std::size_t count = 0;
    int value = 0;
    while (count < rest_.size() && rest_[count] >= '0' && rest_[count] <= '9') {
      if (++count > most) return std::nullopt;
      value = value * 10 + (rest_[count - 1] - '0');
    }
    if (count < least) return std::nullopt;
    rest_.remove_prefix(count);
    return value;
  }

  bool Char(char wanted) {
    if (!rest_.starts_with(wanted)) return false;
    rest_.remove_prefix(1);
    return true;
  }

  void Blanks() {
    while (Char(' ')) {
    }
  }

  // False where there is not a single digit.
  bool SkipDigits() {
    const std::size_t count = rest_.find_first_not_of("0123456789");
    if (count == 0 || rest_.empty()) return false;
    rest_.remove_prefix(count == std::string_view::npos ? rest_.size() : count);
    return true;
  }

 private:
  std::string_view rest_;
};

bool ScanTime(Scanner& in, DateTime& date) {
  const auto hour = in.Digits(1, 2);
  if (!hour || *hour > 23 || !in.Char(':')) return false;
  const auto minute = in.Digits(2, 2);
  if (!minute || *minute > 59) return false;
  date.hour = *hour;
  date.minute = *minute;
  if (!in.Char(':')) return true;
  const auto second = in.Digits(2, 2);
  if (!second || *second > 59) return false;
  date.second = *second;
  return true;
}

chrono::year_month_day CalendarDay(const DateTime& date) {
  return chrono::year{date.year} / chrono::month{static_cast<unsigned>(date.month)} /
         chrono::day{static_cast<unsigned>(date.day)};
}

bool IsRealDate(const DateTime& date) {
  return date.year >= kFirstYear && date.year <= kLastYear && CalendarDay(date).ok();
}

// Two numbers and a year, apart by slashes or by hyphens, then perhaps a time.
struct NumericDate {
  int first;
  int second;
  DateTime rest;  // year and time of day
};

std::optional<NumericDate> ScanNumericDate(std::string_view text) {
  Scanner in(Trim(text));
  NumericDate date{};
  const auto first = in.Digits(1, 2);
  if (!first) return std::nullopt;
  const char separator = in.Char('/') ? '/' : '-';
  if (separator == '-' && !in.Char('-')) return std::nullopt;
  const auto second = in.Digits(1, 2);
  if (!second || !in.Char(separator)) return std::nullopt;
  const auto year = in.Digits(4, 4);
  if (!year) return std::nullopt;
  date.first = *first;
  date.second = *second;
  date.rest.year = *year;
  if (in.AtEnd()) return date;
  if (!in.Char(' ')) return std::nullopt;
  in.Blanks();
  if (!ScanTime(in, date.rest) || !in.AtEnd()) return std::nullopt;
  return date;
}

std::optional<DateTime> Checked(DateTime date, int month, int day) {
  date.month = month;
  date.day = day;
  if (!IsRealDate(date)) return std::nullopt;
  return date;
}

template <class... Numbers>
std::string Printed(const char* format, Numbers... numbers) {
  std::array<char, 64> buffer{};
  const int length = std::snprintf(buffer.data(), buffer.size(), format, numbers...);
  return {buffer.data(), static_cast<std::size_t>(length)};
}

}  // namespace

std::optional<DateTime> ParseDayFirst(std::string_view text) {
  const auto parsed = ScanNumericDate(text);
  if (!parsed) return std::nullopt;
  return Checked(parsed->rest, parsed->second, parsed->first);
}

std::optional<DateTime> ParseMonthFirst(std::string_view text) {
  const auto parsed = ScanNumericDate(text);
  if (!parsed) return std::nullopt;
  return Checked(parsed->rest, parsed->first, parsed->second);
}

std::optional<DateTime> ParseIso(std::string_view text) {
  Scanner in(Trim(text));
  DateTime date;
  const auto year = in.Digits(4, 4);
  if (!year || !in.Char('-')) return std::nullopt;
  const auto month = in.Digits(2, 2);
  if (!month || !in.Char('-')) return std::nullopt;
  const auto day = in.Digits(2, 2);
  if (!day) return std::nullopt;
  date.year = *year;
  if (!in.AtEnd()) {
    if (!in.Char(' ') && !in.Char('T')) return std::nullopt;
    if (!ScanTime(in, date)) return std::nullopt;
    if (in.Char('.') && !in.SkipDigits()) return std::nullopt;
    if (!in.AtEnd()) return std::nullopt;
  }
  return Checked(date, *month, *day);
}

std::optional<std::string> FormatTimeOfDay(std::string_view text) {
  Scanner in(Trim(text));
  DateTime time;
  if (!ScanTime(in, time) || !in.AtEnd()) return std::nullopt;
  return Printed("%02d:%02d", time.hour, time.minute);
}

DateTime ToDate(std::string_view text) {
  const auto date = ParseDayFirst(text);
  if (!date) {
    throw MakeError(ErrorNumber::kTypeMismatch,
                    "\"" + std::string(text) + "\" non è una data (GG/MM/AAAA)");
  }
  return *date;
}

std::string FormatDayFirst(const DateTime& date) {
  return Printed("%02d/%02d/%04d", date.day, date.month, date.year);
}

std::string FormatMonthFirst(const DateTime& date) {
  return Printed("%02d/%02d/%04d", date.month, date.day, date.year);
}

std::string FormatIso(const DateTime& date) {
  return Printed("%04d-%02d-%02d %02d:%02d:%02d", date.year, date.month, date.day, date.hour,
                 date.minute, date.second);
}

std::string FormatForUser(const DateTime& date) {
  std::string text = FormatDayFirst(date);
  if (date == DateOnly(date)) return text;
  return text + Printed(" %02d:%02d:%02d", date.hour, date.minute, date.second);
}

DateTime DateOnly(const DateTime& date) {
  return {date.year, date.month, date.day, 0, 0, 0};
}

DateTime AddDays(const DateTime& date, int days) {
  // Compared as days: a year far outside the calendar's range would come back as another one.
  const chrono::sys_days moved = chrono::sys_days{CalendarDay(date)} + chrono::days{days};
  if (moved < kFirstDay || moved > kLastDay) {
    throw MakeError(ErrorNumber::kOverflow, FormatDayFirst(date) + " spostata di " +
                                                std::to_string(days) +
                                                " giorni esce dagli anni 1753-9999");
  }
  const chrono::year_month_day result{moved};
  DateTime answer = date;
  answer.year = static_cast<int>(result.year());
  answer.month = static_cast<int>(static_cast<unsigned>(result.month()));
  answer.day = static_cast<int>(static_cast<unsigned>(result.day()));
  return answer;
}

}  // namespace ordex
