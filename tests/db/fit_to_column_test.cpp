#include "store/db/fit_to_column.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "support/db_raised.h"

namespace ordex {
namespace {

ColumnInfo Column(ColumnType type, std::size_t size = 0) {
  ColumnInfo column;
  column.name = "Col";
  column.type = type;
  column.size = size;
  return column;
}

const ColumnInfo kText = Column(ColumnType::kText);
const ColumnInfo kShortText = Column(ColumnType::kText, 5);
const ColumnInfo kInteger = Column(ColumnType::kInteger, 4);
const ColumnInfo kReal = Column(ColumnType::kReal);
const ColumnInfo kBit = Column(ColumnType::kBit);
const ColumnInfo kDate = Column(ColumnType::kDate);

Value Text(const char* text) {
  return std::string(text);
}

Value Whole(std::int64_t number) {
  return number;
}

constexpr DateTime kFifthOfMarch{2024, 3, 5, 0, 0, 0};

TEST(FitToColumn, NullFitsEveryColumn) {
  for (const ColumnInfo& column : {kText, kShortText, kInteger, kReal, kBit, kDate}) {
    EXPECT_EQ(FitToColumn(Null{}, column), Value(Null{}));
  }
}

TEST(FitToColumn, ATextColumnTakesEveryValueAsTheUserWouldWriteIt) {
  EXPECT_EQ(FitToColumn(Text(" a "), kText), Text(" a "));
  EXPECT_EQ(FitToColumn(Text(""), kText), Text(""));
  EXPECT_EQ(FitToColumn(Whole(-12), kText), Text("-12"));
  EXPECT_EQ(FitToColumn(true, kText), Text("Vero"));
  EXPECT_EQ(FitToColumn(false, kText), Text("Falso"));
  EXPECT_EQ(FitToColumn(1936.27, kText), Text("1936,27"));
  EXPECT_EQ(FitToColumn(kFifthOfMarch, kText), Text("05/03/2024"));
  EXPECT_EQ(FitToColumn(DateTime{2024, 3, 5, 9, 30, 0}, kText), Text("05/03/2024 09:30:00"));
}

TEST(FitToColumn, ATextLongerThanItsColumnIsAnErrorAndNothingIsCut) {
  EXPECT_EQ(FitToColumn(Text("abcde"), kShortText), Text("abcde"));
  EXPECT_EQ(DbRaisedBy([] { FitToColumn(Text("abcdef"), kShortText); }),
            DbError("il testo \"abcdef\" ha 6 caratteri, la colonna \"Col\" ne contiene al più 5"));
}

TEST(FitToColumn, TheLengthOfATextCountsCharactersAndNotBytes) {
  EXPECT_EQ(FitToColumn(Text("èèèèè"), kShortText), Text("èèèèè"));
  EXPECT_EQ(DbRaisedBy([] { FitToColumn(Text("èèèèèè"), kShortText); }).number, kDatabaseNumber);
}

TEST(FitToColumn, ALongValueIsShownByItsBeginning) {
  EXPECT_EQ(DbRaisedBy([] { FitToColumn(std::string(70, 'x'), kShortText); }),
            DbError("il testo \"" + std::string(60, 'x') +
                    "…\" ha 70 caratteri, la colonna \"Col\" ne contiene al più 5"));
}

TEST(FitToColumn, ADateIsTooLongForAShortTextColumnToo) {
  EXPECT_EQ(DbRaisedBy([] { FitToColumn(kFifthOfMarch, kShortText); }).number, kDatabaseNumber);
}

TEST(FitToColumn, AnIntegerColumnTakesDecimalText) {
  EXPECT_EQ(FitToColumn(Text(" 42 "), kInteger), Whole(42));
  EXPECT_EQ(FitToColumn(Text("+7"), kInteger), Whole(7));
  EXPECT_EQ(FitToColumn(Text("-7"), kInteger), Whole(-7));
}

TEST(FitToColumn, AnIntegerColumnTakesBitsAndWholeFractions) {
  EXPECT_EQ(FitToColumn(true, kInteger), Whole(1));
  EXPECT_EQ(FitToColumn(false, kInteger), Whole(0));
  EXPECT_EQ(FitToColumn(3.0, kInteger), Whole(3));
}

TEST(FitToColumn, WhatIsNoWholeNumberIsAMismatchThatNamesValueAndColumn) {
  EXPECT_EQ(DbRaisedBy([] { FitToColumn(Text("dodici"), kInteger); }),
            (DbRaised{13,
                      "Tipo non corrispondente: \"dodici\" non è un numero intero, come vuole "
                      "la colonna \"Col\""}));
  for (const char* text : {"", " ", "1.5", "1,5", "1e3", "0x10", "+-3", "--3", "12a"}) {
    EXPECT_EQ(DbRaisedBy([&] { FitToColumn(Text(text), kInteger); }).number, 13) << text;
  }
  EXPECT_EQ(DbRaisedBy([] { FitToColumn(2.5, kInteger); }).number, 13);
  EXPECT_EQ(DbRaisedBy([] { FitToColumn(kFifthOfMarch, kInteger); }).number, 13);
}

TEST(FitToColumn, TheWidthOfAnIntegerColumnIsItsRange) {
  struct Case {
    std::size_t width;
    std::int64_t least;
    std::int64_t most;
  };
  const std::vector<Case> cases = {{1, 0, 255}, {2, -32768, 32767}, {4, -2147483648, 2147483647}};
  for (const auto& each : cases) {
    const ColumnInfo column = Column(ColumnType::kInteger, each.width);
    EXPECT_EQ(FitToColumn(Whole(each.least), column), Whole(each.least));
    EXPECT_EQ(FitToColumn(Whole(each.most), column), Whole(each.most));
    EXPECT_EQ(DbRaisedBy([&] { FitToColumn(Whole(each.least - 1), column); }).number, 6);
    EXPECT_EQ(DbRaisedBy([&] { FitToColumn(Whole(each.most + 1), column); }).number, 6);
    EXPECT_EQ(DbRaisedBy([&] { FitToColumn(std::to_string(each.most + 1), column); }).number, 6);
  }
}

TEST(FitToColumn, AnOverflowNamesValueAndColumn) {
  EXPECT_EQ(DbRaisedBy([] { FitToColumn(Text("32768"), Column(ColumnType::kInteger, 2)); }),
            (DbRaised{6, "Overflow: \"32768\" è fuori dall'intervallo della colonna \"Col\""}));
}

TEST(FitToColumn, AWideIntegerColumnTakesAll64Bits) {
  const ColumnInfo column = Column(ColumnType::kInteger, 8);
  EXPECT_EQ(FitToColumn(Text("9223372036854775807"), column), Whole(9223372036854775807));
  EXPECT_EQ(DbRaisedBy([&] { FitToColumn(Text("9223372036854775808"), column); }).number, 6);
  EXPECT_EQ(DbRaisedBy([&] { FitToColumn(9223372036854775808.0, column); }).number, 6);
}

TEST(FitToColumn, AFractionIsReadWithAPointOrAComma) {
  EXPECT_EQ(FitToColumn(Text("1936.27"), kReal), Value(1936.27));
  EXPECT_EQ(FitToColumn(Text(" 1936,27 "), kReal), Value(1936.27));
  EXPECT_EQ(FitToColumn(Text("-0,5"), kReal), Value(-0.5));
  EXPECT_EQ(FitToColumn(Whole(3), kReal), Value(3.0));
  EXPECT_EQ(FitToColumn(true, kReal), Value(1.0));
}

TEST(FitToColumn, WhatIsNoFractionIsAMismatch) {
  for (const char* text : {"", "abc", "nan", "inf", "1.936,27", "1,2,3", "1 2", "+-1"}) {
    EXPECT_EQ(DbRaisedBy([&] { FitToColumn(Text(text), kReal); }).number, 13) << text;
  }
  EXPECT_EQ(DbRaisedBy([] { FitToColumn(kFifthOfMarch, kReal); }).number, 13);
}

TEST(FitToColumn, AFractionThatNoColumnHoldsOverflows) {
  EXPECT_EQ(DbRaisedBy([] { FitToColumn(std::nan(""), kReal); }).number, 6);
  EXPECT_EQ(DbRaisedBy([] { FitToColumn(std::numeric_limits<double>::infinity(), kReal); }).number,
            6);
  EXPECT_EQ(DbRaisedBy([] { FitToColumn(Text("1e999"), kReal); }).number, 6);
}

TEST(FitToColumn, ABitColumnTakesTrueAndFalseInBothLanguagesAndAsNumbers) {
  for (const char* text : {"true", "TRUE", "Vero", "vero", "1", " 1 "}) {
    EXPECT_EQ(FitToColumn(Text(text), kBit), Value(true)) << text;
  }
  for (const char* text : {"false", "False", "FALSO", "0"}) {
    EXPECT_EQ(FitToColumn(Text(text), kBit), Value(false)) << text;
  }
  EXPECT_EQ(FitToColumn(true, kBit), Value(true));
  EXPECT_EQ(FitToColumn(Whole(1), kBit), Value(true));
  EXPECT_EQ(FitToColumn(Whole(-1), kBit), Value(true));
  EXPECT_EQ(FitToColumn(Whole(0), kBit), Value(false));
}

TEST(FitToColumn, WhatIsNeitherTrueNorFalseIsAMismatch) {
  EXPECT_EQ(DbRaisedBy([] { FitToColumn(Text("forse"), kBit); }),
            (DbRaised{13,
                      "Tipo non corrispondente: \"forse\" non è un valore vero o falso, come "
                      "vuole la colonna \"Col\""}));
  EXPECT_EQ(DbRaisedBy([] { FitToColumn(Text(""), kBit); }).number, 13);
  EXPECT_EQ(DbRaisedBy([] { FitToColumn(Whole(2), kBit); }).number, 13);
  EXPECT_EQ(DbRaisedBy([] { FitToColumn(kFifthOfMarch, kBit); }).number, 13);
}

TEST(FitToColumn, ADateColumnReadsTextDayFirstWithAndWithoutATime) {
  EXPECT_EQ(FitToColumn(Text("05/03/2024"), kDate), Value(kFifthOfMarch));
  EXPECT_EQ(FitToColumn(Text("5-3-2024"), kDate), Value(kFifthOfMarch));
  EXPECT_EQ(FitToColumn(Text(" 05/03/2024 09:30 "), kDate), Value(DateTime{2024, 3, 5, 9, 30, 0}));
  EXPECT_EQ(FitToColumn(kFifthOfMarch, kDate), Value(kFifthOfMarch));
}

TEST(FitToColumn, AnEmptyOrBlankTextIsNoDateAndSoNull) {
  EXPECT_EQ(FitToColumn(Text(""), kDate), Value(Null{}));
  EXPECT_EQ(FitToColumn(Text("   "), kDate), Value(Null{}));
}

TEST(FitToColumn, WhatIsNoDateIsAMismatchThatNamesValueAndColumn) {
  EXPECT_EQ(DbRaisedBy([] { FitToColumn(Text("31/02/2024"), kDate); }),
            (DbRaised{13,
                      "Tipo non corrispondente: \"31/02/2024\" non è una data (GG/MM/AAAA), "
                      "come vuole la colonna \"Col\""}));
  EXPECT_EQ(DbRaisedBy([] { FitToColumn(Text("2024-03-05"), kDate); }).number, 13);
  EXPECT_EQ(DbRaisedBy([] { FitToColumn(Whole(45000), kDate); }).number, 13);
  EXPECT_EQ(DbRaisedBy([] { FitToColumn(true, kDate); }).number, 13);
  EXPECT_EQ(DbRaisedBy([] { FitToColumn(1.5, kDate); }).number, 13);
}

}  // namespace
}  // namespace ordex
