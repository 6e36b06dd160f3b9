// The block of deadlines and the deposit date: the two places where the rules read on by
// themselves.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "import_bench.h"

namespace ordex::testing {
namespace {

std::vector<std::string> FirstTakers(const ImportBench& bench) {
  std::vector<std::string> takers;
  for (const auto& line : bench.trace.lines) takers.push_back(bench.trace.FirstTaker(line.number));
  return takers;
}

using Takers = std::vector<std::string>;

TEST(Deadlines, EachLineOfTheBlockIsATaggedRowAndNoPageValue) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Termini assegnati", "Lista dei testimoni: 20/02/2026",
                       "Note dell'attore: 02/03/2026", "", "Oggetto: x"}),
            Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{DeadlineRow("Lista dei testimoni", "20/02/2026"),
                                   DeadlineRow("Note dell'attore", "02/03/2026"),
                                   FieldRow("Oggetto", "Oggetto", "x")}));
  EXPECT_EQ(bench.Values(), (NamedValues{{"Oggetto", "x"}}));
  EXPECT_EQ(FirstTakers(bench),
            (Takers{"scadenze", "scadenza", "scadenza", "fine scadenze", "campo"}));
}

TEST(Deadlines, TheirHeadingIsSoughtAnywhereInTheLine) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"I Termini assegnati dal giudice", "A: 1", ""}), Stop{});
  EXPECT_EQ(bench.sink.rows, Rows{DeadlineRow("A", "1")});
}

TEST(Deadlines, TheirHeadingInOtherLetterCaseOpensNoBlock) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"TERMINI ASSEGNATI", "Oggetto: x"}), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("Oggetto", "Oggetto", "x")}));
}

TEST(Deadlines, TheLabelStandsAsInTheLineAndTheValueIsTrimmed) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Termini assegnati", "  Lista dei testimoni  :  20/02/2026 ore 9:30  ", ""}),
            Stop{});
  EXPECT_EQ(bench.sink.rows, Rows{DeadlineRow("  Lista dei testimoni  ", "20/02/2026 ore 9:30")});
}

TEST(Deadlines, NoOtherRuleLooksAtTheLinesOfTheBlock) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Termini assegnati", "Oggetto: 1", "Numero di ruolo generale: 2",
                       "Attore: ROSSI", "Termini assegnati: 3", "Deposito documenti: 4", "x:", ""}),
            Stop{});
  EXPECT_EQ(bench.sink.rows,
            (Rows{DeadlineRow("Oggetto", "1"), DeadlineRow("Numero di ruolo generale", "2"),
                  DeadlineRow("Attore", "ROSSI"), DeadlineRow("Termini assegnati", "3"),
                  DeadlineRow("Deposito documenti", "4"), DeadlineRow("x", "")}));
  EXPECT_EQ(bench.Values(), NamedValues{});
  EXPECT_EQ(bench.page.szNumeroRG, "");
  EXPECT_EQ(bench.sink.parties, Parties{});
}

TEST(Deadlines, TheBlockEndsAtTheFirstEmptyLine) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Termini assegnati", "A: 1", "", "B: 2", "", "C: 3"}), Stop{});
  EXPECT_EQ(bench.sink.rows, Rows{DeadlineRow("A", "1")});
}

TEST(Deadlines, ABlockMayBeEmpty) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Termini assegnati", "", "Oggetto: x"}), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("Oggetto", "Oggetto", "x")}));
}

TEST(Deadlines, TwoBlocksAreBothRead) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Termini assegnati", "A: 1", "", "Termini assegnati ancora", "B: 2", ""}),
            Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{DeadlineRow("A", "1"), DeadlineRow("B", "2")}));
}

TEST(Deadlines, ALineWithoutTheSeparatorStopsTheImportAtThatLine) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Oggetto: x", "Termini assegnati", "A: 1", " Senza valore ", "B: 2", ""}),
            StopInPage(9, kNoSeparator, 4, " Senza valore "));
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("Oggetto", "Oggetto", "x"), DeadlineRow("A", "1")}));
  EXPECT_EQ(bench.Values(), (NamedValues{{"Oggetto", "x"}}));
}

TEST(Deadlines, ALineOfBlanksDoesNotEndTheBlockAndFailsForItsMissingSeparator) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Termini assegnati", "A: 1", "   ", "Oggetto: x"}),
            StopInPage(9, kNoSeparator, 3, "   "));
  EXPECT_EQ(bench.sink.rows, Rows{DeadlineRow("A", "1")});
}

TEST(Deadlines, ALineOfBlanksIsADeadlineWhereTheSeparatorIsABlank) {
  ImportBench bench;
  std::string delimiters(kBenchDelimiters);
  delimiters.replace(delimiters.find(":=DELPF2"), 1, " ");
  bench.Delimiters(delimiters);
  EXPECT_EQ(bench.Run({"Termini assegnati", "   ", "A 1 2", "", "Oggetto x"}), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{DeadlineRow("", ""), DeadlineRow("A", "1 2"),
                                   FieldRow("Oggetto", "Oggetto", "x")}));
}

