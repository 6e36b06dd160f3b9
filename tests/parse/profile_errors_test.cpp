// A delimiter that "MapDelimitatori.txt" lacks stops the import at the first line that asks for it.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "import_bench.h"
#include "missing_delimiter.h"

namespace ordex::testing {
namespace {

Stop RunWithout(ImportBench& bench, const std::string& key, const std::vector<std::string>& lines) {
  bench.Delimiters(DelimitersWithout(kBenchDelimiters, key));
  return bench.Run(lines);
}

TEST(MissingDelimiter, OfTheCaseNumberStopsAtTheFirstLineAlsoWhenItIsEmpty) {
  ImportBench bench;
  EXPECT_EQ(RunWithout(bench, "DELPF1", {"", "Oggetto: x"}),
            StopInPage(5, MissingText("DELPF1"), 1, ""));
  EXPECT_EQ(bench.sink.rows, Rows{});
}

TEST(MissingDelimiter, OfABlockOrOfTheSeparatorStopsAtTheFirstLineThatIsNotSkipped) {
  for (const std::string key : {"DELPF2", "DELPF4", "DELPF6"}) {
    ImportBench bench;
    EXPECT_EQ(RunWithout(bench, key,
                         {"", "x", "Numero di ruolo generale: 1/2024", " Scritta ", "Oggetto: x"}),
              StopInPage(5, MissingText(key), 4, " Scritta "));
    EXPECT_EQ(bench.sink.rows,
              (Rows{FieldRow("NumeroRegGenerale", "Numero di ruolo generale:", "1/2024")}));
    EXPECT_EQ(bench.page.szNumeroRG, "1/2024");
    EXPECT_EQ(bench.Values(), (NamedValues{{"NumeroRegGenerale", "1/2024"}}));
  }
}

TEST(MissingDelimiter, OfAPartyLabelStopsAtTheFirstMappedField) {
  for (const std::string key : {"TESTO1", "DELPF7", "TESTO2", "DELPF8", "TESTO3", "TESTO4"}) {
    ImportBench bench;
    EXPECT_EQ(RunWithout(bench, key, {"Stanza: 2", "Oggetto: x", "Materia: y"}),
              StopInPage(5, MissingText(key), 2, "Oggetto: x"));
    EXPECT_EQ(bench.sink.rows, Rows{});
  }
}

TEST(MissingDelimiter, OfTheCounselStopsAtTheFirstParty) {
  for (const std::string line : {"Attore: ROSSI", "Resistente: ROSSI", "Intervenuto: ROSSI"}) {
    ImportBench bench;
    EXPECT_EQ(RunWithout(bench, "DELPF3", {"Oggetto: x", line}),
              StopInPage(5, MissingText("DELPF3"), 2, line));
    EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("Oggetto", "Oggetto", "x")}));
    EXPECT_EQ(bench.Values(), (NamedValues{{"Oggetto", "x"}}));
    EXPECT_EQ(bench.sink.parties, Parties{});
  }
}

TEST(MissingDelimiter, OfTheSeparatorStopsInsideABlock) {
  ImportBench bench;
  EXPECT_EQ(RunWithout(bench, "DELPF2", {"Termini assegnati", "A: 1", ""}),
            StopInPage(5, MissingText("DELPF2"), 2, "A: 1"));
}

TEST(MissingDelimiter, ThatNoLineAsksForIsNoFault) {
  ImportBench bench;
  EXPECT_EQ(RunWithout(bench, "DELPF3", {"Oggetto: x"}), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("Oggetto", "Oggetto", "x")}));
}

TEST(StoppedImport, ReadsNoLineBehindTheOneThatFailed) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Oggetto: x", "Materia", "Esito: y", "Note: z"}).line, 2U);
  EXPECT_EQ(bench.trace.lines.size(), 2U);
}

TEST(StoppedImport, NamesTheFailingLineAsThePageHasIt) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Oggetto: x", "", "   Unità locale\t", "  Unità locale  "}),
            StopInPage(9, kNoSeparator, 4, "  Unità locale  "));
}

TEST(StoppedImport, NamesTheSeparatorThatTheFileHas) {
  ImportBench bench;
  std::string delimiters(kBenchDelimiters);
  delimiters.replace(delimiters.find(":=DELPF2"), 1, "->");
  bench.Delimiters(delimiters);
  EXPECT_EQ(bench.Run({"Oggetto: x", "Oggetto"}),
            StopInPage(9,
                       "Indice non incluso nell'intervallo: nella riga manca il separatore \"->\" "
                       "tra etichetta e valore",
                       2, "Oggetto"));
}

}  // namespace
}  // namespace ordex::testing
