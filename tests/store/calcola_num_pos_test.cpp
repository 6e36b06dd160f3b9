// The position number of the next case.
#include <gtest/gtest.h>

#include "store/case_record.h"
#include "support/office_fixture.h"

namespace ordex::testing {
namespace {

TEST(CalcolaNumPos, IsOneMoreThanTheHighestOfTheTable) {
  Office office;
  office.Do("INSERT INTO Pratica (NumPos) VALUES (41)");
  office.Do("INSERT INTO Pratica (NumPos) VALUES (7)");
  EXPECT_EQ(CalcolaNumPos(office.database()), 42);
}

TEST(CalcolaNumPos, AsksInTheseWords) {
  Office office;
  CalcolaNumPos(office.database());
  EXPECT_EQ(office.diagnostics.sql,
            (std::vector<std::string>{"SELECT MAX(NumPos) AS PosMax FROM Pratica"}));
}

TEST(CalcolaNumPos, OnAnEmptyTableIsAnInvalidUseOfNull) {
  Office office;
  office.Do("DELETE FROM Pratica");
  EXPECT_EQ(ErrorNumberOf([&] { CalcolaNumPos(office.database()); }), 94);
}

TEST(CalcolaNumPos, BehindTheLast32BitNumberIsAnOverflow) {
  Office office;
  office.Do("INSERT INTO Pratica (NumPos) VALUES (2147483647)");
  EXPECT_EQ(ErrorNumberOf([&] { CalcolaNumPos(office.database()); }), 6);
}

}  // namespace
}  // namespace ordex::testing
