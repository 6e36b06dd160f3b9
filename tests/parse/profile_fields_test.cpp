// Lines of a label, the separator and a value; the hearings among them.
#include <gtest/gtest.h>

#include "import_bench.h"

namespace ordex::testing {
namespace {

TEST(ProfileField, GivesARowAndAPageValue) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Oggetto: Vendita di cosa immobile"}), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("Oggetto", "Oggetto", "Vendita di cosa immobile")}));
  EXPECT_EQ(bench.Values(), (NamedValues{{"Oggetto", "Vendita di cosa immobile"}}));
  EXPECT_EQ(bench.sink.parties, Parties{});
}

TEST(ProfileField, LabelAndValueAreTrimmed) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"   Oggetto   :   Vendita   di   cosa   "}), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("Oggetto", "Oggetto", "Vendita   di   cosa")}));
  EXPECT_EQ(bench.Values(), (NamedValues{{"Oggetto", "Vendita   di   cosa"}}));
}

TEST(ProfileField, OnlyBlanksAreTrimmed) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"\tOggetto: a", "Oggetto\t: b", "Materia:\tc\t"}), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("Materia", "Materia", "\tc\t")}));
}

TEST(ProfileField, FurtherSeparatorsStayInTheValue) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Oggetto: contratto: vendita: 2"}), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("Oggetto", "Oggetto", "contratto: vendita: 2")}));
}

TEST(ProfileField, AnEmptyValueGivesARowAndAnEmptyPageValue) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Oggetto:"}), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("Oggetto", "Oggetto", "")}));
  EXPECT_EQ(bench.Values(), (NamedValues{{"Oggetto", ""}}));
}

TEST(ProfileField, LabelsAreMatchedWithoutRegardToLetterCaseAndShownAsThePageHasThem) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"OGGETTO: a", "UNITÀ Locale: b"}), Stop{});
  EXPECT_EQ(bench.sink.rows,
            (Rows{FieldRow("Oggetto", "OGGETTO", "a"), FieldRow("Unita", "UNITÀ Locale", "b")}));
}

TEST(ProfileField, ALineThatMatchesNothingIsIgnoredSilently) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Scritta qualunque", "Stanza: 2.14", ": senza etichetta",
                       "::", "Il mio Oggetto: x", "Oggett: x", "Oggetto di prima"}),
            Stop{});
  EXPECT_EQ(bench.sink.rows, Rows{});
  EXPECT_EQ(bench.Values(), NamedValues{});
  EXPECT_TRUE(bench.trace.takers.empty());
}

TEST(ProfileField, AMappedLabelWithoutTheSeparatorStopsTheImport) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Oggetto: x", "  Materia ", "Esito: y"}),
            StopInPage(9, kNoSeparator, 2, "  Materia "));
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("Oggetto", "Oggetto", "x")}));
  EXPECT_EQ(bench.Values(), (NamedValues{{"Oggetto", "x"}}));
}

TEST(ProfileField, ALabelMetTwiceLeavesBothValuesJoinedAndTwoRows) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Note: A ", "Note:  B"}), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("Note", "Note", "A"), FieldRow("Note", "Note", "B")}));
  EXPECT_EQ(bench.Values(), (NamedValues{{"Note", "A; \r\nB"}}));
}

TEST(ProfileField, ALabelMetThreeTimesJoinsAllThree) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Note: A", "Note:", "Note: C"}), Stop{});
  EXPECT_EQ(bench.Values(), (NamedValues{{"Note", "A; \r\n; \r\nC"}}));
}

TEST(ProfileField, TwoLabelsOfOneFieldAreJoinedToo) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Note: A", "Avvisi: B"}), Stop{});
  EXPECT_EQ(bench.sink.rows,
            (Rows{FieldRow("Note", "Note", "A"), FieldRow("Note", "Avvisi", "B")}));
  EXPECT_EQ(bench.Values(), (NamedValues{{"Note", "A; \r\nB"}}));
}

TEST(ProfileField, AJoinedValueMovesToTheEndOfThePageValues) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Note: A", "Oggetto: x", "Materia: y", "Note: B", "Esito: z"}), Stop{});
  EXPECT_EQ(
      bench.Values(),
      (NamedValues{{"Oggetto", "x"}, {"Materia", "y"}, {"Note", "A; \r\nB"}, {"Esito", "z"}}));
}

