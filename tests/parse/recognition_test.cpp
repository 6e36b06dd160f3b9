#include "parse/recognition.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "import_bench.h"
#include "raised.h"
#include "support/fake_ports.h"
#include "support/temp_folder.h"

namespace ordex::testing {
namespace {

const BoxText kRefused{"La pagina corrente non può essere importata in Praxion.", "Praxion",
                       BoxIcon::kStop, BoxButtons::kOk};

class Recognition : public ::testing::Test {
 protected:
  Recognition() {
    LocateMappings(mappings_, folder_.path());
    folder_.Write("MapDelimitatori.txt", kBenchDelimiters);
    Kinds(
        "Profilo del fascicolo=Profilo\nStorico del fascicolo=Storico\nAgenda=Agenda\n"
        "Giudice di pace=GdP\n");
  }

  void Kinds(std::string_view bytes) {
    folder_.Write("MapRestr.txt", bytes);
    LoadRestr(mappings_);
  }
  bool Recognise(std::string text) {
    clipboard_.text = std::move(text);
    return RiconosciPagina(mappings_, page_, paging_, clipboard_, boxes_);
  }

  TempFolder folder_;
  Mappings mappings_;
  Page page_;
  HistoryPaging paging_;
  FakeClipboard clipboard_;
  FakeMessageBoxes boxes_;
};

TEST_F(Recognition, TheKindIsTheLineOfTheTextThatThePageHolds) {
  EXPECT_TRUE(Recognise("una\r\nProfilo del fascicolo\r\naltra"));
  EXPECT_EQ(page_.iOrdexPage, 1);
  EXPECT_TRUE(Recognise("la mia Agenda di oggi"));
  EXPECT_EQ(page_.iOrdexPage, 3);
  EXPECT_TRUE(Recognise("Giudice di pace"));
  EXPECT_EQ(page_.iOrdexPage, 4);
}

TEST_F(Recognition, ARecognisedPageShowsNoBoxAndStaysInTheClipboard) {
  EXPECT_TRUE(Recognise("Profilo del fascicolo"));
  EXPECT_EQ(boxes_.shown, std::vector<BoxText>{});
  EXPECT_EQ(clipboard_.clears, 0U);
  EXPECT_EQ(clipboard_.text, "Profilo del fascicolo");
}

TEST_F(Recognition, APageThatHoldsTheTextOnlyInOtherLetterCaseIsRecognised) {
  EXPECT_TRUE(Recognise("pROFILO DEL fascicolo"));
  EXPECT_EQ(page_.iOrdexPage, 1);
}

TEST_F(Recognition, LetterCaseOfAccentedLettersIsIgnoredToo) {
  Kinds("Attività GIÀ svolta=A\n");
  EXPECT_TRUE(Recognise("ATTIVITÀ già SVOLTA"));
  EXPECT_EQ(page_.iOrdexPage, 1);
}

// A large page is brought to lower case piece by piece; a text may stand across two of them.
TEST_F(Recognition, ATextIsFoundWhereverItStandsInALargePage) {
  constexpr std::size_t kPiece = 250'000;
  for (std::size_t before = kPiece - 25; before <= kPiece + 1; ++before) {
    EXPECT_TRUE(Recognise(std::string(before, 'x') + "PROFILO del fascicolo"));
    EXPECT_EQ(page_.iOrdexPage, 1) << before;
  }
  EXPECT_TRUE(Recognise("Agenda" + std::string(3 * kPiece, 'x') + "Profilo del fascicolo"));
  EXPECT_EQ(page_.iOrdexPage, 1);
  EXPECT_FALSE(Recognise(std::string(3 * kPiece, 'x')));
}

TEST_F(Recognition, OfTwoTextsThatThePageHoldsTheEarlierLineDecides) {
  EXPECT_TRUE(Recognise("Giudice di pace\r\nAgenda\r\nProfilo del fascicolo"));
  EXPECT_EQ(page_.iOrdexPage, 1);
}

TEST_F(Recognition, TheTextIsSoughtExactlyBlankForBlank) {
  EXPECT_FALSE(Recognise("Profilo  del fascicolo"));
  EXPECT_FALSE(Recognise("Profilo del\r\nfascicolo"));
}

TEST_F(Recognition, ACommentLineIsNoPageKind) {
  Kinds("° Profilo=X\nAgenda=Agenda\n");
  EXPECT_TRUE(Recognise("Profilo e Agenda"));
  EXPECT_EQ(page_.iOrdexPage, 1);
}

TEST_F(Recognition, ALineBehindTheFourthIsAFurtherKind) {
  Kinds("uno=1\ndue=2\ntre=3\nquattro=4\ncinque=5\n");
  EXPECT_TRUE(Recognise("cinque"));
  EXPECT_EQ(page_.iOrdexPage, 5);
}

TEST_F(Recognition, AnUnknownPageIsRefusedWithAStopBoxAndTheClipboardIsCleared) {
  EXPECT_FALSE(Recognise("Cara Nora, a presto"));
  EXPECT_EQ(page_.iOrdexPage, 0);
  EXPECT_EQ(boxes_.shown, std::vector<BoxText>{kRefused});
  EXPECT_EQ(clipboard_.clears, 1U);
}

TEST_F(Recognition, AnEmptyClipboardIsRefused) {
  EXPECT_FALSE(Recognise(""));
  EXPECT_EQ(boxes_.shown, std::vector<BoxText>{kRefused});
  EXPECT_EQ(clipboard_.clears, 1U);
}

TEST_F(Recognition, TheClipboardIsClearedOnlyAfterTheBoxIsClosed) {
  std::string during;
  boxes_.onShow = [&](const BoxText&) { during = clipboard_.text; };
  EXPECT_FALSE(Recognise("Cara Nora"));
  EXPECT_EQ(during, "Cara Nora");
  EXPECT_EQ(clipboard_.text, "");
}

TEST_F(Recognition, AMissForgetsTheKindOfTheFormerPage) {
  page_.iOrdexPage = kPageAgenda;
  EXPECT_FALSE(Recognise("Cara Nora"));
  EXPECT_EQ(page_.iOrdexPage, 0);
  EXPECT_EQ(boxes_.shown.size(), 1U);
}

TEST_F(Recognition, WithoutAnyRecognitionTextThePageIsRefusedAtStartUp) {
  Kinds("° nessuna\n");
  EXPECT_FALSE(Recognise("Profilo del fascicolo"));
  EXPECT_EQ(page_.iOrdexPage, 0);
  EXPECT_EQ(boxes_.shown, std::vector<BoxText>{kRefused});
}

TEST_F(Recognition, WithoutAnyRecognitionTextTheKindStaysAsItWas) {
  Kinds("° nessuna\n");
  page_.iOrdexPage = kPageProfile;
  EXPECT_TRUE(Recognise("Cara Nora"));
  EXPECT_EQ(page_.iOrdexPage, 1);
  EXPECT_EQ(boxes_.shown, std::vector<BoxText>{});
}

TEST_F(Recognition, AHistoryPageLoadsTheDelimitersAfresh) {
  folder_.Write("MapDelimitatori.txt", "vecchio=DELSF1\nx=DELSF2\n");
  LoadDelimitatori(mappings_);
  folder_.Write("MapDelimitatori.txt", "nuovo=DELSF1\nElenco(=DELSF4\nrighe)=DELSF5\n");
  EXPECT_TRUE(Recognise("Storico del fascicolo"));
  EXPECT_EQ(page_.iOrdexPage, 2);
  EXPECT_EQ(ValuesOf(mappings_.cDelimitatori),
            (NamedValues{{"DELSF1", "nuovo"}, {"DELSF4", "Elenco("}, {"DELSF5", "righe)"}}));
}

TEST_F(Recognition, OtherPagesLoadNoDelimiters) {
  EXPECT_TRUE(Recognise("Profilo del fascicolo"));
  EXPECT_TRUE(Recognise("Agenda"));
  EXPECT_TRUE(Recognise("Giudice di pace"));
  EXPECT_EQ(mappings_.cDelimitatori.Count(), 0U);
}

TEST_F(Recognition, AFaultInTheDelimiterFileIsRaisedOnAHistoryPage) {
  folder_.Write("MapDelimitatori.txt", "uno=DELSF1\nDELSF2\n");
  EXPECT_EQ(RaisedBy([&] { Recognise("Storico del fascicolo"); }),
            (Raised{9,
                    "Indice non incluso nell'intervallo: file \"MapDelimitatori.txt\", riga 2, "
                    "\"DELSF2\". Nella riga manca il segno \"=\": scriverla nella forma "
                    "testo=chiave, oppure aggiungere il segno \"°\" se è un commento.",
                    2}));
}

std::string NumberedKinds(int count) {
  std::string bytes;
  for (int i = 1; i <= count; ++i) {
    bytes.append("testo." + std::to_string(i) + ".=" + std::to_string(i) + "\n");
  }
  return bytes;
}

TEST_F(Recognition, TheLastKindThatFitsSixteenBitsIsRecognised) {
  Kinds(NumberedKinds(32768));
  EXPECT_TRUE(Recognise("testo.32767."));
  EXPECT_EQ(page_.iOrdexPage, 32767);
}

TEST_F(Recognition, AKindOverSixteenBitsIsAnOverflow) {
  Kinds(NumberedKinds(32768));
  const Raised raised = RaisedBy([&] { Recognise("testo.32768."); });
  EXPECT_EQ(
      raised,
      (Raised{6, "Overflow: file \"MapRestr.txt\", più di 32767 testi: toglierne qualcuno."}));
}

TEST(ClipboardText, LineEndsAreBroughtToCrLf) {
  EXPECT_EQ(ClipboardText(FakeClipboard("uno\ndue\r\ntre\rquattro")),
            "uno\r\ndue\r\ntre\r\nquattro");
}

}  // namespace
}  // namespace ordex::testing
