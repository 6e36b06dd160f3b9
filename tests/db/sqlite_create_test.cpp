// Making a new embedded database.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "store/db/sqlite_connection.h"
#include "store/db/sqlite_create.h"
#include "support/db_raised.h"
#include "support/db_temporary_folder.h"

namespace ordex {
namespace {

namespace fs = std::filesystem;

std::string Content(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

std::ptrdiff_t FileCount(const fs::path& folder) {
  return std::distance(fs::directory_iterator(folder), {});
}

TEST(CreateSqliteDatabase, TheNewFileStandsAlone) {
  const DbTemporaryFolder folder;
  CreateSqliteDatabase(folder / "studio.db", false);
  EXPECT_EQ(FileCount(folder.path()), 1);
  EXPECT_TRUE(fs::is_regular_file(folder / "studio.db"));
}

TEST(CreateSqliteDatabase, AnExistingFileIsRefusedAndStays) {
  const DbTemporaryFolder folder;
  const fs::path file = folder / "studio.db";
  std::ofstream(file) << "appunti";
  EXPECT_EQ(DbRaisedBy([&] { CreateSqliteDatabase(file, false); }),
            DbError("\"" + file.string() +
                    "\": impossibile creare il database: il file esiste già; indicare un altro "
                    "nome o spostare il file"));
  EXPECT_EQ(Content(file), "appunti");
  EXPECT_EQ(FileCount(folder.path()), 1);
}

TEST(CreateSqliteDatabase, AFolderIsRefusedToo) {
  const DbTemporaryFolder folder;
  fs::create_directory(folder / "cartella");
  EXPECT_EQ(DbRaisedBy([&] { CreateSqliteDatabase(folder / "cartella", false); }).number,
            kDatabaseNumber);
  EXPECT_EQ(FileCount(folder.path()), 1);
}

TEST(CreateSqliteDatabase, TheLogOfAnOlderDatabaseIsNotPlayedBackIntoTheNewOne) {
  const DbTemporaryFolder folder;
  const fs::path file = folder / "studio.db";
  std::ofstream(folder / "studio.db-wal") << "resto";
  EXPECT_EQ(
      DbRaisedBy([&] { CreateSqliteDatabase(file, false); }),
      DbError("\"" + file.string() + "\": impossibile creare il database: accanto c'è ancora \"" +
              file.string() + "-wal\", resto di un altro database; spostarlo o cancellarlo"));
  EXPECT_FALSE(fs::exists(file));
}

TEST(CreateSqliteDatabase, AFolderThatDoesNotExistIsAnError) {
  const DbTemporaryFolder folder;
  EXPECT_EQ(DbRaisedBy([&] { CreateSqliteDatabase(folder / "manca" / "studio.db", false); }).number,
            kDatabaseNumber);
  EXPECT_FALSE(fs::exists(folder / "manca"));
}

TEST(CreateSqliteDatabase, TheSampleAddsPersonsAndCases) {
  const DbTemporaryFolder folder;
  CreateSqliteDatabase(folder / "studio.db", true);
  const auto connection = OpenSqlite(folder / "studio.db");
  EXPECT_GT(connection->Prepare("SELECT ID_Pra FROM Pratica")->FetchAll().size(), 1U);
  EXPECT_GT(connection->Prepare("SELECT ID_Ana FROM Anagrafica")->FetchAll().size(), 1U);
}

}  // namespace
}  // namespace ordex
