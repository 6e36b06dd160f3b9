// The case number, and the lines that are too short to be looked at.
#include <gtest/gtest.h>

#include "import_bench.h"

namespace ordex::testing {
namespace {

const char* const kNumberText = "Numero di ruolo generale:";

Row NumberRow(std::string value) {
  return FieldRow("NumeroRegGenerale", kNumberText, std::move(value));
}

TEST(CaseNumber, GivesARowTheRegisterNumberAndAPageValue) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Numero di ruolo generale:   1842/2025  "}), Stop{});
  EXPECT_EQ(bench.sink.rows, Rows{NumberRow("1842/2025")});
  EXPECT_EQ(bench.page.szNumeroRG, "1842/2025");
  EXPECT_EQ(bench.Values(), (NamedValues{{"NumeroRegGenerale", "1842/2025"}}));
}

TEST(CaseNumber, ALineThatHoldsItAndAMappedLabelIsTheCaseNumberOnly) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Oggetto: causa Numero di ruolo generale: 5/2024"}), Stop{});
  EXPECT_EQ(bench.sink.rows, Rows{NumberRow("5/2024")});
  EXPECT_EQ(bench.Values(), (NamedValues{{"NumeroRegGenerale", "5/2024"}}));
}

TEST(CaseNumber, ALineThatHoldsItOpensNoBlock) {
  ImportBench bench;
  EXPECT_EQ(
      bench.Run({"Numero di ruolo generale: 5 Termini assegnati", "Oggetto: x", "", "Materia: y"}),
      Stop{});
  EXPECT_EQ(bench.sink.rows,
            (Rows{NumberRow("5 Termini assegnati"), FieldRow("Oggetto", "Oggetto", "x"),
                  FieldRow("Materia", "Materia", "y")}));
}

TEST(CaseNumber, IsCutOnlyAtTheFirstOccurrenceOfItsText) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Numero di ruolo generale: 1 Numero di ruolo generale: 2"}), Stop{});
  EXPECT_EQ(bench.page.szNumeroRG, "1 Numero di ruolo generale: 2");
}

TEST(CaseNumber, ItsTextIsSoughtWithRegardToLetterCase) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"NUMERO DI RUOLO GENERALE: 7/2025"}), Stop{});
  EXPECT_EQ(bench.sink.rows, Rows{});
  EXPECT_EQ(bench.page.szNumeroRG, "");
}

TEST(CaseNumber, ItsFieldIsLookedUpWithoutRegardToLetterCase) {
  ImportBench bench;
  bench.Fields("Registro=NUMERO di ruolo GENERALE:\n");
  EXPECT_EQ(bench.Run({"Numero di ruolo generale: 7/2025"}), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("Registro", kNumberText, "7/2025")}));
}

TEST(CaseNumber, WithNothingBehindItIsEmpty) {
  ImportBench bench;
  bench.page.szNumeroRG = "vecchio";
  EXPECT_EQ(bench.Run({"Numero di ruolo generale:"}), Stop{});
  EXPECT_EQ(bench.sink.rows, Rows{NumberRow("")});
  EXPECT_EQ(bench.page.szNumeroRG, "");
  EXPECT_EQ(bench.Values(), (NamedValues{{"NumeroRegGenerale", ""}}));
}

TEST(CaseNumber, APageWithoutOneLeavesTheFormerNumber) {
  ImportBench bench;
  bench.Run({"Numero di ruolo generale: 7/2025"});
  bench.Run({"Oggetto: x"});
  EXPECT_EQ(bench.page.szNumeroRG, "7/2025");
}

TEST(CaseNumber, ASecondOneStopsTheImportAfterItsRow) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Numero di ruolo generale: 1/2024", "Numero di ruolo generale: 2/2024",
                       "Oggetto: x"}),
            StopInPage(457, "Chiave già presente: \"NumeroRegGenerale\"", 2,
                       "Numero di ruolo generale: 2/2024"));
  EXPECT_EQ(bench.sink.rows, (Rows{NumberRow("1/2024"), NumberRow("2/2024")}));
  EXPECT_EQ(bench.page.szNumeroRG, "2/2024");
  EXPECT_EQ(bench.Values(), (NamedValues{{"NumeroRegGenerale", "1/2024"}}));
}

TEST(CaseNumber, WithoutItsFieldInTheFieldMapStopsTheImport) {
  ImportBench bench;
  bench.Fields("Oggetto=Oggetto\n");
  EXPECT_EQ(bench.Run({"Oggetto: x", " Numero di ruolo generale: 1/2024"}),
            StopInPage(5,
                       "Chiave non trovata: \"Numero di ruolo generale:\" manca nel file "
                       "\"MapCampi.txt\": aggiungere la riga campo=Numero di ruolo generale:",
                       2, " Numero di ruolo generale: 1/2024"));
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("Oggetto", "Oggetto", "x")}));
  EXPECT_EQ(bench.page.szNumeroRG, "");
}

TEST(CaseNumber, BehindAFieldOfTheSameNameStopsTheImport) {
  ImportBench bench;
  bench.Fields("NumeroRegGenerale=Numero di ruolo generale:\nNumeroRegGenerale=N. Ruolo\n");
  EXPECT_EQ(bench.Run({"N. Ruolo: 1/2024", "Numero di ruolo generale: 2/2024"}),
            StopInPage(457, "Chiave già presente: \"NumeroRegGenerale\"", 2,
                       "Numero di ruolo generale: 2/2024"));
}

TEST(CaseNumber, AFieldOfTheSameNameBehindItIsJoinedAndLeavesTheRegisterNumber) {
  ImportBench bench;
  bench.Fields("NumeroRegGenerale=Numero di ruolo generale:\nNumeroRegGenerale=N. Ruolo\n");
  EXPECT_EQ(bench.Run({"Numero di ruolo generale: 2/2024", "N. Ruolo: 1/2024"}), Stop{});
  EXPECT_EQ(bench.page.szNumeroRG, "2/2024");
  EXPECT_EQ(bench.Values(), (NamedValues{{"NumeroRegGenerale", "2/2024; \r\n1/2024"}}));
}

// The case number is looked for before the length of the line.
TEST(CaseNumber, ItsTextMayBeASingleCharacter) {
  ImportBench bench;
  std::string delimiters(kBenchDelimiters);
  delimiters.replace(0, delimiters.find('='), "#");
  bench.Delimiters(delimiters);
  bench.Fields("NumeroRegGenerale=#\n");
  EXPECT_EQ(bench.Run({"#"}), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("NumeroRegGenerale", "#", "")}));
}

// "È" is a mapped label: without the skip the missing separator would stop the import.
TEST(ShortLines, AOneCharacterLineOfTwoBytesIsSkipped) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"È", "  È  ", "", "\""}), Stop{});
  EXPECT_EQ(bench.sink.rows, Rows{});
  EXPECT_TRUE(bench.trace.takers.empty());
}

TEST(ShortLines, ALineOfTwoCharactersIsLookedAt) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"È:"}), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("Lettera", "È", "")}));
}

}  // namespace
}  // namespace ordex::testing
