// The parties of a profile page and their counsel.
#include <gtest/gtest.h>

#include <string>

#include "import_bench.h"

namespace ordex::testing {
namespace {

TEST(Plaintiff, CounselRunsToTheEndOfTheLine) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Attore: ROSSI S.R.L. - Avv. Neri Ada - Avv. Verdi Ugo"}), Stop{});
  EXPECT_EQ(bench.sink.parties, (Parties{{"ROSSI S.R.L.", "Neri Ada - Avv. Verdi Ugo"}}));
  EXPECT_EQ(bench.Values(),
            (NamedValues{{"Attore", "ROSSI S.R.L."},
                         {"DifAttore", "Neri Ada - Avv. Verdi Ugo"},
                         {"ParteAttrice", "ROSSI S.R.L. - Avv. Neri Ada - Avv. Verdi Ugo"}}));
}

TEST(Defendant, CounselEndsAtTheSecondDelimiter) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Convenuto: ROSSI S.R.L. - Avv. Neri Ada - Avv. Verdi Ugo"}), Stop{});
  EXPECT_EQ(bench.sink.parties, (Parties{{"ROSSI S.R.L.", "Neri Ada"}}));
  EXPECT_EQ(bench.Values(),
            (NamedValues{{"Convenuto", "ROSSI S.R.L."},
                         {"DifConvenuto", "Neri Ada"},
                         {"ParteConvenuta", "ROSSI S.R.L. - Avv. Neri Ada - Avv. Verdi Ugo"}}));
}

TEST(Parties, TheRowHoldsTheWholeValue) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Attore:  ROSSI - Avv. Neri ", "Convenuto: BIANCHI", "Intervenuto: VERDI"}),
            Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("ParteAttrice", "Attore", "ROSSI - Avv. Neri"),
                                   FieldRow("ParteConvenuta", "Convenuto", "BIANCHI"),
                                   FieldRow("AltreParti", "Intervenuto", "VERDI")}));
}

TEST(Parties, WithoutTheDelimiterCounselIsEmpty) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Attore: ROSSI", "Convenuto: BIANCHI", "Terzo chiamato: VERDI"}), Stop{});
  EXPECT_EQ(bench.sink.parties, (Parties{{"ROSSI", ""}, {"BIANCHI", ""}, {"VERDI", ""}}));
  EXPECT_EQ(bench.Values(), (NamedValues{{"Attore", "ROSSI"},
                                         {"DifAttore", ""},
                                         {"ParteAttrice", "ROSSI"},
                                         {"Convenuto", "BIANCHI"},
                                         {"DifConvenuto", ""},
                                         {"ParteConvenuta", "BIANCHI"},
                                         {"AltreParti", "VERDI"}}));
}

TEST(Parties, BothWordingsOfEachSideAreUnderstood) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Ricorrente: ROSSI - Avv. Neri", "Resistente: BIANCHI - Avv. Gialli"}),
            Stop{});
  EXPECT_EQ(bench.sink.parties, (Parties{{"ROSSI", "Neri"}, {"BIANCHI", "Gialli"}}));
  EXPECT_EQ(bench.page.cDatiFasc.Item("Attore"), "ROSSI");
  EXPECT_EQ(bench.page.cDatiFasc.Item("DifAttore"), "Neri");
  EXPECT_EQ(bench.page.cDatiFasc.Item("Convenuto"), "BIANCHI");
  EXPECT_EQ(bench.page.cDatiFasc.Item("DifConvenuto"), "Gialli");
}

TEST(Parties, NamesAndCounselAreTrimmed) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Attore:   ROSSI   - Avv.   Neri  ", "Convenuto:  BIANCHI  - Avv.  Gialli  ",
                       "Intervenuto:  VERDI  - Avv.  Bruni  - Avv. Viola"}),
            Stop{});
  EXPECT_EQ(bench.sink.parties,
            (Parties{{"ROSSI", "Neri"}, {"BIANCHI", "Gialli"}, {"VERDI", "Bruni"}}));
}

TEST(Parties, AnEmptyPartyIsAPartyToo) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Attore:"}), Stop{});
  EXPECT_EQ(bench.sink.parties, (Parties{{"", ""}}));
  EXPECT_EQ(bench.Values(), (NamedValues{{"Attore", ""}, {"DifAttore", ""}, {"ParteAttrice", ""}}));
}

// The line is trimmed before it is cut, so the delimiter's own last blank is gone.
TEST(Parties, ADelimiterAtTheEndOfTheLineIsNoneAnyMore) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Attore: ROSSI - Avv. "}), Stop{});
  EXPECT_EQ(bench.sink.parties, (Parties{{"ROSSI - Avv.", ""}}));
}

