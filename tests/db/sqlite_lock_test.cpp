// Several writers of one embedded database.
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <thread>

#include "store/db/sqlite_connection.h"
#include "store/db/sqlite_create.h"
#include "store/db/sqlite_driver.h"
#include "support/db_raised.h"
#include "support/db_temporary_folder.h"

namespace ordex {
namespace {

using std::chrono::milliseconds;

class SqliteLockTest : public testing::Test {
 protected:
  SqliteLockTest() { CreateSqliteDatabase(file_, false); }

  static void AddUser(Connection& connection, const char* name) {
    connection.Insert("Utenti", std::vector<NamedValue>{{"NomeUtente", std::string(name)}});
  }

  DbTemporaryFolder folder_;
  std::filesystem::path file_ = folder_ / "studio.db";
};

const DbRaised kLocked =
    DbError("il database è bloccato da un altro programma; riprovare tra poco");

TEST_F(SqliteLockTest, AWriterWaitsForAnotherAndThenWrites) {
  const auto first = OpenSqlite(file_);
  first->Begin();
  AddUser(*first, "PRIMO");
  std::atomic<bool> asking = false;
  DbRaised raised;
  std::thread second([&] {
    const auto connection = OpenSqlite(file_);
    asking = true;
    raised = DbRaisedBy([&] {
      connection->Begin();
      AddUser(*connection, "SECONDO");
      connection->Commit();
    });
  });
  while (!asking) std::this_thread::yield();
  std::this_thread::sleep_for(milliseconds(50));
  first->Commit();
  second.join();
  EXPECT_EQ(raised, DbRaised{});
  EXPECT_EQ(first->Prepare("SELECT ID_Utente FROM Utenti")->FetchAll().size(), 3U);
}

TEST_F(SqliteLockTest, AfterTheTimeOutTheWriterIsToldWhoHoldsTheDatabase) {
  const auto first = OpenSqlite(file_);
  const auto second = OpenSqliteWaiting(file_, milliseconds(20));
  first->Begin();
  EXPECT_EQ(DbRaisedBy([&] { second->Begin(); }), kLocked);
  EXPECT_FALSE(second->InTransaction());
  EXPECT_EQ(DbRaisedBy([&] { AddUser(*second, "SECONDO"); }), kLocked);
  first->Commit();
  AddUser(*second, "SECONDO");
  EXPECT_EQ(first->Prepare("SELECT ID_Utente FROM Utenti")->FetchAll().size(), 2U);
}

TEST_F(SqliteLockTest, TheLockIsTakenWhenTheTransactionBeginsAndNotAtItsFirstWrite) {
  const auto first = OpenSqlite(file_);
  const auto second = OpenSqliteWaiting(file_, milliseconds(20));
  first->Begin();
  EXPECT_EQ(DbRaisedBy([&] { AddUser(*second, "SECONDO"); }), kLocked);
  first->Rollback();
}

TEST_F(SqliteLockTest, AReaderIsNotHeldUpByAWriter) {
  const auto first = OpenSqlite(file_);
  const auto second = OpenSqliteWaiting(file_, milliseconds(20));
  first->Begin();
  AddUser(*first, "PRIMO");
  EXPECT_EQ(second->Prepare("SELECT ID_Utente FROM Utenti")->FetchAll().size(), 1U);
  first->Commit();
}

TEST_F(SqliteLockTest, AWriterWaitsFiveSecondsUnlessToldOtherwise) {
  const auto wait = [](Connection& connection) {
    return connection.PrepareNative("PRAGMA busy_timeout", {})->FetchAll().at(0).at(0);
  };
  EXPECT_EQ(wait(*OpenSqlite(file_)), Value(std::int64_t{5000}));
  EXPECT_EQ(wait(*OpenSqliteWaiting(file_, milliseconds(20))), Value(std::int64_t{20}));
}

}  // namespace
}  // namespace ordex
