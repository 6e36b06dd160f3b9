// History pages copied one after the other in one run: recognised, then imported.
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "import_bench.h"
#include "page_benches.h"
#include "parse/recognition.h"
#include "raised.h"
#include "sample_import.h"
#include "support/fake_ports.h"

namespace ordex::testing {
namespace {

constexpr const char* kPlace2Of5 = "Lista(42 voci) Foglio 2 su 5";
constexpr const char* kPlace3Of5 = "Lista(42 voci) Foglio 3 su 5";

class HistoryRun : public ::testing::Test {
 protected:
  HistoryRun() : bench_(kPageHistory, kHistoryDelimiters) {
    bench_.folder.Write(kMapRestr, "Profilo=P\nStorico del fascicolo=S\n");
    LoadRestr(bench_.mappings);
  }

  void Recognise(const std::string& text) {
    FakeClipboard clipboard(text);
    FakeMessageBoxes boxes;
    RiconosciPagina(bench_.mappings, bench_.page, bench_.paging, clipboard, boxes);
  }
  // A page with the line that tells its place, the header and these lines.
  Stop Copy(const std::string& place, const std::vector<std::string>& events) {
    std::string text = "Storico del fascicolo\n" + place + "\n" + kHistoryHeader + "\n";
    for (const std::string& event : events) text.append(event).append("\n");
    Recognise(text);
    return bench_.ReadBytes(PageFileText(text, kPageHistory));
  }

