// The case data of a justice-of-the-peace page: plain lines and lines of several data.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "import_bench.h"
#include "missing_delimiter.h"
#include "page_benches.h"

namespace ordex::testing {
namespace {

constexpr const char* kData = "Dati della causa";

// --- plain lines --------------------------------------------------------------------------------

TEST(JusticePage, WithoutTheDataSectionYieldsNoRowsFromPlainLines) {
  JusticeBench bench;
  EXPECT_EQ(bench.Read({"Oggetto: x", "Materia: y", "N. Ruolo: 1/2025", "dati della causa",
                        "Note: z", "Oggetto"}),
            Stop{});
  EXPECT_EQ(bench.sink.rows, Rows{});
  EXPECT_EQ(bench.Values(), NamedValues{});
  EXPECT_EQ(bench.page.szNumeroRG, "");
}

TEST(JusticePage, InTheDataSectionALineIsALabelAndItsValueTrimmed) {
  JusticeBench bench;
  EXPECT_EQ(bench.Read({"Oggetto: prima", kData, "  Oggetto  :  sinistro: danni  ", "Stanza: 2",
                        "MATERIA:", "Materia; x", "x", ""}),
            Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("Oggetto", "Oggetto", "sinistro: danni"),
                                   FieldRow("Materia", "MATERIA", "")}));
  EXPECT_EQ(bench.Values(), (NamedValues{{"Oggetto", "sinistro: danni"}, {"Materia", ""}}));
  EXPECT_EQ(bench.sink.kinds, std::vector<int>{4});
}

TEST(JusticePage, TheLineThatOpensTheDataSectionIsNoDatumItself) {
  JusticeBench bench;
  EXPECT_EQ(bench.Read({"Oggetto: Dati della causa", "Materia: y", "Note: Dati della causa"}),
            Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("Materia", "Materia", "y")}));
}

TEST(JusticePage, EveryImportBeginsBeforeTheDataSection) {
  JusticeBench bench;
  EXPECT_EQ(bench.Read({kData, "Oggetto: x"}), Stop{});
  EXPECT_EQ(bench.Read({"Materia: y"}), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("Oggetto", "Oggetto", "x")}));
  EXPECT_EQ(bench.Values(), NamedValues{});
}

TEST(JusticePage, RepeatedValuesOfAFieldAreJoined) {
  JusticeBench bench;
  EXPECT_EQ(bench.Read({kData, "Note: A", "Oggetto: x", "Avvisi: B"}), Stop{});
  EXPECT_EQ(bench.sink.rows,
            (Rows{FieldRow("Note", "Note", "A"), FieldRow("Oggetto", "Oggetto", "x"),
                  FieldRow("Note", "Avvisi", "B")}));
  EXPECT_EQ(bench.Values(), (NamedValues{{"Oggetto", "x"}, {"Note", "A; \r\nB"}}));
}

TEST(JusticePage, AMappedLabelWithoutTheSeparatorStopsTheImportAndKeepsTheRowsSoFar) {
  JusticeBench bench;
  EXPECT_EQ(bench.Read({kData, "Materia: y", " Oggetto ", "Note: z"}),
            StopInPage(9, TooFewParts(1, 2), 3, " Oggetto "));
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("Materia", "Materia", "y")}));
  EXPECT_EQ(bench.Values(), (NamedValues{{"Materia", "y"}}));
}

TEST(JusticePage, TheFieldOfTheRegisterNumberIsThePagesCaseNumberToo) {
  JusticeBench bench;
  EXPECT_EQ(bench.Read({kData, "N. Ruolo:  4417/2025 "}), Stop{});
  EXPECT_EQ(bench.page.szNumeroRG, "4417/2025");
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("NumeroRegGenerale", "N. Ruolo", "4417/2025")}));
  EXPECT_EQ(bench.Values(), (NamedValues{{"NumeroRegGenerale", "4417/2025"}}));
}

TEST(JusticePage, LinesBehindThePartiesAreDataStill) {
  JusticeBench bench;
  EXPECT_EQ(bench.Read({kData, "Le parti", "", "Oggetto: x"}), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("Oggetto", "Oggetto", "x")}));
}

