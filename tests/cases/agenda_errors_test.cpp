// An agenda page that cannot be written to its end: what is raised, and what stays.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/agenda_list_fixture.h"

namespace ordex::testing {
namespace {

using Texts = std::vector<std::string>;

// Everything of the tables that an agenda page must not touch.
Texts OtherTables(Office& office) {
  Texts rows;
  for (const char* table : {"Pratica", "Utenti", "Anagrafica", "PraOrdex", "EventiPraOrdex"}) {
    for (std::string& row : office.Rows(std::string("SELECT * FROM ") + table)) {
      rows.push_back(std::move(row));
    }
  }
  return rows;
}

TEST(AgendaTransaction, IsOneForTheWholePage) {
  AgendaListFixture agenda;
  agenda.Case("1842/2025");
  agenda.Entry("12/03/2026", "Note");
  agenda.Entry("13/03/2026", "Repliche");
  agenda.Write();
  const FakeConnection& connection = agenda.office.connection();
  EXPECT_EQ(connection.statements().front(), "BEGIN");
  EXPECT_EQ(connection.statements().back(), "COMMIT");
  EXPECT_EQ(connection.Count("BEGIN"), 1U);
  EXPECT_EQ(connection.Count("COMMIT"), 1U);
}

TEST(AgendaDateThatIsNone, IsATypeMismatchAndKeepsWhatWasWrittenBefore) {
  for (const char* date : {"", "entro marzo", "31/02/2026", "12/03/2026 ore 9", "12/03/26"}) {
    AgendaListFixture agenda;
    agenda.Case("1842/2025");
    agenda.Entry("11/03/2026", "prima");
    agenda.Entry(date, "senza data");
    agenda.Entry("13/03/2026", "dopo");
    EXPECT_EQ(agenda.ErrorOfWriting(), 13) << date;
    EXPECT_EQ(agenda.Agenda("Scadenza"), (Texts{"prima"})) << date;
    EXPECT_FALSE(agenda.office.connection().InTransaction()) << date;
  }
}

// The number stands in the look-up as the page gives it.
TEST(AgendaNumberWithAnApostrophe, IsToldToTheHookAndThenRefused) {
  AgendaListFixture agenda;
  agenda.office.Do("UPDATE Pratica SET NumeroRegGenerale = '12/O''2025' WHERE ID_Pra = 6");
  agenda.Case("12/O'2025");
  agenda.Entry("12/03/2026", "Note");
  EXPECT_EQ(agenda.ErrorOfWriting(), kDatabaseErrorNumber);
  EXPECT_EQ(agenda.office.diagnostics.sql,
            (Texts{"SELECT ID_Pra,ID_Cliente,ID_Contab,Utenti.NomeUtente from Pratica inner join "
                   "Utenti on Pratica.ID_Contab = Utenti.ID_Utente  where "
                   "Pratica.NumeroRegGenerale = '12/O'2025'"}));
  EXPECT_TRUE(agenda.Agenda("*").empty());
}

TEST(AgendaNumberWithAnApostrophe, ChangesNoOtherTableAndKeepsWhatWasWrittenBefore) {
  for (const char* number : {"1842/2025'; DELETE FROM Pratica; --", "1' OR '1'='1",
                             "x' UNION SELECT 1, 2, 3, 'y", "'"}) {
    AgendaListFixture agenda;
    const Texts before = OtherTables(agenda.office);
    agenda.Case("1842/2025");
    agenda.Entry("11/03/2026", "prima");
    agenda.Case(number);
    agenda.Entry("12/03/2026", "dopo");
    EXPECT_EQ(agenda.ErrorOfWriting(), kDatabaseErrorNumber) << number;
    EXPECT_EQ(OtherTables(agenda.office), before) << number;
    EXPECT_EQ(agenda.Agenda("Scadenza"), (Texts{"prima"})) << number;
    EXPECT_FALSE(agenda.office.connection().InTransaction()) << number;
  }
}

TEST(AgendaThatTheDatabaseRefuses, KeepsWhatWasWrittenBefore) {
  for (const char* statement : {"PREPARE SELECT * from SCADENZE", "FETCH SELECT * from SCADENZE",
                                "INSERT SCADENZE", "PREPARE SELECT ID_Pra"}) {
    AgendaListFixture agenda;
    agenda.Case("1842/2025");
    agenda.Entry("11/03/2026", "prima");
    agenda.Write();
    agenda.Case("58/2026");
    agenda.Entry("12/03/2026", "dopo");
    agenda.office.connection().FailOn(statement);
    EXPECT_EQ(agenda.ErrorOfWriting(), kDatabaseErrorNumber) << statement;
    EXPECT_EQ(agenda.Agenda("Scadenza"), (Texts{"prima"})) << statement;
    EXPECT_FALSE(agenda.office.connection().InTransaction()) << statement;
  }
}

TEST(AgendaThatTheDatabaseRefuses, KeepsTheRowsOfTheSamePress) {
  AgendaListFixture agenda;
  agenda.Case("1842/2025");
  agenda.Entry("11/03/2026", "prima");
  agenda.Entry("12/03/2026", "dopo");
  agenda.office.connection().FailOn("ucase(Scadenza) = \"DOPO\"");
  EXPECT_EQ(agenda.ErrorOfWriting(), kDatabaseErrorNumber);
  EXPECT_EQ(agenda.Agenda("Scadenza"), (Texts{"prima"}));
}

TEST(AgendaWhoseTransactionTheEngineEnds, LeavesNothing) {
  FakeFailure deadlock;
  deadlock.endsTransaction = true;
  AgendaListFixture agenda;
  agenda.Case("1842/2025");
  agenda.Entry("11/03/2026", "prima");
  agenda.Entry("12/03/2026", "dopo");
  agenda.office.connection().FailOn("ucase(Scadenza) = \"DOPO\"", deadlock);
  EXPECT_EQ(agenda.ErrorOfWriting(), kDatabaseErrorNumber);
  EXPECT_TRUE(agenda.Agenda("*").empty());
}

}  // namespace
}  // namespace ordex::testing