TEST(Deadlines, ThePageEndingInsideTheBlockStopsTheImportAtItsLastLine) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Termini assegnati", "A: 1", "B: 2"}),
            StopInPage(62, kPageTooShort, 3, "B: 2"));
  EXPECT_EQ(bench.sink.rows, (Rows{DeadlineRow("A", "1"), DeadlineRow("B", "2")}));
}

TEST(Deadlines, ThePageEndingWithTheirHeadingStopsTheImportThere) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Oggetto: x", "Termini assegnati"}),
            StopInPage(62, kPageTooShort, 2, "Termini assegnati"));
}

TEST(Deadlines, AnEmptyLastLineEndsTheBlock) {
  ImportBench bench;
  EXPECT_EQ(bench.RunBytes("Termini assegnati\r\nA: 1\r\n\r\n"), Stop{});
  EXPECT_EQ(bench.sink.rows, Rows{DeadlineRow("A", "1")});
}

// The page file's last line is its closing quote: no empty line, and without a separator.
TEST(Deadlines, TheClosingQuoteOfThePageFileDoesNotEndTheBlock) {
  ImportBench bench;
  EXPECT_EQ(bench.RunBytes("\"Termini assegnati\r\nA: 1\r\n\"\r\n"),
            StopInPage(9, kNoSeparator, 3, "\""));
  EXPECT_EQ(bench.sink.rows, Rows{DeadlineRow("A", "1")});
}

TEST(Deadlines, TheirHeadingIsAFieldTooOnceTheBlockIsRead) {
  ImportBench bench;
  bench.Fields("Termini=Termini assegnati\n");
  EXPECT_EQ(bench.Run({"Termini assegnati: due", "A: 1", "", "Stanza: 3"}), Stop{});
  EXPECT_EQ(bench.sink.rows,
            (Rows{DeadlineRow("A", "1"), FieldRow("Termini", "Termini assegnati", "due")}));
  EXPECT_EQ(bench.Values(), (NamedValues{{"Termini", "due"}}));
  EXPECT_EQ(bench.trace.takers.at(1), (Takers{"scadenze", "campo"}));
}

TEST(Deadlines, TheRowsBehindTheBlockAreOfTheHeadingAgain) {
  ImportBench bench;
  bench.Fields("Termini=Termini assegnati\n");
  EXPECT_EQ(bench.Run({"Termini assegnati: due", "A: 1", ""}), Stop{});
  EXPECT_EQ(bench.trace.workedOn, (std::vector<std::size_t>{1}));
}

TEST(Deadlines, AHeadingThatIsAMappedLabelWithoutTheSeparatorFailsAfterTheBlockAtItsOwnLine) {
  ImportBench bench;
  bench.Fields("Termini=Termini assegnati\n");
  EXPECT_EQ(bench.Run({"Stanza: 3", "Termini assegnati", "A: 1", "", "Stanza: 4"}),
            StopInPage(9, kNoSeparator, 2, "Termini assegnati"));
  EXPECT_EQ(bench.sink.rows, Rows{DeadlineRow("A", "1")});
  EXPECT_EQ(bench.trace.lines.size(), 4U);
}

TEST(Deposit, TheLineBehindTheHeadingGivesTheRowAndNoPageValue) {
  ImportBench bench;
  EXPECT_EQ(
      bench.Run({"Deposito documenti", " Depositata il :  11/04/2025: visto  ", "", "Oggetto: x"}),
      Stop{});
  EXPECT_EQ(bench.sink.rows,
            (Rows{DepositRow("11/04/2025: visto"), FieldRow("Oggetto", "Oggetto", "x")}));
  EXPECT_EQ(bench.Values(), (NamedValues{{"Oggetto", "x"}}));
  EXPECT_EQ(FirstTakers(bench), (Takers{"deposito", "data deposito", "none", "campo"}));
}

TEST(Deposit, TheHeadingIsSoughtAnywhereInTheLine) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Il Deposito documenti del notaio", "il: 1/1/2025", ""}), Stop{});
  EXPECT_EQ(bench.sink.rows, Rows{DepositRow("1/1/2025")});
}

TEST(Deposit, TheRulesGoOnWithTheLineBehindTheDate) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Deposito documenti", "il: 1/1/2025", "   Oggetto:  x  ", "Materia: y"}),
            Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{DepositRow("1/1/2025"), FieldRow("Oggetto", "Oggetto", "x"),
                                   FieldRow("Materia", "Materia", "y")}));
  EXPECT_EQ(FirstTakers(bench), (Takers{"deposito", "data deposito", "campo", "campo"}));
}

