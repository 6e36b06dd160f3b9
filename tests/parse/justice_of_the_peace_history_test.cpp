// The history that a justice-of-the-peace page carries with it.
#include <gtest/gtest.h>

#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "import_bench.h"
#include "page_benches.h"

namespace ordex::testing {
namespace {

TEST(JusticeHistory, IsAHeadingAndAnEventForEachLineUpToTheEmptyOne) {
  JusticeBench bench;
  EXPECT_EQ(bench.Read({"I MOVIMENTI:", "08/10/2025 Deposito del ricorso", "10/10/2025 Udienza", "",
                        "11/10/2025 fuori"}),
            Stop{});
  EXPECT_EQ(bench.sink.rows,
            (Rows{kHistoryHeadingRow, EventRow("08/10/2025", "Deposito del ricorso"),
                  EventRow("10/10/2025", "Udienza")}));
  EXPECT_EQ(bench.Values(), NamedValues{});
}

TEST(JusticeHistory, ThatBeginsWithAnEmptyLineStillFindsItsFirstEvent) {
  JusticeBench bench;
  EXPECT_EQ(bench.Read({"MOVIMENTI", "", "08/10/2025 Deposito", "", "Fine dei fatti"}), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{kHistoryHeadingRow, EventRow("08/10/2025", "Deposito")}));
}

TEST(JusticeHistory, ThatBeginsWithTwoEmptyLinesIsEmpty) {
  JusticeBench bench;
  EXPECT_EQ(bench.Read({"Dati della causa", "MOVIMENTI", "", "", "Note: x"}), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{kHistoryHeadingRow, FieldRow("Note", "Note", "x")}));
}

TEST(JusticeHistory, PassesOverALineThatIsTheColumnHeadingAfterTrimming) {
  JusticeBench bench;
  EXPECT_EQ(bench.Read({"MOVIMENTI", "  Giorno Fatto ", "08/10/2025 a", "Giorno Fatto",
                        "Giorno Fatto nuovo", "giorno fatto", ""}),
            Stop{});
  EXPECT_EQ(bench.sink.rows,
            (Rows{kHistoryHeadingRow, EventRow("08/10/2025", "a"),
                  EventRow("Giorno", "Fatto nuovo"), EventRow("giorno", "fatto")}));
}

TEST(JusticeHistory, CutsEventsAtTheFirstColumnMarkAndKeepsTheirDoubleBlanks) {
  JusticeBench bench;
  EXPECT_EQ(bench.Read({"MOVIMENTI", "08/10/2025  due  spazi  ", ""}), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{kHistoryHeadingRow, EventRow("08/10/2025", "due  spazi")}));
}

TEST(JusticeHistory, DoesNotTrimALineBeforeItIsCut) {
  JusticeBench bench;
  EXPECT_EQ(bench.Read({"MOVIMENTI", " 08/10/2025 a", "   ", "09/10/2025 b", ""}), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{kHistoryHeadingRow, EventRow("", "08/10/2025 a"),
                                   EventRow("", ""), EventRow("09/10/2025", "b")}));
}

TEST(JusticeHistory, ReadsNoOtherRuleInItsLines) {
  JusticeBench bench;
  EXPECT_EQ(bench.Read({"Dati della causa", "MOVIMENTI", "Oggetto: x", "Le parti", "Ricorre: A",
                        "MOVIMENTI vari", "", "Note: y"}),
            Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{kHistoryHeadingRow, EventRow("Oggetto:", "x"),
                                   EventRow("Le", "parti"), EventRow("Ricorre:", "A"),
                                   EventRow("MOVIMENTI", "vari"), FieldRow("Note", "Note", "y")}));
  EXPECT_EQ(bench.sink.parties, Parties{});
}

TEST(JusticeHistory, GoesBeforeTheLinesOfSeveralData) {
  JusticeBench bench;
  EXPECT_EQ(bench.Read({"Ruolo ; Note: a ; MOVIMENTI", "08/10/2025 b", ""}), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{kHistoryHeadingRow, EventRow("08/10/2025", "b")}));
}

TEST(JusticeHistory, DoesNotBeginOnTheLineThatOpensTheDataSection) {
  JusticeBench bench;
  EXPECT_EQ(bench.Read({"Dati della causa e MOVIMENTI", "Note: a"}), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("Note", "Note", "a")}));
}

TEST(JusticeHistory, WithAnEventOfOnePartStopsThereAndKeepsTheRowsSoFar) {
  JusticeBench bench;
  EXPECT_EQ(bench.Read({"MOVIMENTI", "08/10/2025 a", "09/10/2025", "10/10/2025 c", ""}),
            StopInPage(9, TooFewParts(1, 2), 3, "09/10/2025"));
  EXPECT_EQ(bench.sink.rows, (Rows{kHistoryHeadingRow, EventRow("08/10/2025", "a")}));
}

TEST(JusticeHistory, IsEndedQuietlyByTheEndOfTheFile) {
  for (const std::string page :
       {"MOVIMENTI", "MOVIMENTI\r\n", "MOVIMENTI\n\n", "MOVIMENTI\n\n\n"}) {
    JusticeBench bench;
    EXPECT_EQ(bench.ReadBytes(page), Stop{});
    EXPECT_EQ(bench.sink.rows, Rows{kHistoryHeadingRow});
  }
  JusticeBench bench;
  EXPECT_EQ(bench.ReadBytes("MOVIMENTI\n08/10/2025 a"), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{kHistoryHeadingRow, EventRow("08/10/2025", "a")}));
}

TEST(JusticeHistory, IsEndedQuietlyByTheClosingQuoteOfThePageFile) {
  JusticeBench bench;
  EXPECT_EQ(bench.Read({"\"MOVIMENTI", "08/10/2025 a", "\"", "09/10/2025 b"}), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{kHistoryHeadingRow, EventRow("08/10/2025", "a")}));
}

TEST(JusticeHistory, IsEndedByAClosingQuoteRightBehindItsHeadingToo) {
  JusticeBench bench;
  EXPECT_EQ(bench.Read({"MOVIMENTI", "\"", "09/10/2025 b"}), Stop{});
  EXPECT_EQ(bench.sink.rows, Rows{kHistoryHeadingRow});
}

TEST(JusticeHistory, HasEachOfItsLinesTakenByOneRule) {
  JusticeBench bench;
  bench.Read({"MOVIMENTI", "", "Giorno Fatto", "08/10/2025 a", "", "altro"});
  EXPECT_EQ(bench.trace.takers,
            (std::map<std::size_t, std::vector<std::string>>{{1, {"storico"}},
                                                             {2, {"fine blocco"}},
                                                             {3, {"riga saltata"}},
                                                             {4, {"evento"}},
                                                             {5, {"fine blocco"}}}));
}

}  // namespace
}  // namespace ordex::testing
