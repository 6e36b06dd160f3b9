#include "store/db/open_connection.h"

#include <gtest/gtest.h>

#include "base/path_text.h"
#include "store/db/sqlite_connection.h"
#include "support/db_raised.h"
#include "support/db_temporary_folder.h"

namespace ordex {
namespace {

// True when the office's tables are reached.
bool Reaches(std::string_view connectionString, const std::filesystem::path& programFolder) {
  return OpenConnection(connectionString, programFolder)
             ->Prepare("SELECT ID_Utente FROM Utenti")
             ->FetchAll()
             .size() == 1;
}

TEST(OpenConnection, AFileIsLookedForInTheProgramFolder) {
  const DbTemporaryFolder folder;
  CreateSqliteDatabase(folder / "x.db", false);
  EXPECT_TRUE(Reaches(
      "Provider=SQLNCLI.1;Integrated Security=SSPI;Initial Catalog=Zelmo32;Data Source=file:x.db",
      folder.path()));
}

TEST(OpenConnection, AnAbsolutePathStaysAsItIs) {
  const DbTemporaryFolder folder;
  CreateSqliteDatabase(folder / "x.db", false);
  EXPECT_TRUE(Reaches("Data Source=file:" + (folder / "x.db").string(), "/nowhere"));
}

TEST(OpenConnection, AForgottenSemicolonStillFindsTheDataSource) {
  const DbTemporaryFolder folder;
  CreateSqliteDatabase(folder / "x.db", false);
  EXPECT_TRUE(
      Reaches("Provider=SQLNCLI.1Initial Catalog=Zelmo32;Data Source=file:x.db", folder.path()));
}

TEST(OpenConnection, EveryNameOfTheDataSourceIsKnownInAnyLetterCase) {
  const DbTemporaryFolder folder;
  CreateSqliteDatabase(folder / "x.db", false);
  for (const char* name : {"data source", "SERVER", "Address", "addr", "Network ADDRESS"}) {
    EXPECT_TRUE(Reaches(std::string(name) + "=File:x.db", folder.path())) << name;
  }
}

TEST(OpenConnection, TheLastDataSourceCountsWhateverItsName) {
  const DbTemporaryFolder folder;
  CreateSqliteDatabase(folder / "x.db", false);
  EXPECT_TRUE(Reaches("Data Source=SRV;Server=file:x.db", folder.path()));
}

TEST(OpenConnection, ANameWithPercentAndAccentsIsANameLikeAnyOther) {
  const DbTemporaryFolder folder;
  const std::string name = "caffè 100%25&x#y.db";
  CreateSqliteDatabase(folder / PathOf(name), false);
  EXPECT_TRUE(Reaches("Data Source=file:" + name, folder.path()));
}

TEST(OpenConnection, SettingsWithoutAServerAreToldByTheirNames) {
  const DbRaised wanted = DbError(
      "le impostazioni non indicano un server (manca \"Data Source\"). Controllare le impostazioni "
      "\"Zelmo32\", sezione \"startup\", chiavi \"Security\" e \"Server\".");
  for (const char* settings :
       {"", "Provider=SQLNCLI.1Initial Catalog=Zelmo32;", "Initial Catalog=Zelmo32;Data Source="}) {
    EXPECT_EQ(DbRaisedBy([&] { OpenConnection(settings, "."); }), wanted) << settings;
  }
}

TEST(OpenConnection, AFileSourceWithoutAFileIsToldByTheNamesOfTheSettings) {
  EXPECT_EQ(DbRaisedBy([] { OpenConnection("Data Source=file: ", "."); }),
            DbError("\"Data Source=file:\" non indica nessun file. Controllare le impostazioni "
                    "\"Zelmo32\", sezione \"startup\", chiavi \"Security\" e \"Server\"."));
}

TEST(OpenConnection, AServerIsNamedAndAPasswordNever) {
  const DbRaised wanted = DbError(
      "impossibile aprire \"SRV\\ORD\": questa versione del programma non contiene il driver per "
      "SQL Server");
  EXPECT_EQ(DbRaisedBy([] {
              OpenConnection("Provider=SQLNCLI.1;User ID=sa;Password=segreto;Data Source=SRV\\ORD",
                             ".");
            }),
            wanted);
  // A semicolon was forgotten before the password.
  const DbRaised forgotten =
      DbRaisedBy([] { OpenConnection("Data Source=SRV Password=segreto", "."); });
  EXPECT_EQ(forgotten.description.find("segreto"), std::string::npos);
}

TEST(OpenConnection, AnAbsentFileIsNamed) {
  const DbTemporaryFolder folder;
  EXPECT_EQ(DbRaisedBy([&] { OpenConnection("Data Source=file:manca.db", folder.path()); }),
            DbError("\"" + (folder / "manca.db").string() +
                    "\": impossibile aprire il database: il file non esiste; controllare il nome "
                    "nelle impostazioni"));
  EXPECT_FALSE(std::filesystem::exists(folder / "manca.db"));
}

}  // namespace
}  // namespace ordex
