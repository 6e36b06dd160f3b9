#include "base/date.h"

#include <gtest/gtest.h>

#include <limits>
#include <ostream>
#include <random>
#include <vector>

#include "raised.h"

namespace ordex {

// Lets a failing test print a date.
void PrintTo(const DateTime& date, std::ostream* out) {
  *out << FormatIso(date);
}

namespace {

constexpr DateTime kMarchFifth{2024, 3, 5, 0, 0, 0};

int Between(std::mt19937& random, int least, int most) {
  return std::uniform_int_distribution<int>(least, most)(random);
}

bool IsLeap(int year) {
  return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

int DaysOf(int year, int month) {
  if (month == 2) return IsLeap(year) ? 29 : 28;
  return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

DateTime RandomDate(std::mt19937& random) {
  DateTime date;
  date.year = Between(random, 1753, 9999);
  date.month = Between(random, 1, 12);
  date.day = Between(random, 1, DaysOf(date.year, date.month));
  date.hour = Between(random, 0, 23);
  date.minute = Between(random, 0, 59);
  date.second = Between(random, 0, 59);
  return date;
}

DateTime DayAfter(DateTime date) {
  if (++date.day <= DaysOf(date.year, date.month)) return date;
  date.day = 1;
  if (++date.month <= 12) return date;
  date.month = 1;
  ++date.year;
  return date;
}

TEST(ParseDayFirst, TakesSlashesAndHyphens) {
  EXPECT_EQ(ParseDayFirst("05/03/2024"), kMarchFifth);
  EXPECT_EQ(ParseDayFirst("05-03-2024"), kMarchFifth);
}

TEST(ParseDayFirst, TheDayComesBeforeTheMonthAlsoWhereBothOrdersAreDates) {
  EXPECT_EQ(ParseDayFirst("01/02/2024"), (DateTime{2024, 2, 1, 0, 0, 0}));
}

TEST(ParseDayFirst, TakesOneDigitForDayAndMonth) {
  EXPECT_EQ(ParseDayFirst("5/3/2024"), kMarchFifth);
}

TEST(ParseDayFirst, TakesATimeBehindOneOrMoreBlanks) {
  EXPECT_EQ(ParseDayFirst("05/03/2024 09:30"), (DateTime{2024, 3, 5, 9, 30, 0}));
  EXPECT_EQ(ParseDayFirst("05/03/2024 9:30"), (DateTime{2024, 3, 5, 9, 30, 0}));
  EXPECT_EQ(ParseDayFirst("05-03-2024   23:59:59"), (DateTime{2024, 3, 5, 23, 59, 59}));
  EXPECT_EQ(ParseDayFirst("05/03/2024 00:00"), kMarchFifth);
}

TEST(ParseDayFirst, IgnoresBlanksAroundTheWhole) {
  EXPECT_EQ(ParseDayFirst("  05/03/2024 "), kMarchFifth);
  EXPECT_EQ(ParseDayFirst(" 05/03/2024 09:30  "), (DateTime{2024, 3, 5, 9, 30, 0}));
}

TEST(ParseDayFirst, KnowsTheLeapYears) {
  EXPECT_TRUE(ParseDayFirst("29/02/2024"));
  EXPECT_TRUE(ParseDayFirst("29/02/2000"));
  EXPECT_FALSE(ParseDayFirst("29/02/2023"));
  EXPECT_FALSE(ParseDayFirst("29/02/1900"));
  EXPECT_FALSE(ParseDayFirst("29/02/2100"));
  EXPECT_FALSE(ParseDayFirst("30/02/2024"));
}

TEST(ParseDayFirst, KnowsTheLengthOfEveryMonth) {
  for (int month = 1; month <= 12; ++month) {
    const std::string rest = "/" + std::to_string(month) + "/2023";
    const int days = DaysOf(2023, month);
    EXPECT_TRUE(ParseDayFirst(std::to_string(days) + rest)) << month;
    EXPECT_FALSE(ParseDayFirst(std::to_string(days + 1) + rest)) << month;
  }
}

TEST(ParseDayFirst, TheYearsGoFrom1753To9999) {
  EXPECT_EQ(ParseDayFirst("01/01/1753"), (DateTime{1753, 1, 1, 0, 0, 0}));
  EXPECT_EQ(ParseDayFirst("31/12/9999"), (DateTime{9999, 12, 31, 0, 0, 0}));
  EXPECT_FALSE(ParseDayFirst("31/12/1752"));
  EXPECT_FALSE(ParseDayFirst("01/01/0000"));
}

TEST(ParseDayFirst, TakesNothingElse) {
  for (const char* text : {"",
                           " ",
                           "/",
                           "//",
                           "--",
                           "domani",
                           "05/03",
                           "05/03/",
                           "05/03/24",
                           "05/03/202",
                           "05/03/02024",
                           "005/03/2024",
                           "05/003/2024",
                           "05/03-2024",
                           "05-03/2024",
                           "05.03.2024",
                           "05 03 2024",
                           "05032024",
                           "2024/03/05",
                           "2024-03-05",
                           "00/03/2024",
                           "05/00/2024",
                           "05/13/2024",
                           "99/99/2024",
                           "-5/03/2024",
                           "+5/03/2024",
                           "05/-3/2024",
                           "05 /03/2024",
                           "05/ 03/2024",
                           "05/03/2024x",
                           "x05/03/2024",
                           "05/03/2024,",
                           "\t05/03/2024",
                           "05/03/2024\r",
                           "05/03/2024\n",
                           "05/03/2024T09:30",
                           "05/03/2024\t09:30",
                           "05/03/202409:30",
                           "05/03/2024 (Fascicolo)",
                           "05/03/2024 24:00",
                           "05/03/2024 09:60",
                           "05/03/2024 09:30:60",
                           "05/03/2024 09",
                           "05/03/2024 09:",
                           "05/03/2024 09:5",
                           "05/03/2024 009:30",
                           "05/03/2024 09:030",
                           "05/03/2024 09:30:",
                           "05/03/2024 09:30:5",
                           "05/03/2024 09.30",
                           "05/03/2024 09:30 x",
                           "05/03/2024 09:30:00.0",
                           "05/03/2024 09:30 PM",
                           "05/03/2024 05/03/2024",
                           "\u00A005/03/2024",
                           "٠٥/03/2024"}) {
    EXPECT_FALSE(ParseDayFirst(text)) << '"' << text << '"';
  }
}

TEST(ParseMonthFirst, TheMonthComesBeforeTheDay) {
  EXPECT_EQ(ParseMonthFirst("03/05/2024"), kMarchFifth);
  EXPECT_EQ(ParseMonthFirst("3-5-2024 09:30"), (DateTime{2024, 3, 5, 9, 30, 0}));
  EXPECT_FALSE(ParseMonthFirst("13/05/2024"));
}

TEST(ParseIso, TakesADateAlone) {
  EXPECT_EQ(ParseIso("2024-03-05"), kMarchFifth);
  EXPECT_EQ(ParseIso(" 2024-03-05 "), kMarchFifth);
}

TEST(ParseIso, TakesATimeBehindABlankOrAT) {
  EXPECT_EQ(ParseIso("2024-03-05 09:30:15"), (DateTime{2024, 3, 5, 9, 30, 15}));
  EXPECT_EQ(ParseIso("2024-03-05T09:30:15"), (DateTime{2024, 3, 5, 9, 30, 15}));
  EXPECT_EQ(ParseIso("2024-03-05 09:30"), (DateTime{2024, 3, 5, 9, 30, 0}));
}

TEST(ParseIso, DropsAFraction) {
  EXPECT_EQ(ParseIso("2024-03-05 09:30:15.9990000"), (DateTime{2024, 3, 5, 9, 30, 15}));
}

TEST(ParseIso, TakesNothingElse) {
  for (const char* text : {"",
                           "2024",
                           "2024-03",
                           "2024-3-05",
                           "2024-03-5",
                           "24-03-05",
                           "2024/03/05",
                           "05/03/2024",
                           "2024-02-30",
                           "2024-00-05",
                           "2024-13-05",
                           "2024-03-00",
                           "1752-12-31",
                           "2024-03-05x",
                           "2024-03-05 x",
                           "2024-03-05T",
                           "2024-03-05t09:30",
                           "2024-03-05 24:00",
                           "2024-03-05.5",
                           "2024-03-05 09:30:15.",
                           "2024-03-05 09:30:15.x",
                           "2024-03-05 09:30:15.5x",
                           "2024-03-05 09:30:15Z",
                           "2024-03-05 09:30:15+01:00"}) {
    EXPECT_FALSE(ParseIso(text)) << '"' << text << '"';
  }
}

TEST(FormatTimeOfDay, WritesHoursAndMinutesWithTwoDigits) {
  EXPECT_EQ(FormatTimeOfDay("9:30"), "09:30");
  EXPECT_EQ(FormatTimeOfDay("09:30"), "09:30");
  EXPECT_EQ(FormatTimeOfDay(" 23:59:59 "), "23:59");
  EXPECT_EQ(FormatTimeOfDay("00:00"), "00:00");
}

TEST(FormatTimeOfDay, TakesNothingElse) {
  for (const char* text : {"", "9", "9:3", "24:00", "12:60", "12:30:60", "12.30", "ore 12:30",
                           "12:30x", "12:30 x", "-1:30", "012:30", ":30"}) {
    EXPECT_FALSE(FormatTimeOfDay(text)) << '"' << text << '"';
  }
}

TEST(ToDate, ReadsDayFirst) {
  EXPECT_EQ(ToDate("05/03/2024"), kMarchFifth);
}

TEST(ToDate, WhatIsNoDateIsATypeMismatchThatNamesTheText) {
  EXPECT_EQ(RaisedBy([] { ToDate("31/02/2024"); }),
            (Raised{13, "Tipo non corrispondente: \"31/02/2024\" non è una data (GG/MM/AAAA)"}));
}

TEST(FormatDate, EveryOrderIsWrittenWithLeadingZeros) {
  const DateTime date{2024, 3, 5, 9, 7, 2};
  EXPECT_EQ(FormatDayFirst(date), "05/03/2024");
  EXPECT_EQ(FormatMonthFirst(date), "03/05/2024");
  EXPECT_EQ(FormatIso(date), "2024-03-05 09:07:02");
}

TEST(FormatDate, TheUserSeesATimeOnlyWhereItIsNotMidnight) {
  EXPECT_EQ(FormatForUser(kMarchFifth), "05/03/2024");
  EXPECT_EQ(FormatForUser({2024, 3, 5, 9, 30, 0}), "05/03/2024 09:30:00");
  EXPECT_EQ(FormatForUser({2024, 3, 5, 0, 0, 1}), "05/03/2024 00:00:01");
}

TEST(DateOnly, DropsTheTimeAlone) {
  EXPECT_EQ(DateOnly({2024, 3, 5, 23, 59, 59}), kMarchFifth);
}

TEST(DateTimeOrder, LaterIsGreaterFromTheYearDownToTheSecond) {
  const std::vector<DateTime> ascending = {{2023, 12, 31, 23, 59, 59}, {2024, 1, 31, 23, 59, 59},
                                           {2024, 2, 1, 23, 59, 59},   {2024, 2, 2, 22, 59, 59},
                                           {2024, 2, 2, 23, 0, 59},    {2024, 2, 2, 23, 1, 0},
                                           {2024, 2, 2, 23, 1, 1}};
  for (std::size_t i = 1; i < ascending.size(); ++i) EXPECT_LT(ascending[i - 1], ascending[i]);
}

TEST(AddDays, CrossesMonthsYearsAndLeapDays) {
  EXPECT_EQ(AddDays({2024, 2, 28, 0, 0, 0}, 1), (DateTime{2024, 2, 29, 0, 0, 0}));
  EXPECT_EQ(AddDays({2023, 2, 28, 0, 0, 0}, 1), (DateTime{2023, 3, 1, 0, 0, 0}));
  EXPECT_EQ(AddDays({2024, 3, 10, 0, 0, 0}, -20), (DateTime{2024, 2, 19, 0, 0, 0}));
  EXPECT_EQ(AddDays({2023, 3, 10, 0, 0, 0}, -20), (DateTime{2023, 2, 18, 0, 0, 0}));
  EXPECT_EQ(AddDays({2024, 1, 10, 0, 0, 0}, -20), (DateTime{2023, 12, 21, 0, 0, 0}));
  EXPECT_EQ(AddDays(kMarchFifth, 0), kMarchFifth);
}

TEST(AddDays, KeepsTheTimeOfDay) {
  EXPECT_EQ(AddDays({2024, 12, 31, 9, 30, 15}, 1), (DateTime{2025, 1, 1, 9, 30, 15}));
}

TEST(AddDays, ReachesTheFirstAndTheLastDayOfTheCalendar) {
  EXPECT_EQ(AddDays({1753, 1, 2, 0, 0, 0}, -1), (DateTime{1753, 1, 1, 0, 0, 0}));
  EXPECT_EQ(AddDays({9999, 12, 30, 0, 0, 0}, 1), (DateTime{9999, 12, 31, 0, 0, 0}));
}

TEST(AddDays, OutsideTheCalendarIsAnOverflow) {
  EXPECT_EQ(RaisedBy([] {
              AddDays({9999, 12, 31, 0, 0, 0}, 1);
            }),
            (Raised{6, "Overflow: 31/12/9999 spostata di 1 giorni esce dagli anni 1753-9999"}));
  EXPECT_EQ(RaisedBy([] { AddDays({1753, 1, 1, 0, 0, 0}, -1); }).number, 6);
  EXPECT_EQ(RaisedBy([] { AddDays(kMarchFifth, std::numeric_limits<int>::max()); }).number, 6);
  EXPECT_EQ(RaisedBy([] { AddDays(kMarchFifth, std::numeric_limits<int>::min()); }).number, 6);
}

TEST(AddDays, AYearBeyond16BitsDoesNotComeRoundAsAnotherOne) {
  // 65,536 years of the Gregorian calendar.
  EXPECT_EQ(RaisedBy([] { AddDays(kMarchFifth, 23'936'532); }).number, 6);
  EXPECT_EQ(RaisedBy([] { AddDays(kMarchFifth, -23'936'532); }).number, 6);
}

TEST(DateProperties, WhatIsFormattedReadsBackAsTheSameDate) {
  std::mt19937 random(1);
  for (int i = 0; i < 5000; ++i) {
    const DateTime date = RandomDate(random);
    ASSERT_EQ(ParseIso(FormatIso(date)), date);
    ASSERT_EQ(ParseDayFirst(FormatDayFirst(date)), DateOnly(date));
    ASSERT_EQ(ParseMonthFirst(FormatMonthFirst(date)), DateOnly(date));
    ASSERT_EQ(ParseDayFirst(FormatForUser(date)), date);
  }
}

TEST(DateProperties, AddingOneDayGivesTheNextOneOfTheCalendar) {
  DateTime date{1899, 12, 28, 12, 0, 0};
  while (date.year < 2105) {
    const DateTime next = DayAfter(date);
    ASSERT_EQ(AddDays(date, 1), next);
    date = next;
  }
}

TEST(DateProperties, AddingDaysAndTakingThemAwayGivesTheDateBack) {
  std::mt19937 random(2);
  for (int i = 0; i < 5000; ++i) {
    DateTime date = RandomDate(random);
    date.year = Between(random, 1900, 2400);
    date.day = std::min(date.day, 28);
    const int days = Between(random, 1, 50'000);  // less than 137 years
    ASSERT_GT(AddDays(date, days), date);
    ASSERT_EQ(AddDays(AddDays(date, days), -days), date);
    ASSERT_EQ(AddDays(AddDays(date, -days), days), date);
  }
}

TEST(DateProperties, TextsThatLookLikeDatesEitherAreOneOrAreRefused) {
  std::mt19937 random(3);
  const std::string alphabet = "0123456789//--:: .";
  for (int i = 0; i < 50'000; ++i) {
    std::string text;
    for (int length = Between(random, 0, 20); length > 0; --length) {
      text += alphabet[static_cast<std::size_t>(
          Between(random, 0, static_cast<int>(alphabet.size()) - 1))];
    }
    for (const auto& date : {ParseDayFirst(text), ParseMonthFirst(text), ParseIso(text)}) {
      if (date) {
        ASSERT_EQ(ParseIso(FormatIso(*date)), date) << text;
      }
    }
  }
}

TEST(DateProperties, EveryDayAndMonthNumberIsADateExactlyWhereTheCalendarHasIt) {
  for (const int year : {1900, 2000, 2023, 2024}) {
    for (int month = 0; month <= 99; ++month) {
      for (int day = 0; day <= 99; ++day) {
        const std::string text =
            std::to_string(day) + "/" + std::to_string(month) + "/" + std::to_string(year);
        const bool real = month >= 1 && month <= 12 && day >= 1 && day <= DaysOf(year, month);
        ASSERT_EQ(ParseDayFirst(text).has_value(), real) << text;
      }
    }
  }
}

}  // namespace
}  // namespace ordex
