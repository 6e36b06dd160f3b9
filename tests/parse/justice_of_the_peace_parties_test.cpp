// The parties block of a justice-of-the-peace page.
#include <gtest/gtest.h>

#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "import_bench.h"
#include "page_benches.h"

namespace ordex::testing {
namespace {

// A page whose parties block has these lines and ends with an empty one.
Stop ReadParties(JusticeBench& bench, const std::vector<std::string>& lines) {
  std::vector<std::string> page{"Dati della causa", "Le parti"};
  page.insert(page.end(), lines.begin(), lines.end());
  page.emplace_back();
  return bench.Read(page);
}

TEST(JusticeParties, APlaintiffAndADefendantAreStoredShownAndOffered) {
  JusticeBench bench;
  EXPECT_EQ(ReadParties(bench, {"Ricorre: ROSSI M. rappresentato/a da Avv. Neri",
                                "Resiste:  BIANCHI S.P.A.  rappresentato/a da  Avv. Verdi  "}),
            Stop{});
  EXPECT_EQ(bench.sink.rows,
            (Rows{FieldRow("ParteAttrice", "Ricorre:", "ROSSI M. rappresentato/a da Avv. Neri"),
                  FieldRow("ParteConvenuta",
                           "Resiste:", "BIANCHI S.P.A.  rappresentato/a da  Avv. Verdi")}));
  EXPECT_EQ(Sorted(bench.Values()),
            (NamedValues{{"Attore", "ROSSI M."},
                         {"Convenuto", "BIANCHI S.P.A."},
                         {"DifAttore", "Avv. Neri"},
                         {"DifConvenuto", "Avv. Verdi"},
                         {"ParteAttrice", "ROSSI M. rappresentato/a da Avv. Neri"},
                         {"ParteConvenuta", "BIANCHI S.P.A.  rappresentato/a da  Avv. Verdi"}}));
  EXPECT_EQ(bench.sink.parties,
            (Parties{{"ROSSI M.", "Avv. Neri"}, {"BIANCHI S.P.A.", "Avv. Verdi"}}));
}

TEST(JusticeParties, ThatFillNoFieldAreShownWithoutOneAndStoredAsPartiesOnly) {
  JusticeBench bench;
  EXPECT_EQ(ReadParties(bench, {"Agisce: ROSSI rappresentato/a da Neri", "Risponde: BIANCHI"}),
            Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("", "Agisce:", "ROSSI rappresentato/a da Neri"),
                                   FieldRow("", "Risponde:", "BIANCHI")}));
  EXPECT_EQ(Sorted(bench.Values()), (NamedValues{{"Attore", "ROSSI"},
                                                 {"Convenuto", "BIANCHI"},
                                                 {"DifAttore", "Neri"},
                                                 {"DifConvenuto", ""}}));
  EXPECT_EQ(bench.sink.parties, (Parties{{"ROSSI", "Neri"}, {"BIANCHI", ""}}));
}

TEST(JusticeParties, ComeBeforeTheFieldOfTheirLineInThePagesValues) {
  JusticeBench bench;
  EXPECT_EQ(ReadParties(bench, {"Ricorre: ROSSI rappresentato/a da Neri"}), Stop{});
  EXPECT_EQ(bench.Values(), (NamedValues{{"Attore", "ROSSI"},
                                         {"DifAttore", "Neri"},
                                         {"ParteAttrice", "ROSSI rappresentato/a da Neri"}}));
}

// Stored by the party's own key first, the field's value joins it as on any second value.
TEST(JusticeParties, OfAnOfficeThatMapsTheirFormToTheKeyOfTheSideAreNotLost) {
  JusticeBench bench;
  bench.Fields("Attore=Ricorre:\n");
  EXPECT_EQ(ReadParties(bench, {"Ricorre: ROSSI rappresentato/a da Neri"}), Stop{});
  EXPECT_EQ(bench.Values(), (NamedValues{{"DifAttore", "Neri"},
                                         {"Attore", "ROSSI; \r\nROSSI rappresentato/a da Neri"}}));
}

