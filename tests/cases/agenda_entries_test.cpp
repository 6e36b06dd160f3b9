// The entries of an agenda page as rows of the office's agenda: whose they are and what they hold.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/agenda_list_fixture.h"

namespace ordex::testing {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* kWhose = "Codice_Pra, Codice_Cli, IdResponsabile, Responsabile";

TEST(AgendaEntries, AskTheseQuestionsInThisOrder) {
  AgendaListFixture agenda;
  agenda.Case("1842/2025");
  agenda.Entry("12/03/2026", "Deposito della perizia");
  agenda.Write();
  EXPECT_EQ(
      agenda.office.diagnostics.sql,
      (Texts{"SELECT ID_Pra,ID_Cliente,ID_Contab,Utenti.NomeUtente from Pratica inner join "
             "Utenti on Pratica.ID_Contab = Utenti.ID_Utente  where "
             "Pratica.NumeroRegGenerale = '1842/2025'",
             "SELECT * from SCADENZE where  Data_End =#03/12/2026# and Codice_Pra = 2 and "
             "Parti = \"ROSSI / BIANCHI\" and ucase(Scadenza) = \"DEPOSITO DELLA PERIZIA\""}));
}

TEST(AgendaEntries, AreAddedWithTheseColumnsAndNoOthers) {
  AgendaListFixture agenda;
  agenda.Case("1842/2025");
  agenda.Entry("12/03/2026", "Deposito della perizia");
  agenda.Write();
  EXPECT_EQ(agenda.Agenda("Scadenza, Data_End, Parti, IsOrdex, IsMemo, Priorita, Codice_Pra, "
                          "Codice_Cli, IdResponsabile, Responsabile"),
            (Texts{"Deposito della perizia|12/03/2026|ROSSI / BIANCHI|Vero|Falso|1|2|2|3|"
                   "FERRIGATI NORA"}));
  EXPECT_EQ(agenda.Agenda("Data_Start, IsUdienza, Ora, LastLocalUpdate"),
            (Texts{"NULL|Falso|NULL|NULL"}));
}

// --- whose they are -----------------------------------------------------------------------------

TEST(AgendaEntries, OfAnUnknownCaseGoToCaseOneUnderTheSupervisor) {
  AgendaListFixture agenda;
  agenda.Case("3056/2025", "D'AMICO LUCA / LOGISTICA");
  agenda.Entry("12/03/2026", "Conteggi");
  agenda.Write();
  EXPECT_EQ(agenda.Agenda(kWhose), (Texts{"1|1|2|SUPERVISORE"}));
  EXPECT_EQ(agenda.Agenda("Parti"), (Texts{"D'AMICO LUCA / LOGISTICA"}));
}

TEST(AgendaEntries, OfACaseWhoseAccountingUserIsGoneGoToCaseOneToo) {
  AgendaListFixture agenda;
  agenda.office.Do("UPDATE Pratica SET ID_Contab = 99 WHERE ID_Pra = 2");
  agenda.Case("1842/2025");
  agenda.Entry("12/03/2026", "Conteggi");
  agenda.Write();
  EXPECT_EQ(agenda.Agenda(kWhose), (Texts{"1|1|2|SUPERVISORE"}));
}

TEST(AgendaEntries, OfANumberThatTwoCasesHaveGoToTheFirst) {
  AgendaListFixture agenda;
  agenda.Case("907/2024");
  agenda.Entry("12/03/2026", "Conteggi");
  agenda.Write();
  EXPECT_EQ(agenda.Agenda(kWhose), (Texts{"3|5|3|FERRIGATI NORA"}));
}

TEST(AgendaEntries, GoToTheLastCaseAboveThem) {
  AgendaListFixture agenda;
  agenda.Case("1842/2025", "UNO");
  agenda.Case("58/2026", "DUE");
  agenda.Entry("12/03/2026", "a");
  agenda.Entry("13/03/2026", "b");
  agenda.Case("3056/2025", "TRE");
  agenda.Entry("14/03/2026", "c");
  agenda.Case("1842/2025", "UNO");
  agenda.Entry("15/03/2026", "d");
  agenda.Write();
  EXPECT_EQ(agenda.Agenda("Scadenza, Codice_Pra, IdResponsabile, Parti"),
            (Texts{"a|9|2|DUE", "b|9|2|DUE", "c|1|2|TRE", "d|2|3|UNO"}));
}

TEST(AgendaEntries, BeforeAnyCaseAreNobodys) {
  AgendaListFixture agenda;
  agenda.Entry("12/03/2026", "Conteggi");
  agenda.Write();
  EXPECT_EQ(agenda.office.diagnostics.sql,
            (Texts{"SELECT * from SCADENZE where  Data_End =#03/12/2026# and Codice_Pra = 0 and "
                   "Parti = \"\" and ucase(Scadenza) = \"CONTEGGI\""}));
  EXPECT_EQ(agenda.Agenda(std::string(kWhose) + ", Parti"), (Texts{"0|0|0||"}));
}

TEST(AgendaEntries, ACaseWithoutEntriesWritesNothing) {
  AgendaListFixture agenda;
  agenda.Case("1842/2025");
  agenda.Write();
  EXPECT_TRUE(agenda.Agenda("*").empty());
}

// --- what they hold -----------------------------------------------------------------------------

TEST(AgendaEntries, StoreTheirPartiesTrimmed) {
  AgendaListFixture agenda;
  agenda.Case("1842/2025", "  ROSSI / BIANCHI ");
  agenda.Entry("12/03/2026", "Conteggi");
  agenda.Write();
  EXPECT_EQ(agenda.Agenda("Parti"), (Texts{"ROSSI / BIANCHI"}));
}

TEST(AgendaEntries, WithATimeStoreDateAndTimeApart) {
  AgendaListFixture agenda;
  agenda.Case("1842/2025");
  agenda.Entry("12/03/2026 09:30", "Udienza");
  agenda.Entry("13/03/2026  9:05 ", "Giuramento");
  agenda.Entry("14/03/2026 00:00", "Mezzanotte");
  agenda.Write();
  EXPECT_EQ(agenda.Agenda("Scadenza, Data_End, Ora"),
            (Texts{"Udienza|12/03/2026|09:30", "Giuramento|13/03/2026|09:05",
                   "Mezzanotte|14/03/2026|00:00"}));
}

TEST(AgendaEntries, WithATimeAreLookedForByTheirDateAlone) {
  AgendaListFixture agenda;
  agenda.Entry("1/12/2026 09:30", "Udienza");
  agenda.Write();
  EXPECT_EQ(agenda.office.diagnostics.sql,
            (Texts{"SELECT * from SCADENZE where  Data_End =#12/01/2026# and Codice_Pra = 0 and "
                   "Parti = \"\" and ucase(Scadenza) = \"UDIENZA\""}));
}

TEST(AgendaEntries, AreCutAtTwoHundredCharacters) {
  AgendaListFixture agenda;
  std::string two_hundred;
  for (int i = 0; i < 200; ++i) two_hundred.append("è");
  agenda.Case("1842/2025");
  agenda.Entry("12/03/2026", two_hundred);
  agenda.Entry("13/03/2026", two_hundred + "x");
  agenda.Write();
  EXPECT_EQ(agenda.Agenda("Scadenza"), (Texts{two_hundred, two_hundred}));
}

TEST(AgendaEntries, CutBehindABlankKeepTheBlank) {
  AgendaListFixture agenda;
  agenda.Case("1842/2025");
  agenda.Entry("12/03/2026", std::string(199, 'y') + " fuori");
  agenda.Write();
  EXPECT_EQ(agenda.Agenda("Scadenza"), (Texts{std::string(199, 'y') + " "}));
}

TEST(AgendaEntries, KeepApostrophesAndQuotes) {
  AgendaListFixture agenda;
  agenda.Case("1842/2025", "COOPERATIVA \"L'UNIONE\" / D'AMICO");
  agenda.Entry("12/03/2026", "Fascicolo \"di parte\" dell'attore");
  agenda.Write();
  EXPECT_EQ(agenda.Agenda("Scadenza, Parti"),
            (Texts{"Fascicolo \"di parte\" dell'attore|COOPERATIVA \"L'UNIONE\" / D'AMICO"}));
  EXPECT_EQ(agenda.office.diagnostics.sql.back(),
            "SELECT * from SCADENZE where  Data_End =#03/12/2026# and Codice_Pra = 2 and Parti = "
            "\"COOPERATIVA \"\"L'UNIONE\"\" / D'AMICO\" and ucase(Scadenza) = \"FASCICOLO \"\"DI "
            "PARTE\"\" DELL'ATTORE\"");
}

TEST(AgendaEntries, ThatLookLikeSqlAreTexts) {
  AgendaListFixture agenda;
  const std::string text = "x\" or 1=1; DELETE FROM Pratica; --";
  agenda.Case("1842/2025", text);
  agenda.Entry("12/03/2026", text);
  agenda.Write();
  EXPECT_EQ(agenda.Agenda("Scadenza, Parti"), (Texts{text + "|" + text}));
  EXPECT_EQ(agenda.office.Row("SELECT COUNT(*) FROM Pratica"), "10");
}

}  // namespace
}  // namespace ordex::testing
