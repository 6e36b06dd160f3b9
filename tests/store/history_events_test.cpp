// One event of a case's history: refreshed under its number, or added.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "store/history_events.h"
#include "support/office_fixture.h"

namespace ordex::testing {
namespace {

using Texts = std::vector<std::string>;

struct EventsFixture {
  // Refreshes the event of that number from a review row.
  void Refresh(std::int16_t progressivo, const ReviewRow& row, std::int32_t idPratica = 7) {
    RegistraEventi(office.database(), progressivo, idPratica, row, clock);
  }
  void Add(std::int32_t progressivo, const ReviewRow& row, std::int32_t idPratica = 7) {
    RegistraEvento(office.database(), row, idPratica, progressivo, clock);
  }
  // An event that is there already, of the import of 05/01/2025.
  void Store(const std::string& idPratica, const std::string& progressivo) {
    office.Do(
        "INSERT INTO EventiPraOrdex (ID_PraRel, Progressivo, Data, Descrizione, NrPagina, "
        "DataAcquisizione) VALUES (" +
        idPratica + ", " + progressivo + ", 'prima', 'vecchia', '9', '2025-01-05 00:00:00')");
  }
  Texts Events() {
    return office.Rows(
        "SELECT ID_PraRel, Progressivo, Data, Descrizione, NrPagina, DataAcquisizione FROM "
        "EventiPraOrdex ORDER BY ID_Evento");
  }
  std::string PageNumberOf(std::string_view reference) {
    Refresh(3, {"3", {"14/01/2025", "Iscrizione a ruolo", reference}, ""});
    return office.Row("SELECT NrPagina FROM EventiPraOrdex");
  }

