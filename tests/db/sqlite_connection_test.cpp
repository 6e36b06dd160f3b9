// What is particular to the embedded engine.
#include "store/db/sqlite_connection.h"
#include "store/db/sqlite_create.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <fstream>
#include <system_error>
#include <vector>

#include "connection_contract.h"
#include "store/db/declared_type.h"
#include "store/db/sqlite_catalog.h"
#include "store/db/sqlite_file.h"
#include "support/db_office.h"
#include "support/db_raised.h"

namespace ordex {
namespace {

namespace fs = std::filesystem;

Value Whole(std::int64_t number) {
  return number;
}

Value Text(const char* text) {
  return std::string(text);
}

// --- opening ------------------------------------------------------------------------------------

class SqliteOpenTest : public testing::Test {
 protected:
  DbRaised Opening() {
    return DbRaisedBy([&] { OpenSqlite(file_); });
  }
  DbRaised Error(const char* problem) {
    return DbError("\"" + file_.string() + "\": impossibile aprire il database: " + problem);
  }

  DbTemporaryFolder folder_;
  fs::path file_ = folder_ / "studio.db";
};

TEST_F(SqliteOpenTest, AnAbsentFileIsNotMade) {
  EXPECT_EQ(Opening(), Error("il file non esiste; controllare il nome nelle impostazioni"));
  EXPECT_FALSE(fs::exists(file_));
}

TEST_F(SqliteOpenTest, AFolderIsNoDatabase) {
  fs::create_directory(file_);
  EXPECT_EQ(Opening(), Error("è una cartella; indicare il file del database"));
}

TEST_F(SqliteOpenTest, ATextFileIsNoDatabase) {
  std::ofstream(file_) << std::string(2000, 'x');
  EXPECT_EQ(Opening(),
            Error("il file non è un database; controllare il nome del file nelle impostazioni"));
}

TEST_F(SqliteOpenTest, AnEmptyFileIsNoDatabase) {
  std::ofstream(file_).close();
  EXPECT_EQ(Opening(),
            Error("il file non è un database; controllare il nome del file nelle impostazioni"));
}

TEST_F(SqliteOpenTest, AFileInAFolderThatDoesNotExistIsAbsent) {
  file_ = folder_ / "manca" / "studio.db";
  EXPECT_EQ(Opening(), Error("il file non esiste; controllare il nome nelle impostazioni"));
}

TEST_F(SqliteOpenTest, ADamagedDatabaseIsToldWhenItIsRead) {
  CreateSqliteDatabase(file_, false);
  {
    // The file's second page and those behind it hold the tables.
    std::fstream file(file_, std::ios::in | std::ios::out | std::ios::binary);
    file.seekp(4096);
    file << std::string(fs::file_size(file_) - 4096, 'x');
  }
  const DbRaised raised = DbRaisedBy([&] {
    const auto connection = OpenSqlite(file_);
    connection->Prepare("SELECT * FROM Pratica")->FetchAll();
  });
  EXPECT_EQ(raised.number, kDatabaseNumber);
  EXPECT_NE(
      raised.description.find("il database è danneggiato; ripristinarlo da una copia di sicurezza"),
      std::string::npos)
      << raised.description;
}

// --- declared types -----------------------------------------------------------------------------

TEST(ParseDeclaredType, EveryDeclarationOfTheOfficesTablesIsKnown) {
  struct Case {
    const char* declared;
    ColumnType type;
    std::size_t size;
  };
  const std::vector<Case> cases = {{"BIT", ColumnType::kBit, 0},
                                   {"boolean", ColumnType::kBit, 0},
                                   {"DATE", ColumnType::kDate, 0},
                                   {"DATETIME", ColumnType::kDate, 0},
                                   {"SMALLDATETIME", ColumnType::kDate, 0},
                                   {"datetime2(7)", ColumnType::kDate, 0},
                                   {"TINYINT", ColumnType::kInteger, 1},
                                   {"SMALLINT", ColumnType::kInteger, 2},
                                   {"INT", ColumnType::kInteger, 4},
                                   {"INTEGER", ColumnType::kInteger, 4},
                                   {"BIGINT", ColumnType::kInteger, 8},
                                   {"FLOAT", ColumnType::kReal, 0},
                                   {"REAL", ColumnType::kReal, 0},
                                   {"DOUBLE PRECISION", ColumnType::kReal, 0},
                                   {"MONEY", ColumnType::kReal, 0},
                                   {"NVARCHAR(200)", ColumnType::kText, 200},
                                   {"varchar ( 30 )", ColumnType::kText, 30},
                                   {"NVARCHAR(MAX)", ColumnType::kText, 0},
                                   {"NVARCHAR(", ColumnType::kText, 0},
                                   {"TEXT", ColumnType::kText, 0}};
  for (const auto& each : cases) {
    const auto type = ParseDeclaredType(each.declared);
    ASSERT_TRUE(type) << each.declared;
    EXPECT_EQ(type->type, each.type) << each.declared;
    EXPECT_EQ(type->size, each.size) << each.declared;
  }
}

TEST(ParseDeclaredType, WithoutADeclarationThereIsNoType) {
  EXPECT_FALSE(ParseDeclaredType(nullptr));
  EXPECT_FALSE(ParseDeclaredType(""));
  EXPECT_FALSE(ParseDeclaredType("BLOB"));
}

// --- stored values ------------------------------------------------------------------------------

class SqliteConnectionTest : public testing::Test {
 protected:
  Connection& connection() { return office_.connection(); }

