// A hearing of the page as a row of the agenda.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/agenda_fixture.h"

namespace ordex::testing {
namespace {

using Texts = std::vector<std::string>;

TEST(ScriviUdienza, AsksTheseQuestionsInThisOrder) {
  AgendaFixture agenda;
  agenda.Hearing("12/03/2026 09:30");
  EXPECT_EQ(
      agenda.office.diagnostics.sql,
      (Texts{"SELECT * from Pratica inner join Utenti on Pratica.ID_Contab = Utenti.ID_Utente  "
             "where Pratica.NumeroRegGenerale = '1842/2025'",
             "SELECT Cognome,Nome From Anagrafica WHERE ID_Ana = 2",
             "SELECT Cognome,Nome From Anagrafica WHERE ID_Ana = 3",
             "select * from SCADENZE where  Data_End =CONVERT (SMALLDATETIME,'12/03/2026', 105)  "
             "and Codice_Pra = 2 and IsUdienza = 'TRUE' and IsOrdex = 'TRUE'"}));
}

TEST(ScriviUdienza, AddsARowWithEveryColumn) {
  AgendaFixture agenda;
  agenda.Hearing("12/03/2026 09:30");
  EXPECT_EQ(agenda.Entry("Scadenza, Priorita, Data_End, Data_Start, IsUdienza, Codice_Pra, "
                         "Codice_Cli, IsOrdex, IsMemo, Ora, Responsabile, IdResponsabile, "
                         "LastLocalUpdate"),
            "UDIENZA|1|12/03/2026|NULL|Vero|2|2|Vero|Falso|09:30|FERRIGATI NORA|3|"
            "20/02/2026 09:15:30");
}

TEST(ScriviUdienza, TakesTheValueUnderTheKeyItIsGiven) {
  AgendaFixture agenda;
  agenda.page.cDatiFasc.Add("01/02/2026", "DUUd");
  agenda.page.cDatiFasc.Add("12/03/2026", "DPUd");
  agenda.writer.ScriviUdienza("DUUd");
  EXPECT_EQ(agenda.Agenda("Data_End"), (Texts{"01/02/2026"}));
}

TEST(ScriviUdienza, WithoutAKeyIsAnErrorThatIsAbsorbed) {
  AgendaFixture agenda;
  agenda.writer.ScriviUdienza("DUUd");
  EXPECT_TRUE(agenda.Agenda("*").empty());
  ASSERT_EQ(agenda.office.diagnostics.trapped.size(), 1U);
  EXPECT_EQ(agenda.office.diagnostics.trapped[0].routine, "ScriviUdienza");
  EXPECT_EQ(agenda.office.diagnostics.trapped[0].number, 5);
}

// --- date and time ------------------------------------------------------------------------------

TEST(ScriviUdienza, WithADateAloneHasNoTime) {
  AgendaFixture agenda;
  agenda.Hearing("15/05/2024");
  EXPECT_EQ(agenda.Entry("Scadenza, Data_End, Ora"), "UDIENZA|15/05/2024|NULL");
  EXPECT_TRUE(agenda.office.diagnostics.trapped.empty());
}

TEST(ScriviUdienza, WithoutADateWritesNothingAndAsksNothing) {
  for (const char* value : {"", " 12/03/2026"}) {
    AgendaFixture agenda;
    agenda.Hearing(value);
    EXPECT_TRUE(agenda.Agenda("*").empty()) << value;
    EXPECT_TRUE(agenda.office.diagnostics.sql.empty()) << value;
    EXPECT_TRUE(agenda.office.diagnostics.trapped.empty()) << value;
  }
}

TEST(ScriviUdienza, LooksADateOfOneDigitUpWithTwo) {
  AgendaFixture agenda;
  agenda.Hearing("5/3/2026 9:05");
  EXPECT_NE(agenda.office.diagnostics.sql.back().find("'05/03/2026'"), std::string::npos);
  EXPECT_EQ(agenda.Entry("Data_End, Ora"), "05/03/2026|09:05");
}

TEST(ScriviUdienza, ATimeThatCannotBeReadDoesNotCostTheHearing) {
  AgendaFixture agenda;
  agenda.Hearing("12/03/2026 9.30");
  EXPECT_EQ(agenda.Entry("Data_End, Ora, Responsabile, LastLocalUpdate"),
            "12/03/2026|NULL|FERRIGATI NORA|20/02/2026 09:15:30");
}

TEST(ScriviUdienza, ASecondBlankLeavesAnEmptyTimeWhichIsNotWritten) {
  AgendaFixture agenda;
  agenda.Hearing("12/03/2026  09:30");
  EXPECT_EQ(agenda.Entry("Data_End, Ora"), "12/03/2026|NULL");
}

TEST(ScriviUdienza, IgnoresWhatStandsBehindTheTime) {
  AgendaFixture agenda;
  agenda.Hearing("12/03/2026 09:30 aula 7");
  EXPECT_EQ(agenda.Entry("Data_End, Ora"), "12/03/2026|09:30");
}

TEST(ScriviUdienza, ADateThatCannotBeReadIsAnErrorThatIsAbsorbed) {
  AgendaFixture agenda;
  agenda.Hearing("da fissare");
  EXPECT_TRUE(agenda.Agenda("*").empty());
  ASSERT_EQ(agenda.office.diagnostics.trapped.size(), 1U);
  EXPECT_EQ(agenda.office.diagnostics.trapped[0].number, 13);
}

// --- a hearing that is there already ------------------------------------------------------------

TEST(ScriviUdienza, TwiceForTheSameDayLeavesOneRefreshedRow) {
  AgendaFixture agenda;
  agenda.Hearing("12/03/2026 09:30");
  agenda.clock.now = {2026, 2, 21, 8, 0, 0};
  agenda.Hearing("12/03/2026 10:45");
  EXPECT_EQ(agenda.Agenda("Scadenza, Data_End, Ora, LastLocalUpdate"),
            (Texts{"UDIENZA|12/03/2026|10:45|21/02/2026 08:00:00"}));
}

TEST(ScriviUdienza, ForTwoDaysLeavesTwoRows) {
  AgendaFixture agenda;
  agenda.Hearing("12/03/2026 09:30");
  agenda.Hearing("13/03/2026 09:30");
  EXPECT_EQ(agenda.Agenda("Data_End"), (Texts{"12/03/2026", "13/03/2026"}));
}

TEST(ScriviUdienza, KeepsTheTextAndThePriorityThatTheUserGaveARow) {
  AgendaFixture agenda;
  agenda.Hearing("12/03/2026 09:30");
  agenda.office.Do("UPDATE SCADENZE SET Scadenza = 'Udienza testi', Priorita = 3, Parti = 'x'");
  agenda.Hearing("12/03/2026 09:30");
  EXPECT_EQ(agenda.Agenda("Scadenza, Priorita, Parti"),
            (Texts{"Udienza testi|3|EDILIZIA VALLEBRUNA S.R.L. \\ IMMOBILIARE PONTEMIRTO S.P.A."}));
}

TEST(ScriviUdienza, WithoutATimeKeepsTheTimeOfTheRow) {
  AgendaFixture agenda;
  agenda.Hearing("12/03/2026 09:30");
  agenda.Hearing("12/03/2026");
  EXPECT_EQ(agenda.Agenda("Ora"), (Texts{"09:30"}));
}

TEST(ScriviUdienza, LeavesEntriesAloneThatAreNotItsOwn) {
  AgendaFixture agenda;
  agenda.office.Do(
      "INSERT INTO SCADENZE (Scadenza, Data_End, Codice_Pra, IsUdienza, IsOrdex) VALUES "
      "('del legale', '2026-03-12 00:00:00', 2, 1, 0), "
      "('un termine', '2026-03-12 00:00:00', 2, 0, 1), "
      "('altra pratica', '2026-03-12 00:00:00', 3, 1, 1)");
  agenda.Hearing("12/03/2026 09:30");
  EXPECT_EQ(agenda.Agenda("Scadenza, LastLocalUpdate"),
            (Texts{"del legale|NULL", "un termine|NULL", "altra pratica|NULL",
                   "UDIENZA|20/02/2026 09:15:30"}));
}

TEST(ScriviUdienza, RefreshesTheFirstOfTwoRows) {
  AgendaFixture agenda;
  agenda.office.Do(
      "INSERT INTO SCADENZE (Scadenza, Data_End, Codice_Pra, IsUdienza, IsOrdex) VALUES "
      "('prima', '2026-03-12 00:00:00', 2, 1, 1), ('seconda', '2026-03-12 00:00:00', 2, 1, 1)");
  agenda.Hearing("12/03/2026 09:30");
  EXPECT_EQ(agenda.Agenda("Scadenza, Ora"), (Texts{"prima|09:30", "seconda|NULL"}));
}

// --- number and failures ------------------------------------------------------------------------

TEST(ScriviUdienza, DoublesAnApostropheInTheNumber) {
  AgendaFixture agenda("12/O'2025");
  agenda.office.Do("UPDATE Pratica SET NumeroRegGenerale = '12/O''2025' WHERE ID_Pra = 6");
  agenda.Hearing("12/03/2026");
  EXPECT_EQ(agenda.office.diagnostics.sql.front(),
            "SELECT * from Pratica inner join Utenti on Pratica.ID_Contab = Utenti.ID_Utente  "
            "where Pratica.NumeroRegGenerale = '12/O''2025'");
  EXPECT_EQ(agenda.Agenda("Codice_Pra"), (Texts{"6"}));
}

TEST(ScriviUdienza, ANameThatDoesNotFitCostsNeitherTheNumberNorTheTimeOfTheUpdate) {
  AgendaFixture agenda;
  agenda.office.Do("ALTER TABLE SCADENZE DROP COLUMN Responsabile");
  agenda.office.Do("ALTER TABLE SCADENZE ADD COLUMN Responsabile NVARCHAR(10)");
  agenda.Hearing("12/03/2026 09:30");
  EXPECT_EQ(agenda.Entry("Scadenza, Ora, Responsabile, IdResponsabile, LastLocalUpdate"),
            "UDIENZA|09:30|NULL|3|20/02/2026 09:15:30");
  ASSERT_EQ(agenda.office.diagnostics.trapped.size(), 1U);
  EXPECT_EQ(agenda.office.diagnostics.trapped[0].routine, "ScriviUdienza");
}

TEST(ScriviUdienza, AnErrorOfTheLastWriteIsAbsorbed) {
  AgendaFixture agenda;
  agenda.office.connection().FailOn("INSERT SCADENZE");
  agenda.Hearing("12/03/2026");
  EXPECT_TRUE(agenda.Agenda("*").empty());
  EXPECT_EQ(
      agenda.office.diagnostics.trapped,
      (std::vector<NotedError>{{"ScriviUdienza", kDatabaseErrorNumber,
                                "Errore del database: errore chiesto dalla prova", std::nullopt}}));
}

}  // namespace
}  // namespace ordex::testing
