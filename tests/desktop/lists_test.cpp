// The review list: sorted by its headers, read by its tool tip, copied with the keyboard, and as
// quick with a hundred thousand rows as with ten.
#include <gmock/gmock.h>
#include <wx/frame.h>
#include <wx/listctrl.h>
#include <wx/sizer.h>

#include <set>
#include <sstream>
#include <utility>
#include <vector>

#include "desk_test.h"
#include "list_hands.h"

namespace ordex::desktop_tests {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ListsTest : public DeskTest {
 protected:
  // Opens the page with its details in sight.
  wxListCtrl* OpenWithDetails(const std::string& sample) {
    Open(sample);
    Press('D', wxMOD_ALT);
    EXPECT_TRUE(WaitFor([] {
      const wxWindow* list = wxWindow::FindWindowByName("lstImport");
      return list->IsShownOnScreen() && list->GetSize().GetHeight() >= 100;
    }));
    Settle();
    return Find<wxListCtrl>("lstImport");
  }
  // By so many pixels, with the whole window.
  static void Widen(wxListCtrl& list, int pixels) {
    OnMain([&list, pixels] {
      wxWindow* window = wxGetTopLevelParent(&list);
      window->SetSize(window->GetSize() + wxSize(pixels, 0));
    });
  }
  // Of all columns but the third, which fits itself to the list.
  static std::vector<int> OtherWidths(const wxListCtrl& list) {
    return {list.GetColumnWidth(0), list.GetColumnWidth(1), list.GetColumnWidth(3)};
  }
  // The first cells in the order shown.
  std::string Order() {
    std::string order;
    for (const std::string& row : RowsOf("lstImport")) {
      order += row.substr(0, row.find(" | ")) + " ";
    }
    return order;
  }
  // The pictures in the headers: "-" none, "a" ascending, "d" descending.
  std::string Icons(const wxListCtrl* list) {
    return OnMain([=] {
      std::string icons;
      for (int place = 0; place < list->GetColumnCount(); ++place) {
        wxListItem column;
        column.SetMask(wxLIST_MASK_IMAGE);
        list->GetColumn(place, column);
        icons += column.GetImage() < 0 ? '-' : "ad"[column.GetImage()];
      }
      return icons;
    });
  }
};

TEST_F(ListsTest, TheMouseAboveTheListIsTheCustomPointer) {
  const wxListCtrl* list = OpenWithDetails("storico-unica.txt");
  ClickRow(list, 0);
  EXPECT_EQ(State([](const Window& window) { return window.lstImport.mousePointer; }),
            Pointer::kHand);
}

TEST_F(ListsTest, ThreeClicksOnAHeaderSortUpDownAndUp) {
  const wxListCtrl* list = OpenWithDetails("storico-unica.txt");
  ASSERT_EQ(Order(), "1 2 3 4 5 6 7 ");
  EXPECT_EQ(Icons(list), "----");
  ClickHeader(list, 2);
  EXPECT_EQ(Order(), "2 3 1 5 4 7 6 ");
  EXPECT_EQ(Icons(list), "--a-");
  EXPECT_THAT(NotAsState(), IsEmpty());
  ClickHeader(list, 2, 20);
  EXPECT_EQ(Order(), "6 7 4 5 1 3 2 ");
  EXPECT_EQ(Icons(list), "--d-");
  EXPECT_THAT(NotAsState(), IsEmpty());
  ClickHeader(list, 2, 40);
  EXPECT_EQ(Order(), "2 3 1 5 4 7 6 ");
  EXPECT_EQ(Icons(list), "--a-");
}

TEST_F(ListsTest, AClickOnAnotherHeaderTakesItsMarkOver) {
  const wxListCtrl* list = OpenWithDetails("storico-unica.txt");
  ClickHeader(list, 2);
  ClickHeader(list, 1);
  EXPECT_EQ(Order(), "3 5 4 6 7 1 2 ");  // the dates as texts
  EXPECT_EQ(Icons(list), "-a--");
  EXPECT_THAT(NotAsState(), IsEmpty());
}

TEST_F(ListsTest, AClickOnARowTellsItsValueWholeAlsoWhenSorted) {
  const wxListCtrl* list = OpenWithDetails("storico-unica.txt");
  const auto toolTip = [=] { return OnMain([=] { return list->GetToolTipText().utf8_string(); }); };
  ClickRow(list, 2);
  EXPECT_EQ(toolTip(), "Deposito della documentazione ipocatastale");
  ClickHeader(list, 2);
  // Another row has come to the place that was chosen.
  EXPECT_EQ(OnMain([=] { return list->GetSelectedItemCount(); }), 0);
  ClickRow(list, 2);
  EXPECT_EQ(toolTip(), "Iscrizione a ruolo generale");
  EXPECT_THAT(NotAsState(), IsEmpty());
}

TEST_F(ListsTest, CopiedRowsLieOnTheClipboardInTheOrderShown) {
  const wxListCtrl* list = OpenWithDetails("storico-unica.txt");
  ClickHeader(list, 1);
  ClickRow(list, 0);
  Press(WXK_DOWN, wxMOD_SHIFT);
  Press('c', wxMOD_CONTROL);
  EXPECT_EQ(Clipboard(),
            "3\t09/05/2024\tDeposito della documentazione ipocatastale\t1/1\r\n"
            "5\t14/01/2025\tIspezione del cortile, presenti l'amministratore e D'AGNOLO\t1/1\r\n");
}

TEST_F(ListsTest, ReturnInTheListUpdates) {
  ClickRow(OpenWithDetails("profilo-contratto.txt"), 1);
  Press(WXK_RETURN);
  EXPECT_EQ(NextBox(), UpdatedBox());
  EXPECT_THAT(Rows("SELECT count(*) FROM PraOrdex"), ElementsAre("1"));
}

TEST_F(ListsTest, EscapeInTheListCloses) {
  ClickRow(OpenWithDetails("profilo-contratto.txt"), 1);
  Press(WXK_ESCAPE);
  EXPECT_TRUE(EndsAs(EndReason::kClosed));
}

TEST_F(ListsTest, AColumnTakesWhatTheWindowGrowsByAndGivesItBack) {
  wxListCtrl* list = OpenWithDetails("storico-unica.txt");
  const int designed = OnMain([=] { return list->GetColumnWidth(2); });
  const std::vector<int> others = OnMain([=] { return OtherWidths(*list); });
  Widen(*list, 200);
  EXPECT_TRUE(WaitFor([=] { return list->GetColumnWidth(2) == designed + 200; }));
  Widen(*list, -300);
  EXPECT_TRUE(WaitFor([=] { return list->GetColumnWidth(2) == designed - 100; }));
  EXPECT_EQ(OnMain([=] { return OtherWidths(*list); }), others);
}

TEST_F(ListsTest, AColumnThatTheUserHasSetStaysAsItIs) {
  wxListCtrl* list = OpenWithDetails("storico-unica.txt");
  OnMain([=] { list->SetColumnWidth(2, 300); });
  Widen(*list, 150);
  EXPECT_TRUE(WaitFor([=] { return list->GetSize().GetWidth() > 900; }));
  Settle();
  EXPECT_EQ(OnMain([=] { return list->GetColumnWidth(2); }), 300);
}

TEST_F(ListsTest, AHistoryOfAHundredThousandEventsOpensAndScrollsToItsEnd) {
  constexpr int kEvents = 100'000;
  std::ostringstream events;
  for (int i = 1; i <= kEvents; ++i) events << i << "\t14/01/2025\tAtto numero " << i << "\n";
  // In place of the page's own.
  std::string page = Sample("storico-unica.txt");
  const std::size_t first = page.find("1\t26/02/2024");
  const std::size_t last = page.find("7\t23/02/2026");
  ASSERT_NE(first, std::string::npos);
  ASSERT_NE(last, std::string::npos);
  page.replace(first, page.find('\n', last) + 1 - first, events.str());
  OpenText(page);
  Press('D', wxMOD_ALT);
  ASSERT_TRUE(WaitFor([] { return wxWindow::FindWindowByName("lstImport")->IsShownOnScreen(); }));
  auto* list = Find<wxListCtrl>("lstImport");
  EXPECT_EQ(OnMain([=] { return list->GetItemCount(); }), kEvents);
  ClickRow(list, 0);
  Press(WXK_END);
  EXPECT_TRUE(WaitFor(
      [=] { return list->GetTopItem() + list->GetCountPerPage() >= list->GetItemCount() - 1; }));
  EXPECT_EQ(Row("lstImport", kEvents - 1), "100000 | 14/01/2025 | Atto numero 100000 | 1/1");
}

// Counts for which rows it is asked.
class WatchedList : public desktop::ReviewListCtrl {
 public:
  WatchedList(wxWindow* parent, const ReviewList& list)
      : ReviewListCtrl(parent, list, [](const desktop::Act&) {}) {}
  std::set<long> TakeAsked() { return std::exchange(asked_, {}); }

