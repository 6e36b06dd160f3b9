// The lawyer's agenda page: the count, the cases and their entries.
#include <gtest/gtest.h>

#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "import_bench.h"
#include "missing_delimiter.h"
#include "page_benches.h"

namespace ordex::testing {
namespace {

const std::string kCaseA = "Causa # ROSSI / BIANCHI # 12/2026 davanti a Tribunale di Montefosco";
const std::string kCaseB = "Causa # VERDI / NERI # 34/2025 davanti a Corte d'Appello";
const AgendaEntry kCaseRowA{"12/2026", "ROSSI / BIANCHI", true};
const AgendaEntry kCaseRowB{"34/2025", "VERDI / NERI", true};

TEST(AgendaPage, TwoCasesGiveEachItsCaseRowAndThenItsEntriesInPageOrder) {
  AgendaBench bench;
  EXPECT_EQ(bench.Read({kCaseA, "Elenco impegni", "Udienza # 10/03/2026 09:30 # Prima udienza",
                        "Scadenza # 12/03/2026 # Note scritte", "", kCaseB, "Elenco impegni",
                        "Scadenza # 11/03/2026 # Memoria", ""}),
            Stop{});
  EXPECT_EQ(bench.sink.agenda, (AgendaEntries{kCaseRowA,
                                              {"    10/03/2026 09:30", "    Prima udienza"},
                                              {"    12/03/2026", "    Note scritte"},
                                              kCaseRowB,
                                              {"    11/03/2026", "    Memoria"}}));
}

TEST(AgendaPage, WritesNothingButAgendaRows) {
  AgendaBench bench;
  bench.page.szNumeroRG = "7/2024";
  bench.Read({"Impegni in tutto: 1 dal giorno 1", kCaseA, "Elenco impegni", "a # b # c", "",
              "Oggetto: x", "Attore: ROSSI"});
  EXPECT_EQ(bench.sink.agenda.size(), 2U);
  EXPECT_EQ(bench.sink.rows, Rows{});
  EXPECT_EQ(bench.sink.parties, Parties{});
  EXPECT_EQ(bench.Values(), NamedValues{});
  EXPECT_EQ(bench.page.szNumeroRG, "7/2024");
  EXPECT_EQ(bench.sink.kinds, std::vector<int>{3});
}

// --- the count ----------------------------------------------------------------------------------

TEST(AgendaCount, IsTakenAndGivesNoRow) {
  AgendaBench bench;
  EXPECT_EQ(bench.Read({"Impegni in tutto: 25 dal giorno 09/03/2026"}), Stop{});
  EXPECT_EQ(bench.page.iNrEventiAgenda, 25);
  EXPECT_EQ(bench.sink.agenda, AgendaEntries{});
}

TEST(AgendaCount, StaysAsItWasOnAPageWithoutTheCountLine) {
  AgendaBench bench;
  bench.page.iNrEventiAgenda = 9;
  EXPECT_EQ(bench.Read({"Impegni in tutto: 25", "25 dal giorno", "impegni in tutto: 3 dal giorno",
                        kCaseA}),
            Stop{});
  EXPECT_EQ(bench.page.iNrEventiAgenda, 9);
}

TEST(AgendaCount, StandsBehindItsFirstMarkAndBeforeTheNextEndMark) {
  AgendaBench bench;
  EXPECT_EQ(bench.Read({"dal giorno 1 Impegni in tutto:  8  dal giorno 2 dal giorno 3"}), Stop{});
  EXPECT_EQ(bench.page.iNrEventiAgenda, 8);
}

TEST(AgendaCount, ThatIsNoNumberStopsTheImport) {
  AgendaBench bench;
  bench.page.iNrEventiAgenda = 9;
  const std::string line = "Impegni in tutto: molti dal giorno 1";
  EXPECT_EQ(bench.Read({kCaseA, line, kCaseB}),
            StopInPage(13, "Tipo non corrispondente: \" molti \"", 2, line));
  EXPECT_EQ(bench.page.iNrEventiAgenda, 9);
  EXPECT_EQ(bench.sink.agenda, AgendaEntries{kCaseRowA});
}

TEST(AgendaCount, OverSixteenBitsStopsTheImport) {
  AgendaBench bench;
  EXPECT_EQ(bench.Read({"Impegni in tutto:32767dal giorno"}), Stop{});
  EXPECT_EQ(bench.page.iNrEventiAgenda, 32767);
  EXPECT_EQ(bench.Read({"Impegni in tutto:32768dal giorno"}),
            StopInPage(6, "Overflow: \"32768\"", 1, "Impegni in tutto:32768dal giorno"));
}

TEST(AgendaCount, GoesBeforeACaseOnTheSameLine) {
  AgendaBench bench;
  EXPECT_EQ(bench.Read({"Impegni in tutto: 2 dal giorno " + kCaseA}), Stop{});
  EXPECT_EQ(bench.page.iNrEventiAgenda, 2);
  EXPECT_EQ(bench.sink.agenda, AgendaEntries{});
}

// --- the case line ------------------------------------------------------------------------------

TEST(AgendaCase, HasItsNumberAndPartiesAsTheyStandUntrimmed) {
  AgendaBench bench;
  EXPECT_EQ(bench.Read({"Causa #  ROSSI  #  12/2026  davanti a X"}), Stop{});
  EXPECT_EQ(bench.sink.agenda, (AgendaEntries{{" 12/2026 ", " ROSSI ", true}}));
}

TEST(AgendaCase, MayBeginWithinTheLineAndHaveFurtherColumns) {
  AgendaBench bench;
  EXPECT_EQ(bench.Read({"1) Causa # A # 1/2026 # urgente davanti a X # Y davanti a Z"}), Stop{});
  EXPECT_EQ(bench.sink.agenda, (AgendaEntries{{"1/2026", "A", true}}));
}

TEST(AgendaCase, NeedsBothItsMarksInTheirLetterCase) {
  AgendaBench bench;
  EXPECT_EQ(bench.Read({"Causa # A # 1/2026", "A # 1/2026 davanti a X",
                        "causa # A # 1/2026 davanti a X", "Causa # A # 1/2026 DAVANTI A X"}),
            Stop{});
  EXPECT_EQ(bench.sink.agenda, AgendaEntries{});
}

TEST(AgendaCase, WithFewerThanThreePiecesStopsTheImportAndKeepsTheRowsSoFar) {
  AgendaBench bench;
  const std::string line = "Causa # 12/2026 davanti a X # Y # Z";
  EXPECT_EQ(bench.Read({kCaseA, line, kCaseB}), StopInPage(9, TooFewParts(2, 3), 2, line));
  EXPECT_EQ(bench.sink.agenda, AgendaEntries{kCaseRowA});
}

TEST(AgendaCase, OfOnePieceStopsTheImportToo) {
  AgendaBench bench;
  EXPECT_EQ(bench.Read({"Causa #12/2026 davanti a X"}),
            StopInPage(9, TooFewParts(1, 3), 1, "Causa #12/2026 davanti a X"));
}

// --- the entries --------------------------------------------------------------------------------

TEST(AgendaEntries, BeginBehindALineThatHoldsTheHeadingAnywhere) {
  AgendaBench bench;
  EXPECT_EQ(bench.Read({"a # prima # x", "  Il mio Elenco impegni: ", "a # dopo # x", ""}), Stop{});
  EXPECT_EQ(bench.sink.agenda, (AgendaEntries{{"    dopo", "    x"}}));
}

TEST(AgendaEntries, KeepTheSecondPartAsReadAndTrimTheThird) {
  AgendaBench bench;
  EXPECT_EQ(bench.Read({"Elenco impegni", "  Udienza #  10/03 #  testo  ", ""}), Stop{});
  EXPECT_EQ(bench.sink.agenda, (AgendaEntries{{"     10/03", "    testo"}}));
}

TEST(AgendaEntries, KeepFurtherColumnMarksInTheThirdPart) {
  AgendaBench bench;
  EXPECT_EQ(bench.Read({"Elenco impegni", "Udienza # 10/03 # uno # due # tre", ""}), Stop{});
  EXPECT_EQ(bench.sink.agenda, (AgendaEntries{{"    10/03", "    uno # due # tre"}}));
}

TEST(AgendaEntries, MayHaveEmptyTexts) {
  AgendaBench bench;
  EXPECT_EQ(bench.Read({"Elenco impegni", " #  # ", ""}), Stop{});
  EXPECT_EQ(bench.sink.agenda, (AgendaEntries{{"    ", "    "}}));
}

TEST(AgendaEntries, EndAtOnceAtALineThatBeginsTheNextCaseWithoutLosingIt) {
  AgendaBench bench;
  EXPECT_EQ(bench.Read({kCaseA, "Elenco impegni", kCaseB, "Elenco impegni", "a # b # c", kCaseA}),
            Stop{});
  EXPECT_EQ(bench.sink.agenda,
            (AgendaEntries{kCaseRowA, kCaseRowB, {"    b", "    c"}, kCaseRowA}));
}

TEST(AgendaEntries, DirectlyFollowedByAnEmptyLineGiveNoRows) {
  AgendaBench bench;
  EXPECT_EQ(bench.Read({kCaseA, "Elenco impegni", "", "a # b # c"}), Stop{});
  EXPECT_EQ(bench.sink.agenda, AgendaEntries{kCaseRowA});
}

TEST(AgendaEntries, ThatHoldTheBeginOfACaseFurtherInAreStillEntries) {
  AgendaBench bench;
  EXPECT_EQ(bench.Read({"Elenco impegni", "Scadenza # 11/03 # riunita a " + kCaseB,
                        " Causa # x # y davanti a z", ""}),
            Stop{});
  EXPECT_EQ(bench.sink.agenda, (AgendaEntries{{"    11/03", "    riunita a " + kCaseB},
                                              {"    x", "    y davanti a z"}}));
}

TEST(AgendaEntries, AreNotReadAsCountOrHeading) {
  AgendaBench bench;
  bench.page.iNrEventiAgenda = 9;
  EXPECT_EQ(bench.Read({"Elenco impegni", "Impegni in tutto: 5 dal giorno # a # b",
                        "Elenco impegni # c # d", ""}),
            Stop{});
  EXPECT_EQ(bench.page.iNrEventiAgenda, 9);
  EXPECT_EQ(bench.sink.agenda, (AgendaEntries{{"    a", "    b"}, {"    c", "    d"}}));
}

TEST(AgendaEntries, WithFewerThanThreePartsStopTheImportAndKeepTheRowsSoFar) {
  AgendaBench bench;
  EXPECT_EQ(
      bench.Read({kCaseA, "Elenco impegni", "a # b # c", "Udienza # 10/03/2026", "d # e # f", ""}),
      StopInPage(9, TooFewParts(2, 3), 4, "Udienza # 10/03/2026"));
  EXPECT_EQ(bench.sink.agenda, (AgendaEntries{kCaseRowA, {"    b", "    c"}}));
}

TEST(AgendaEntries, AreNotTrimmedSoALineOfBlanksIsAnEntryWithTooFewParts) {
  AgendaBench bench;
  EXPECT_EQ(bench.Read({"Elenco impegni", "a # b # c", "   ", ""}),
            StopInPage(9, TooFewParts(1, 3), 3, "   "));
}

TEST(AgendaEntries, CutShortByTheEndOfTheFileStopTheImportAndKeepTheRowsSoFar) {
  AgendaBench bench;
  EXPECT_EQ(bench.Read({kCaseA, "Elenco impegni", "a # b # c"}),
            StopInPage(62, kPageTooShort, 3, "a # b # c"));
  EXPECT_EQ(bench.sink.agenda, (AgendaEntries{kCaseRowA, {"    b", "    c"}}));
}

TEST(AgendaEntries, WhoseHeadingIsTheLastLineStopTheImport) {
  AgendaBench bench;
  EXPECT_EQ(bench.Read({kCaseA, "Elenco impegni"}),
            StopInPage(62, kPageTooShort, 2, "Elenco impegni"));
}

// --- the line handed back -----------------------------------------------------------------------

TEST(AgendaLineHandedBack, IsWorkedOnAlsoWhenItIsTheLastOfTheFile) {
  AgendaBench bench;
  EXPECT_EQ(bench.ReadBytes("Elenco impegni\na # b # c\n" + kCaseB), Stop{});
  EXPECT_EQ(bench.sink.agenda, (AgendaEntries{{"    b", "    c"}, kCaseRowB}));
}

// " davanti a " is no longer there once the blank behind it is gone.
TEST(AgendaLineHandedBack, IsTrimmedLikeEveryOther) {
  AgendaBench bench;
  EXPECT_EQ(bench.Read({"Elenco impegni", "a # b # c", "Causa # A # 1/2026 davanti a "}), Stop{});
  EXPECT_EQ(bench.sink.agenda, (AgendaEntries{{"    b", "    c"}}));
}

TEST(AgendaLineHandedBack, GoesThroughAllTheRules) {
  AgendaBench bench;
  EXPECT_EQ(bench.Read({"Elenco impegni", "Causa # Impegni in tutto: 4 dal giorno",
                        "Elenco impegni", "Causa # Elenco impegni", "a # b # c", ""}),
            Stop{});
  EXPECT_EQ(bench.page.iNrEventiAgenda, 4);
  EXPECT_EQ(bench.sink.agenda, (AgendaEntries{{"    b", "    c"}}));
}

TEST(AgendaLineHandedBack, IsReadOnceAndTakenByTheCaseAlone) {
  AgendaBench bench;
  bench.Read({kCaseA, "Elenco impegni", "a # b # c", kCaseB, "x"});
  std::vector<std::size_t> numbers;
  for (const auto& line : bench.trace.lines) numbers.push_back(line.number);
  EXPECT_EQ(numbers, (std::vector<std::size_t>{1, 2, 3, 4, 5}));
  EXPECT_EQ(bench.trace.takers,
            (std::map<std::size_t, std::vector<std::string>>{
                {1, {"fascicolo"}}, {2, {"impegni"}}, {3, {"impegno"}}, {4, {"fascicolo"}}}));
}

TEST(AgendaLineHandedBack, IsTheLineNamedWhenItFails) {
  AgendaBench bench;
  EXPECT_EQ(bench.Read({"Elenco impegni", "a # b # c", "Causa # 1/2026 davanti a X", "y"}),
            StopInPage(9, TooFewParts(2, 3), 3, "Causa # 1/2026 davanti a X"));
}

// --- missing delimiters -------------------------------------------------------------------------

TEST(AgendaMissingDelimiter, OfACountCaseOrHeadingStopsAtTheFirstLine) {
  for (const std::string key : {"DELAV1", "DELAV2", "DELAV3", "DELAV4", "DELAV5"}) {
    AgendaBench bench;
    bench.Delimiters(DelimitersWithout(kAgendaDelimiters, key));
    EXPECT_EQ(bench.Read({"Agenda", kCaseA}), StopInPage(5, MissingText(key), 1, "Agenda"));
    EXPECT_EQ(bench.sink.agenda, AgendaEntries{});
  }
}

TEST(AgendaMissingDelimiter, OfTheColumnsStopsAtTheFirstCaseOrEntry) {
  AgendaBench bench;
  bench.Delimiters(DelimitersWithout(kAgendaDelimiters, "DELAV6"));
  EXPECT_EQ(bench.Read({"Agenda", kCaseA}), StopInPage(5, MissingText("DELAV6"), 2, kCaseA));
  EXPECT_EQ(bench.Read({"Elenco impegni", "a # b # c", ""}),
            StopInPage(5, MissingText("DELAV6"), 2, "a # b # c"));
}

}  // namespace
}  // namespace ordex::testing