TEST(JusticeParties, WithoutTheSeparatorHaveAnEmptyCounsel) {
  JusticeBench bench;
  EXPECT_EQ(ReadParties(bench, {"Ricorre: ROSSI Rappresentato/a da Neri",
                                "Resiste: BIANCHI rappresentato da Verdi"}),
            Stop{});
  EXPECT_EQ(bench.sink.parties, (Parties{{"ROSSI Rappresentato/a da Neri", ""},
                                         {"BIANCHI rappresentato da Verdi", ""}}));
  EXPECT_EQ(Sorted(bench.Values()),
            (NamedValues{{"Attore", "ROSSI Rappresentato/a da Neri"},
                         {"Convenuto", "BIANCHI rappresentato da Verdi"},
                         {"DifAttore", ""},
                         {"DifConvenuto", ""},
                         {"ParteAttrice", "ROSSI Rappresentato/a da Neri"},
                         {"ParteConvenuta", "BIANCHI rappresentato da Verdi"}}));
}

TEST(JusticeParties, AreCutAtTheFirstSeparator) {
  JusticeBench bench;
  EXPECT_EQ(ReadParties(bench, {"Agisce: A rappresentato/a da B rappresentato/a da C"}), Stop{});
  EXPECT_EQ(bench.sink.parties, (Parties{{"A", "B rappresentato/a da C"}}));
}

TEST(JusticeParties, StandBehindTheTextOfTheirFormWhereverThatBegins) {
  JusticeBench bench;
  EXPECT_EQ(ReadParties(bench, {"  1) Agisce: ROSSI: figlio "}), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("", "Agisce:", "ROSSI: figlio")}));
  EXPECT_EQ(bench.sink.parties, (Parties{{"ROSSI: figlio", ""}}));
}

TEST(JusticeParties, OfOneSideMayBeSeveralAndTheFirstKeepsTheKey) {
  JusticeBench bench;
  EXPECT_EQ(ReadParties(bench, {"Ricorre: A", "Agisce: B rappresentato/a da X", "Resiste: C",
                                "Resiste: D rappresentato/a da Y", "Ricorre: E"}),
            Stop{});
  EXPECT_EQ(bench.sink.parties, (Parties{{"A", ""}, {"B", "X"}, {"C", ""}, {"D", "Y"}, {"E", ""}}));
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("ParteAttrice", "Ricorre:", "A"),
                                   FieldRow("", "Agisce:", "B rappresentato/a da X"),
                                   FieldRow("ParteConvenuta", "Resiste:", "C"),
                                   FieldRow("ParteConvenuta", "Resiste:", "D rappresentato/a da Y"),
                                   FieldRow("ParteAttrice", "Ricorre:", "E")}));
  EXPECT_EQ(Sorted(bench.Values()),
            (NamedValues{{"Attore", "A"},
                         {"Convenuto", "C"},
                         {"DifAttore", ""},
                         {"DifConvenuto", ""},
                         {"ParteAttrice", "A; \r\nE"},
                         {"ParteConvenuta", "C; \r\nD rappresentato/a da Y"}}));
}

TEST(JusticeParties, AreShownUnderTheirFormsTextTrimmed) {
  JusticeBench bench;
  std::string delimiters(kJusticeDelimiters);
  delimiters.replace(delimiters.find("Agisce:="), 7, " da parte di ");
  bench.Delimiters(delimiters);
  bench.Fields("ParteAttrice= da parte di \n");
  EXPECT_EQ(ReadParties(bench, {"Ricorso da parte di ROSSI"}), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("ParteAttrice", "da parte di", "ROSSI")}));
}

TEST(JusticeParties, OtherLinesOfTheBlockGoThroughTheOrdinaryRules) {
  JusticeBench bench;
  EXPECT_EQ(ReadParties(bench, {"  Note: a ", "Stanza: 2", "x", "   ", "Ricorre: A",
                                "Udienze | Prossima udienza: 17/03/2026", "Ruolo ; Materia: m"}),
            Stop{});
  EXPECT_EQ(bench.sink.rows,
            (Rows{FieldRow("Note", "Note", "a"), FieldRow("ParteAttrice", "Ricorre:", "A"),
                  FieldRow("DPUd", "Prossima udienza", "17/03/2026"),
                  FieldRow("Materia", "Materia", "m")}));
}

// --- begin and end of the block -----------------------------------------------------------------

TEST(JusticePartiesBlock, BeginsOnlyInTheDataSection) {
  JusticeBench bench;
  EXPECT_EQ(bench.Read({"Le parti", "Ricorre: A", "", "Dati della causa", "Ricorre: B", "le parti",
                        "Ricorre: C"}),
            Stop{});
  EXPECT_EQ(bench.sink.parties, Parties{});
  EXPECT_EQ(bench.sink.rows, Rows{});
}