  PageBench bench_;
};

TEST_F(HistoryRun, TheFirstCopyOfAPageYieldsItsRowsAndASecondCopyNone) {
  EXPECT_EQ(Copy(kPlace2Of5, {"16\t12/05/2025\tIntervento volontario"}), Stop{});
  const Rows rows{HistoryRow("16", "12/05/2025", "Intervento volontario", "2/5")};
  EXPECT_EQ(bench_.sink.rows, rows);
  EXPECT_EQ(Copy(kPlace2Of5, {"16\t12/05/2025\tIntervento volontario"}), Stop{});
  EXPECT_EQ(bench_.sink.rows, rows);
}

TEST_F(HistoryRun, APageTakenEarlierYieldsNoneAlsoAfterAnother) {
  EXPECT_EQ(Copy(kPlace2Of5, {"1 a b"}), Stop{});
  EXPECT_EQ(Copy(kPlace3Of5, {"2 c d"}), Stop{});
  EXPECT_EQ(Copy(kPlace2Of5, {"1 a b"}), Stop{});
  EXPECT_EQ(bench_.sink.rows,
            (Rows{HistoryRow("1", "a", "b", "2/5"), HistoryRow("2", "c", "d", "3/5")}));
}

TEST_F(HistoryRun, AHistoryOfOnePageHasTheReferenceOneOfOne) {
  EXPECT_EQ(Copy("Lista(1 voci)", {"1 26/02/2024 Iscrizione"}), Stop{});
  EXPECT_EQ(bench_.sink.rows, (Rows{HistoryRow("1", "26/02/2024", "Iscrizione", "1/1")}));
  EXPECT_EQ(bench_.paging.iTotEventiStorico, 1);
}

TEST_F(HistoryRun, AFirstPageThatTellsNoPlaceIsNewAndAtPlaceNought) {
  EXPECT_EQ(Copy("Foglio 2 su 5", {"1 a b"}), Stop{});
  EXPECT_EQ(bench_.sink.rows, (Rows{HistoryRow("1", "a", "b", "0/0")}));
}

TEST_F(HistoryRun, APageThatTellsNoPlaceHasThatOfThePageBefore) {
  EXPECT_EQ(Copy(kPlace2Of5, {"1 a b"}), Stop{});
  EXPECT_EQ(Copy("senza posto", {"2 c d"}), Stop{});
  EXPECT_EQ(bench_.sink.rows,
            (Rows{HistoryRow("1", "a", "b", "2/5"), HistoryRow("2", "c", "d", "2/5")}));
}

TEST_F(HistoryRun, APageThatTellsNoPlaceYieldsNothingBehindARepeatedOne) {
  Copy(kPlace2Of5, {"1 a b"});
  Copy(kPlace2Of5, {"1 a b"});
  EXPECT_EQ(Copy("senza posto", {"2 c d"}), Stop{});
  EXPECT_EQ(bench_.sink.rows, (Rows{HistoryRow("1", "a", "b", "2/5")}));
}

TEST_F(HistoryRun, APageWhoseImportStoppedCanBeCopiedAgain) {
  EXPECT_EQ(Copy(kPlace2Of5, {"1 a b", "guasta"}), StopInPage(9, TooFewParts(1, 3), 5, "guasta"));
  EXPECT_EQ(Copy(kPlace2Of5, {"1 a b", "2 c d"}), Stop{});
  EXPECT_EQ(bench_.sink.rows,
            (Rows{HistoryRow("1", "a", "b", "2/5"), HistoryRow("1", "a", "b", "2/5"),
                  HistoryRow("2", "c", "d", "2/5")}));
  EXPECT_EQ(Copy(kPlace2Of5, {"1 a b", "2 c d"}), Stop{});
  EXPECT_EQ(bench_.sink.rows.size(), 3U);
}

TEST_F(HistoryRun, APageWhoseFileIsMissingCanBeCopiedAgain) {
  Recognise(std::string("Storico del fascicolo\n") + kPlace2Of5);
  EXPECT_EQ(bench_.RunFile("assente", kPageHistory).number, 53);
  EXPECT_EQ(Copy(kPlace2Of5, {"1 a b"}), Stop{});
  EXPECT_EQ(bench_.sink.rows, (Rows{HistoryRow("1", "a", "b", "2/5")}));
}

TEST_F(HistoryRun, AStoppedImportForgetsNoOtherPage) {
  EXPECT_EQ(Copy(kPlace2Of5, {"1 a b"}), Stop{});
  EXPECT_EQ(Copy(kPlace3Of5, {"guasta"}).number, 9);
  EXPECT_EQ(ValuesOf(bench_.paging.cPagineStorico), (NamedValues{{"2", "2"}}));
}

// Its place is that of the page before, which was taken well.
TEST_F(HistoryRun, AStoppedPageThatTellsNoPlaceDoesNotForgetThePageBefore) {
  EXPECT_EQ(Copy(kPlace2Of5, {"1 a b"}), Stop{});
  EXPECT_EQ(Copy("senza posto", {"2 c d", "guasta"}).number, 9);
  EXPECT_EQ(ValuesOf(bench_.paging.cPagineStorico), (NamedValues{{"2", "2"}}));
  EXPECT_EQ(Copy(kPlace2Of5, {"1 a b"}), Stop{});
  EXPECT_EQ(bench_.sink.rows,
            (Rows{HistoryRow("1", "a", "b", "2/5"), HistoryRow("2", "c", "d", "2/5")}));
}

TEST_F(HistoryRun, AStoppedPageThatTellsNoPlaceCanBeCopiedAgain) {
  EXPECT_EQ(Copy(kPlace2Of5, {"1 a b"}), Stop{});
  EXPECT_EQ(Copy("senza posto", {"guasta"}).number, 9);
  EXPECT_EQ(Copy("senza posto", {"2 c d"}), Stop{});
  EXPECT_EQ(bench_.sink.rows,
            (Rows{HistoryRow("1", "a", "b", "2/5"), HistoryRow("2", "c", "d", "2/5")}));
}

TEST_F(HistoryRun, AStoppedImportOfAnotherKindForgetsNoPage) {
  EXPECT_EQ(Copy(kPlace2Of5, {"1 a b"}), Stop{});
  EXPECT_EQ(bench_.RunFile("assente", kPageProfile).number, 53);
  EXPECT_EQ(ValuesOf(bench_.paging.cPagineStorico), (NamedValues{{"2", "2"}}));
}

TEST_F(HistoryRun, AFaultInTheTotalIsRaisedByTheRecognition) {
  EXPECT_EQ(
      RaisedBy([&] { Recognise("Storico del fascicolo\nvoci) Lista("); }),
      (Raised{9, "Indice non incluso nell'intervallo: " +
                     TotalNotRead("\"Lista(\" (DELSF4) non sta prima di \"voci)\" (DELSF5)")}));
  EXPECT_EQ(RaisedBy([&] { Recognise("Storico del fascicolo\nLista(tante voci)"); }),
            (Raised{13, "Tipo non corrispondente: " + TotalIs("tante")}));
}

TEST_F(HistoryRun, PagesOfOtherKindsLeaveThePlaceAlone) {
  Recognise(std::string("Profilo\n") + kPlace2Of5);
  EXPECT_EQ(bench_.page.iOrdexPage, kPageProfile);
  EXPECT_EQ(bench_.paging.iPaginaStorico, 0);
  EXPECT_EQ(ValuesOf(bench_.paging.cPagineStorico), NamedValues{});
}

}  // namespace
}  // namespace ordex::testing
