// The small commands: clear the case and close.
#include <gmock/gmock.h>
#include <wx/button.h>
#include <wx/choice.h>
#include <wx/textctrl.h>

#include "desk_test.h"

namespace ordex::desktop_tests {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using CommandsTest = DeskTest;

TEST_F(CommandsTest, ClearEmptiesTheHeaderAndWaitsForAnotherCase) {
  Open("profilo-contratto.txt");
  Click(Find<wxButton>("Pulisci campi"));
  EXPECT_EQ(Action(), "Crea");
  EXPECT_EQ(ActionSymbol(), Symbol::kCreate);
  EXPECT_FALSE(OnMain([b = Find<wxButton>("Crea")] { return b->IsEnabled(); }));
  EXPECT_EQ(StatusText(), "Selezionare una pratica.");
  EXPECT_EQ(StatusPicture(), "Exclamation");
  EXPECT_NE(Find<wxWindow>("Nessuna pratica selezionata"), nullptr);
  EXPECT_EQ(Find<wxWindow>("EDILIZIA VALLEBRUNA S.R.L."), nullptr);
  EXPECT_THAT(NotAsState(), IsEmpty());
}

TEST_F(CommandsTest, ClearOnAHistoryPageOnlyEmptiesTheHeader) {
  Open("storico-pagina-1.txt");
  Type("1842/2025");
  Press(WXK_RETURN);
  Press(WXK_RETURN);
  const std::string told = StatusText();
  EXPECT_THAT(told, ::testing::StartsWith("Pratica selezionata : "));
  Click(Find<wxButton>("Pulisci campi"));
  EXPECT_NE(Find<wxWindow>("Nessuna pratica selezionata"), nullptr);
  EXPECT_EQ(StatusText(), told);
  EXPECT_TRUE(OnMain([b = Find<wxButton>("Aggiorna")] { return b->IsEnabled(); }));
  EXPECT_THAT(NotAsState(), IsEmpty());
  // A press without a case writes nothing and says why.
  Click(Find<wxButton>("Aggiorna"));
  EXPECT_EQ(StatusText(), "Selezionare una pratica.");
  EXPECT_EQ(StatusPicture(), "Exclamation");
  EXPECT_THAT(Rows("SELECT count(*) FROM EventiPraOrdex"), ElementsAre("0"));
  EXPECT_THAT(NotAsState(), IsEmpty());
}

TEST_F(CommandsTest, TheCloseButtonClosesAndGivesTheUserBack) {
  Open("profilo-contratto.txt");
  EXPECT_EQ(office_.Setting("Shared", "Id_Utente"), "7");
  Click(Find<wxButton>("Chiudi"));
  EXPECT_TRUE(EndsAs(EndReason::kClosed));
  EXPECT_EQ(office_.Setting("Shared", "Id_Utente"), "-1");
  EXPECT_THAT(Rows("SELECT count(*) FROM PraOrdex"), ElementsAre("0"));
}

TEST_F(CommandsTest, TheMnemonicCloses) {
  Open("profilo-contratto.txt");
  Press('C', wxMOD_ALT);
  EXPECT_TRUE(EndsAs(EndReason::kClosed));
}

TEST_F(CommandsTest, EscapeCloses) {
  Open("agenda-settimana.txt");
  Press(WXK_ESCAPE);
  EXPECT_TRUE(EndsAs(EndReason::kClosed));
  EXPECT_EQ(office_.Setting("Shared", "Id_Utente"), "-1");
}

TEST_F(CommandsTest, EscapeClosesWhileACreateIsPendingToo) {
  Open("profilo-lavoro.txt");
  Press(WXK_RETURN);
  EXPECT_EQ(NextBox(), NoCaseBox());
  Press(WXK_RETURN);
  ASSERT_TRUE(NoBox());
  Press(WXK_ESCAPE);
  EXPECT_TRUE(EndsAs(EndReason::kClosed));
  EXPECT_THAT(Rows("SELECT count(*) FROM Pratica"), ElementsAre("10"));
}

TEST_F(CommandsTest, TheWindowManagerCloses) {
  Open("profilo-contratto.txt");
  Press(WXK_F4, wxMOD_ALT);
  EXPECT_TRUE(EndsAs(EndReason::kClosed));
  EXPECT_EQ(office_.Setting("Shared", "Id_Utente"), "-1");
}

TEST_F(CommandsTest, TheTabKeyGoesThroughTheWindowFromTopToBottom) {
  Open("profilo-contratto.txt");
  OnMain([search = Find<wxTextCtrl>("ctlTestata1")] { search->SetFocus(); });
  std::vector<std::string> stops;
  for (int i = 0; i < 8; ++i) {
    stops.push_back(OnMain([] {
      const wxWindow* focus = FocusedControl();
      if (focus == nullptr) return std::string("nothing");
      return focus->GetName() == "ctlTestata1" || LabelOf(*focus).empty()
                 ? focus->GetName().utf8_string()
                 : LabelOf(*focus);
    }));
    Press(WXK_TAB);
  }
  EXPECT_THAT(stops, ElementsAre("ctlTestata1", "Pulisci campi", "EDILIZIA VALLEBRUNA S.R.L.",
                                 "IMMOBILIARE PONTEMIRTO S.P.A.", "Aggiorna", "Dettagli ...",
                                 "Chiudi", "ctlTestata1"));
}

}  // namespace
}  // namespace ordex::desktop_tests
