#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "import_bench.h"
#include "parse/mapping_files.h"
#include "raised.h"
#include "support/temp_folder.h"

namespace ordex::testing {
namespace {

class MappingEncodings : public ::testing::Test {
 protected:
  NamedValues Loaded(std::string_view bytes) {
    folder_.Write("MapCampi.txt", bytes);
    LocateMappings(mappings_, folder_.path());
    LoadOrdexMap(mappings_);
    return ValuesOf(mappings_.cOrdexMap);
  }

  TempFolder folder_;
  Mappings mappings_;
};

TEST_F(MappingEncodings, Utf8IsReadAsItIs) {
  EXPECT_EQ(Loaded("Autorita=Autorità che è in carica\n° commento=x\n"),
            (NamedValues{{"Autorità che è in carica", "Autorita"}}));
}

TEST_F(MappingEncodings, AByteOrderMarkIsNoPartOfTheFirstLine) {
  EXPECT_EQ(Loaded("\xEF\xBB\xBF"
                   "Oggetto=Oggetto\nUnita=Unità\n"),
            (NamedValues{{"Oggetto", "Oggetto"}, {"Unità", "Unita"}}));
}

TEST_F(MappingEncodings, AByteOrderMarkBeforeACommentChangesNothing) {
  EXPECT_EQ(Loaded("\xEF\xBB\xBF° commento\r\nOggetto=Oggetto\r\n"),
            (NamedValues{{"Oggetto", "Oggetto"}}));
}

TEST_F(MappingEncodings, AFileOfOnlyAByteOrderMarkIsEmpty) {
  EXPECT_EQ(Loaded("\xEF\xBB\xBF"), NamedValues{});
}

// 0xB0 is the degree sign, 0xE0 "à", 0xE8 "è", 0x80 the euro sign.
TEST_F(MappingEncodings, Windows1252IsReadWithItsDegreeSignAndItsAccents) {
  EXPECT_EQ(Loaded("\xB0 commento=x\r\nAutorita=Autorit\xE0 che \xE8 in carica\r\n"
                   "Valore=Valore in \x80\r\nb=due \xB0\r\n"),
            (NamedValues{{"Autorità che è in carica", "Autorita"}, {"Valore in €", "Valore"}}));
}

TEST_F(MappingEncodings, AOneCharacterLineOfWindows1252IsIgnored) {
  EXPECT_EQ(Loaded("\xE8\nUnita=Unit\xE0\n"), (NamedValues{{"Unità", "Unita"}}));
}

TEST_F(MappingEncodings, TwoCharactersOfWindows1252AreAnEntry) {
  EXPECT_EQ(Loaded("\xE8=\n"), (NamedValues{{"", "è"}}));
}

TEST_F(MappingEncodings, Utf16IsRefusedAndSaysHowToSaveTheFile) {
  const std::string bytes("\xFF\xFEO\0=\0A\0\r\0\n\0", 12);
  EXPECT_EQ(
      RaisedBy([&] { Loaded(bytes); }),
      (Raised{
          75,
          "Errore di accesso al file: il file \"MapCampi.txt\", riga 1, contiene caratteri nulli: "
          "forse è salvato come UTF-16 (\"Unicode\"). Salvarlo di nuovo come UTF-8.",
          1}));
}

// As Windows-1252 the two bytes of the UTF-8 sign read "Â°": still a comment.
TEST_F(MappingEncodings, CommentsStayCommentsInAFileThatMixesBothEncodings) {
  EXPECT_EQ(Loaded("° commento\nUnita=Unit\xE0\n"), (NamedValues{{"Unità", "Unita"}}));
}

TEST_F(MappingEncodings, AllThreeFilesAreReadAlike) {
  folder_.Write("MapRestr.txt", "\xB0 uno\nCITT\xC0=Citta\n");
  folder_.Write("MapDelimitatori.txt", "\xB0 uno\nUnit\xE0:=DELPF1\n");
  LocateMappings(mappings_, folder_.path());
  LoadRestr(mappings_);
  LoadDelimitatori(mappings_);
  EXPECT_EQ(ValuesOf(mappings_.cRestr), (NamedValues{{"Citta", "città"}}));
  EXPECT_EQ(ValuesOf(mappings_.cDelimitatori), (NamedValues{{"DELPF1", "Unità:"}}));
}

}  // namespace
}  // namespace ordex::testing
