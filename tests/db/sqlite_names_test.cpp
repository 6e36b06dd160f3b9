// Files that only a Unix system has: links, and names of any characters.
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>

#include "store/db/open_connection.h"
#include "store/db/sqlite_connection.h"
#include "store/db/sqlite_create.h"
#include "support/db_raised.h"
#include "support/db_temporary_folder.h"

namespace ordex {
namespace {

namespace fs = std::filesystem;

TEST(CreateSqliteDatabase, ALinkThatLeadsNowhereIsRefusedAndStays) {
  const DbTemporaryFolder folder;
  fs::create_symlink("manca", folder / "legame");
  EXPECT_EQ(DbRaisedBy([&] { CreateSqliteDatabase(folder / "legame", false); }).number,
            kDatabaseNumber);
  EXPECT_TRUE(fs::is_symlink(folder / "legame"));
  EXPECT_FALSE(fs::exists(folder / "manca"));
}

TEST(CreateSqliteDatabase, ARelativeNameThatLooksLikeAnAddressIsANameLikeAnyOther) {
  const DbTemporaryFolder folder;
  const fs::path before = fs::current_path();
  fs::current_path(folder.path());
  const DbRaised raised = DbRaisedBy([] {
    for (const char* name : {":memory:", "file:x?mode=memory"}) {
      CreateSqliteDatabase(name, false);
      OpenSqlite(name)->Execute("delete from Utenti");
    }
  });
  fs::current_path(before);
  EXPECT_EQ(raised, DbRaised{});
  EXPECT_TRUE(fs::exists(folder / ":memory:"));
  EXPECT_TRUE(fs::exists(folder / "file:x?mode=memory"));
}

// What `body` raises while the working directory is one that was removed.
DbRaised RaisedInRemovedFolder(const fs::path& removed, const std::function<void()>& body) {
  const fs::path before = fs::current_path();
  fs::create_directory(removed);
  fs::current_path(removed);
  fs::remove(removed);
  const DbRaised raised = DbRaisedBy(body);
  fs::current_path(before);
  return raised;
}

constexpr const char* kNoWorkingFolder =
    "la cartella di lavoro del programma non esiste più; avviare di nuovo il programma da un'altra "
    "cartella";

TEST(OpenSqlite, ARelativeNameIsAnErrorWhereTheWorkingDirectoryWasRemoved) {
  const DbTemporaryFolder folder;
  CreateSqliteDatabase(folder / "x.db", false);
  EXPECT_EQ(
      RaisedInRemovedFolder(folder / "tolta", [] { OpenSqlite("../x.db"); }),
      DbError(std::string("\"../x.db\": impossibile aprire il database: ") + kNoWorkingFolder));
}

TEST(CreateSqliteDatabase, ARelativeNameIsAnErrorWhereTheWorkingDirectoryWasRemoved) {
  const DbTemporaryFolder folder;
  EXPECT_EQ(
      RaisedInRemovedFolder(folder / "tolta", [] { CreateSqliteDatabase("../x.db", false); }),
      DbError(std::string("\"../x.db\": impossibile creare il database: ") + kNoWorkingFolder));
  EXPECT_TRUE(fs::is_empty(folder.path()));
}

TEST(OpenConnection, ANameWithQuestionMarkPercentAndAccentsIsANameLikeAnyOther) {
  const DbTemporaryFolder folder;
  const std::string name = "caffè 100%25?mode=memory&x#y.db";
  CreateSqliteDatabase(folder / name, false);
  EXPECT_NO_THROW(OpenConnection("Data Source=file:" + name, folder.path()));
}

}  // namespace
}  // namespace ordex
