// What the sample histories, agendas and justice-of-the-peace pages hold besides their rows.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

#include "import_bench.h"
#include "page_benches.h"
#include "sample_import.h"

namespace ordex::testing {
namespace {

// --- histories ----------------------------------------------------------------------------------

struct SamplePlace {
  const char* name;
  int page;
  int pages;
  int events;
};

TEST(HistorySamples, TellTheirPlaceAndTheTotalOfEvents) {
  for (const SamplePlace& place : {SamplePlace{"storico-pagina-1", 1, 3, 42},
                                   {"storico-pagina-2", 2, 3, 42},
                                   {"storico-pagina-3", 3, 3, 42},
                                   {"storico-unica", 1, 1, 7},
                                   {"storico-lavoro-pagina-2", 2, 2, 11}}) {
    const SampleImport sample(place.name);
    EXPECT_EQ(sample.paging.iPaginaStorico, place.page) << place.name;
    EXPECT_EQ(sample.paging.iTotPagineStorico, place.pages) << place.name;
    EXPECT_EQ(sample.paging.iTotEventiStorico, place.events) << place.name;
    EXPECT_TRUE(sample.paging.bPaginaNuova) << place.name;
    EXPECT_FALSE(sample.paging.bStoricoVuoto) << place.name;
  }
}

TEST(HistorySamples, TheThreePagesOfOneHistoryGiveAllItsEventsInAnyOrderAndEachOnce) {
  SampleRun run;
  for (const char* name : {"storico-pagina-2", "storico-pagina-1", "storico-pagina-2",
                           "storico-pagina-3", "storico-pagina-1"}) {
    EXPECT_EQ(run.Copy(name), Stop{}) << name;
  }
  std::vector<int> numbers;
  for (const Row& row : run.sink.rows) numbers.push_back(std::stoi(row.value));
  std::sort(numbers.begin(), numbers.end());
  std::vector<int> all;
  for (int number = 1; number <= 42; ++number) all.push_back(number);
  EXPECT_EQ(numbers, all);
}

// --- agendas ------------------------------------------------------------------------------------

TEST(AgendaSamples, TheWeekStatesAsManyEntriesAsItShows) {
  const SampleImport sample("agenda-settimana");
  EXPECT_EQ(sample.page.iNrEventiAgenda, 25);
  const auto cases = std::count_if(sample.sink.agenda.begin(), sample.sink.agenda.end(),
                                   [](const AgendaEntry& entry) { return entry.bold; });
  EXPECT_EQ(cases, 8);
  EXPECT_EQ(sample.sink.agenda.size(), 25U + 8U);
}

TEST(AgendaSamples, TheEmptyWeekStatesNone) {
  SampleRun run;
  run.page.iNrEventiAgenda = 25;
  EXPECT_EQ(run.Copy("agenda-vuota"), Stop{});
  EXPECT_EQ(run.page.iNrEventiAgenda, 0);
}

// --- justice of the peace -----------------------------------------------------------------------

TEST(JusticeSamples, TheOppositionGivesItsPageValuesAndParties) {
  const SampleImport sample("giudice-di-pace-opposizione");
  EXPECT_EQ(sample.page.szNumeroRG, "4417/2025");
  EXPECT_EQ(
      Sorted(ValuesOf(sample.page.cDatiFasc)),
      (NamedValues{
          {"AttoImpugnato", "Verbale n. V/20418/2025 del 29/08/2025, notificato il 15/09/2025"},
          {"Attore", "R******* M****"},
          {"AutoritaAtto", "Polizia locale dell'Unione dei Colli del Mirto"},
          {"Convenuto", "C***** DI C**********"},
          {"DPUd", "17/03/2026 11:15"},
          {"DUUd", "11/12/2025 10:30"},
          {"DataIscrizione", "08/10/2025"},
          {"DifAttore", "F******** N***"},
          {"DifConvenuto", "D******* V******"},
          {"Istruttore", "Dott. Verzieri Baldassarre"},
          {"Materia", "Opposizione a sanzioni amministrative"},
          {"NoteCancelleria",
           "Sospensione dell'atto concessa all'udienza dell'11/12/2025; \r\nAttesi i documenti di "
           "taratura dell'apparecchio"},
          {"NumeroRegGenerale", "4417/2025"},
          {"Oggetto",
           "Opposizione a verbale di accertamento per violazione dei limiti di velocità"},
          {"ParteAttrice", "R******* M**** rappresentato/a da F******** N***"},
          {"ParteConvenuta", "C***** DI C********** rappresentato/a da D******* V******"},
          {"Sezione", "Unica"},
          {"StatoFascicolo", "In attesa di udienza"},
          {"Ufficio", "Ufficio del Giudice di Pace di Castelmirto"},
          {"ValoreCausa", "€ 543,00"}}));
  EXPECT_EQ(sample.sink.parties, (Parties{{"R******* M****", "F******** N***"},
                                          {"C***** DI C**********", "D******* V******"}}));
}

TEST(JusticeSamples, TheAccidentOffersItsThreePartiesAndTheFirstDefendantKeepsTheKey) {
  const SampleImport sample("giudice-di-pace-sinistro");
  EXPECT_EQ(sample.page.szNumeroRG, "5230/2025");
  EXPECT_EQ(sample.sink.parties, (Parties{{"P******* S****", "F******** N***"},
                                          {"T********* A****** S.P.A.", "Q********** F****"},
                                          {"N**** G*******", ""}}));
  const KeyedTable& values = sample.page.cDatiFasc;
  EXPECT_EQ(values.Item("Attore"), "P******* S****");
  EXPECT_EQ(values.Item("Convenuto"), "T********* A****** S.P.A.");
  EXPECT_EQ(values.Item("DifConvenuto"), "Q********** F****");
  EXPECT_EQ(values.Item("ParteConvenuta"),
            "T********* A****** S.P.A. rappresentato/a da Q********** F****; \r\nN**** G*******");
}

}  // namespace
}  // namespace ordex::testing
