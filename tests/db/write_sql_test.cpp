#include "store/db/write_sql.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ordex {
namespace {

const std::vector<std::string> kColumns = {"A", "B\"]"};

TEST(InsertSql, HasAPlaceForEachColumn) {
  EXPECT_EQ(InsertSql("T", kColumns, kBrackets), "INSERT INTO [T] ([A], [B\"]]]) VALUES (?, ?)");
  EXPECT_EQ(InsertSql("T", kColumns, kDoubleQuotes),
            "INSERT INTO \"T\" (\"A\", \"B\"\"]\") VALUES (?, ?)");
}

TEST(InsertSql, WithoutColumnsTakesTheDefaults) {
  EXPECT_EQ(InsertSql("T", {}, kBrackets), "INSERT INTO [T] DEFAULT VALUES");
}

TEST(UpdateSql, HasTheKeyAsItsLastPlace) {
  EXPECT_EQ(UpdateSql("T", kColumns, "K", kBrackets),
            "UPDATE [T] SET [A] = ?, [B\"]]] = ? WHERE [K] = ?");
  EXPECT_EQ(UpdateSql("T", kColumns, "K", kDoubleQuotes),
            "UPDATE \"T\" SET \"A\" = ?, \"B\"\"]\" = ? WHERE \"K\" = ?");
}

}  // namespace
}  // namespace ordex
