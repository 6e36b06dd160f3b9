// What the driver of ODBC does beyond the contract, over the embedded engine's ODBC driver.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "store/db/db_record.h"
#include "store/db/odbc_catalog.h"
#include "store/db/odbc_connection.h"
#include "store/db/open_connection.h"
#include "store/db/sqlite_connection.h"
#include "store/db/sqlite_create.h"
#include "support/db_office.h"
#include "support/db_raised.h"
#include "support/db_temporary_folder.h"

namespace ordex {
namespace {

class OdbcConnectionTest : public testing::Test {
 protected:
  OdbcConnectionTest() {
    CreateSqliteDatabase(folder_ / "studio.db", false);
    connection_ =
        OpenConnection("Driver={SQLite3};Data Source=file:studio.db;Timeout=20", folder_.path());
  }

  // The same file without ODBC.
  std::unique_ptr<Connection> Plain() const { return OpenSqlite(folder_ / "studio.db"); }

  std::int64_t AddCase(const Value& subject) {
    const std::vector<NamedValue> values = {{"Oggetto", subject}};
    return connection_->Insert("Pratica", values);
  }
  Value Subject(std::int64_t id) {
    return connection_->Prepare("SELECT Oggetto FROM Pratica WHERE ID_Pra = " + std::to_string(id))
        ->FetchAll()
        .at(0)
        .at(0);
  }

