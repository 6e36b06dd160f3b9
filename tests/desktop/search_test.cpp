// The search of the case header: what is found drops down while one types.
#include <gmock/gmock.h>
#include <wx/button.h>
#include <wx/listbox.h>

#include "desk_test.h"
#include "ui/desktop/case_search_box.h"

namespace ordex::desktop_tests {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class SearchTest : public DeskTest {
 protected:
  void OpenSearch(const std::string& sample) {
    Open(sample);
    search_ = Find<desktop::CaseSearchBox>("ctlTestata1");
    ASSERT_NE(search_, nullptr);
    Click(search_);
    ASSERT_TRUE(HasFocus(search_));
  }
  // True once the hits are there, or gone.
  bool Drops(bool shown) {
    return WaitFor([this, shown] { return search_->DropDownShown() == shown; });
  }
  std::vector<std::string> Hits() {
    return OnMain([] {
      const auto* list = dynamic_cast<wxListBox*>(wxWindow::FindWindowByName("Pratiche trovate"));
      std::vector<std::string> hits;
      for (const wxString& hit : list->GetStrings()) hits.push_back(hit.utf8_string());
      return hits;
    });
  }
  std::int32_t Case() {
    return State([](const Window& state) { return state.choice.ctlTestata1.idPra; });
  }
  std::string Typed() {
    return OnMain([this] { return search_->GetValue().utf8_string(); });
  }

  desktop::CaseSearchBox* search_ = nullptr;
};

TEST_F(SearchTest, DropsDownByItselfAndAnArrowAndReturnChoose) {
  OpenSearch("storico-pagina-1.txt");
  Type("starnotti");
  ASSERT_TRUE(Drops(true));
  EXPECT_THAT(Hits(), ElementsAre("STARNOTTI GELINDA / ALTOBRANDI SEVERINO - R.G. 633/2025",
                                  "STARNOTTI GELINDA"));
  Press(WXK_DOWN);
  Press(WXK_DOWN);
  Press(WXK_RETURN);
  EXPECT_TRUE(Drops(false));
  EXPECT_EQ(Case(), 10);
  EXPECT_EQ(StatusText(), "Pratica selezionata : STARNOTTI GELINDA");
  EXPECT_EQ(Typed(), "");
  EXPECT_THAT(NotAsState(), IsEmpty());
}

TEST_F(SearchTest, TheArrowUpGoesBack) {
  OpenSearch("storico-pagina-1.txt");
  Type("starnotti");
  ASSERT_TRUE(Drops(true));
  Press(WXK_DOWN);
  Press(WXK_DOWN);
  Press(WXK_UP);
  Press(WXK_RETURN);
  EXPECT_EQ(Case(), 6);
}

TEST_F(SearchTest, AClickChooses) {
  OpenSearch("profilo-contratto.txt");
  Type("907");
  ASSERT_TRUE(Drops(true));
  EXPECT_EQ(Hits().size(), 2U);
  ClickAt(OnMain([] {
    const auto* list = dynamic_cast<wxListBox*>(wxWindow::FindWindowByName("Pratiche trovate"));
    return list->GetScreenPosition() + wxPoint(30, 8);
  }));
  EXPECT_TRUE(WaitFor([this] { return Typed().empty(); }));
  EXPECT_TRUE(Drops(false));
  EXPECT_EQ(Case(), 3);
  EXPECT_EQ(Action(), "Aggiorna");
  EXPECT_THAT(NotAsState(), IsEmpty());
}

TEST_F(SearchTest, EscapeTakesTheHitsAwayAndThenClosesTheWindow) {
  OpenSearch("profilo-contratto.txt");
  Type("starnotti");
  ASSERT_TRUE(Drops(true));
  Press(WXK_ESCAPE);
  EXPECT_TRUE(Drops(false));
  EXPECT_EQ(Ended(), std::nullopt);
  EXPECT_EQ(Typed(), "starnotti");
  EXPECT_EQ(Case(), 2);
  Press(WXK_ESCAPE);
  EXPECT_TRUE(EndsAs(EndReason::kClosed));
}

TEST_F(SearchTest, NothingFoundIsSaidAndChoosesNothing) {
  OpenSearch("profilo-contratto.txt");
  Type("nessuno di questi");
  ASSERT_TRUE(Drops(true));
  EXPECT_THAT(Hits(), ElementsAre("Nessuna pratica trovata"));
  Press(WXK_DOWN);
  Press(WXK_RETURN);
  EXPECT_EQ(Case(), 2);
  EXPECT_EQ(Ended(), std::nullopt);
}

TEST_F(SearchTest, GoesAwayWithTheFocus) {
  OpenSearch("profilo-contratto.txt");
  Type("starnotti");
  ASSERT_TRUE(Drops(true));
  Press(WXK_TAB);
  EXPECT_TRUE(Drops(false));
  EXPECT_TRUE(HasFocus(Find<wxButton>("Pulisci campi")));
  EXPECT_EQ(Case(), 2);
}

TEST_F(SearchTest, TypingGoesOnBehindABlankAfterAPause) {
  OpenSearch("profilo-contratto.txt");
  Type("immobiliare ");
  ASSERT_TRUE(Drops(true));
  Type("pont");
  EXPECT_TRUE(WaitFor([this] {
    return State([](const Window& state) { return state.choice.ctlTestata1.searchText; }) ==
           "immobiliare pont";
  }));
  EXPECT_EQ(Typed(), "immobiliare pont");
}

TEST_F(SearchTest, ClearingTakesOutWhatWasTypedAndNotSearchedFor) {
  OpenSearch("profilo-contratto.txt");
  OnMain([this] {
    search_->ChangeValue("nebbia");
    return true;
  });
  Click(Find<wxButton>("Pulisci campi"));
  EXPECT_TRUE(WaitFor([this] { return Case() == 0; }));
  EXPECT_EQ(Typed(), "");
}

TEST_F(SearchTest, TheNumberOfAJusticePageIsLookedForWithReturnAlone) {
  OpenSearch("giudice-di-pace-opposizione.txt");
  EXPECT_EQ(Typed(), "4417/2025");
  Click(Find<wxButton>("Pulisci campi"));
  EXPECT_EQ(Case(), 0);
  Click(search_);
  Press('a', wxMOD_CONTROL);
  Type("4417/2025");
  Press(WXK_RETURN);
  ASSERT_TRUE(Drops(true));
  Press(WXK_RETURN);
  EXPECT_EQ(Case(), 8);
  EXPECT_EQ(Action(), "Aggiorna");
  EXPECT_TRUE(HasFocus(Find<wxButton>("Aggiorna")));
}

}  // namespace
}  // namespace ordex::desktop_tests
