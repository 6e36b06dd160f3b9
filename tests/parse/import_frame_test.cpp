// The walk through a page file that all page kinds share.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "base/error.h"
#include "import_bench.h"

namespace ordex::testing {
namespace {

using Numbers = std::vector<int>;

TEST(ImportFrame, TheWidthsAreSetOnceWithThePageKind) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Oggetto: x"}), Stop{});
  EXPECT_EQ(bench.sink.kinds, Numbers{1});
}

TEST(ImportFrame, EachImportBeginsWithNewPageValues) {
  ImportBench bench;
  bench.Run({"Oggetto: primo", "Materia: prima"});
  bench.Run({"Oggetto: secondo"});
  EXPECT_EQ(bench.Values(), (NamedValues{{"Oggetto", "secondo"}}));
}

TEST(ImportFrame, AnImportThatCannotBeginStillEmptiesThePageValues) {
  ImportBench bench;
  bench.Run({"Oggetto: primo"});
  bench.folder.Remove("MapDelimitatori.txt");
  bench.Run({"Oggetto: secondo"});
  EXPECT_EQ(bench.Values(), NamedValues{});
}

TEST(ImportFrame, ThePartiesOfTheFormerPageAreNoRepetition) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Attore: ROSSI"}), Stop{});
  EXPECT_EQ(bench.Run({"Attore: BIANCHI"}), Stop{});
  EXPECT_EQ(bench.Values(),
            (NamedValues{{"Attore", "BIANCHI"}, {"DifAttore", ""}, {"ParteAttrice", "BIANCHI"}}));
}

TEST(ImportFrame, TheDelimitersAreReadAfreshForEveryPage) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Oggetto: a", "Oggetto; b"}), Stop{});
  std::string delimiters(kBenchDelimiters);
  delimiters.replace(delimiters.find(":=DELPF2"), 1, ";");
  bench.Delimiters(delimiters);
  EXPECT_EQ(bench.Run({"Oggetto: a", "Oggetto; b"}), Stop{});
  EXPECT_EQ(bench.sink.rows,
            (Rows{FieldRow("Oggetto", "Oggetto", "a"), FieldRow("Oggetto", "Oggetto", "b")}));
}

TEST(ImportFrame, ThePageFileIsNamedAfterTheRecognitionText) {
  const std::filesystem::path folder = "studio";
  EXPECT_EQ(PageFile(folder, "profilo del fascicolo - dati generali"),
            folder / "profilo del fascicolo - dati generali.txt");
}

TEST(ImportFrame, AStemWithADotKeepsIt) {
  EXPECT_EQ(PageFile("studio", "agenda dell'avv. periodo"),
            std::filesystem::path("studio") / "agenda dell'avv. periodo.txt");
}

TEST(ImportFrame, TheFileOfTheGivenStemIsRead) {
  ImportBench bench;
  bench.folder.Write("profilo.txt", "Oggetto: del profilo\r\n");
  bench.folder.Write("altro.txt", "Oggetto: di altro\r\n");
  EXPECT_EQ(bench.RunFile("profilo"), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("Oggetto", "Oggetto", "del profilo")}));
}

TEST(ImportFrame, LinesMayEndInLfOrCrLfOrWithTheFile) {
  ImportBench bench;
  EXPECT_EQ(bench.RunBytes("Oggetto: a\nMateria: b\r\nEsito: c"), Stop{});
  EXPECT_EQ(bench.sink.rows,
            (Rows{FieldRow("Oggetto", "Oggetto", "a"), FieldRow("Materia", "Materia", "b"),
                  FieldRow("Esito", "Esito", "c")}));
}

TEST(ImportFrame, AnEmptyPageFileGivesNothing) {
  ImportBench bench;
  EXPECT_EQ(bench.RunBytes(""), Stop{});
  EXPECT_EQ(bench.trace.lines.size(), 0U);
  EXPECT_EQ(bench.sink.rows, Rows{});
}

TEST(ImportFrame, APageFileInUtf8KeepsItsAccents) {
  ImportBench bench;
  EXPECT_EQ(bench.RunBytes("Unità locale: Nicolò, € 5,00\r\n"), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("Unita", "Unità locale", "Nicolò, € 5,00")}));
}

TEST(ImportFrame, TheByteOrderMarkOfAPageFileIsNoPartOfItsFirstLine) {
  ImportBench bench;
  EXPECT_EQ(bench.RunBytes("\xEF\xBB\xBFOggetto: x\r\n"), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("Oggetto", "Oggetto", "x")}));
}

// 0xE0 is "à", 0xF2 "ò", 0x80 the euro sign.
TEST(ImportFrame, APageFileInWindows1252IsReadAsSuch) {
  ImportBench bench;
  EXPECT_EQ(bench.RunBytes("Unit\xE0 locale: Nicol\xF2, \x80 5,00\r\n"), Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{FieldRow("Unita", "Unità locale", "Nicolò, € 5,00")}));
}

