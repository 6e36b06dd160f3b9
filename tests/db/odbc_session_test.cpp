#include "store/db/odbc_session.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "store/db/odbc_settings.h"
#include "store/db/sqlite_create.h"
#include "support/db_raised.h"
#include "support/db_temporary_folder.h"

namespace ordex {
namespace {

class SetUpSessionTest : public testing::Test {
 protected:
  SetUpSessionTest() {
    CreateSqliteDatabase(folder_ / "studio.db", false);
    link_ = std::make_shared<OdbcLink>(TranslateToOdbc(
        ReadServerSettings("Driver={SQLite3};Data Source=file:studio.db"), {}, folder_.path()));
  }

  DbTemporaryFolder folder_;
  std::shared_ptr<OdbcLink> link_;
};

// The second one is none.
const std::vector<std::string> kSettings = {"PRAGMA synchronous=FULL", "SET NOCOUNT ON"};

TEST_F(SetUpSessionTest, AFailureIsAnErrorWhereTheSettingsAreNeeded) {
  EXPECT_EQ(DbRaisedBy([&] { SetUpSession(link_, kSettings, true); }).number, kDatabaseNumber);
}

TEST_F(SetUpSessionTest, AFailureIsPassedOverWhereTheyAreNot) {
  EXPECT_EQ(DbRaisedBy([&] { SetUpSession(link_, kSettings, false); }), DbRaised{});
  EXPECT_EQ(link_->TakeTrouble(), OdbcLink::Trouble::kNone);
}

}  // namespace
}  // namespace ordex