// --- lines of several data ----------------------------------------------------------------------

TEST(JusticeDataLine, IsCutIntoLabelsAndValuesAlsoBeforeTheDataSection) {
  JusticeBench bench;
  EXPECT_EQ(bench.Read({"Ruolo ; N. Ruolo: 4417/2025 ;  Materia :  a: b  ; Sede: X ; Oggetto:"}),
            Stop{});
  EXPECT_EQ(bench.sink.rows,
            (Rows{FieldRow("NumeroRegGenerale", "N. Ruolo", "4417/2025"),
                  FieldRow("Materia", "Materia", "a: b"), FieldRow("Oggetto", "Oggetto", "")}));
  EXPECT_EQ(
      bench.Values(),
      (NamedValues{{"NumeroRegGenerale", "4417/2025"}, {"Materia", "a: b"}, {"Oggetto", ""}}));
  EXPECT_EQ(bench.page.szNumeroRG, "4417/2025");
}

TEST(JusticeDataLine, OfPairsIsKnownByEitherOfItsTwoMarks) {
  JusticeBench bench;
  EXPECT_EQ(
      bench.Read({"Giudice | Sezione: Unica | Magistrato: ROSSI",
                  "Udienze | Ultima udienza: 11/12/2025 10:30 | Prossima udienza: 17/03/2026"}),
      Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("Sezione", "Sezione", "Unica"),
                                   FieldRow("Istruttore", "Magistrato", "ROSSI"),
                                   FieldRow("DUUd", "Ultima udienza", "11/12/2025 10:30"),
                                   FieldRow("DPUd", "Prossima udienza", "17/03/2026")}));
  EXPECT_EQ(bench.Values(), (NamedValues{{"Sezione", "Unica"},
                                         {"Istruttore", "ROSSI"},
                                         {"DUUd", "11/12/2025 10:30"},
                                         {"DPUd", "17/03/2026"}}));
}

TEST(JusticeDataLine, PassesEmptyPiecesOver) {
  JusticeBench bench;
  EXPECT_EQ(bench.Read({"Ruolo ;  ;  ; Note: a ;    ; x", "Giudice |  |   | Sezione: b"}), Stop{});
  EXPECT_EQ(bench.sink.rows,
            (Rows{FieldRow("Note", "Note", "a"), FieldRow("Sezione", "Sezione", "b")}));
}

TEST(JusticeDataLine, IsCutAtItsOwnSeparatorOnly) {
  JusticeBench bench;
  EXPECT_EQ(bench.Read({"Ruolo ; Note: a | Sezione: b", "Udienze | Avvisi: c ; Materia: d"}),
            Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("Note", "Note", "a | Sezione: b"),
                                   FieldRow("Note", "Avvisi", "c ; Materia: d")}));
}

// A line is trimmed before it is cut: a separator at its very end has lost its last blank, is none
// any more, and stays with the value.
TEST(JusticeDataLine, ThatEndsInItsSeparatorKeepsWhatTrimmingLeftOfItInTheLastValue) {
  JusticeBench bench;
  EXPECT_EQ(bench.Read({"Ruolo ; Note: a ; Materia: b ; ", "Giudice | Sezione: c | "}), Stop{});
  EXPECT_EQ(bench.sink.rows,
            (Rows{FieldRow("Note", "Note", "a"), FieldRow("Materia", "Materia", "b ;"),
                  FieldRow("Sezione", "Sezione", "c |")}));
}

TEST(JusticeDataLine, ThatEndsInASeparatorWithoutBlanksLosesItWhole) {
  JusticeBench bench;
  std::string delimiters(kJusticeDelimiters);
  delimiters.replace(delimiters.find(" ; =DELGDP12"), 3, ";");
  bench.Delimiters(delimiters);
  EXPECT_EQ(bench.Read({"Ruolo ; Note: a ; Materia: b ; "}), Stop{});
  EXPECT_EQ(bench.sink.rows,
            (Rows{FieldRow("Note", "Note", "a"), FieldRow("Materia", "Materia", "b")}));
}