TEST(ImportFrame, AMissingPageFileStopsTheImport) {
  ImportBench bench;
  const std::string path = (bench.folder / "assente.txt").string();
  EXPECT_EQ(bench.RunFile("assente"),
            (Stop{53, "Impossibile trovare il file: \"" + path + "\"", 0, "", false}));
  EXPECT_EQ(bench.sink.kinds, Numbers{1});
  EXPECT_EQ(bench.mappings.cDelimitatori.Count(), 11U);
}

TEST(ImportFrame, AFaultInTheDelimiterFileStopsTheImportAndNamesThatFileAndItsLine) {
  ImportBench bench;
  bench.Delimiters("Numero:=DELPF1\nDELPF2\n:=DELPF2\n");
  EXPECT_EQ(
      bench.Run({"Numero: 1"}),
      (Stop{9,
            "Indice non incluso nell'intervallo: file \"MapDelimitatori.txt\", riga 2, "
            "\"DELPF2\". Nella riga manca il segno \"=\": scriverla nella forma testo=chiave, "
            "oppure aggiungere il segno \"°\" se è un commento.",
            2, "", false}));
  EXPECT_EQ(bench.sink.kinds, Numbers{1});
  EXPECT_EQ(bench.trace.lines.size(), 0U);
}

TEST(ImportFrame, ARepeatedDelimiterKeyStopsTheImport) {
  ImportBench bench;
  bench.Delimiters("a=DELPF1\nb=DELPF1\n");
  EXPECT_EQ(bench.Run({"Oggetto: x"}),
            (Stop{457,
                  "Chiave già presente: file \"MapDelimitatori.txt\", riga 2, \"b=DELPF1\". La "
                  "chiave \"DELPF1\" sta già in una riga precedente: togliere una delle due righe.",
                  2, "", false}));
  EXPECT_EQ(bench.sink.rows, Rows{});
}

TEST(ImportFrame, AMissingDelimiterFileStopsTheImport) {
  ImportBench bench;
  bench.folder.Remove("MapDelimitatori.txt");
  const std::string path = (bench.folder / "MapDelimitatori.txt").string();
  EXPECT_EQ(
      bench.Run({"Oggetto: x"}),
      (Stop{53,
            "Impossibile trovare il file: \"" + path +
                "\". Il file di mappatura deve stare nella cartella del programma: rimetterlo "
                "al suo posto.",
            0, "", false}));
}

TEST(ImportFrame, OtherKindsReadOnWithoutDoingAnything) {
  for (const std::int16_t kind : {std::int16_t{0}, std::int16_t{5}, std::int16_t{-1}}) {
    ImportBench bench;
    EXPECT_EQ(
        bench.Run({"Numero di ruolo generale: 1", "Attore: ROSSI", "Termini assegnati"}, kind),
        Stop{});
    EXPECT_EQ(bench.trace.lines.size(), 3U);
    EXPECT_TRUE(bench.trace.takers.empty());
    EXPECT_EQ(bench.sink.rows, Rows{});
    EXPECT_EQ(bench.sink.parties, Parties{});
    EXPECT_EQ(bench.Values(), NamedValues{});
    EXPECT_EQ(bench.sink.kinds, Numbers{kind});
  }
}

TEST(ImportFrame, AnImportNeedsNoTrace) {
  ImportBench bench;
  bench.folder.Write("pagina.txt", "Termini assegnati\nNote: 1\n\nOggetto: x\n");
  EXPECT_EQ(
      StopOf(Import({bench.folder.path(), bench.mappings, bench.page, bench.paging, bench.sink},
                    "pagina", kPageProfile)),
      Stop{});
  EXPECT_EQ(bench.sink.rows, (Rows{DeadlineRow("Note", "1"), FieldRow("Oggetto", "Oggetto", "x")}));
}

TEST(ImportFrame, ThePageFileIsClosedAfterAStoppedImport) {
  ImportBench bench;
  EXPECT_EQ(bench.Run({"Oggetto"}).number, 9);
  EXPECT_TRUE(std::filesystem::remove(bench.folder / "pagina.txt"));
  EXPECT_EQ(bench.Run({"Oggetto: x"}), Stop{});
}

// Takes the first party and fails at the second.
class FailingSink final : public ImportSink {
 public:
  void SetWidthlstImport(int) override {}
  void WriteListView(std::string_view, std::string_view, std::string_view, std::string_view,
                     std::string_view) override {}
  void AggiungiRigaAgenda(std::string_view, std::string_view, bool) override {}
  void LoadcmbParti(std::string_view szSoggetto, std::string_view) override {
    if (++calls_ == 2) throw MakeError(ErrorNumber::kOverflow, szSoggetto);
  }

 private:
  int calls_ = 0;
};

TEST(ImportFrame, AnErrorRaisedByWhatIsCalledStopsTheImportAtItsLine) {
  ImportBench bench;
  bench.folder.Write("pagina.txt", "Attore: A\n\n  Convenuto: B \nOggetto: x\n");
  FailingSink sink;
  EXPECT_EQ(StopOf(Import({bench.folder.path(), bench.mappings, bench.page, bench.paging, sink},
                          "pagina", kPageProfile)),
            StopInPage(6, "Overflow: B", 3, "  Convenuto: B "));
}

}  // namespace
}  // namespace ordex::testing