 private:
  wxString OnGetItemText(long row, long column) const override {
    asked_.insert(row);
    return ReviewListCtrl::OnGetItemText(row, column);
  }

  mutable std::set<long> asked_;
};

TEST(ReviewListCtrlTest, OfAHundredThousandRowsOnlyThoseInViewAreAskedFor) {
  constexpr long kRows = 100'000;
  ReviewList state;
  for (long row = 0; row < kRows; ++row) {
    state.order.push_back(static_cast<std::uint32_t>(row));
    state.rows.push_back({"Storico", {"14/01/2025", "Atto", "1/1"}, {}});
  }
  wxFrame* frame = nullptr;
  WatchedList* list = nullptr;
  OnMain([&] {
    frame = new wxFrame(nullptr, wxID_ANY, "Elenco");
    auto* rows = new wxBoxSizer(wxVERTICAL);
    list = new WatchedList(frame, state);
    rows->Add(list, 1, wxEXPAND);
    frame->SetSizer(rows);
    frame->SetSize(800, 300);
    list->Draw();
    frame->Show();
  });
  std::set<long> asked;
  const auto drawn = [&](long row) {
    return WaitFor([&] {
      asked.merge(list->TakeAsked());
      return asked.contains(row);
    });
  };
  ASSERT_TRUE(drawn(0));
  Settle();
  OnMain([&] { asked.merge(list->TakeAsked()); });
  const auto inView = static_cast<std::size_t>(OnMain([&] { return list->GetCountPerPage(); }));
  EXPECT_GT(inView, 5U);
  EXPECT_LE(asked.size(), inView + 2);
  asked.clear();
  OnMain([&] { list->EnsureVisible(kRows - 1); });
  EXPECT_TRUE(drawn(kRows - 1));
  EXPECT_LE(asked.size(), 2 * inView + 4);
  // Drawn anew as after each act.
  OnMain([&] {
    list->TakeAsked();
    asked.clear();
    list->Draw();
  });
  EXPECT_TRUE(drawn(kRows - 1));
  EXPECT_LE(asked.size(), inView + 2);
  OnMain([&] { frame->Destroy(); });
}

}  // namespace
}  // namespace ordex::desktop_tests
