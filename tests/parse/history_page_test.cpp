// The table of a history page: its header and its events.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "import_bench.h"
#include "missing_delimiter.h"
#include "page_benches.h"

namespace ordex::testing {
namespace {

TEST(HistoryPage, EveryLineBehindTheHeaderIsAnEventWithItsPage) {
  HistoryBench bench;
  EXPECT_EQ(bench.Read({"Storico", kHistoryHeader, "1 14/01/2025 Iscrizione a ruolo",
                        "2 15/01/2025 Assegnazione"}),
            Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{HistoryRow("1", "14/01/2025", "Iscrizione a ruolo"),
                                   HistoryRow("2", "15/01/2025", "Assegnazione")}));
  EXPECT_EQ(bench.sink.kinds, std::vector<int>{2});
  EXPECT_EQ(bench.Values(), NamedValues{});
}

TEST(HistoryPage, AnyOfTheFourHeadersOpensTheTable) {
  for (const std::string header : {"N. Giorno Fatto", "N. Giorno Fatto (segue)", "N. Giorno Evento",
                                   "N. Giorno Evento (segue)"}) {
    HistoryBench bench;
    EXPECT_EQ(bench.Read({"1 prima x", "  " + header + " ", "2 dopo y"}), Stop{}) << header;
    EXPECT_EQ(bench.sink.rows, (Rows{HistoryRow("2", "dopo", "y")})) << header;
  }
}

TEST(HistoryPage, AHeaderMustBeEqualToTheLetterAndTheBlank) {
  HistoryBench bench;
  EXPECT_EQ(bench.Read({"n. giorno fatto", "N. Giorno  Fatto",
                        "N. Giorno Fatto:", "> N. Giorno Fatto", "1 14/01/2025 x"}),
            Stop{});
  EXPECT_EQ(bench.sink.rows, Rows{});
}

TEST(HistoryPage, WithoutAHeaderYieldsNoRowsAndTheHistoryStaysEmpty) {
  HistoryBench bench;
  EXPECT_EQ(bench.Read({"1 14/01/2025 Iscrizione", "uno", "2 15/01/2025 x"}), Stop{});
  EXPECT_EQ(bench.sink.rows, Rows{});
  EXPECT_TRUE(bench.paging.bStoricoVuoto);
}

TEST(HistoryPage, ARowMakesTheHistoryNoLongerEmpty) {
  HistoryBench bench;
  bench.Read({kHistoryHeader, "** nulla", "1 14/01/2025 x"});
  EXPECT_FALSE(bench.paging.bStoricoVuoto);
}

TEST(HistoryPage, AHeaderWithoutEventsLeavesTheHistoryEmpty) {
  HistoryBench bench;
  EXPECT_EQ(bench.Read({kHistoryHeader, "", "** nulla"}), Stop{});
  EXPECT_TRUE(bench.paging.bStoricoVuoto);
}

TEST(HistoryPage, EveryImportAwaitsAHeaderOfItsOwn) {
  HistoryBench bench;
  EXPECT_EQ(bench.Read({kHistoryHeader, "1 14/01/2025 x"}), Stop{});
  EXPECT_EQ(bench.Read({"2 15/01/2025 y"}), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{HistoryRow("1", "14/01/2025", "x")}));
}

TEST(HistoryPage, AHeaderMayComeAgainAndIsNoRow) {
  HistoryBench bench;
  EXPECT_EQ(bench.Read({kHistoryHeader, "1 14/01/2025 x", "N. Giorno Fatto (segue)",
                        "2 15/01/2025 y", "3 16/01/2025 z"}),
            Stop{});
  EXPECT_EQ(bench.sink.rows,
            (Rows{HistoryRow("1", "14/01/2025", "x"), HistoryRow("2", "15/01/2025", "y"),
                  HistoryRow("3", "16/01/2025", "z")}));
}

TEST(HistoryPage, AHeaderOnTheLastLineStopsTheImport) {
  HistoryBench bench;
  EXPECT_EQ(bench.Read({"x", kHistoryHeader}), StopInPage(62, kPageTooShort, 2, kHistoryHeader));
}

// --- the line right behind the header -----------------------------------------------------------

TEST(HistoryLineBehindTheHeader, KeepsItsLeadingBlanksInTheFirstPartWhichIsThenTrimmed) {
  HistoryBench bench;
  std::string delimiters(kHistoryDelimiters);
  delimiters.replace(delimiters.find(" =DELSF2"), 1, ";");
  bench.Delimiters(delimiters);
  EXPECT_EQ(bench.Read({kHistoryHeader, "   1 ; 14/01/2025 ; Iscrizione; a ruolo  "}), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{HistoryRow("1", "14/01/2025", "Iscrizione; a ruolo")}));
}

// Two blanks are halved to one, which parts an empty text from the number.
TEST(HistoryLineBehindTheHeader, IsNotTrimmedWhileTheOthersAre) {
  HistoryBench bench;
  EXPECT_EQ(bench.Read({kHistoryHeader, "  1 14/01/2025 x", "  2 15/01/2025 y"}), Stop{});
  EXPECT_EQ(bench.sink.rows,
            (Rows{HistoryRow("", "1", "14/01/2025 x"), HistoryRow("2", "15/01/2025", "y")}));
}

TEST(HistoryLineBehindTheHeader, OfTwoBlanksIsARowWithTooFewParts) {
  HistoryBench bench;
  EXPECT_EQ(bench.Read({kHistoryHeader, "  ", "1 14/01/2025 x"}),
            StopInPage(9, TooFewParts(2, 3), 2, "  "));
}