  Office office;
  FakeClock clock;  // 20/02/2026 09:15:30
};

const ReviewRow kEvent = {"3", {"14/01/2025", "Deposito dell'atto", "2/5"}, ""};

// --- RegistraEventi -----------------------------------------------------------------------------

TEST(RegistraEventi, LooksForTheEventOfThatCaseAndNumber) {
  EventsFixture events;
  events.Refresh(3, kEvent);
  EXPECT_EQ(events.office.diagnostics.sql,
            (Texts{"SELECT * from EventiPraOrdex where ID_PraRel = 7 and Progressivo = 3"}));
}

TEST(RegistraEventi, AddsAnEventWithEveryColumn) {
  EventsFixture events;
  events.Refresh(3, kEvent);
  EXPECT_EQ(events.Events(), (Texts{"7|3|14/01/2025|Deposito dell'atto|2|20/02/2026"}));
}

TEST(RegistraEventi, RefreshesAnEventThatIsStored) {
  EventsFixture events;
  events.Store("7", "3");
  events.Refresh(3, kEvent);
  EXPECT_EQ(events.Events(), (Texts{"7|3|14/01/2025|Deposito dell'atto|2|20/02/2026"}));
  EXPECT_EQ(events.office.connection().Count("INSERT"), 0U);
}

TEST(RegistraEventi, TwiceLeavesOneRowWithTheDayOfTheSecondImport) {
  EventsFixture events;
  events.Refresh(3, kEvent);
  events.clock.now = {2026, 3, 1, 23, 59, 59};
  events.Refresh(3, kEvent);
  EXPECT_EQ(events.Events(), (Texts{"7|3|14/01/2025|Deposito dell'atto|2|01/03/2026"}));
}

TEST(RegistraEventi, TwiceOnOneDayChangesNothingTheSecondTime) {
  EventsFixture events;
  events.Refresh(3, kEvent);
  events.office.connection().Forget();
  events.clock.now.hour = 18;
  events.Refresh(3, kEvent);
  EXPECT_EQ(events.office.connection().Count("UPDATE"), 0U);
  EXPECT_EQ(events.office.connection().Count("INSERT"), 0U);
}

TEST(RegistraEventi, LeavesOtherNumbersAndOtherCasesAlone) {
  EventsFixture events;
  events.Store("7", "4");
  events.Store("8", "3");
  events.Refresh(3, kEvent);
  EXPECT_EQ(events.Events(),
            (Texts{"7|4|prima|vecchia|9|05/01/2025", "8|3|prima|vecchia|9|05/01/2025",
                   "7|3|14/01/2025|Deposito dell'atto|2|20/02/2026"}));
}

// The argument finds the event; what a new one is numbered is the row's own text.
TEST(RegistraEventi, NumbersANewEventByTheTextOfItsRow) {
  EventsFixture events;
  events.Refresh(3, {"4", {"14/01/2025", "Deposito", "1/1"}, ""});
  EXPECT_EQ(events.office.Row("SELECT Progressivo FROM EventiPraOrdex"), "4");
}

TEST(RegistraEventi, KeepsTheNumberOfAStoredEvent) {
  EventsFixture events;
  events.Store("7", "3");
  events.Refresh(3, {"4", {"14/01/2025", "Deposito", "1/1"}, ""});
  EXPECT_EQ(events.office.Row("SELECT Progressivo, Descrizione FROM EventiPraOrdex"), "3|Deposito");
}

TEST(RegistraEventi, KeepsTheDateAsTheTextThatThePageShows) {
  EventsFixture events;
  events.Refresh(3, {"3", {"da fissare", "Udienza", "1/1"}, ""});
  EXPECT_EQ(events.office.Row("SELECT Data FROM EventiPraOrdex"), "da fissare");
}

TEST(RegistraEventi, KeepsQuotesAndForeignLetters) {
  EventsFixture events;
  const std::string text = "Deposito \"di riserva\" dell'attività, Kovač'; DROP TABLE Pratica; --";
  events.Refresh(3, {"3", {"14/01/2025", text, "1/1"}, ""});
  EXPECT_EQ(events.office.Row("SELECT Descrizione FROM EventiPraOrdex"), text);
}

TEST(RegistraEventi, TakesThePageNumberBeforeTheFirstSlash) {
  EXPECT_EQ(EventsFixture().PageNumberOf("12/15"), "12");
  EXPECT_EQ(EventsFixture().PageNumberOf("1/2/3"), "1");
  EXPECT_EQ(EventsFixture().PageNumberOf("/5"), "");
}

TEST(RegistraEventi, TakesAPageReferenceWithoutASlashWhole) {
  EXPECT_EQ(EventsFixture().PageNumberOf("pagina 2"), "pagina 2");
  EXPECT_EQ(EventsFixture().PageNumberOf(""), "");
}

// --- RegistraEvento -----------------------------------------------------------------------------

const ReviewRow kMovement = {"Storico", {"08/10/2025", "Deposito del ricorso", "4/4"}, ""};

TEST(RegistraEvento, OpensTheEventsOfThatCase) {
  EventsFixture events;
  events.Add(1, kMovement);
  EXPECT_EQ(events.office.diagnostics.sql,
            (Texts{"SELECT * from EventiPraOrdex where ID_PraRel = 7"}));
}

TEST(RegistraEvento, AddsAnEventUnderTheNumberGivenAndWithoutAPage) {
  EventsFixture events;
  events.Add(12, kMovement);
  EXPECT_EQ(events.Events(), (Texts{"7|12|08/10/2025|Deposito del ricorso|NULL|20/02/2026"}));
}

TEST(RegistraEvento, AlwaysAddsAlsoWhereTheSameEventIsStored) {
  EventsFixture events;
  events.Store("7", "1");
  events.Add(1, kMovement);
  events.Add(1, kMovement);
  EXPECT_EQ(events.Events(), (Texts{"7|1|prima|vecchia|9|05/01/2025",
                                    "7|1|08/10/2025|Deposito del ricorso|NULL|20/02/2026",
                                    "7|1|08/10/2025|Deposito del ricorso|NULL|20/02/2026"}));
}

TEST(RegistraEvento, CostsOneInsertAndReadsNoneOfTheEventsThatAreThere) {
  EventsFixture events;
  events.Store("7", "1");
  events.Add(2, kMovement);
  EXPECT_EQ(events.office.connection().Count("INSERT"), 1U);
  EXPECT_EQ(events.office.connection().Count("FETCH"), 0U);
}

// --- failures -----------------------------------------------------------------------------------

TEST(AnEventThatFails, IsToldToTheDiagnosticsAloneAndWritesNothing) {
  for (const char* statement : {"PREPARE", "FETCH", "INSERT"}) {
    EventsFixture events;
    events.office.connection().FailOn(statement);
    events.Refresh(3, kEvent);
    EXPECT_TRUE(events.Events().empty()) << statement;
    EXPECT_EQ(events.office.diagnostics.trapped,
              (std::vector<NotedError>{{"RegistraEventi", kDatabaseErrorNumber,
                                        "Errore del database: errore chiesto dalla prova",
                                        std::nullopt}}))
        << statement;
  }
}

TEST(AnEventThatFails, KeepsWhatWasStored) {
  EventsFixture events;
  events.Store("7", "3");
  events.office.connection().FailOn("UPDATE");
  events.Refresh(3, kEvent);
  EXPECT_EQ(events.Events(), (Texts{"7|3|prima|vecchia|9|05/01/2025"}));
  EXPECT_EQ(events.office.diagnostics.trapped.size(), 1U);
}

TEST(AnEventThatFails, WhereARowsNumberIsNoNumberWritesNothing) {
  EventsFixture events;
  events.Refresh(3, {"terzo", {"14/01/2025", "Deposito", "1/1"}, ""});
  EXPECT_TRUE(events.Events().empty());
  ASSERT_EQ(events.office.diagnostics.trapped.size(), 1U);
  EXPECT_EQ(events.office.diagnostics.trapped[0].routine, "RegistraEventi");
  EXPECT_EQ(events.office.diagnostics.trapped[0].number, 13);
}

TEST(AnEventThatFails, WhileItIsAddedIsToldToTheDiagnosticsAloneAndWritesNothing) {
  for (const char* statement : {"PREPARE", "INSERT"}) {
    EventsFixture events;
    events.office.connection().FailOn(statement);
    events.Add(1, kMovement);
    EXPECT_TRUE(events.Events().empty()) << statement;
    ASSERT_EQ(events.office.diagnostics.trapped.size(), 1U) << statement;
    EXPECT_EQ(events.office.diagnostics.trapped[0].routine, "RegistraEvento") << statement;
  }
}

// What was written before in the same transaction is gone: the caller must hear of it.
TEST(AnEventThatFails, AndEndsTheCallersTransactionGoesOn) {
  FakeFailure deadlock;
  deadlock.endsTransaction = true;
  EventsFixture events;
  FakeConnection& connection = events.office.connection();
  connection.FailOn("INSERT", deadlock);
  connection.Begin();
  EXPECT_EQ(ErrorNumberOf([&] { events.Refresh(3, kEvent); }), kDatabaseErrorNumber);
  connection.FailOn("INSERT", deadlock);
  connection.Begin();
  EXPECT_EQ(ErrorNumberOf([&] { events.Add(1, kMovement); }), kDatabaseErrorNumber);
}

}  // namespace
}  // namespace ordex::testing
