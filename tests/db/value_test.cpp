#include "store/db/value.h"

#include <gtest/gtest.h>

#include "support/db_raised.h"

namespace ordex {
namespace {

TEST(Value, NullIsAnEmptyText) {
  EXPECT_EQ(ToText(Null{}), "");
}

TEST(Value, BitsAreToldInItalian) {
  EXPECT_EQ(ToText(true), "Vero");
  EXPECT_EQ(ToText(false), "Falso");
}

TEST(Value, NumbersAreDecimalDigitsAndFractionsHaveAComma) {
  EXPECT_EQ(ToText(std::int64_t{-42}), "-42");
  EXPECT_EQ(ToText(1936.27), "1936,27");
  EXPECT_EQ(ToText(3.0), "3");
}

TEST(Value, DatesAreDayFirstAndShowTheirTimeOnlyWhereThereIsOne) {
  EXPECT_EQ(ToText(DateTime{2024, 3, 5, 0, 0, 0}), "05/03/2024");
  EXPECT_EQ(ToText(DateTime{2024, 3, 5, 9, 30, 0}), "05/03/2024 09:30:00");
}

TEST(Value, NullAsANumberIsAnInvalidUseOfNull) {
  EXPECT_EQ(DbRaisedBy([] { AsInt32(Value(Null{})); }),
            (DbRaised{94, "Utilizzo non valido di Null"}));
}

TEST(Value, AWholeNumberOf32BitsIsTakenAndItsNeighboursOverflow) {
  EXPECT_EQ(AsInt32(Value(std::int64_t{2147483647})), 2147483647);
  EXPECT_EQ(AsInt32(Value(std::int64_t{-2147483648})), -2147483647 - 1);
  EXPECT_EQ(DbRaisedBy([] { AsInt32(Value(std::int64_t{2147483648})); }),
            (DbRaised{6, "Overflow: 2147483648"}));
  EXPECT_EQ(DbRaisedBy([] { AsInt32(Value(std::int64_t{-2147483649})); }).number, 6);
  EXPECT_EQ(DbRaisedBy([] { AsInt32(Value(1e300)); }).number, 6);
}

TEST(Value, AFractionADateAndABitAreNoWholeNumber) {
  EXPECT_EQ(AsInt32(Value(7.0)), 7);
  EXPECT_EQ(DbRaisedBy([] { AsInt32(Value(7.5)); }),
            (DbRaised{13, "Tipo non corrispondente: 7,5 non è un numero intero"}));
  EXPECT_EQ(DbRaisedBy([] { AsInt32(Value(true)); }).number, 13);
  EXPECT_EQ(DbRaisedBy([] { AsInt32(Value(DateTime{})); }).number, 13);
}

TEST(Value, ATextOfDigitsIsAWholeNumberAndAnyOtherIsNot) {
  EXPECT_EQ(AsInt32(Value(std::string(" 12 "))), 12);
  EXPECT_EQ(DbRaisedBy([] { AsInt32(Value(std::string("dodici"))); }).number, 13);
}

TEST(Value, NullIsFalseAndEveryNumberButZeroIsTrue) {
  EXPECT_FALSE(ToBool(Null{}));
  EXPECT_TRUE(ToBool(true));
  EXPECT_FALSE(ToBool(false));
  EXPECT_TRUE(ToBool(std::int64_t{-1}));
  EXPECT_FALSE(ToBool(std::int64_t{0}));
  EXPECT_TRUE(ToBool(0.5));
  EXPECT_FALSE(ToBool(0.0));
}

TEST(Value, ATextOrADateIsNeitherTrueNorFalse) {
  EXPECT_EQ(DbRaisedBy([] { ToBool(std::string("TRUE")); }),
            (DbRaised{13, "Tipo non corrispondente: \"TRUE\" non è né vero né falso"}));
  EXPECT_EQ(DbRaisedBy([] { ToBool(DateTime{}); }).number, 13);
}

}  // namespace
}  // namespace ordex