TEST(JusticePartiesBlock, MayFollowOtherLinesOfTheDataSection) {
  JusticeBench bench;
  EXPECT_EQ(bench.Read({"Dati della causa", "Oggetto: x", "", "  2. Le parti: ", "Ricorre: A", ""}),
            Stop{});
  EXPECT_EQ(bench.sink.parties, (Parties{{"A", ""}}));
}

TEST(JusticePartiesBlock, EndsAtItsFirstEmptyLine) {
  JusticeBench bench;
  EXPECT_EQ(ReadParties(bench, {"Ricorre: A", "", "Resiste: B"}), Stop{});
  EXPECT_EQ(bench.sink.parties, (Parties{{"A", ""}}));
}

TEST(JusticePartiesBlock, MayBeEmpty) {
  JusticeBench bench;
  EXPECT_EQ(ReadParties(bench, {"", "Ricorre: A"}), Stop{});
  EXPECT_EQ(bench.sink.parties, Parties{});
}

TEST(JusticePartiesBlock, IsNotEndedByALineOfBlanks) {
  JusticeBench bench;
  EXPECT_EQ(ReadParties(bench, {"Ricorre: A", "   ", "Resiste: B"}), Stop{});
  EXPECT_EQ(bench.sink.parties, (Parties{{"A", ""}, {"B", ""}}));
}

TEST(JusticePartiesBlock, IsEndedQuietlyByTheEndOfTheFile) {
  JusticeBench bench;
  EXPECT_EQ(bench.ReadBytes("Dati della causa\nLe parti\nRicorre: A"), Stop{});
  EXPECT_EQ(bench.sink.parties, (Parties{{"A", ""}}));
  EXPECT_EQ(bench.ReadBytes("Dati della causa\nLe parti"), Stop{});
}

TEST(JusticePartiesBlock, IsEndedQuietlyByTheClosingQuoteOfThePageFile) {
  JusticeBench bench;
  EXPECT_EQ(bench.Read({"\"Dati della causa", "Le parti", "Ricorre: A", "\"", "Resiste: B"}),
            Stop{});
  EXPECT_EQ(bench.sink.parties, (Parties{{"A", ""}}));
}

// The one empty line ends the history and the block that it stands in.
TEST(JusticePartiesBlock, EndsWithAHistoryThatBeginsInIt) {
  JusticeBench bench;
  EXPECT_EQ(ReadParties(bench, {"Ricorre: A", "MOVIMENTI", "10/01/2026 deposito", "", "Resiste: B",
                                "Oggetto: x"}),
            Stop{});
  EXPECT_EQ(bench.sink.parties, (Parties{{"A", ""}}));
  EXPECT_EQ(bench.sink.rows,
            (Rows{FieldRow("ParteAttrice", "Ricorre:", "A"), kHistoryHeadingRow,
                  EventRow("10/01/2026", "deposito"), FieldRow("Oggetto", "Oggetto", "x")}));
}

TEST(JusticePartiesBlock, EndsWithAnEmptyHistoryThatBeginsInIt) {
  JusticeBench bench;
  EXPECT_EQ(ReadParties(bench, {"MOVIMENTI", "", "", "Resiste: B", "Oggetto: x"}), Stop{});
  EXPECT_EQ(bench.sink.parties, Parties{});
  EXPECT_EQ(bench.sink.rows, (Rows{kHistoryHeadingRow, FieldRow("Oggetto", "Oggetto", "x")}));
}

TEST(JusticePartiesBlock, NamesTheLineThatFails) {
  JusticeBench bench;
  EXPECT_EQ(ReadParties(bench, {"Ricorre: A", "  Oggetto", "Resiste: B"}),
            StopInPage(9, TooFewParts(1, 2), 4, "  Oggetto"));
  EXPECT_EQ(bench.sink.parties, (Parties{{"A", ""}}));
}

TEST(JusticePartiesBlock, HasEachOfItsLinesTakenByOneRule) {
  JusticeBench bench;
  ReadParties(bench, {"Ricorre: A", "Note: a", "nulla", "Risponde: B"});
  EXPECT_EQ(bench.trace.takers,
            (std::map<std::size_t, std::vector<std::string>>{{1, {"inizio dati"}},
                                                             {2, {"parti"}},
                                                             {3, {"parte"}},
                                                             {4, {"campo"}},
                                                             {6, {"parte"}},
                                                             {7, {"fine blocco"}}}));
}

}  // namespace
}  // namespace ordex::testing