  DbTemporaryFolder folder_;
  std::unique_ptr<Connection> connection_;
};

std::string Repeated(std::string_view piece, std::size_t times) {
  std::string text;
  for (std::size_t i = 0; i < times; ++i) text.append(piece);
  return text;
}

TEST_F(OdbcConnectionTest, LongTextsComeBackWhole) {
  // Around the edges of the pieces that they are read in, and far beyond.
  for (const std::size_t length : {2046U, 2047U, 2048U, 4000U, 4001U, 4094U, 70000U}) {
    const std::string text = Repeated("x", length - 1) + "è";
    EXPECT_EQ(Subject(AddCase(text)), Value(text)) << length;
  }
}

TEST_F(OdbcConnectionTest, CharactersBeyondTheBasicPlaneSurviveAlsoAcrossPieces) {
  const std::string text = "a" + Repeated("😀", 3000);
  EXPECT_EQ(Subject(AddCase(text)), Value(text));
}

TEST_F(OdbcConnectionTest, AnEmptyTextStaysOneAndNullStaysNull) {
  EXPECT_EQ(Subject(AddCase(std::string())), Value(std::string()));
  EXPECT_EQ(Subject(AddCase(Null{})), Value(Null{}));
}

TEST_F(OdbcConnectionTest, BracesAndQuestionMarksInALiteralAreNothingSpecial) {
  const std::string text = "{fn UCASE('a')} {d '2024-01-01'} ? {";
  const std::int64_t id = AddCase(text);
  const auto rows = connection_
                        ->Prepare(
                            "SELECT ID_Pra FROM Pratica WHERE Oggetto = '{fn "
                            "UCASE(''a'')} {d ''2024-01-01''} ? {'")
                        ->FetchAll();
  EXPECT_EQ(rows, (std::vector<Row>{{Value(id)}}));
}

TEST_F(OdbcConnectionTest, AValueIsStoredAsTheEmbeddedDriverStoresIt) {
  const std::vector<NamedValue> values = {{"Cognome", std::string("ȘTEFĂNESCU")},
                                          {"IsFisicaGiuridica", true},
                                          {"Cambio", 1936.27},
                                          {"StatoCivile", std::int64_t{1}},
                                          {"DataNascita", DateTime{1987, 9, 14, 9, 30, 5}},
                                          {"Nome", Null{}}};
  connection_->Insert("Anagrafica", values);
  Plain()->Insert("Anagrafica", values);
  const std::string select =
      "SELECT Cognome, typeof(Cognome), IsFisicaGiuridica, typeof(IsFisicaGiuridica), Cambio, "
      "typeof(Cambio), typeof(StatoCivile), CAST(DataNascita AS TEXT), typeof(DataNascita), "
      "typeof(Nome) FROM Anagrafica WHERE ID_Ana = ";
  const auto row = [&](int id) {
    return Plain()->PrepareNative(select + std::to_string(id), {})->FetchAll().at(0);
  };
  EXPECT_EQ(row(2), row(3));
}

TEST_F(OdbcConnectionTest, ALargeNumberIsNotCut) {
  const std::vector<Value> parameters = {std::int64_t{9007199254740993}};
  EXPECT_EQ(
      connection_->PrepareNative("SELECT CAST(? AS TEXT)", parameters)->FetchAll().at(0).at(0),
      Value(std::string("9007199254740993")));
}

TEST_F(OdbcConnectionTest, AQueryOutlivesTheConnection) {
  const auto query = connection_->Prepare("SELECT ID_Utente FROM Utenti");
  connection_.reset();
  EXPECT_EQ(query->FetchAll().size(), 1U);
}

TEST_F(OdbcConnectionTest, AStatementThatTouchesNoRowSucceeds) {
  connection_->Execute("Delete from EventiPraOrdex where ID_PraRel = 999");
}

TEST_F(OdbcConnectionTest, ATransactionThatTheEngineEndedIsRecognised) {
  Plain()->Execute("CREATE TABLE Unico (A INT UNIQUE ON CONFLICT ROLLBACK)");
  const std::vector<NamedValue> one = {{"A", std::int64_t{1}}};
  connection_->Insert("Unico", one);
  connection_->Begin();
  AddCase(std::string("persa"));
  EXPECT_EQ(DbRaisedBy([&] { connection_->Insert("Unico", one); }).number, kDatabaseNumber);
  EXPECT_FALSE(connection_->InTransaction());
  EXPECT_EQ(Plain()->Prepare("SELECT ID_Pra FROM Pratica")->FetchAll().size(), 1U);
}

TEST_F(OdbcConnectionTest, ATransactionOutlivesAnErrorThatDoesNotEndIt) {
  connection_->Begin();
  AddCase(std::string("resta"));
  EXPECT_EQ(DbRaisedBy([&] { connection_->Prepare("SELECT Manca FROM Pratica"); }).number,
            kDatabaseNumber);
  EXPECT_TRUE(connection_->InTransaction());
  connection_->Commit();
  EXPECT_EQ(Plain()->Prepare("SELECT ID_Pra FROM Pratica")->FetchAll().size(), 2U);
}

TEST_F(OdbcConnectionTest, ALockOfAnotherProgramIsToldAndNoTransactionIsLeft) {
  const auto other = Plain();
  other->Begin();
  EXPECT_EQ(DbRaisedBy([&] { connection_->Begin(); }),
            DbError("il database è bloccato da un altro programma; riprovare tra poco"));
  EXPECT_FALSE(connection_->InTransaction());
  other->Commit();
  connection_->Begin();
  connection_->Commit();
}

TEST_F(OdbcConnectionTest, TheTablesAreTheOnesThatTheEmbeddedDriverSees) {
  const auto plain = Plain();
  for (const char* table :
       {"Pratica", "Utenti", "Anagrafica", "PraOrdex", "EventiPraOrdex", "SCADENZE"}) {
    const std::vector<ColumnInfo>& wanted = plain->TableColumns(table);
    const std::vector<ColumnInfo>& found = connection_->TableColumns(table);
    ASSERT_EQ(found.size(), wanted.size()) << table;
    for (std::size_t i = 0; i < found.size(); ++i) {
      EXPECT_EQ(found[i].name, wanted[i].name);
      EXPECT_EQ(found[i].type, wanted[i].type) << found[i].name;
      EXPECT_EQ(found[i].size, wanted[i].size) << found[i].name;
      EXPECT_EQ(found[i].table, wanted[i].table) << found[i].name;
      EXPECT_EQ(found[i].identity, wanted[i].identity) << found[i].name;
      EXPECT_EQ(found[i].primaryKey, wanted[i].primaryKey) << found[i].name;
    }
  }
}

TEST(DescribeType, WhatSqlServerReportsOfItsColumns) {
  const auto is = [](SQLSMALLINT type, SQLULEN size, SQLSMALLINT digits, ColumnType wanted,
                     std::size_t wantedSize) {
    const OdbcResultColumn found = DescribeType(type, size, digits);
    EXPECT_EQ(found.type, wanted) << type;
    EXPECT_EQ(found.size, wantedSize) << type;
  };
  is(SQL_BIT, 1, 0, ColumnType::kBit, 0);
  is(SQL_TINYINT, 3, 0, ColumnType::kInteger, 1);
  is(SQL_SMALLINT, 5, 0, ColumnType::kInteger, 2);
  is(SQL_INTEGER, 10, 0, ColumnType::kInteger, 4);
  is(SQL_BIGINT, 19, 0, ColumnType::kInteger, 8);
  is(SQL_DECIMAL, 19, 4, ColumnType::kReal, 0);     // MONEY
  is(SQL_NUMERIC, 18, 0, ColumnType::kInteger, 8);  // NUMERIC(18,0), an old identity
  is(SQL_NUMERIC, 38, 0, ColumnType::kReal, 0);     // SCOPE_IDENTITY()
  is(SQL_FLOAT, 53, 0, ColumnType::kReal, 0);
  is(SQL_TYPE_TIMESTAMP, 16, 0, ColumnType::kDate, 0);  // SMALLDATETIME
  is(SQL_TYPE_TIMESTAMP, 23, 3, ColumnType::kDate, 0);  // DATETIME
  is(SQL_TYPE_DATE, 10, 0, ColumnType::kDate, 0);
  is(SQL_WVARCHAR, 200, 0, ColumnType::kText, 200);
  is(SQL_VARCHAR, 50, 0, ColumnType::kText, 50);
  is(SQL_WVARCHAR, 0, 0, ColumnType::kText, 0);               // NVARCHAR(MAX)
  is(SQL_WLONGVARCHAR, 1073741823, 0, ColumnType::kText, 0);  // NTEXT
}

}  // namespace
}  // namespace ordex