TEST(HistoryLineBehindTheHeader, MayBeEmptyOrHoldTheMarkOfNoEvent) {
  HistoryBench bench;
  EXPECT_EQ(bench.Read(
                {kHistoryHeader, "", "1 14/01/2025 x", kHistoryHeader, "2 ** y", "3 15/01/2025 z"}),
            Stop{});
  EXPECT_EQ(bench.sink.rows,
            (Rows{HistoryRow("1", "14/01/2025", "x"), HistoryRow("3", "15/01/2025", "z")}));
}

// --- events -------------------------------------------------------------------------------------

TEST(HistoryEvent, HasItsDoubleBlanksHalvedBeforeItIsCutIntoThree) {
  HistoryBench bench;
  EXPECT_EQ(bench.Read({kHistoryHeader, "31  09/09/2025  Giuramento del consulente tecnico"}),
            Stop{});
  EXPECT_EQ(bench.sink.rows,
            (Rows{HistoryRow("31", "09/09/2025", "Giuramento del consulente tecnico")}));
}

TEST(HistoryEvent, HasItsBlanksHalvedInOnePassOnly) {
  HistoryBench bench;
  EXPECT_EQ(bench.Read({kHistoryHeader, "1 14/01/2025 a  b   c    d     e"}), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{HistoryRow("1", "14/01/2025", "a b  c  d   e")}));
}

TEST(HistoryEvent, PartedByThreeBlanksKeepsOneOfThemForTheNextPart) {
  HistoryBench bench;
  EXPECT_EQ(bench.Read({kHistoryHeader, "1 14/01/2025   Iscrizione a ruolo"}), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{HistoryRow("1", "14/01/2025", "Iscrizione a ruolo")}));
}

TEST(HistoryEvent, IsNoLineThatHoldsTheMarkWhereverItStands) {
  HistoryBench bench;
  EXPECT_EQ(bench.Read({kHistoryHeader, "1 14/01/2025 x", "**", "** 2 15/01/2025 y", "3 16/01 ** z",
                        "4 17/01/2025 w**", "5 18/01/2025 * v *"}),
            Stop{});
  EXPECT_EQ(bench.sink.rows,
            (Rows{HistoryRow("1", "14/01/2025", "x"), HistoryRow("5", "18/01/2025", "* v *")}));
}

TEST(HistoryEvent, IsNoLineOfFewerThanTwoCharacters) {
  HistoryBench bench;
  EXPECT_EQ(bench.Read({kHistoryHeader, "1 14/01/2025 x", "", "     ", " y ", "È", "\"",
                        "2 15/01/2025 z"}),
            Stop{});
  EXPECT_EQ(bench.sink.rows,
            (Rows{HistoryRow("1", "14/01/2025", "x"), HistoryRow("2", "15/01/2025", "z")}));
}

TEST(HistoryEvent, WithFewerThanThreePartsStopsTheImportAndKeepsTheRowsSoFar) {
  HistoryBench bench;
  EXPECT_EQ(bench.Read({kHistoryHeader, "1 14/01/2025 x", "2 15/01/2025", "3 16/01/2025 z"}),
            StopInPage(9, TooFewParts(2, 3), 3, "2 15/01/2025"));
  EXPECT_EQ(bench.sink.rows, (Rows{HistoryRow("1", "14/01/2025", "x")}));
  EXPECT_FALSE(bench.paging.bStoricoVuoto);
}

TEST(HistoryEvent, OfOnePartStopsTheImportToo) {
  HistoryBench bench;
  EXPECT_EQ(bench.Read({kHistoryHeader, "Torna"}), StopInPage(9, TooFewParts(1, 3), 2, "Torna"));
  EXPECT_EQ(bench.sink.rows, Rows{});
  EXPECT_TRUE(bench.paging.bStoricoVuoto);
}

// --- a page that was taken already --------------------------------------------------------------

TEST(HistoryPageTakenAlready, YieldsNoRowsAndIsLeftAtItsFirstLine) {
  HistoryBench bench;
  bench.paging.bPaginaNuova = false;
  EXPECT_EQ(bench.Read({kHistoryHeader, "1 14/01/2025 x"}), Stop{});
  EXPECT_EQ(bench.sink.rows, Rows{});
  EXPECT_EQ(bench.trace.lines.size(), 1U);
  EXPECT_TRUE(bench.trace.takers.empty());
  EXPECT_TRUE(bench.paging.bStoricoVuoto);
}

TEST(HistoryPageTakenAlready, StaysTaken) {
  HistoryBench bench;
  bench.paging.cPagineStorico.Add("2", "2");
  bench.paging.bPaginaNuova = false;
  EXPECT_EQ(bench.Read({kHistoryHeader, "x"}), Stop{});
  EXPECT_TRUE(ItemExists(bench.paging.cPagineStorico, "2"));
}

// --- missing delimiters -------------------------------------------------------------------------

TEST(HistoryMissingDelimiter, OfAHeaderStopsAtTheFirstLine) {
  for (const std::string key : {"DELSF1", "DELSF8", "DELSF9", "DELSF10"}) {
    HistoryBench bench;
    bench.Delimiters(DelimitersWithout(kHistoryDelimiters, key));
    EXPECT_EQ(bench.Read({"", "x"}), StopInPage(5, MissingText(key), 1, "")) << key;
  }
}

TEST(HistoryMissingDelimiter, OfTheEventsStopsAtTheFirstOfThem) {
  for (const std::string key : {"DELSF2", "DELSF3"}) {
    HistoryBench bench;
    bench.Delimiters(DelimitersWithout(kHistoryDelimiters, key));
    EXPECT_EQ(bench.Read({"uno", kHistoryHeader, "1 14/01/2025 x"}),
              StopInPage(5, MissingText(key), 3, "1 14/01/2025 x"))
        << key;
    EXPECT_EQ(bench.sink.rows, Rows{});
  }
}

}  // namespace
}  // namespace ordex::testing