TEST(ProfileField, FieldNamesThatDifferOnlyInLetterCaseAreOneField) {
  ImportBench bench;
  bench.Fields("Note=Note\nNOTE=Avvisi\n");
  EXPECT_EQ(bench.Run({"Note: A", "Avvisi: B"}), Stop{});
  EXPECT_EQ(bench.page.cDatiFasc.Count(), 1U);
  EXPECT_EQ(bench.page.cDatiFasc.Item("note"), "A; \r\nB");
}

// The label alone decides: a line is cut at the separator text as it stands, blanks included.
TEST(ProfileField, BlanksOfTheSeparatorTextCount) {
  ImportBench bench;
  std::string delimiters(kBenchDelimiters);
  delimiters.replace(delimiters.find(":=DELPF2"), 1, " : ");
  bench.Delimiters(delimiters);
  EXPECT_EQ(bench.Run({"Oggetto: a", "Materia : b", "Esito : "}), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("Materia", "Materia", "b")}));
}

TEST(ProfileField, DelimiterKeysInOtherLetterCaseAreFound) {
  ImportBench bench;
  std::string delimiters(kBenchDelimiters);
  for (std::size_t at = 0; (at = delimiters.find("=DELPF", at)) != std::string::npos; ++at) {
    delimiters.replace(at, 6, "=delpf");
  }
  bench.Delimiters(delimiters);
  EXPECT_EQ(bench.Run({"Numero di ruolo generale: 1", "Attore: ROSSI - Avv. BIANCHI"}), Stop{});
  EXPECT_EQ(bench.page.szNumeroRG, "1");
  EXPECT_EQ(bench.sink.parties, (Parties{{"ROSSI", "BIANCHI"}}));
}

TEST(Hearing, ADateFollowedByTheMarkYieldsTheDateAlone) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Prossima udienza: 12/03/2026 09:30 (Fascicolo)",
                       "Ultima udienza: 18/11/2025 (Fascicolo)"}),
            Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("DPUd", "Prossima udienza", "12/03/2026 09:30"),
                                   FieldRow("DUUd", "Ultima udienza", "18/11/2025")}));
  EXPECT_EQ(bench.Values(), (NamedValues{{"DPUd", "12/03/2026 09:30"}, {"DUUd", "18/11/2025"}}));
}

TEST(Hearing, EveryMarkIsRemoved) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Ultima udienza:(Fascicolo)18/11/2025(Fascicolo) 10:15 (Fascicolo)"}),
            Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("DUUd", "Ultima udienza", "18/11/2025 10:15")}));
}

TEST(Hearing, TheMarkAloneLeavesAnEmptyValue) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Ultima udienza: (Fascicolo)"}), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("DUUd", "Ultima udienza", "")}));
}

TEST(Hearing, TheMarkInOtherLetterCaseStays) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Ultima udienza: 18/11/2025 (fascicolo)"}), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("DUUd", "Ultima udienza", "18/11/2025 (fascicolo)")}));
}

TEST(Hearing, UnderAnyOtherLabelTheMarkStays) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Esito: 12/03/2026 (Fascicolo)", "Attore: ROSSI (Fascicolo)"}), Stop{});
  EXPECT_EQ(bench.Values(), (NamedValues{{"Esito", "12/03/2026 (Fascicolo)"},
                                         {"Attore", "ROSSI (Fascicolo)"},
                                         {"DifAttore", ""},
                                         {"ParteAttrice", "ROSSI (Fascicolo)"}}));
}

TEST(Hearing, UnderTheLabelInOtherLetterCaseTheMarkStays) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"PROSSIMA UDIENZA: 12/03/2026 (Fascicolo)",
                       "ultima udienza: 18/11/2025 (Fascicolo)"}),
            Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("DPUd", "PROSSIMA UDIENZA", "12/03/2026 (Fascicolo)"),
                                   FieldRow("DUUd", "ultima udienza", "18/11/2025 (Fascicolo)")}));
}

TEST(Hearing, TheTwoLabelsAreNotTakenFromTheFieldMap) {
  ImportBench bench;
  bench.Fields("DPUd=Data della prossima udienza\n");
  EXPECT_EQ(bench.Run({"Data della prossima udienza: 12/03/2026 (Fascicolo)",
                       "Prossima udienza: 13/03/2026 (Fascicolo)"}),
            Stop{});
  EXPECT_EQ(bench.sink.rows,
            (Rows{FieldRow("DPUd", "Data della prossima udienza", "12/03/2026 (Fascicolo)")}));
}

}  // namespace
}  // namespace ordex::testing