  // What reading a column gives, after `literal` was stored in it by somebody else.
  DbRaised ReadingStored(const std::string& column, const std::string& literal) {
    connection().Execute("delete from Anagrafica");
    connection().Execute("insert into Anagrafica (" + column + ") values (" + literal + ")");
    return DbRaisedBy(
        [&] { connection().Prepare("SELECT " + column + " FROM Anagrafica")->FetchAll(); });
  }

  DbOffice office_;
};

TEST_F(SqliteConnectionTest, AStoredValueThatDoesNotFitItsColumnIsNamed) {
  EXPECT_EQ(ReadingStored("DataNascita", "'31.12.1999'"),
            DbError("il valore \"31.12.1999\" nella colonna \"DataNascita\" non è una data "
                    "(AAAA-MM-GG HH:MM:SS); correggere la riga nel database"));
  EXPECT_EQ(ReadingStored("StatoCivile", "'sposato'"),
            DbError("il valore \"sposato\" nella colonna \"StatoCivile\" non è un numero intero; "
                    "correggere la riga nel database"));
  EXPECT_EQ(ReadingStored("Cambio", "'molto'"),
            DbError("il valore \"molto\" nella colonna \"Cambio\" non è un numero; correggere la "
                    "riga nel database"));
  EXPECT_EQ(ReadingStored("IsFisicaGiuridica", "2"),
            DbError("il valore \"2\" nella colonna \"IsFisicaGiuridica\" non è un bit (0 o 1); "
                    "correggere la riga nel database"));
  EXPECT_EQ(ReadingStored("DataNascita", "20240305").number, kDatabaseNumber);
  EXPECT_EQ(ReadingStored("DataNascita", "''").number, kDatabaseNumber);
  EXPECT_EQ(ReadingStored("StatoCivile", "1.5").number, kDatabaseNumber);
}

TEST_F(SqliteConnectionTest, AStoredDateWithoutATimeIsADate) {
  EXPECT_EQ(ReadingStored("DataNascita", "'1999-12-31'"), DbRaised{});
  EXPECT_EQ(office_.One("SELECT DataNascita FROM Anagrafica"),
            Value(DateTime{1999, 12, 31, 0, 0, 0}));
}

TEST_F(SqliteConnectionTest, AWholeNumberInAFractionColumnIsAFraction) {
  EXPECT_EQ(ReadingStored("Cambio", "2"), DbRaised{});
  EXPECT_EQ(office_.One("SELECT Cambio FROM Anagrafica"), Value(2.0));
}

TEST_F(SqliteConnectionTest, ValuesAreStoredSoThatAnyToolReadsThem) {
  connection().Insert("Anagrafica",
                      std::vector<NamedValue>{{"DataNascita", DateTime{2024, 3, 5, 9, 30, 0}},
                                              {"IsFisicaGiuridica", true},
                                              {"Cognome", Text("X")}});
  EXPECT_EQ(office_.One("SELECT '' || DataNascita || '|' || typeof(IsFisicaGiuridica) || "
                        "IsFisicaGiuridica || typeof(DataNascita) FROM Anagrafica WHERE Cognome = "
                        "'X'"),
            Text("2024-03-05 09:30:00|integer1text"));
}

TEST_F(SqliteConnectionTest, ATextKeepsANullCharacter) {
  const std::string text("a\0b", 3);
  connection().Insert("Anagrafica", std::vector<NamedValue>{{"Nome", text}});
  EXPECT_EQ(office_.One("SELECT Nome FROM Anagrafica WHERE ID_Ana > 1"), Value(text));
}

TEST_F(SqliteConnectionTest, AnExpressionIsTypedByItsValue) {
  EXPECT_EQ(office_.One("SELECT 1 + 1"), Whole(2));
  EXPECT_EQ(office_.One("SELECT 1 / 2.0"), Value(0.5));
  EXPECT_EQ(office_.One("SELECT 'a' || 'b'"), Text("ab"));
  EXPECT_EQ(office_.One("SELECT x'6162'"), Text("ab"));
  EXPECT_EQ(office_.One("SELECT NULL"), Value(Null{}));
}

// --- keys ---------------------------------------------------------------------------------------

TEST_F(SqliteConnectionTest, AKeyThatIsNotAssignedTellsRowsApartToo) {
  connection().Execute("create table Codici (Codice TEXT PRIMARY KEY, Testo TEXT)");
  const std::vector<ColumnInfo>& columns = connection().TableColumns("codici");
  EXPECT_FALSE(columns.at(0).identity);
  EXPECT_TRUE(columns.at(0).primaryKey);
  DbRecord record;
  record.Open(office_.database(), "SELECT * FROM Codici", kForChanges);
  record.recordset().AddNew();
  record.Set("Codice", Text("A"));
  record.Set("Testo", Text("uno"));
  record.recordset().Update();
  record.Set("Testo", Text("due"));
  record.recordset().Update();
  EXPECT_EQ(record.recordset().RecordCount(), 1U);
  EXPECT_EQ(office_.One("SELECT Testo FROM Codici"), Text("due"));
}

TEST_F(SqliteConnectionTest, AnInsertIntoATableWithoutIdentityGivesZero) {
  connection().Execute("create table Codici (Codice TEXT PRIMARY KEY)");
  EXPECT_EQ(connection().Insert("Codici", std::vector<NamedValue>{{"Codice", Text("A")}}), 0);
}

TEST_F(SqliteConnectionTest, AKeyOfSeveralColumnsMakesARowUnchangeable) {
  connection().Execute("create table Doppia (A INTEGER, B INTEGER, PRIMARY KEY (A, B))");
  DbRecord record;
  record.Open(office_.database(), "SELECT * FROM Doppia", kForChanges);
  EXPECT_EQ(DbRaisedBy([&] { record.recordset().AddNew(); }).number, kDatabaseNumber);
}

TEST_F(SqliteConnectionTest, NamesWithQuotesAndBlanksAreNamesLikeAnyOther) {
  connection().Execute("create table [a b] ([I D] INTEGER PRIMARY KEY, [order] TEXT)");
  DbRecord record;
  record.Open(office_.database(), "SELECT * FROM [a b]", kForChanges);
  record.recordset().AddNew();
  record.Set("order", Text("x"));
  record.recordset().Update();
  record.Set("order", Text("y"));
  record.recordset().Update();
  EXPECT_EQ(office_.One("SELECT \"order\" FROM \"a b\""), Text("y"));
}

// The engine's answer to a stranger who empties the log: SQLITE_BUSY while any statement is open.
int EmptyingTheLog(const fs::path& file) {
  sqlite3* other = nullptr;
  int code = sqlite3_open(SqliteFileName(file).c_str(), &other);
  // Only a connection that has read something knows that there is a log.
  if (code == SQLITE_OK)
    code = sqlite3_exec(other, "SELECT * FROM Utenti", nullptr, nullptr, nullptr);
  if (code == SQLITE_OK) {
    code = sqlite3_wal_checkpoint_v2(other, nullptr, SQLITE_CHECKPOINT_TRUNCATE, nullptr, nullptr);
  }
  sqlite3_close(other);
  return code;
}

// --- errors -------------------------------------------------------------------------------------

TEST_F(SqliteConnectionTest, WhatTheEngineRefusesIsQuoted) {
  EXPECT_EQ(DbRaisedBy([&] { connection().Prepare("SELECT Manca FROM Utenti"); }),
            DbError("il database ha rifiutato l'istruzione (no such column: Manca)"));
}

TEST_F(SqliteConnectionTest, ABrokenRuleOfTheTableIsQuoted) {
  const std::vector<NamedValue> values = {{"ID_Utente", Whole(2)}};
  EXPECT_EQ(DbRaisedBy([&] { connection().Insert("Utenti", values); }),
            DbError("la riga non rispetta una regola della tabella (UNIQUE constraint failed: "
                    "Utenti.ID_Utente)"));
}

TEST_F(SqliteConnectionTest, AfterAnErrorTheSameWriteWorksAgain) {
  const std::vector<NamedValue> taken = {{"ID_Utente", Whole(2)}};
  const std::vector<NamedValue> free = {{"ID_Utente", Whole(50)}};
  EXPECT_EQ(DbRaisedBy([&] { connection().Insert("Utenti", taken); }).number, kDatabaseNumber);
  EXPECT_EQ(connection().Insert("Utenti", free), 50);
}

TEST_F(SqliteConnectionTest, AColumnThatDoesNotExistIsNotTakenForAText) {
  EXPECT_EQ(
      DbRaisedBy([&] { connection().PrepareNative("SELECT \"Manca\" FROM Utenti", {}); }).number,
      kDatabaseNumber);
}

TEST_F(SqliteConnectionTest, ASelectAskedAgainSeesAColumnAddedMeanwhile) {
  const auto columns = [this] {
    return connection().PrepareNative("SELECT * FROM Utenti", {})->Columns().size();
  };
  const std::size_t before = columns();
  connection().Execute("ALTER TABLE Utenti ADD COLUMN Nuova TEXT");
  connection().PrepareNative("SELECT * FROM Utenti", {})->FetchAll();
  EXPECT_EQ(columns(), before + 1);
}

TEST_F(SqliteConnectionTest, ASelectThatIsKeptForItsNextUseOutlivesItsConnection) {
  auto connection = OpenSqlite(office_.file());
  auto query = connection->PrepareNative("SELECT ID_Utente FROM Utenti", {});
  connection.reset();
  EXPECT_FALSE(query->FetchAll().empty());
}

TEST_F(SqliteConnectionTest, ATransactionInsideATransactionIsAnError) {
  connection().Begin();
  EXPECT_EQ(DbRaisedBy([&] { connection().Begin(); }),
            DbError("il database ha rifiutato l'istruzione (cannot start a transaction within a "
                    "transaction)"));
  EXPECT_TRUE(connection().InTransaction());
}

// The engine would go on writing into the file that is gone.
TEST(SqliteFileThatIsGone, TakesNoWrite) {
  const DbTemporaryFolder folder;
  const std::filesystem::path file = folder / "studio.db";
  CreateSqliteDatabase(file, false);
  const auto connection = OpenSqlite(file);
  const std::vector<NamedValue> user = {{"NomeUtente", Text("A")}};
  connection->Begin();
  connection->Insert("Utenti", user);
  std::error_code kept;
  std::filesystem::remove(file, kept);
  if (kept) GTEST_SKIP() << "this system removes no file that is open: " << kept.message();
  const DbRaised gone = DbError(
      "il file del database è stato spostato, eliminato o sostituito mentre era aperto; "
      "chiudere Ordex, rimettere il file al suo posto e copiare di nuovo la pagina");
  EXPECT_EQ(DbRaisedBy([&] { connection->Commit(); }), gone);
  connection->Rollback();
  EXPECT_EQ(DbRaisedBy([&] { connection->Begin(); }), gone);
  EXPECT_EQ(DbRaisedBy([&] { connection->Insert("Utenti", user); }), gone);
  EXPECT_EQ(DbRaisedBy([&] { connection->Execute("DELETE FROM Utenti"); }), gone);
  EXPECT_EQ(DbRaisedBy([&] {
              connection->UpdateRow("Utenti", user, "ID_Utente", Value(std::int64_t{2}));
            }),
            gone);
}

TEST_F(SqliteConnectionTest, NothingKeepsTheLogFromBeingEmptied) {
  connection().Insert("Utenti", std::vector<NamedValue>{{"NomeUtente", Text("A")}});
  DbRecord record;
  record.Open(office_.database(), "SELECT * FROM Utenti", kForChanges);
  EXPECT_EQ(record.recordset().RecordCount(), 2U);
  record.Set("NomeUtente", Text("B"));
  record.recordset().Update();
  EXPECT_EQ(EmptyingTheLog(office_.file()), SQLITE_OK);
}

TEST_F(SqliteConnectionTest, AQueryThatFailedHalfwayDoesNotStayOpenEither) {
  connection().Execute("insert into Anagrafica (DataNascita) values ('ieri')");
  connection().Execute("insert into Anagrafica (DataNascita) values ('oggi')");
  const auto query = connection().Prepare("SELECT DataNascita FROM Anagrafica");
  EXPECT_EQ(DbRaisedBy([&] { query->FetchAll(); }).number, kDatabaseNumber);
  EXPECT_EQ(EmptyingTheLog(office_.file()), SQLITE_OK);
}

TEST_F(SqliteConnectionTest, AQueryOutlivesItsConnection) {
  auto other = OpenSqlite(office_.file());
  const auto query = other->Prepare("SELECT ID_Utente FROM Utenti");
  other.reset();
  EXPECT_EQ(query->FetchAll().size(), 1U);
  EXPECT_TRUE(query->Columns().at(0).identity);
}

TEST_F(SqliteConnectionTest, ATableThatIsMadeLaterIsSeen) {
  EXPECT_TRUE(connection().TableColumns("Nuova").empty());
  connection().Execute("create table Nuova (A INTEGER PRIMARY KEY)");
  EXPECT_EQ(connection().TableColumns("Nuova").size(), 1U);
}

TEST_F(SqliteConnectionTest, ATableThatChangesWhileItIsReadIsAnError) {
  const auto query = connection().Prepare("SELECT * FROM Utenti");
  EXPECT_EQ(query->Columns().size(), 3U);
  OpenSqlite(office_.file())->Execute("alter table Utenti add column Altro TEXT");
  EXPECT_EQ(DbRaisedBy([&] { query->FetchAll(); }),
            DbError("le colonne della tabella sono cambiate mentre la si leggeva; ripetere "
                    "l'operazione"));
}

TEST_F(SqliteConnectionTest, ManyRowsOfOneShapeAreAddedInOneTransaction) {
  connection().Begin();
  for (std::int64_t i = 1; i <= 10'000; ++i) {
    const std::vector<NamedValue> values = {{"ID_PraRel", Whole(1)}, {"Progressivo", Value(i)}};
    connection().Insert("EventiPraOrdex", values);
  }
  connection().Commit();
  EXPECT_EQ(office_.One("SELECT COUNT(*) * 100000 + MAX(Progressivo) FROM EventiPraOrdex"),
            Whole(1'000'010'000));
}

}  // namespace
}  // namespace ordex
