#include "store/db/open_connection.h"

#include <gtest/gtest.h>

#include "base/path_text.h"
#include "store/db/sqlite_create.h"
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

// Nothing listens on that port.
constexpr const char* kNoServer = "127.0.0.1,1";

TEST(OpenConnection, AServerThatIsNotReachedIsNamedAndAPasswordNever) {
  const DbRaised raised = DbRaisedBy([] {
    OpenConnection(
        std::string("Provider=SQLNCLI.1;User ID=sa;Password=segreto;Data Source=") + kNoServer,
        ".");
  });
  EXPECT_EQ(raised.number, kDatabaseNumber);
  EXPECT_EQ(raised.description.find("Errore del database: impossibile aprire \"127.0.0.1,1\": il "
                                    "server non si raggiunge; controllare il nome del server, la "
                                    "rete e che SQL Server sia in funzione"),
            0U)
      << raised.description;
  EXPECT_EQ(raised.description.find("segreto"), std::string::npos);
}

TEST(OpenConnection, APasswordBehindAForgottenSemicolonIsNotTold) {
  const DbRaised raised = DbRaisedBy(
      [] { OpenConnection(std::string("Data Source=") + kNoServer + " Password=segreto", "."); });
  EXPECT_EQ(raised.number, kDatabaseNumber);
  EXPECT_EQ(raised.description.find("segreto"), std::string::npos) << raised.description;
}

TEST(OpenConnection, ADriverThatIsNotInstalledIsToldAndAPasswordNever) {
  const DbRaised raised = DbRaisedBy([] {
    OpenConnection("Driver={Nessun driver};Data Source=SRV;User ID=sa;Password=segreto", ".");
  });
  EXPECT_EQ(raised.number, kDatabaseNumber);
  EXPECT_EQ(raised.description.find("Errore del database: impossibile aprire \"SRV\": il driver "
                                    "ODBC non è installato o non si può caricare"),
            0U)
      << raised.description;
  EXPECT_EQ(raised.description.find("segreto"), std::string::npos);
}

TEST(OpenConnection, ANamedDriverReachesTheFileToo) {
  const DbTemporaryFolder folder;
  CreateSqliteDatabase(folder / "x.db", false);
  EXPECT_TRUE(
      Reaches("Provider=SQLNCLI.1;Initial Catalog=Zelmo32;Driver={SQLite3};"
              "Data Source=file:x.db",
              folder.path()));
  EXPECT_TRUE(Reaches("Provider=SQLNCLI.1;Initial Catalog=Zelmo32;Driver=SQLite3;Database=x.db",
                      folder.path()));
}

TEST(OpenConnection, AnAbsentFileBehindANamedDriverIsNamedAndNotMade) {
  const DbTemporaryFolder folder;
  const DbRaised raised = DbRaisedBy(
      [&] { OpenConnection("Driver={SQLite3};Data Source=file:manca.db", folder.path()); });
  EXPECT_EQ(raised.number, kDatabaseNumber);
  EXPECT_NE(raised.description.find((folder / "manca.db").string()), std::string::npos)
      << raised.description;
  EXPECT_FALSE(std::filesystem::exists(folder / "manca.db"));
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
