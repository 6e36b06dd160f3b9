// What the record object asks of its connection, and when.
#include "store/db/db_record.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/db_office.h"
#include "support/db_raised.h"
#include "support/fake_connection.h"

namespace ordex {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

class DbRecordTest : public testing::Test {
 protected:
  Database database() { return {fake_, office_.diagnostics()}; }

  DbOffice office_;
  FakeConnection fake_{office_.connection()};
  DbRecord record_;
};

TEST_F(DbRecordTest, TheHookHearsOfTheTextBeforeItRuns) {
  record_.Open(database(), "SELECT * FROM Utenti", kForReading);
  EXPECT_THAT(office_.diagnostics().sql, ElementsAre("SELECT * FROM Utenti"));
  Execute(database(), "Delete from EventiPraOrdex where ID_PraRel = 1");
  EXPECT_THAT(
      office_.diagnostics().sql,
      ElementsAre("SELECT * FROM Utenti", "Delete from EventiPraOrdex where ID_PraRel = 1"));
}

TEST_F(DbRecordTest, TheHookHearsOfATextThatTheEngineRefuses) {
  EXPECT_EQ(DbRaisedBy([&] { record_.Open(database(), "SELECT Manca FROM Utenti", 3); }).number,
            kDatabaseNumber);
  EXPECT_THAT(office_.diagnostics().sql, ElementsAre("SELECT Manca FROM Utenti"));
}

TEST_F(DbRecordTest, ANumberWithAnApostropheIsReportedAsItStandsAndThenRefused) {
  SqlText szSql("Select ID_Pra from Pratica where NumeroRegGenerale = ");
  szSql.AppendUndoubled("1' or '1'='1");
  const std::string text = "Select ID_Pra from Pratica where NumeroRegGenerale = '1' or '1'='1'";
  EXPECT_EQ(DbRaisedBy([&] { record_.Open(database(), szSql, kForReadingToo); }),
            DbError("interrogazione rifiutata: un valore letto dalla pagina contiene un apostrofo, "
                    "che ne cambierebbe il senso: " +
                    text));
  EXPECT_THAT(office_.diagnostics().sql, ElementsAre(text));
  EXPECT_TRUE(fake_.statements().empty());
}

TEST_F(DbRecordTest, OpeningPreparesAndFetchesNothing) {
  record_.Open(database(), "SELECT * FROM Utenti", kForReading);
  record_.recordset().Fields();
  EXPECT_THAT(fake_.statements(), ElementsAre("PREPARE SELECT * FROM Utenti"));
}

TEST_F(DbRecordTest, TheRowsAreFetchedOnceAndOnlyWhenTheyAreAskedFor) {
  record_.Open(database(), "SELECT * FROM Utenti", kForReading);
  EXPECT_EQ(record_.Get("NomeUtente"), Value(std::string("SUPERVISORE")));
  EXPECT_FALSE(record_.recordset().Eof());
  EXPECT_EQ(record_.recordset().RecordCount(), 1U);
  EXPECT_THAT(fake_.statements(),
              ElementsAre("PREPARE SELECT * FROM Utenti", "FETCH SELECT * FROM Utenti"));
}

TEST_F(DbRecordTest, AnErrorWhileReadingArisesAgainWhenAskedAgain) {
  record_.Open(database(), "SELECT * FROM Utenti", kForReading);
  fake_.FailOn("FETCH");
  EXPECT_EQ(DbRaisedBy([&] { record_.recordset().Eof(); }).number, kDatabaseNumber);
  EXPECT_EQ(record_.recordset().RecordCount(), 1U);
}

TEST_F(DbRecordTest, AddingEventsToACaseReadsNoneOfThem) {
  for (std::int64_t i = 1; i <= 50; ++i) {
    DbRecord record;
    record.Open(database(), "SELECT * from EventiPraOrdex where ID_PraRel = 1", kForChanges);
    record.recordset().AddNew();
    record.Set("ID_PraRel", std::int64_t{1});
    record.Set("Progressivo", i);
    record.recordset().Update();
    EXPECT_FALSE(IsNull(record.Get("ID_Evento")));
    EXPECT_EQ(record.Get("Progressivo"), Value(i));
  }
  EXPECT_EQ(fake_.Count("FETCH"), 0U);
  EXPECT_EQ(fake_.Count("INSERT EventiPraOrdex (ID_PraRel, Progressivo)"), 50U);
}

TEST_F(DbRecordTest, ANewRowIsReadAgainOnlyForAColumnThatWasNotSetAndOnlyOnce) {
  record_.Open(database(), "SELECT ID_Utente, NomeUtente, TitContabilita FROM Utenti", kForChanges);
  record_.recordset().AddNew();
  record_.Set("NomeUtente", std::string("ALTRA"));
  record_.recordset().Update();
  fake_.Forget();
  EXPECT_EQ(record_.Get("NomeUtente"), Value(std::string("ALTRA")));
  EXPECT_TRUE(fake_.statements().empty());
  EXPECT_EQ(record_.Get("TitContabilita"), Value(false));
  EXPECT_EQ(record_.Get("TitContabilita"), Value(false));
  EXPECT_THAT(fake_.statements(), ElementsAre(StartsWith("PREPARE SELECT \"ID_Utente\""),
                                              StartsWith("FETCH SELECT \"ID_Utente\"")));
}

TEST_F(DbRecordTest, ARowThatCouldNotBeAddedMayBeWrittenAgain) {
  record_.Open(database(), "SELECT * from EventiPraOrdex where ID_PraRel = 1", kForChanges);
  record_.recordset().AddNew();
  record_.Set("Data", std::string("x"));
  fake_.FailOn("INSERT");
  EXPECT_EQ(DbRaisedBy([&] { record_.recordset().Update(); }).number, kDatabaseNumber);
  record_.recordset().Update();
  EXPECT_EQ(office_.One("SELECT Data FROM EventiPraOrdex"), Value(std::string("x")));
}

TEST_F(DbRecordTest, WithoutAnOpenQueryThereIsNoRecordset) {
  const DbRaised wanted = DbError("nessuna interrogazione è aperta");
  EXPECT_EQ(DbRaisedBy([&] { record_.recordset(); }), wanted);
  record_.Open(database(), "SELECT * FROM Utenti", kForReading);
  record_.Close();
  EXPECT_EQ(DbRaisedBy([&] { record_.Get("NomeUtente"); }), wanted);
}

TEST_F(DbRecordTest, AFailedOpeningLeavesNothingOpen) {
  record_.Open(database(), "SELECT * FROM Utenti", kForReading);
  EXPECT_EQ(DbRaisedBy([&] { record_.Open(database(), "SELECT * FROM Manca", 1); }).number,
            kDatabaseNumber);
  EXPECT_EQ(DbRaisedBy([&] { record_.recordset(); }).number, kDatabaseNumber);
}

// --- the stand-in itself ------------------------------------------------------------------------

TEST(FakeConnection, TheStatementWithTheGivenNumberFailsOnceAndDoesNothing) {
  DbOffice office;
  FakeConnection fake(office.connection());
  fake.FailAt(2);
  const std::vector<NamedValue> values = {{"Progressivo", std::int64_t{1}}};
  fake.Insert("EventiPraOrdex", values);
  EXPECT_EQ(DbRaisedBy([&] { fake.Insert("EventiPraOrdex", values); }),
            DbError("errore chiesto dalla prova"));
  fake.Insert("EventiPraOrdex", values);
  EXPECT_EQ(office.One("SELECT COUNT(*) FROM EventiPraOrdex"), Value(std::int64_t{2}));
  EXPECT_EQ(fake.Count("INSERT"), 3U);
}

TEST(FakeConnection, AFailureMayEndTheTransaction) {
  DbOffice office;
  FakeConnection fake(office.connection());
  fake.FailOn("EXECUTE", {MakeError(ErrorNumber::kDatabase, "disco pieno"), true});
  fake.Begin();
  EXPECT_EQ(DbRaisedBy([&] { fake.Execute("delete from Utenti"); }), DbError("disco pieno"));
  EXPECT_FALSE(fake.InTransaction());
}

}  // namespace
}  // namespace ordex
