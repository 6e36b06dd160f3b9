#include "parse/mapping_files.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>

#include "import_bench.h"
#include "raised.h"
#include "support/temp_folder.h"

namespace ordex::testing {
namespace {

class MappingFiles : public ::testing::Test {
 protected:
  MappingFiles() { LocateMappings(mappings_, folder_.path()); }

  void Fields(std::string_view bytes) {
    folder_.Write("MapCampi.txt", bytes);
    LoadOrdexMap(mappings_);
  }
  void Delimiters(std::string_view bytes) {
    folder_.Write("MapDelimitatori.txt", bytes);
    LoadDelimitatori(mappings_);
  }
  void Kinds(std::string_view bytes) {
    folder_.Write("MapRestr.txt", bytes);
    LoadRestr(mappings_);
  }
  NamedValues FieldMap() const { return ValuesOf(mappings_.cOrdexMap); }

  TempFolder folder_;
  Mappings mappings_;
};

TEST_F(MappingFiles, StandInTheProgramFolderUnderTheirNames) {
  EXPECT_EQ(mappings_.mapCampi, folder_.path() / "MapCampi.txt");
  EXPECT_EQ(mappings_.mapRestr, folder_.path() / "MapRestr.txt");
  EXPECT_EQ(mappings_.mapDelimitatori, folder_.path() / "MapDelimitatori.txt");
}

TEST_F(MappingFiles, TheLeftPartIsTheValueAndTheRightPartItsKey) {
  Fields("NumeroRegGenerale=Numero di ruolo generale:\nOggetto=Oggetto\n");
  EXPECT_EQ(FieldMap(), (NamedValues{{"Numero di ruolo generale:", "NumeroRegGenerale"},
                                     {"Oggetto", "Oggetto"}}));
}

TEST_F(MappingFiles, TheDelimiterFileGivesTheTextUnderItsSymbolicKey) {
  Delimiters("Numero di ruolo generale:=DELPF1\n");
  EXPECT_EQ(mappings_.cDelimitatori.Item("DELPF1"), "Numero di ruolo generale:");
}

TEST_F(MappingFiles, AFurtherEqualsSignStaysInTheKey) {
  Fields("a=b=c\n");
  EXPECT_EQ(FieldMap(), (NamedValues{{"b=c", "a"}}));
}

TEST_F(MappingFiles, BlanksAndTabsAroundTheEqualsSignBelongToTheTexts) {
  Delimiters(" - Avv. =DELPF3\n=  vuota\n\t=\tscheda\n");
  EXPECT_EQ(ValuesOf(mappings_.cDelimitatori),
            (NamedValues{{"DELPF3", " - Avv. "}, {"  vuota", ""}, {"\tscheda", "\t"}}));
  EXPECT_FALSE(ItemExists(mappings_.cDelimitatori, "vuota"));
}

TEST_F(MappingFiles, ALineWithADegreeSignAnywhereIsIgnoredAsAWhole) {
  Fields("° a=uno\nb=due°\nc°c=tre\n °\n°°\n°\nd=quattro\ne=cinque °\n");
  EXPECT_EQ(FieldMap(), (NamedValues{{"quattro", "d"}}));
}

TEST_F(MappingFiles, ACommentNeedsNoEqualsSign) {
  Delimiters("°° delimitatori profilo\n");
  EXPECT_EQ(mappings_.cDelimitatori.Count(), 0U);
}

TEST_F(MappingFiles, TheOrdinalSignIsNoDegreeSign) {
  Fields("Piano=1º piano\n");
  EXPECT_EQ(FieldMap(), (NamedValues{{"1º piano", "Piano"}}));
}

TEST_F(MappingFiles, AOneCharacterLineAndAnEmptyLineAreIgnored) {
  Fields("\n=\nx\n \na=b\n");
  EXPECT_EQ(FieldMap(), (NamedValues{{"b", "a"}}));
}

TEST_F(MappingFiles, AOneCharacterLineOfTwoBytesIsIgnored) {
  Fields("è\n€\n😀\na=b\n");
  EXPECT_EQ(FieldMap(), (NamedValues{{"b", "a"}}));
}

TEST_F(MappingFiles, ALineOfTwoCharactersIsAnEntry) {
  Fields("è=\n");
  EXPECT_EQ(FieldMap(), (NamedValues{{"", "è"}}));
}

TEST_F(MappingFiles, ALineOfTwoBlanksIsNoEmptyLine) {
  EXPECT_EQ(RaisedBy([&] { Fields("  \n"); }),
            (Raised{9,
                    "Indice non incluso nell'intervallo: file \"MapCampi.txt\", riga 1, \"  \". "
                    "Nella riga manca il segno \"=\": scriverla nella forma testo=chiave, oppure "
                    "aggiungere il segno \"°\" se è un commento.",
                    1}));
}

TEST_F(MappingFiles, LinesMayEndInLfOrCrLfOrWithTheFile) {
  Fields("a=uno\r\nb=due\nc=tre");
  EXPECT_EQ(FieldMap(), (NamedValues{{"uno", "a"}, {"due", "b"}, {"tre", "c"}}));
}

TEST_F(MappingFiles, AnEmptyFileGivesAnEmptyTable) {
  Fields("");
  EXPECT_EQ(mappings_.cOrdexMap.Count(), 0U);
}

TEST_F(MappingFiles, KeysAreLookedUpWithoutRegardToLetterCase) {
  Delimiters("Numero:=delpf1\n");
  EXPECT_EQ(mappings_.cDelimitatori.Item("DELPF1"), "Numero:");
  Fields("Qualita=QUALITÀ della parte\n");
  EXPECT_EQ(mappings_.cOrdexMap.Item("Qualità DELLA Parte"), "Qualita");
}

TEST_F(MappingFiles, OnlyTheRecognitionTextsAreLowerCased) {
  Kinds("Profilo del FASCICOLO - Università=Profilo\n");
  EXPECT_EQ(ValuesOf(mappings_.cRestr),
            (NamedValues{{"Profilo", "profilo del fascicolo - università"}}));
  Kinds("CITTÀ=Città\n");
  EXPECT_EQ(mappings_.cRestr.At(1).value, "città");
  Delimiters("Numero:=DELPF1\n");
  EXPECT_EQ(mappings_.cDelimitatori.At(1).value, "Numero:");
  Fields("NomeDb=Etichetta\n");
  EXPECT_EQ(mappings_.cOrdexMap.At(1).value, "NomeDb");
}

TEST_F(MappingFiles, TheOrderOfTheRecognitionTextsIsTheOrderOfTheLines) {
  Kinds("zeta=Z\n° commento=C\nalfa=A\nmedio=M\n");
  EXPECT_EQ(ValuesOf(mappings_.cRestr),
            (NamedValues{{"Z", "zeta"}, {"A", "alfa"}, {"M", "medio"}}));
}

TEST_F(MappingFiles, EachLoadReplacesTheWholeTable) {
  Delimiters("vecchio=DELPF1\nsolo vecchio=DELPF2\n");
  Delimiters("nuovo=DELPF1\n");
  EXPECT_EQ(ValuesOf(mappings_.cDelimitatori), (NamedValues{{"DELPF1", "nuovo"}}));
  Kinds("uno=A\n");
  Kinds("due=A\n");
  EXPECT_EQ(ValuesOf(mappings_.cRestr), (NamedValues{{"A", "due"}}));
  Fields("Uno=A\n");
  Fields("Due=A\n");
  EXPECT_EQ(FieldMap(), (NamedValues{{"A", "Due"}}));
}

TEST_F(MappingFiles, ALineWithoutEqualsSignStopsTheLoadingThere) {
  EXPECT_EQ(RaisedBy([&] { Fields("° intestazione\na=uno\n\nOggetto della causa\nb=due\n"); }),
            (Raised{9,
                    "Indice non incluso nell'intervallo: file \"MapCampi.txt\", riga 4, \"Oggetto "
                    "della causa\". Nella riga manca il segno \"=\": scriverla nella forma "
                    "testo=chiave, oppure aggiungere il segno \"°\" se è un commento.",
                    4}));
  EXPECT_EQ(FieldMap(), (NamedValues{{"uno", "a"}}));
}

TEST_F(MappingFiles, ARepeatedKeyStopsTheLoadingThere) {
  EXPECT_EQ(RaisedBy([&] { Delimiters("uno=DELPF1\r\ndue=DELPF2\r\ntre=delpf1\r\nx=DELPF3\r\n"); }),
            (Raised{457,
                    "Chiave già presente: file \"MapDelimitatori.txt\", riga 3, \"tre=delpf1\". La "
                    "chiave \"delpf1\" sta già in una riga precedente: togliere una delle due "
                    "righe.",
                    3}));
  EXPECT_EQ(ValuesOf(mappings_.cDelimitatori), (NamedValues{{"DELPF1", "uno"}, {"DELPF2", "due"}}));
}

TEST_F(MappingFiles, ARepeatedKeyOfTheRecognitionFileNamesThatFile) {
  EXPECT_EQ(RaisedBy([&] { Kinds("Profilo=P\nProfilo nuovo=P\n"); }),
            (Raised{457,
                    "Chiave già presente: file \"MapRestr.txt\", riga 2, \"Profilo nuovo=P\". La "
                    "chiave \"P\" sta già in una riga precedente: togliere una delle due righe.",
                    2}));
}

TEST_F(MappingFiles, TheSameValueUnderTwoKeysIsNoRepetition) {
  Fields("Istruttore=Giudice istruttore\nIstruttore=Giudice del lavoro\n");
  EXPECT_EQ(mappings_.cOrdexMap.Count(), 2U);
}

TEST_F(MappingFiles, AMissingFileIsAnErrorAndLeavesAnEmptyTable) {
  Fields("a=uno\n");
  folder_.Remove("MapCampi.txt");
  const std::string path = (folder_ / "MapCampi.txt").string();
  EXPECT_EQ(RaisedBy([&] { LoadOrdexMap(mappings_); }),
            (Raised{53,
                    "Impossibile trovare il file: \"" + path +
                        "\". Il file di mappatura deve stare nella cartella del programma: "
                        "rimetterlo al suo posto.",
                    0}));
  EXPECT_EQ(mappings_.cOrdexMap.Count(), 0U);
}

TEST_F(MappingFiles, AFolderInPlaceOfAFileIsAnError) {
  std::filesystem::create_directory(folder_ / "MapRestr.txt");
  const std::string path = (folder_ / "MapRestr.txt").string();
  EXPECT_EQ(RaisedBy([&] { LoadRestr(mappings_); }),
            (Raised{75,
                    "Errore di accesso al file: impossibile leggere \"" + path +
                        "\". Controllare che la cartella esista e che i diritti bastino.",
                    0}));
}

}  // namespace
}  // namespace ordex::testing
