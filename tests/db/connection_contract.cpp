#include "connection_contract.h"

#include "support/db_raised.h"

namespace ordex {

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(ConnectionContract);

namespace {

Value Whole(std::int64_t number) {
  return number;
}

Value Text(const char* text) {
  return std::string(text);
}

// --- reading ------------------------------------------------------------------------------------

TEST_P(ConnectionContract, TheFixedRowsAreThere) {
  EXPECT_EQ(Rows("SELECT ID_Utente, NomeUtente, TitContabilita FROM Utenti"),
            (std::vector<Row>{{Whole(2), Text("SUPERVISORE"), true}}));
}

TEST_P(ConnectionContract, AQueryMayBeFetchedTwice) {
  const auto query = connection().Prepare("SELECT ID_Ana FROM Anagrafica");
  EXPECT_EQ(query->FetchAll().size(), 1U);
  EXPECT_EQ(query->FetchAll().size(), 1U);
}

TEST_P(ConnectionContract, ColumnsComeTypedAsTheyAreDeclared) {
  const auto query = connection().Prepare(
      "SELECT ID_Scadenza, Scadenza, Data_End, IsUdienza, Parti FROM SCADENZE");
  const std::vector<ColumnInfo>& columns = query->Columns();
  ASSERT_EQ(columns.size(), 5U);
  EXPECT_EQ(columns[0].name, "ID_Scadenza");
  EXPECT_EQ(columns[0].type, ColumnType::kInteger);
  EXPECT_EQ(columns[0].size, 4U);
  EXPECT_TRUE(columns[0].identity);
  EXPECT_TRUE(columns[0].primaryKey);
  EXPECT_EQ(columns[1].type, ColumnType::kText);
  EXPECT_EQ(columns[1].size, 200U);
  EXPECT_FALSE(columns[1].identity);
  EXPECT_EQ(columns[2].type, ColumnType::kDate);
  EXPECT_EQ(columns[3].type, ColumnType::kBit);
  EXPECT_EQ(columns[4].type, ColumnType::kText);
  EXPECT_EQ(columns[4].size, 0U);
  for (const ColumnInfo& column : columns) EXPECT_EQ(column.table, "SCADENZE");
}

TEST_P(ConnectionContract, AnExpressionStemsFromNoTableAndIsTypedByItsValue) {
  const auto query = connection().Prepare("SELECT MAX(NumPos) AS PosMax FROM Pratica");
  EXPECT_EQ(query->Columns().at(0).name, "PosMax");
  EXPECT_EQ(query->Columns().at(0).table, "");
  EXPECT_EQ(query->FetchAll().at(0).at(0), Whole(0));
}

TEST_P(ConnectionContract, AColumnUnderAnotherNameCannotBeWrittenSoItStemsFromNoTable) {
  const auto query = connection().Prepare("SELECT ID_Ana AS Altro FROM Anagrafica");
  EXPECT_EQ(query->Columns().at(0).table, "");
}

TEST_P(ConnectionContract, EachColumnOfAJoinNamesItsTable) {
  const auto query = connection().Prepare(
      "SELECT * from Pratica inner join Utenti on Pratica.ID_Contab = Utenti.ID_Utente");
  EXPECT_EQ(ColumnNamed(query->Columns(), "NumPos").table, "Pratica");
  EXPECT_EQ(ColumnNamed(query->Columns(), "NomeUtente").table, "Utenti");
  EXPECT_EQ(query->FetchAll().size(), 1U);
}

TEST_P(ConnectionContract, TheColumnsOfATableComeInItsOrder) {
  const std::vector<ColumnInfo>& columns = connection().TableColumns("EventiPraOrdex");
  std::string names;
  for (const ColumnInfo& column : columns) names += column.name + " ";
  EXPECT_EQ(names, "ID_Evento ID_PraRel Progressivo Data Descrizione NrPagina DataAcquisizione ");
}

TEST_P(ConnectionContract, AnUnknownTableHasNoColumns) {
  EXPECT_TRUE(connection().TableColumns("NonEsiste").empty());
}

TEST_P(ConnectionContract, ParametersTravelAsValuesAndNotAsText) {
  const std::vector<Value> parameters = {Text("NULLO' OR '1'='1")};
  EXPECT_EQ(connection()
                .PrepareNative("SELECT ID_Ana FROM Anagrafica WHERE Cognome = ?", parameters)
                ->FetchAll()
                .size(),
            0U);
  const std::vector<Value> exact = {Text("NULLO")};
  EXPECT_EQ(connection()
                .PrepareNative("SELECT ID_Ana FROM Anagrafica WHERE Cognome = ?", exact)
                ->FetchAll()
                .size(),
            1U);
}

TEST_P(ConnectionContract, ASelectAskedAgainSeesWhatWasWrittenMeanwhile) {
  const std::string sql = "SELECT Progressivo FROM EventiPraOrdex WHERE ID_PraRel = ?";
  const auto progressivi = [&](std::int64_t idPra) {
    const std::vector<Value> parameters = {Whole(idPra)};
    return connection().PrepareNative(sql, parameters)->FetchAll();
  };
  EXPECT_TRUE(progressivi(1).empty());
  AddEvent(1, 7);
  EXPECT_EQ(progressivi(1), (std::vector<Row>{{Whole(7)}}));
  EXPECT_TRUE(progressivi(2).empty());
}

TEST_P(ConnectionContract, TwoQueriesOfTheSameTextAreReadOnTheirOwn) {
  AddEvent(1, 7);
  AddEvent(2, 9);
  const std::string sql = "SELECT Progressivo FROM EventiPraOrdex WHERE ID_PraRel = ?";
  const std::vector<Value> first = {Whole(1)};
  const std::vector<Value> second = {Whole(2)};
  const auto one = connection().PrepareNative(sql, first);
  const auto other = connection().PrepareNative(sql, second);
  EXPECT_EQ(other->FetchAll(), (std::vector<Row>{{Whole(9)}}));
  EXPECT_EQ(one->FetchAll(), (std::vector<Row>{{Whole(7)}}));
}

TEST_P(ConnectionContract, AQueryOutlivesManyOthers) {
  AddEvent(1, 7);
  const auto kept = connection().PrepareNative("SELECT Progressivo FROM EventiPraOrdex", {});
  for (int i = 0; i < 40; ++i) {
    const std::string sql = "SELECT ID_Ana FROM Anagrafica WHERE ID_Ana = " + std::to_string(i);
    for (int again = 0; again < 2; ++again) {
      EXPECT_EQ(connection().PrepareNative(sql, {})->FetchAll().size(), i == 1 ? 1U : 0U) << sql;
    }
  }
  EXPECT_EQ(kept->FetchAll(), (std::vector<Row>{{Whole(7)}}));
}

TEST_P(ConnectionContract, ALimitedSelectGivesNoMoreRows) {
  for (int i = 1; i <= 5; ++i) AddEvent(1, i);
  const std::string sql =
      connection().Limited("SELECT Progressivo FROM EventiPraOrdex ORDER BY Progressivo", 3);
  EXPECT_EQ(connection().PrepareNative(sql, {})->FetchAll(),
            (std::vector<Row>{{Whole(1)}, {Whole(2)}, {Whole(3)}}));
}

TEST_P(ConnectionContract, LetterCaseIsUnicodes) {
  if (!GetParam().unicodeLetterCase) GTEST_SKIP() << "the engine knows ASCII letters alone";
  connection().Insert("Anagrafica", std::vector<NamedValue>{{"Cognome", Text("ȘTEFĂNESCU ŁÓDŹ")},
                                                            {"Nome", Text("Élodie")}});
  EXPECT_EQ(Rows("SELECT ID_Ana from Anagrafica where  LOWER(Cognome) = 'ștefănescu łódź'").size(),
            1U);
  EXPECT_EQ(Rows("SELECT ID_Ana from Anagrafica where ucase(Nome) = \"ÉLODIE\"").size(), 1U);
  EXPECT_EQ(Rows("SELECT ID_Ana from Anagrafica where UPPER(Nome) = 'ÉLODIE'").size(), 1U);
}

TEST_P(ConnectionContract, LetterCaseOfNullIsNull) {
  connection().Insert("Anagrafica", std::vector<NamedValue>{{"Cognome", Text("X")}});
  EXPECT_EQ(One("SELECT LOWER(Nome) from Anagrafica where Cognome = 'X'"), Value(Null{}));
}

// --- what is refused ----------------------------------------------------------------------------

TEST_P(ConnectionContract, ASecondStatementIsRefusedAndChangesNothing) {
  AddEvent(1, 1);
  for (const char* sql : {"SELECT 1; DELETE FROM EventiPraOrdex",
                          "SELECT * from EventiPraOrdex where Data = 'x'; DELETE FROM "
                          "EventiPraOrdex --'",
                          "SELECT 1 DELETE FROM EventiPraOrdex"}) {
    EXPECT_EQ(DbRaisedBy([&] { connection().Prepare(sql); }).number, kDatabaseNumber) << sql;
  }
  EXPECT_EQ(Rows("SELECT ID_Evento FROM EventiPraOrdex").size(), 1U);
}

TEST_P(ConnectionContract, AStatementThatIsNoSelectIsRefusedAsAQuery) {
  AddEvent(1, 1);
  EXPECT_EQ(DbRaisedBy([&] { connection().Prepare("DELETE FROM EventiPraOrdex"); }).number,
            kDatabaseNumber);
  EXPECT_EQ(
      DbRaisedBy([&] { connection().PrepareNative("DELETE FROM EventiPraOrdex", {}); }).number,
      kDatabaseNumber);
  EXPECT_EQ(Rows("SELECT ID_Evento FROM EventiPraOrdex").size(), 1U);
}

TEST_P(ConnectionContract, AnErrorOfTheEngineArisesWhenTheQueryIsPrepared) {
  EXPECT_EQ(DbRaisedBy([&] { connection().Prepare("SELECT Manca FROM Pratica"); }).number,
            kDatabaseNumber);
  EXPECT_EQ(DbRaisedBy([&] { connection().Prepare("SELECT * FROM Manca"); }).number,
            kDatabaseNumber);
}

TEST_P(ConnectionContract, ANullCharacterInATextIsRefused) {
  const std::string sql("SELECT 'a\0b' FROM Pratica", 25);
  EXPECT_EQ(DbRaisedBy([&] { connection().Prepare(sql); }).number, kDatabaseNumber);
}

TEST_P(ConnectionContract, OneStatementWithoutRowsIsRun) {
  AddEvent(1, 1);
  AddEvent(2, 1);
  connection().Execute("Delete from EventiPraOrdex where ID_PraRel = 1");
  EXPECT_EQ(Rows("SELECT ID_PraRel FROM EventiPraOrdex"), (std::vector<Row>{{Whole(2)}}));
}

TEST_P(ConnectionContract, TwoStatementsAreNotRun) {
  AddEvent(1, 1);
  AddEvent(2, 1);
  EXPECT_EQ(DbRaisedBy([&] {
              connection().Execute(
                  "Delete from EventiPraOrdex where ID_PraRel = 1; Delete from EventiPraOrdex");
            }).number,
            kDatabaseNumber);
  EXPECT_EQ(Rows("SELECT ID_Evento FROM EventiPraOrdex").size(), 2U);
}

// --- writing ------------------------------------------------------------------------------------

TEST_P(ConnectionContract, EveryKindOfValueComesBackAsItWasWritten) {
  const DateTime date{2024, 3, 5, 9, 30, 15};
  const std::int64_t id = connection().Insert(
      "Anagrafica", std::vector<NamedValue>{{"Cognome", Text("D'Ștefan \"x\" ; --")},
                                            {"Nome", Text("")},
                                            {"IsFisicaGiuridica", true},
                                            {"Cambio", 1936.27},
                                            {"StatoCivile", Whole(-32768)},
                                            {"DataNascita", date},
                                            {"Sesso", Null{}}});
  const std::vector<Row> rows = Rows(
      "SELECT Cognome, Nome, IsFisicaGiuridica, IsSostitutoImposta, Cambio, StatoCivile, "
      "DataNascita, Sesso FROM Anagrafica WHERE ID_Ana = " +
      std::to_string(id));
  EXPECT_EQ(rows, (std::vector<Row>{{Text("D'Ștefan \"x\" ; --"), Text(""), true, false, 1936.27,
                                     Whole(-32768), date, Null{}}}));
}

TEST_P(ConnectionContract, AnInsertGivesTheIdentityThatTheEngineAssigned) {
  const std::int64_t first = AddEvent(1, 1);
  const std::int64_t second = AddEvent(1, 2);
  EXPECT_NE(first, second);
  EXPECT_EQ(
      One("SELECT Progressivo FROM EventiPraOrdex WHERE ID_Evento = " + std::to_string(second)),
      Whole(2));
}

TEST_P(ConnectionContract, ARowWithoutAnyValueTakesTheDefaults) {
  const std::int64_t id = connection().Insert("SCADENZE", {});
  EXPECT_EQ(
      Rows("SELECT Scadenza, IsOrdex FROM SCADENZE WHERE ID_Scadenza = " + std::to_string(id)),
      (std::vector<Row>{{Null{}, false}}));
}

TEST_P(ConnectionContract, RowsOfDifferentShapesMayBeAddedByTurns) {
  for (std::int64_t i = 1; i <= 3; ++i) {
    AddEvent(1, i);
    connection().Insert("EventiPraOrdex",
                        std::vector<NamedValue>{{"Progressivo", i + 10}, {"ID_PraRel", Whole(2)}});
    connection().Insert("Anagrafica", std::vector<NamedValue>{{"Cognome", std::to_string(i)}});
  }
  EXPECT_EQ(Rows("SELECT ID_PraRel, Progressivo FROM EventiPraOrdex ORDER BY ID_PraRel, "
                 "Progressivo"),
            (std::vector<Row>{{Whole(1), Whole(1)},
                              {Whole(1), Whole(2)},
                              {Whole(1), Whole(3)},
                              {Whole(2), Whole(11)},
                              {Whole(2), Whole(12)},
                              {Whole(2), Whole(13)}}));
}

TEST_P(ConnectionContract, AValueOfOneRowIsNotLeftBehindForTheNext) {
  connection().Insert("Anagrafica", std::vector<NamedValue>{{"Nome", Text("A")}});
  connection().Insert("Anagrafica", std::vector<NamedValue>{{"Nome", Null{}}});
  EXPECT_EQ(Rows("SELECT Nome FROM Anagrafica WHERE ID_Ana > 1 ORDER BY ID_Ana"),
            (std::vector<Row>{{Text("A")}, {Null{}}}));
}

TEST_P(ConnectionContract, AnUpdateChangesTheNamedColumnsOfOneRow) {
  const std::int64_t first = AddEvent(1, 1);
  AddEvent(1, 2);
  const std::vector<NamedValue> values = {{"Progressivo", Whole(9)}, {"Data", Text("x")}};
  EXPECT_EQ(connection().UpdateRow("EventiPraOrdex", values, "ID_Evento", first), 1);
  EXPECT_EQ(Rows("SELECT ID_PraRel, Progressivo, Data FROM EventiPraOrdex ORDER BY ID_Evento"),
            (std::vector<Row>{{Whole(1), Whole(9), Text("x")}, {Whole(1), Whole(2), Null{}}}));
}

TEST_P(ConnectionContract, AnUpdateOfARowThatIsNotThereTouchesNone) {
  const std::vector<NamedValue> values = {{"Progressivo", Whole(9)}};
  EXPECT_EQ(connection().UpdateRow("EventiPraOrdex", values, "ID_Evento", Whole(999)), 0);
}

TEST_P(ConnectionContract, UpdatesOfDifferentShapesMayFollowEachOther) {
  const std::int64_t id = AddEvent(1, 1);
  for (const char* column : {"Data", "Descrizione", "Data"}) {
    const std::vector<NamedValue> values = {{column, Text(column)}};
    EXPECT_EQ(connection().UpdateRow("EventiPraOrdex", values, "ID_Evento", id), 1);
  }
  EXPECT_EQ(Rows("SELECT Data, Descrizione FROM EventiPraOrdex"),
            (std::vector<Row>{{Text("Data"), Text("Descrizione")}}));
}

TEST_P(ConnectionContract, TheSameColumnsMayBeUpdatedByAnotherKey) {
  const std::int64_t id = AddEvent(1, 900);
  const std::vector<NamedValue> values = {{"Data", Text("x")}};
  EXPECT_EQ(connection().UpdateRow("EventiPraOrdex", values, "ID_Evento", id), 1);
  EXPECT_EQ(connection().UpdateRow("EventiPraOrdex", values, "Progressivo", Whole(900)), 1);
}

TEST_P(ConnectionContract, AWriteIntoAnUnknownTableOrColumnIsAnError) {
  const std::vector<NamedValue> values = {{"Manca", Whole(1)}};
  EXPECT_EQ(DbRaisedBy([&] { connection().Insert("Utenti", values); }).number, kDatabaseNumber);
  EXPECT_EQ(DbRaisedBy([&] { connection().Insert("Manca", values); }).number, kDatabaseNumber);
  EXPECT_EQ(
      DbRaisedBy([&] { connection().UpdateRow("Utenti", values, "ID_Utente", Whole(2)); }).number,
      kDatabaseNumber);
  const std::vector<NamedValue> name = {{"NomeUtente", Text("x")}};
  EXPECT_EQ(DbRaisedBy([&] { connection().UpdateRow("Utenti", name, "Manca", Whole(2)); }).number,
            kDatabaseNumber);
}

// --- transactions -------------------------------------------------------------------------------

TEST_P(ConnectionContract, WhatIsRolledBackIsGone) {
  EXPECT_FALSE(connection().InTransaction());
  connection().Begin();
  EXPECT_TRUE(connection().InTransaction());
  AddEvent(1, 1);
  connection().Rollback();
  EXPECT_FALSE(connection().InTransaction());
  EXPECT_TRUE(Rows("SELECT ID_Evento FROM EventiPraOrdex").empty());
}

TEST_P(ConnectionContract, WhatIsCommittedIsSeenByOthersAndNotBefore) {
  const auto other = Connect();
  const auto seen = [&] {
    return other->Prepare("SELECT ID_Evento FROM EventiPraOrdex")->FetchAll().size();
  };
  connection().Begin();
  AddEvent(1, 1);
  EXPECT_EQ(seen(), 0U);
  connection().Commit();
  EXPECT_FALSE(connection().InTransaction());
  EXPECT_EQ(seen(), 1U);
}

TEST_P(ConnectionContract, NoQueryStaysOpenOnceItsRowsAreRead) {
  AddEvent(1, 1);
  AddEvent(1, 2);
  const auto query = connection().Prepare("SELECT ID_Evento FROM EventiPraOrdex");
  query->FetchAll();
  const auto other = Connect();
  other->Execute("Delete from EventiPraOrdex where Progressivo = 1");
  // Neither an old snapshot nor a lock is left.
  EXPECT_EQ(query->FetchAll().size(), 1U);
  connection().Begin();
  connection().Commit();
}

}  // namespace
}  // namespace ordex
