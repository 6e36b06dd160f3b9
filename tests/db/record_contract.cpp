// The record object over each driver.
#include "connection_contract.h"
#include "store/db/db_record.h"
#include "support/db_raised.h"
#include "support/fake_connection.h"

namespace ordex {

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(RecordContract);

namespace {

Value Whole(std::int64_t number) {
  return number;
}

Value Text(const char* text) {
  return std::string(text);
}

constexpr const char* kNobodysCase = "SELECT * FROM Pratica WHERE Id_Pra = 0";

// --- opening and reading ------------------------------------------------------------------------

TEST_P(RecordContract, EveryModeGivesAnExactCount) {
  AddEvent(1, 1);
  AddEvent(1, 2);
  for (const int mode : {1, 2, 3}) {
    DbRecord record;
    record.Open(database(), "SELECT * from EventiPraOrdex where ID_PraRel = 1", mode);
    EXPECT_EQ(record.recordset().RecordCount(), 2U);
    EXPECT_EQ(record.recordset().RecordCount(), 2U);
  }
}

TEST_P(RecordContract, TwoMatchesCountAsTwoAndTheFirstRowIsCurrent) {
  AddEvent(7, 1);
  AddEvent(7, 2);
  DbRecord record;
  record.Open(database(), "SELECT * from EventiPraOrdex where ID_PraRel = 7 order by Progressivo",
              kForReading);
  EXPECT_EQ(record.recordset().RecordCount(), 2U);
  EXPECT_EQ(record.Get("Progressivo"), Whole(1));
}

TEST_P(RecordContract, TheRowsAreWalkedToTheirEnd) {
  AddEvent(7, 1);
  AddEvent(7, 2);
  DbRecord record;
  record.Open(database(), "SELECT * from EventiPraOrdex where ID_PraRel = 7 order by Progressivo",
              kForReading);
  std::string seen;
  for (; !record.recordset().Eof(); record.recordset().MoveNext()) {
    seen += ToText(record.Get("Progressivo")) + " ";
  }
  EXPECT_EQ(seen, "1 2 ");
  EXPECT_EQ(DbRaisedBy([&] { record.recordset().MoveNext(); }).number, kDatabaseNumber);
}

TEST_P(RecordContract, AnEmptyResultIsAtItsEndAndHasNoField) {
  DbRecord record;
  record.Open(database(), kNobodysCase, kForChanges);
  EXPECT_TRUE(record.recordset().Eof());
  EXPECT_EQ(record.recordset().RecordCount(), 0U);
  const DbRaised wanted = DbError("non c'è una riga corrente: il risultato è vuoto o finito");
  EXPECT_EQ(DbRaisedBy([&] { record.Get("ID_Pra"); }), wanted);
  EXPECT_EQ(DbRaisedBy([&] { record.Set("Sezione", Text("x")); }), wanted);
}

TEST_P(RecordContract, ColumnsAreFoundInAnyLetterCase) {
  DbRecord record;
  record.Open(database(), "SELECT * FROM Utenti", kForReading);
  EXPECT_EQ(record.Get("nomeutente"), Text("SUPERVISORE"));
  EXPECT_EQ(record.Get("NOMEUTENTE"), Text("SUPERVISORE"));
}

TEST_P(RecordContract, AColumnThatIsNotThereIsNamed) {
  DbRecord record;
  record.Open(database(), "SELECT * FROM Utenti", kForChanges);
  const DbRaised wanted = DbError("la colonna \"Manca\" non è nel risultato dell'interrogazione");
  EXPECT_EQ(DbRaisedBy([&] { record.Get("Manca"); }), wanted);
  EXPECT_EQ(DbRaisedBy([&] { record.Set("Manca", Text("x")); }), wanted);
}

TEST_P(RecordContract, TheFieldsAreNamedAsTheTableDefinesThemInItsOrder) {
  DbRecord record;
  record.Open(database(), "SELECT * from PraOrdex where ID_PraRel = 1", kForChanges);
  const std::vector<ColumnInfo>& fields = record.recordset().Fields();
  const std::vector<ColumnInfo>& table = connection().TableColumns("PraOrdex");
  ASSERT_EQ(fields.size(), table.size());
  for (std::size_t i = 0; i < fields.size(); ++i) EXPECT_EQ(fields[i].name, table[i].name);
  EXPECT_EQ(fields[0].name, "ID_PraOrdex");
  EXPECT_EQ(fields[1].name, "ID_PraRel");
}

TEST_P(RecordContract, TheHighestNumberOfAnEmptyTableIsNull) {
  connection().Execute("delete from Pratica");
  DbRecord record;
  record.Open(database(), "SELECT MAX(NumPos) AS PosMax FROM Pratica", kForChanges);
  EXPECT_EQ(record.recordset().RecordCount(), 1U);
  EXPECT_EQ(record.Get("PosMax"), Value(Null{}));
  EXPECT_EQ(DbRaisedBy([&] { AsInt32(record.Get("PosMax")); }).number, 94);
}

TEST_P(RecordContract, UsersWhoKeepTheBooksAreFoundByTheirBit) {
  connection().Insert(
      "Utenti", std::vector<NamedValue>{{"NomeUtente", Text("ALTRA")}, {"TitContabilita", false}});
  DbRecord record;
  record.Open(database(), "Select ID_Utente, NomeUtente from Utenti where TitContabilita = 'TRUE'",
              kForReading);
  EXPECT_EQ(record.recordset().RecordCount(), 1U);
  EXPECT_EQ(record.Get("ID_Utente"), Whole(2));
}

TEST_P(RecordContract, WhatIsReadStandsAlsoWhenTheTableChangesAfterwards) {
  AddEvent(1, 1);
  DbRecord record;
  record.Open(database(), "SELECT * from EventiPraOrdex where ID_PraRel = 1", kForReading);
  EXPECT_EQ(record.recordset().RecordCount(), 1U);
  Execute(database(), "Delete from EventiPraOrdex where ID_PraRel = 1");
  EXPECT_EQ(record.recordset().RecordCount(), 1U);
  EXPECT_EQ(record.Get("Progressivo"), Whole(1));
}

TEST_P(RecordContract, NothingIsReadBeforeItIsAskedFor) {
  DbRecord record;
  record.Open(database(), "SELECT * from EventiPraOrdex where ID_PraRel = 1", kForReading);
  record.recordset().Fields();
  AddEvent(1, 1);
  EXPECT_EQ(record.recordset().RecordCount(), 1U);
}

// --- adding -------------------------------------------------------------------------------------

TEST_P(RecordContract, ANewRowIsCurrentAndItsIdentityCanBeRead) {
  DbRecord record;
  record.Open(database(), kNobodysCase, kForChanges);
  record.recordset().AddNew();
  record.Set("NumPos", Whole(12));
  record.Set("NumeroRegGenerale", Text("12/2024"));
  record.recordset().Update();
  const std::string id = ToText(record.Get("ID_Pra"));
  EXPECT_EQ(Rows("SELECT NumPos, NumeroRegGenerale FROM Pratica WHERE ID_Pra = " + id),
            (std::vector<Row>{{Whole(12), Text("12/2024")}}));
  EXPECT_EQ(record.Get("NumeroRegGenerale"), Text("12/2024"));
  EXPECT_FALSE(record.recordset().Eof());
}

TEST_P(RecordContract, AColumnOfANewRowThatWasNotSetHoldsWhatTheDatabaseGaveIt) {
  DbRecord record;
  record.Open(database(), "SELECT * FROM SCADENZE WHERE ID_Scadenza = 0", kForChanges);
  record.recordset().AddNew();
  record.Set("Scadenza", Text("UDIENZA"));
  record.recordset().Update();
  EXPECT_EQ(record.Get("IsOrdex"), Value(false));
  EXPECT_EQ(record.Get("Parti"), Value(Null{}));
  EXPECT_EQ(record.Get("Scadenza"), Text("UDIENZA"));
}

TEST_P(RecordContract, AColumnOfARowBeingAddedGivesTheConvertedValue) {
  DbRecord record;
  record.Open(database(), "SELECT * FROM SCADENZE WHERE ID_Scadenza = 0", kForChanges);
  record.recordset().AddNew();
  record.Set("Data_End", Text("10/06/2024"));
  EXPECT_EQ(record.Get("Data_End"), Value(DateTime{2024, 6, 10, 0, 0, 0}));
  EXPECT_EQ(record.Get("Parti"), Value(Null{}));
}

TEST_P(RecordContract, ARowBeingAddedIsDroppedWhenTheRecordIsClosedOrReleased) {
  {
    DbRecord record;
    record.Open(database(), kNobodysCase, kForChanges);
    record.recordset().AddNew();
    record.Set("NumPos", Whole(1));
    record.Close();
    record.Open(database(), kNobodysCase, kForChanges);
    record.recordset().AddNew();
    record.Set("NumPos", Whole(1));
  }
  EXPECT_EQ(Rows("SELECT ID_Pra FROM Pratica").size(), 1U);
}

TEST_P(RecordContract, AddedRowsCountOnceWhetherTheQuerySelectsThemOrNot) {
  AddEvent(7, 1);
  DbRecord record;
  record.Open(database(), "SELECT * from EventiPraOrdex where ID_PraRel = 7", kForChanges);
  for (const std::int64_t ID_PraRel : {7, 8}) {
    record.recordset().AddNew();
    record.Set("ID_PraRel", ID_PraRel);
    record.recordset().Update();
  }
  EXPECT_EQ(record.recordset().RecordCount(), 3U);
  EXPECT_EQ(record.Get("ID_PraRel"), Whole(8));
  record.recordset().AddNew();
  record.Set("ID_PraRel", Whole(9));
  record.recordset().Update();
  EXPECT_EQ(record.recordset().RecordCount(), 4U);
  record.recordset().MoveNext();
  EXPECT_TRUE(record.recordset().Eof());
}

TEST_P(RecordContract, ANewRowMayBeChangedAgain) {
  DbRecord record;
  record.Open(database(), "SELECT * from EventiPraOrdex where ID_PraRel = 0", kForChanges);
  record.recordset().AddNew();
  record.Set("Data", Text("a"));
  record.recordset().Update();
  record.Set("Data", Text("b"));
  record.recordset().Update();
  EXPECT_EQ(Rows("SELECT Data FROM EventiPraOrdex"), (std::vector<Row>{{Text("b")}}));
}

TEST_P(RecordContract, AddingTwiceWithoutUpdateWritesTheFirstRowToo) {
  DbRecord record;
  record.Open(database(), "SELECT * from EventiPraOrdex where ID_PraRel = 0", kForChanges);
  for (const std::int64_t number : {1, 2}) {
    record.recordset().AddNew();
    record.Set("Progressivo", number);
  }
  record.recordset().Update();
  EXPECT_EQ(Rows("SELECT Progressivo FROM EventiPraOrdex ORDER BY Progressivo"),
            (std::vector<Row>{{Whole(1)}, {Whole(2)}}));
}

TEST_P(RecordContract, ARowThatTheEngineRefusesLeavesNothingBehind) {
  DbRecord record;
  record.Open(database(), kNobodysCase, kForChanges);
  record.recordset().AddNew();
  EXPECT_EQ(DbRaisedBy([&] { record.Set("NumPos", Text("abc")); }).number, 13);
  record.Close();
  EXPECT_EQ(Rows("SELECT ID_Pra FROM Pratica").size(), 1U);
}

// --- changing -----------------------------------------------------------------------------------

TEST_P(RecordContract, AChangedColumnIsWrittenAndTheOthersStay) {
  DbRecord record;
  record.Open(database(), "SELECT * FROM Pratica WHERE Id_Pra = 1", kForChanges);
  record.Set("Sezione", Text("Prima"));
  EXPECT_EQ(record.Get("Sezione"), Text("Prima"));
  record.recordset().Update();
  EXPECT_EQ(record.Get("Sezione"), Text("Prima"));
  EXPECT_EQ(Rows("SELECT Sezione, ID_Contab FROM Pratica WHERE ID_Pra = 1"),
            (std::vector<Row>{{Text("Prima"), Whole(2)}}));
}

TEST_P(RecordContract, AChangeThatWasNotWrittenIsLost) {
  DbRecord record;
  record.Open(database(), "SELECT * FROM Pratica WHERE Id_Pra = 1", kForChanges);
  record.Set("Sezione", Text("Prima"));
  record.Close();
  EXPECT_EQ(One("SELECT Sezione FROM Pratica WHERE ID_Pra = 1"), Value(Null{}));
}

TEST_P(RecordContract, MovingOnWritesTheChangesOfTheRow) {
  AddEvent(1, 1);
  AddEvent(1, 2);
  DbRecord record;
  record.Open(database(), "SELECT * from EventiPraOrdex order by Progressivo", kForChanges);
  record.Set("Data", Text("x"));
  record.recordset().MoveNext();
  EXPECT_EQ(record.Get("Data"), Value(Null{}));
  EXPECT_EQ(Rows("SELECT Data FROM EventiPraOrdex ORDER BY Progressivo"),
            (std::vector<Row>{{Text("x")}, {Null{}}}));
}

TEST_P(RecordContract, OnlyTheColumnsWhoseValueDiffersAreWritten) {
  FakeConnection fake(connection());
  DbRecord record;
  record.Open({fake, diagnostics()}, "SELECT * FROM Pratica WHERE Id_Pra = 1", kForChanges);
  record.Set("NumPos", Text("0"));  // what it holds already, as a number
  record.Set("Sezione", Text("Prima"));
  record.Set("Fk_Gruppo", Null{});
  record.recordset().Update();
  EXPECT_EQ(fake.statements().back(), "UPDATE Pratica (Sezione)");
}

TEST_P(RecordContract, WithNothingChangedNothingIsWritten) {
  FakeConnection fake(connection());
  DbRecord record;
  record.Open({fake, diagnostics()}, "SELECT * FROM Pratica WHERE Id_Pra = 1", kForChanges);
  record.recordset().Update();
  record.Set("NumPos", Whole(0));
  record.recordset().Update();
  EXPECT_EQ(fake.Count("UPDATE"), 0U);
}

TEST_P(RecordContract, AValueSetBackToWhatItWasIsNoChange) {
  FakeConnection fake(connection());
  DbRecord record;
  record.Open({fake, diagnostics()}, "SELECT * FROM Pratica WHERE Id_Pra = 1", kForChanges);
  record.Set("NumPos", Whole(5));
  record.Set("NumPos", Whole(0));
  record.recordset().Update();
  EXPECT_EQ(fake.Count("UPDATE"), 0U);
}

TEST_P(RecordContract, ARowThatIsGoneMeanwhileIsAnError) {
  const std::int64_t id = AddEvent(7, 1);
  DbRecord record;
  record.Open(database(), "SELECT * from EventiPraOrdex where ID_PraRel = 7", kForChanges);
  record.Set("Data", Text("x"));
  Execute(database(), "Delete from EventiPraOrdex where ID_PraRel = 7");
  EXPECT_EQ(
      DbRaisedBy([&] { record.recordset().Update(); }),
      DbError("la riga non esiste più nella tabella \"EventiPraOrdex\" (ID_Evento " +
              std::to_string(id) + "): un altro programma l'ha cancellata; ripetere l'operazione"));
}

TEST_P(RecordContract, ATextTooLongForItsColumnIsAnErrorAndNothingIsWritten) {
  DbRecord record;
  record.Open(database(), "SELECT * FROM SCADENZE WHERE ID_Scadenza = 0", kForChanges);
  record.recordset().AddNew();
  EXPECT_EQ(DbRaisedBy([&] { record.Set("Scadenza", std::string(201, 'x')); }),
            DbError("il testo \"" + std::string(60, 'x') +
                    "…\" ha 201 caratteri, la colonna \"Scadenza\" ne contiene al più 200"));
  record.Set("Scadenza", std::string(200, 'x'));
  record.recordset().Update();
  EXPECT_EQ(One("SELECT Scadenza FROM SCADENZE"), Value(std::string(200, 'x')));
}

TEST_P(RecordContract, AnAgendaEntryIsFoundByBothDateForms) {
  const bool unicode = GetParam().unicodeLetterCase;
  const std::string scadenza =
      std::string("Memoria \"conclusionale\" perch") + (unicode ? "é" : "e'");
  const std::string looked_for =
      std::string("\"MEMORIA \"\"CONCLUSIONALE\"\" PERCH") + (unicode ? "É\"" : "E'\"");
  DbRecord record;
  record.Open(database(), "SELECT * FROM SCADENZE WHERE ID_Scadenza = 0", kForChanges);
  record.recordset().AddNew();
  record.Set("Scadenza", scadenza);
  record.Set("Data_End", Text("10/06/2024"));
  record.Set("Codice_Pra", Whole(12));
  record.Set("Parti", Text("ROSSI \\ D'AMICO"));
  record.Set("IsOrdex", true);
  record.recordset().Update();
  EXPECT_EQ(Rows("SELECT * from SCADENZE where  Data_End =#06/10/2024# and Codice_Pra = 12 and "
                 "Parti = \"ROSSI \\ D'AMICO\" and ucase(Scadenza) = " +
                 looked_for)
                .size(),
            1U);
  EXPECT_EQ(Rows("select * from SCADENZE where  Data_End =" + FormattaDataSql("10/06/2024") +
                 " and Codice_Pra = 12 and IsUdienza = 'TRUE' and IsOrdex = 'TRUE'")
                .size(),
            0U);
  EXPECT_EQ(Rows("select * from SCADENZE where  Data_End =" + FormattaDataSql("10/06/2024") +
                 " and Codice_Pra = 12 and IsUdienza = 'FALSE' and IsOrdex = 'TRUE'")
                .size(),
            1U);
}

// --- what cannot be changed ---------------------------------------------------------------------

TEST_P(RecordContract, AResultOpenedForReadingCannotBeChanged) {
  const DbRaised wanted =
      DbError("il risultato è aperto in sola lettura (per scrivere serve il modo 3)");
  for (const int mode : {kForReading, kForReadingToo}) {
    DbRecord record;
    record.Open(database(), "SELECT * FROM Pratica", mode);
    EXPECT_EQ(DbRaisedBy([&] { record.recordset().AddNew(); }), wanted);
    record.Set("Sezione", Text("x"));
    EXPECT_EQ(DbRaisedBy([&] { record.recordset().Update(); }), wanted);
  }
}

TEST_P(RecordContract, AResultOfSeveralTablesCannotBeChanged) {
  DbRecord record;
  record.Open(database(),
              "SELECT * from Pratica inner join Utenti on Pratica.ID_Contab = Utenti.ID_Utente",
              kForChanges);
  const DbRaised wanted =
      DbError("il risultato non si può modificare: viene da più tabelle (\"Pratica\", \"Utenti\")");
  EXPECT_EQ(DbRaisedBy([&] { record.recordset().AddNew(); }), wanted);
  record.Set("Sezione", Text("x"));
  EXPECT_EQ(DbRaisedBy([&] { record.recordset().Update(); }), wanted);
}

TEST_P(RecordContract, AResultWithoutTheKeyCannotBeChanged) {
  DbRecord record;
  record.Open(database(), "SELECT Sezione FROM Pratica WHERE ID_Pra = 1", kForChanges);
  const DbRaised wanted = DbError(
      "il risultato non si può modificare: tra le colonne lette manca la chiave della tabella");
  EXPECT_EQ(DbRaisedBy([&] { record.recordset().AddNew(); }), wanted);
  record.Set("Sezione", Text("x"));
  EXPECT_EQ(DbRaisedBy([&] { record.recordset().Update(); }), wanted);
}

TEST_P(RecordContract, TheIdentityCannotBeWritten) {
  DbRecord record;
  record.Open(database(), kNobodysCase, kForChanges);
  record.recordset().AddNew();
  record.Set("ID_Pra", Whole(77));
  EXPECT_EQ(DbRaisedBy([&] { record.recordset().Update(); }),
            DbError("la colonna \"ID_Pra\" è assegnata dal database e non si può scrivere"));
}

TEST_P(RecordContract, ACalculatedColumnCannotBeWritten) {
  DbRecord record;
  record.Open(database(), "SELECT ID_Pra, NumPos + 1 AS Poi FROM Pratica", kForChanges);
  record.Set("Poi", Text("7"));
  EXPECT_EQ(DbRaisedBy([&] { record.recordset().Update(); }),
            DbError("la colonna \"Poi\" è calcolata e non si può scrivere"));
}

}  // namespace
}  // namespace ordex
