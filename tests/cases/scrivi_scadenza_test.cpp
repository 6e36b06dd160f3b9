// A deadline of the page as a row of the agenda.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/agenda_fixture.h"

namespace ordex::testing {
namespace {

using Texts = std::vector<std::string>;

TEST(ScriviScadenza, AsksTheseQuestionsInThisOrder) {
  AgendaFixture agenda;
  agenda.Deadline("10/06/2024", "Note d'udienza");
  EXPECT_EQ(
      agenda.office.diagnostics.sql,
      (Texts{"SELECT * from Pratica inner join Utenti on Pratica.ID_Contab = Utenti.ID_Utente  "
             "where Pratica.NumeroRegGenerale = '1842/2025'",
             "SELECT Cognome,Nome From Anagrafica WHERE ID_Ana = 2",
             "SELECT Cognome,Nome From Anagrafica WHERE ID_Ana = 3",
             "select * from SCADENZE where  Data_End =CONVERT (SMALLDATETIME,'10/06/2024', 105)  "
             "and Codice_Pra = 2 and Scadenza = 'Note d''udienza' and IsOrdex = 'TRUE'"}));
}

TEST(ScriviScadenza, AddsARowWithEveryColumn) {
  AgendaFixture agenda;
  agenda.Deadline("10/06/2024", "Note d'udienza");
  EXPECT_EQ(agenda.Entry("Scadenza, Priorita, Data_End, Data_Start, IsUdienza, Codice_Pra, "
                         "Codice_Cli, IsOrdex, IsMemo, Ora, Responsabile, IdResponsabile, "
                         "LastLocalUpdate"),
            "Note d'udienza|1|10/06/2024|21/05/2024|Falso|2|2|Vero|Vero|NULL|FERRIGATI NORA|3|"
            "20/02/2026 09:15:30");
}

TEST(ScriviScadenza, TrimsDateAndDescription) {
  AgendaFixture agenda;
  agenda.Deadline("  10/06/2024 ", "\tNote   ");
  EXPECT_EQ(agenda.Entry("Scadenza, Data_End"), "\tNote|10/06/2024");
  EXPECT_NE(agenda.office.diagnostics.sql.back().find("Scadenza = '\tNote' and"),
            std::string::npos);
}

TEST(ScriviScadenza, StartsTwentyDaysBeforeAlsoAcrossMonthsAndYears) {
  AgendaFixture agenda;
  agenda.Deadline("20/03/2024", "bisestile");
  agenda.Deadline("05/01/2026", "anno");
  agenda.Deadline("1/3/2026", "una cifra");
  EXPECT_EQ(agenda.Agenda("Data_End, Data_Start"),
            (Texts{"20/03/2024|29/02/2024", "05/01/2026|16/12/2025", "01/03/2026|09/02/2026"}));
}

TEST(ScriviScadenza, TwiceLeavesOneRefreshedRow) {
  AgendaFixture agenda;
  agenda.Deadline("10/06/2024", "Note");
  agenda.office.Do("UPDATE SCADENZE SET Priorita = 3, Parti = 'x', Data_Start = NULL, IsMemo = 0");
  agenda.clock.now = {2026, 2, 21, 8, 0, 0};
  agenda.Deadline("10/06/2024", "Note");
  EXPECT_EQ(agenda.Agenda("Scadenza, Priorita, Data_Start, IsMemo, Parti, LastLocalUpdate"),
            (Texts{"Note|3|21/05/2024|Vero|EDILIZIA VALLEBRUNA S.R.L. \\ IMMOBILIARE PONTEMIRTO "
                   "S.P.A.|21/02/2026 08:00:00"}));
}

TEST(ScriviScadenza, TwoDescriptionsOnOneDayAreTwoRows) {
  AgendaFixture agenda;
  agenda.Deadline("10/06/2024", "Note");
  agenda.Deadline("10/06/2024", "Repliche");
  EXPECT_EQ(agenda.Agenda("Scadenza"), (Texts{"Note", "Repliche"}));
}

TEST(ScriviScadenza, LeavesEntriesAloneThatAreNotItsOwn) {
  AgendaFixture agenda;
  agenda.office.Do(
      "INSERT INTO SCADENZE (Scadenza, Data_End, Codice_Pra, IsOrdex) VALUES "
      "('Note', '2024-06-10 00:00:00', 2, 0), ('Note', '2024-06-11 00:00:00', 2, 1), "
      "('Note', '2024-06-10 00:00:00', 3, 1)");
  agenda.Deadline("10/06/2024", "Note");
  EXPECT_EQ(agenda.Agenda("LastLocalUpdate"),
            (Texts{"NULL", "NULL", "NULL", "20/02/2026 09:15:30"}));
}

// The number stands in this look-up undoubled, unlike in the hearing's.
TEST(ScriviScadenza, ANumberThatHoldsAnApostropheIsToldToTheHookAndThenRefused) {
  AgendaFixture agenda("12/O'2025");
  agenda.office.Do("UPDATE Pratica SET NumeroRegGenerale = '12/O''2025' WHERE ID_Pra = 6");
  agenda.Deadline("10/06/2024", "Note");
  EXPECT_EQ(
      agenda.office.diagnostics.sql,
      (Texts{"SELECT * from Pratica inner join Utenti on Pratica.ID_Contab = Utenti.ID_Utente  "
             "where Pratica.NumeroRegGenerale = '12/O'2025'"}));
  EXPECT_TRUE(agenda.Agenda("*").empty());
  ASSERT_EQ(agenda.office.diagnostics.trapped.size(), 1U);
  EXPECT_EQ(agenda.office.diagnostics.trapped[0].routine, "ScriviScadenza");
  EXPECT_EQ(agenda.office.diagnostics.trapped[0].number, kDatabaseErrorNumber);
}

TEST(ScriviScadenza, ADateThatCannotBeReadWritesNothing) {
  for (const char* date : {"", "entro giugno", "31/02/2026"}) {
    AgendaFixture agenda;
    agenda.Deadline(date, "Note");
    EXPECT_TRUE(agenda.Agenda("*").empty()) << date;
    ASSERT_EQ(agenda.office.diagnostics.trapped.size(), 1U) << date;
    EXPECT_EQ(agenda.office.diagnostics.trapped[0].number, 13) << date;
  }
}

TEST(ScriviScadenza, ADescriptionOfTwoHundredCharactersFits) {
  AgendaFixture agenda;
  std::string description;
  for (int i = 0; i < 200; ++i) description.append("è");
  agenda.Deadline("10/06/2024", description);
  EXPECT_EQ(agenda.Agenda("Scadenza"), (Texts{description}));
}

// What does not fit its column is an error, never a silent cut.
TEST(ScriviScadenza, StartsTwentyDaysBeforeAlsoWhereTheDateIsKeptAsAText) {
  AgendaFixture agenda;
  agenda.office.Do("ALTER TABLE SCADENZE DROP COLUMN Data_End");
  agenda.office.Do("ALTER TABLE SCADENZE ADD COLUMN Data_End NVARCHAR(20)");
  agenda.Deadline("10/06/2024", "Memoria");
  EXPECT_EQ(agenda.Entry("Data_Start, Data_End"), "21/05/2024|10/06/2024");
}

TEST(ScriviScadenza, ALongerDescriptionIsNotWritten) {
  AgendaFixture agenda;
  agenda.Deadline("10/06/2024", std::string(201, 'x'));
  EXPECT_TRUE(agenda.Agenda("*").empty());
  EXPECT_EQ(agenda.office.diagnostics.trapped.size(), 1U);
}

}  // namespace
}  // namespace ordex::testing
