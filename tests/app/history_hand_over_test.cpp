// Further history pages handed over to the window of a history.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/page_texts.h"
#include "support/window_fixture.h"

namespace ordex::testing {
namespace {

using Texts = std::vector<std::string>;

struct HistoryHandOver : WindowFixture {
  explicit HistoryHandOver(std::string page = HistoryPage("Pagina 1 di 5", {"1 14/01/2025 Uno"}))
      : WindowFixture(std::move(page)) {
    Start();
  }

  // "number pages" of each review row.
  Texts Rows() const {
    Texts rows;
    for (std::size_t i = 0; i < state().lstImport.rows.size(); ++i) {
      const ReviewRow row = state().lstImport.rows[i];
      rows.push_back(std::string(row.text) + " " + std::string(row.sub[2]));
    }
    return rows;
  }
  Texts EventsOfCaseTwo() {
    window.ChooseCase(2);
    window.PressAzione();
    return office.Rows(
        "SELECT Progressivo, NrPagina FROM EventiPraOrdex WHERE ID_PraRel = 2 ORDER BY 1");
  }
};

TEST(HandOverOfAHistory, AddsItsRowsToThoseThatAreThere) {
  HistoryHandOver fixture;
  fixture.Poke(HistoryPage("Pagina 2 di 5", {"2 15/01/2025 Due", "3 16/01/2025 Tre"}));
  EXPECT_EQ(fixture.Rows(), (Texts{"1 1/5", "2 2/5", "3 2/5"}));
  EXPECT_EQ(fixture.state().lstImport.order.size(), 3U);
  EXPECT_EQ(fixture.state().frmMain.caption, std::string("Ordex - ") + kHistoryPhrase);
  EXPECT_TRUE(fixture.desktop.events.empty());
  EXPECT_TRUE(fixture.boxes.shown.empty());
}

TEST(HandOverOfAHistory, LeavesItsPageFileWhichTheNextOneReplaces) {
  HistoryHandOver fixture;
  fixture.Poke(HistoryPage("Pagina 2 di 5", {"2\t15/01/2025\tDue"}));
  EXPECT_EQ(fixture.folder.Read(kHistoryFile),
            "\"Storico del fascicolo - Elenco eventi\r\nElenco(42 righe) Pagina 2 di 5\r\nProg. "
            "Data Descrizione\r\n2 15/01/2025 Due\r\n\"\r\n");
  fixture.Poke(HistoryPage("Pagina 3 di 5", {"3 16/01/2025 Tre"}));
  EXPECT_EQ(fixture.folder.FileCount(), 4U);
  EXPECT_EQ(fixture.folder.Read(kHistoryFile),
            "\"Storico del fascicolo - Elenco eventi\r\nElenco(42 righe) Pagina 3 di 5\r\nProg. "
            "Data Descrizione\r\n3 16/01/2025 Tre\r\n\"\r\n");
}

TEST(HandOverOfAHistory, KeepsTheChosenCaseAndLooksNoneUp) {
  HistoryHandOver fixture;
  fixture.window.ChooseCase(2);
  const std::string status = fixture.state().status.text;
  fixture.Poke(HistoryPage("Pagina 2 di 5", {"2 15/01/2025 Due"}));
  EXPECT_EQ(fixture.state().choice.ctlTestata1.idPra, 2);
  EXPECT_EQ(fixture.state().status.text, status);
  EXPECT_TRUE(fixture.state().commands.cmdAzione.enabled);
  EXPECT_TRUE(fixture.office.diagnostics.sql.empty());
}

TEST(HandOverOfAHistory, OfThePageThatIsThereAddsNothing) {
  HistoryHandOver fixture;
  fixture.Poke(HistoryPage("Pagina 1 di 5", {"1 14/01/2025 Uno"}));
  EXPECT_EQ(fixture.Rows(), (Texts{"1 1/5"}));
  EXPECT_TRUE(fixture.boxes.shown.empty());
  EXPECT_FALSE(fixture.window.ended().has_value());
}

TEST(HandOverOfAHistory, OfAPageOfEarlierInTheRunAddsNothing) {
  HistoryHandOver fixture;
  fixture.Poke(HistoryPage("Pagina 2 di 5", {"2 15/01/2025 Due"}));
  fixture.Poke(HistoryPage("Pagina 1 di 5", {"1 14/01/2025 Uno"}));
  fixture.Poke(HistoryPage("Pagina 3 di 5", {"3 16/01/2025 Tre"}));
  EXPECT_EQ(fixture.Rows(), (Texts{"1 1/5", "2 2/5", "3 3/5"}));
}

TEST(HandOverOfAHistory, OfPagesTwoAndThreeOfFiveWritesBothWithTheirPage) {
  HistoryHandOver fixture(HistoryPage("Pagina 2 di 5", {"16 12/05/2025 A", "17 14/05/2025 B"}));
  fixture.Poke(HistoryPage("Pagina 3 di 5", {"18 20/05/2025 C"}));
  EXPECT_EQ(fixture.Rows(), (Texts{"16 2/5", "17 2/5", "18 3/5"}));
  EXPECT_EQ(fixture.EventsOfCaseTwo(), (Texts{"16|2", "17|2", "18|3"}));
}

TEST(HandOverOfAHistory, OfAllSamplePagesWritesTheWholeHistory) {
  HistoryHandOver fixture(SourceFile("samples/storico-pagina-1.txt"));
  fixture.Sample("storico-pagina-3.txt");
  fixture.Sample("storico-pagina-2.txt");
  const Texts events = fixture.EventsOfCaseTwo();
  ASSERT_EQ(events.size(), 42U);
  EXPECT_EQ(events[0], "1|1");
  EXPECT_EQ(events[14], "15|1");
  EXPECT_EQ(events[15], "16|2");
  EXPECT_EQ(events[29], "30|2");
  EXPECT_EQ(events[30], "31|3");
  EXPECT_EQ(events[41], "42|3");
}

TEST(HandOverOfAHistory, ThatStopsIsToldAndCanBeCopiedAgain) {
  HistoryHandOver fixture;
  fixture.Poke(HistoryPage("Pagina 2 di 5", {"2 15/01/2025 Due", "Tre"}));
  ASSERT_EQ(fixture.boxes.shown.size(), 1U);
  EXPECT_EQ(fixture.boxes.shown[0].icon, BoxIcon::kWarning);
  EXPECT_EQ(fixture.Rows(), (Texts{"1 1/5", "2 2/5"}));
  EXPECT_FALSE(fixture.window.ended().has_value());
  fixture.Poke(HistoryPage("Pagina 2 di 5", {"2 15/01/2025 Due", "3 16/01/2025 Tre"}));
  EXPECT_EQ(fixture.Rows(), (Texts{"1 1/5", "2 2/5", "2 2/5", "3 2/5"}));
  EXPECT_EQ(fixture.EventsOfCaseTwo(), (Texts{"1|1", "2|2", "3|2"}));
}

TEST(HandOverOfAHistory, IsTakenAfterARefusedPage) {
  HistoryHandOver fixture;
  fixture.Poke(ProfilePage("633/2025"));
  fixture.Poke(HistoryPage("Pagina 2 di 5", {"2 15/01/2025 Due"}));
  EXPECT_EQ(fixture.state().page.iOrdexPage, 2);
  EXPECT_EQ(fixture.Rows(), (Texts{"1 1/5", "2 2/5"}));
}

TEST(HandOverOfAHistory, LeavesTheButtonWorkingAfterARefusedPage) {
  HistoryHandOver fixture;
  fixture.Poke(ProfilePage("633/2025"));
  EXPECT_EQ(fixture.EventsOfCaseTwo(), (Texts{"1|1"}));
  EXPECT_EQ(fixture.window.ended(), EndReason::kDone);
}

}  // namespace
}  // namespace ordex::testing