TEST(Parties, BehindADepositDateTheLineIsTrimmedBeforeItIsCutToo) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Deposito documenti", "Data: 1/1/2025", "  Attore: ROSSI - Avv. "}), Stop{});
  EXPECT_EQ(bench.sink.parties, (Parties{{"ROSSI - Avv.", ""}}));
}

TEST(FurtherParties, AreOfferedButNotKeptUnderAPartyKey) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Terzo chiamato: ALFA - Avv. Neri - Avv. Verdi", "Terzo chiamato: BETA",
                       "Intervenuto: GAMMA - Avv. Bruni"}),
            Stop{});
  EXPECT_EQ(bench.sink.parties, (Parties{{"ALFA", "Neri"}, {"BETA", ""}, {"GAMMA", "Bruni"}}));
  EXPECT_EQ(bench.Values(),
            (NamedValues{{"AltreParti",
                          "ALFA - Avv. Neri - Avv. Verdi; \r\nBETA; \r\nGAMMA - Avv. Bruni"}}));
}

TEST(Parties, LabelsInOtherLetterCaseAreFieldsButNoParties) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"ATTORE: ROSSI - Avv. Neri", "resistente: BIANCHI", "INTERVENUTO: VERDI"}),
            Stop{});
  EXPECT_EQ(bench.sink.parties, Parties{});
  EXPECT_EQ(bench.Values(), (NamedValues{{"ParteAttrice", "ROSSI - Avv. Neri"},
                                         {"ParteConvenuta", "BIANCHI"},
                                         {"AltreParti", "VERDI"}}));
}

TEST(Parties, ALabelThatTheFieldMapLacksIsNoParty) {
  ImportBench bench;
  bench.Fields("Oggetto=Oggetto\n");
  EXPECT_EQ(bench.Run({"Attore: ROSSI - Avv. Neri", "Intervenuto: VERDI"}), Stop{});
  EXPECT_EQ(bench.sink.parties, Parties{});
  EXPECT_EQ(bench.Values(), NamedValues{});
}

TEST(Parties, ALabelOfBothSidesIsThePlaintiffs) {
  ImportBench bench;
  std::string delimiters(kBenchDelimiters);
  delimiters.replace(delimiters.find("Convenuto=DELPF8"), 9, "Attore");
  bench.Delimiters(delimiters);
  EXPECT_EQ(bench.Run({"Attore: ROSSI"}), Stop{});
  EXPECT_EQ(bench.sink.parties, (Parties{{"ROSSI", ""}}));
  EXPECT_EQ(bench.Values(),
            (NamedValues{{"Attore", "ROSSI"}, {"DifAttore", ""}, {"ParteAttrice", "ROSSI"}}));
}

TEST(Parties, ASecondPlaintiffStopsTheImport) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Attore: ROSSI - Avv. Neri", "Attore: BIANCHI", "Oggetto: x"}),
            StopInPage(457, "Chiave già presente: \"Attore\"", 2, "Attore: BIANCHI"));
  EXPECT_EQ(bench.sink.parties, (Parties{{"ROSSI", "Neri"}}));
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("ParteAttrice", "Attore", "ROSSI - Avv. Neri")}));
  EXPECT_EQ(bench.Values(), (NamedValues{{"Attore", "ROSSI"},
                                         {"DifAttore", "Neri"},
                                         {"ParteAttrice", "ROSSI - Avv. Neri"}}));
}

TEST(Parties, ASecondPlaintiffInTheOtherWordingStopsTheImportToo) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Attore: ROSSI", "Ricorrente: BIANCHI"}),
            StopInPage(457, "Chiave già presente: \"Attore\"", 2, "Ricorrente: BIANCHI"));
}

TEST(Parties, ASecondDefendantStopsTheImport) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Convenuto: ROSSI", "Oggetto: x", "Resistente: BIANCHI"}),
            StopInPage(457, "Chiave già presente: \"Convenuto\"", 3, "Resistente: BIANCHI"));
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("ParteConvenuta", "Convenuto", "ROSSI"),
                                   FieldRow("Oggetto", "Oggetto", "x")}));
}

TEST(Parties, APartyLabelWithoutTheSeparatorStopsTheImport) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Attore"}), StopInPage(9, kNoSeparator, 1, "Attore"));
  EXPECT_EQ(bench.sink.parties, Parties{});
}

// The party's key is there already when the field of the same name is stored.
TEST(Parties, AFieldNamedLikeAPartyKeyIsJoinedToIt) {
  ImportBench bench;
  bench.Fields("Attore=Attore\n");
  EXPECT_EQ(bench.Run({"Attore: ROSSI - Avv. Neri"}), Stop{});
  EXPECT_EQ(bench.Values(),
            (NamedValues{{"DifAttore", "Neri"}, {"Attore", "ROSSI; \r\nROSSI - Avv. Neri"}}));
}

}  // namespace
}  // namespace ordex::testing
