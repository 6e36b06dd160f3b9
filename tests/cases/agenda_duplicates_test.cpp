// Which agenda entries are there already: a second press writes none of them again.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/agenda_list_fixture.h"

namespace ordex::testing {
namespace {

using Texts = std::vector<std::string>;

// How many rows the agenda has after one press and after two.
Texts CountsOfTwoPresses(AgendaListFixture& agenda) {
  agenda.Write();
  Texts counts = agenda.Agenda("COUNT(*)");
  agenda.Write();
  counts.push_back(agenda.Agenda("COUNT(*)").at(0));
  return counts;
}

TEST(AgendaTwice, DoublesNothing) {
  AgendaListFixture agenda;
  agenda.Entry("09/03/2026", "di nessuno");
  agenda.Case("1842/2025");
  agenda.Entry("12/03/2026 09:30", "Udienza");
  agenda.Entry("13/03/2026", "Note");
  agenda.Case("3056/2025");
  agenda.Entry("13/03/2026", "Note");
  EXPECT_EQ(CountsOfTwoPresses(agenda), (Texts{"4", "4"}));
}

TEST(AgendaTwice, DoublesNoEntryWithQuotesAndApostrophes) {
  AgendaListFixture agenda;
  agenda.Case("1842/2025", "COOPERATIVA \"L'UNIONE\" / D'AMICO");
  agenda.Entry("12/03/2026", "Fascicolo \"di parte\" dell'attore");
  EXPECT_EQ(CountsOfTwoPresses(agenda), (Texts{"1", "1"}));
}

TEST(AgendaTwice, DoublesNoEntryLongerThanItsColumn) {
  AgendaListFixture agenda;
  agenda.Case("1842/2025");
  agenda.Entry("12/03/2026", std::string(199, 'x') + "è fuori");
  // Cut behind a blank.
  agenda.Entry("12/03/2026", std::string(199, 'y') + " fuori");
  EXPECT_EQ(CountsOfTwoPresses(agenda), (Texts{"2", "2"}));
}

TEST(AgendaTwice, DoublesNoEntryWhosePartiesStandBetweenBlanks) {
  AgendaListFixture agenda;
  agenda.Case("1842/2025", " ROSSI / BIANCHI  ");
  agenda.Entry("12/03/2026", "Note");
  EXPECT_EQ(CountsOfTwoPresses(agenda), (Texts{"1", "1"}));
}

TEST(AgendaTwice, LeavesAStoredEntryAsTheUserChangedIt) {
  AgendaListFixture agenda;
  agenda.Case("1842/2025");
  agenda.Entry("12/03/2026 09:30", "Udienza");
  agenda.Write();
  agenda.office.Do("UPDATE SCADENZE SET Priorita = 3, Ora = '11:00', Responsabile = 'ALTRI'");
  agenda.Write();
  EXPECT_EQ(agenda.Agenda("Priorita, Ora, Responsabile"), (Texts{"3|11:00|ALTRI"}));
}

TEST(AgendaDuplicate, IsAnEntryInOtherLetterCase) {
  AgendaListFixture agenda;
  agenda.Case("1842/2025");
  agenda.Entry("12/03/2026", "Verità del perito");
  agenda.Entry("12/03/2026", "VERITÀ DEL PERITO");
  agenda.Write();
  EXPECT_EQ(agenda.Agenda("Scadenza"), (Texts{"Verità del perito"}));
}

TEST(AgendaDuplicate, IsAlsoAnEntryThatTheUserMade) {
  AgendaListFixture agenda;
  agenda.office.Do(
      "INSERT INTO SCADENZE (Scadenza, Data_End, Codice_Pra, Parti, IsOrdex) VALUES "
      "('Note', '2026-03-12 00:00:00', 2, 'ROSSI / BIANCHI', 0)");
  agenda.Case("1842/2025");
  agenda.Entry("12/03/2026", "Note");
  agenda.Write();
  EXPECT_EQ(agenda.Agenda("IsOrdex"), (Texts{"Falso"}));
}

TEST(AgendaDuplicate, IsNoEntryOfAnotherDateCasePartiesOrText) {
  AgendaListFixture agenda;
  agenda.Case("1842/2025", "UNO");
  agenda.Entry("12/03/2026", "Note");
  agenda.Entry("03/12/2026", "Note");
  agenda.Entry("12/03/2026", "Repliche");
  agenda.Case("58/2026", "UNO");
  agenda.Entry("12/03/2026", "Note");
  agenda.Case("1842/2025", "DUE");
  agenda.Entry("12/03/2026", "Note");
  agenda.Write();
  EXPECT_EQ(agenda.Agenda("Data_End, Codice_Pra, Parti, Scadenza"),
            (Texts{"12/03/2026|2|UNO|Note", "03/12/2026|2|UNO|Note", "12/03/2026|2|UNO|Repliche",
                   "12/03/2026|9|UNO|Note", "12/03/2026|2|DUE|Note"}));
}

}  // namespace
}  // namespace ordex::testing