TEST(JusticeDataLine, OfTheFirstFormGoesBeforeThoseOfPairs) {
  JusticeBench bench;
  EXPECT_EQ(bench.Read({"Udienze | Note: a ; Materia: b ; Ruolo ; x"}), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("Materia", "Materia", "b")}));
}

TEST(JusticeDataLine, MayHoldItsMarkAnywhere) {
  JusticeBench bench;
  EXPECT_EQ(bench.Read({"  Note: a | Giudice | Sezione: b"}), Stop{});
  EXPECT_EQ(bench.sink.rows,
            (Rows{FieldRow("Note", "Note", "a"), FieldRow("Sezione", "Sezione", "b")}));
}

TEST(JusticeDataLine, JoinsItsValuesToThoseOfOtherLines) {
  JusticeBench bench;
  EXPECT_EQ(bench.Read({"Ruolo ; Note: A ; Avvisi: B", kData, "Note: C"}), Stop{});
  EXPECT_EQ(bench.Values(), (NamedValues{{"Note", "A; \r\nB; \r\nC"}}));
}

TEST(JusticeDataLine, WithAMappedLabelButNoSeparatorStopsTheImport) {
  JusticeBench bench;
  EXPECT_EQ(bench.Read({"Giudice | Note: a | Sezione | Materia: c"}),
            StopInPage(9, TooFewParts(1, 2), 1, "Giudice | Note: a | Sezione | Materia: c"));
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("Note", "Note", "a")}));
}

// --- missing delimiters -------------------------------------------------------------------------

Stop ReadWithout(const std::string& key, const std::vector<std::string>& lines) {
  JusticeBench bench;
  bench.Delimiters(DelimitersWithout(kJusticeDelimiters, key));
  return bench.Read(lines);
}

TEST(JusticeMissingDelimiter, OfASectionOrALineOfSeveralDataStopsAtTheFirstLine) {
  for (const std::string key : {"DELGDP2", "DELGDP4", "DELGDP5", "DELGDP13", "DELGDP15"}) {
    EXPECT_EQ(ReadWithout(key, {"Pagina", kData}), StopInPage(5, MissingText(key), 1, "Pagina"))
        << key;
  }
}

TEST(JusticeMissingDelimiter, OfThePartiesStopsInTheDataSection) {
  EXPECT_EQ(ReadWithout("DELGDP3", {"Pagina", kData, "x"}),
            StopInPage(5, MissingText("DELGDP3"), 3, "x"));
}

TEST(JusticeMissingDelimiter, OfAPartyFormStopsAtTheFirstLineOfThePartiesWhateverItHolds) {
  for (const std::string key : {"DELGDP8", "DELGDP9", "DELGDP10", "DELGDP11"}) {
    for (const std::string line : {"altro", "Ricorre: ROSSI", "Resiste: BIANCHI"}) {
      EXPECT_EQ(ReadWithout(key, {kData, "Le parti", line, ""}),
                StopInPage(5, MissingText(key), 3, line))
          << key;
    }
  }
}

TEST(JusticeMissingDelimiter, OfPiecesOrSeparatorStopsAtTheFirstLineThatIsCut) {
  EXPECT_EQ(ReadWithout("DELGDP12", {"x", "Ruolo ; a"}),
            StopInPage(5, MissingText("DELGDP12"), 2, "Ruolo ; a"));
  EXPECT_EQ(ReadWithout("DELGDP14", {"x", "Udienze | a"}),
            StopInPage(5, MissingText("DELGDP14"), 2, "Udienze | a"));
  EXPECT_EQ(ReadWithout("DELGDP1", {"x", kData, "ab"}),
            StopInPage(5, MissingText("DELGDP1"), 3, "ab"));
}

TEST(JusticeMissingDelimiter, OfTheHistoryStopsAtItsFirstLine) {
  for (const std::string key : {"DELGDP6", "DELSF2"}) {
    EXPECT_EQ(ReadWithout(key, {"MOVIMENTI", "01/01/2025 x", ""}),
              StopInPage(5, MissingText(key), 2, "01/01/2025 x"))
        << key;
  }
}

}  // namespace
}  // namespace ordex::testing