TEST(Deposit, APartyBehindTheDateIsTaken) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Deposito documenti", "il: 1/1/2025", "Attore: ROSSI - Avv. Neri"}), Stop{});
  EXPECT_EQ(bench.sink.parties, (Parties{{"ROSSI", "Neri"}}));
}

TEST(Deposit, TheLineBehindTheDateIsCutAfterTrimming) {
  ImportBench bench;
  std::string delimiters(kBenchDelimiters);
  delimiters.replace(delimiters.find(":=DELPF2"), 1, " ");
  bench.Delimiters(delimiters);
  EXPECT_EQ(bench.Run({"Deposito documenti", "il 1/1/2025", "  Oggetto x"}), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{DepositRow("1/1/2025"), FieldRow("Oggetto", "Oggetto", "x")}));
}

// Only the label rule looks at the line behind the date: the other rules have had their turn.
TEST(Deposit, TheLineBehindTheDateIsNoCaseNumber) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Deposito documenti", "il: 1/1/2025", "Numero di ruolo generale: 5/2024"}),
            Stop{});
  EXPECT_EQ(bench.sink.rows, Rows{DepositRow("1/1/2025")});
  EXPECT_EQ(bench.page.szNumeroRG, "");
}

TEST(Deposit, TheLineBehindTheDateOpensNoBlock) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Deposito documenti", "il: 1/1/2025", "Termini assegnati", "Oggetto: x",
                       "Deposito documenti", "il: 2/2/2025", "Deposito documenti", "Materia: y"}),
            Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{DepositRow("1/1/2025"), FieldRow("Oggetto", "Oggetto", "x"),
                                   DepositRow("2/2/2025"), FieldRow("Materia", "Materia", "y")}));
}

TEST(Deposit, AOneCharacterLineBehindTheDateIsNotSkipped) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Deposito documenti", "il: 1/1/2025", " È "}),
            StopInPage(9, kNoSeparator, 3, " È "));
  EXPECT_EQ(bench.sink.rows, Rows{DepositRow("1/1/2025")});
}

TEST(Deposit, TheHeadingItselfIsNoField) {
  ImportBench bench;
  bench.Fields("Deposito=Deposito documenti\nOggetto=Oggetto\n");
  EXPECT_EQ(bench.Run({"Deposito documenti: avvenuto", "il: 1/1/2025", "Oggetto: x"}), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{DepositRow("1/1/2025"), FieldRow("Oggetto", "Oggetto", "x")}));
}

TEST(Deposit, TheDateLineIsNoField) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Deposito documenti", "Oggetto: 1/1/2025", ""}), Stop{});
  EXPECT_EQ(bench.sink.rows, Rows{DepositRow("1/1/2025")});
  EXPECT_EQ(bench.Values(), NamedValues{});
}

TEST(Deposit, ADateLineWithoutTheSeparatorStopsTheImportAtThatLine) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Oggetto: x", "Deposito documenti", " 11/04/2025", "Materia: y"}),
            StopInPage(9, kNoSeparator, 3, " 11/04/2025"));
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("Oggetto", "Oggetto", "x")}));
}

TEST(Deposit, AnEmptyDateLineStopsTheImport) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Deposito documenti", "", "il: 1/1/2025"}),
            StopInPage(9, kNoSeparator, 2, ""));
}

TEST(Deposit, ThePageEndingWithTheHeadingStopsTheImportThere) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Oggetto: x", "Deposito documenti"}),
            StopInPage(62, kPageTooShort, 2, "Deposito documenti"));
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("Oggetto", "Oggetto", "x")}));
}

TEST(Deposit, ThePageEndingWithTheDateStopsTheImportAfterItsRow) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Deposito documenti", "il: 1/1/2025"}),
            StopInPage(62, kPageTooShort, 2, "il: 1/1/2025"));
  EXPECT_EQ(bench.sink.rows, Rows{DepositRow("1/1/2025")});
}

TEST(Deposit, AFaultInTheLineBehindTheDateNamesThatLine) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Attore: ROSSI", "Deposito documenti", "il: 1/1/2025", "Attore: BIANCHI"}),
            StopInPage(457, "Chiave già presente: \"Attore\"", 4, "Attore: BIANCHI"));
}

TEST(DeadlinesAndDeposit, ALineThatHoldsBothHeadingsReadsTheBlockAndThenTheDate) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Termini assegnati e Deposito documenti", "A: 1", "", "il: 2/2/2025",
                       "Oggetto: x"}),
            Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{DeadlineRow("A", "1"), DepositRow("2/2/2025"),
                                   FieldRow("Oggetto", "Oggetto", "x")}));
  EXPECT_EQ(bench.trace.takers.at(1), (Takers{"scadenze", "deposito"}));
}

}  // namespace
}  // namespace ordex::testing
