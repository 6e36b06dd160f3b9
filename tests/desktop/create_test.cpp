// A new case in two presses: the first asks, the second creates with what was chosen in between.
#include <gmock/gmock.h>
#include <wx/button.h>
#include <wx/choice.h>
#include <wx/textctrl.h>

#include "desk_test.h"

namespace ordex::desktop_tests {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class CreateTest : public DeskTest {
 protected:
  // The first press, and Yes.
  void AgreeToCreate() {
    Open("profilo-lavoro.txt");
    Press(WXK_RETURN);
    EXPECT_EQ(NextBox(), NoCaseBox());
    Press(WXK_RETURN);
    ASSERT_TRUE(NoBox());
    cliente_ = Find<wxChoice>("Cliente");
    controparte_ = Find<wxChoice>("Controparte");
    utente_ = Find<wxChoice>("Titolare Contabilità :");
    ASSERT_NE(cliente_, nullptr);
    ASSERT_NE(controparte_, nullptr);
    ASSERT_NE(utente_, nullptr);
    EXPECT_THAT(NotAsState(), IsEmpty());
  }
  // Chooses an entry, counted from 0, with the mouse alone to begin with and the arrow keys then.
  void Choose(wxChoice* box, int entry) {
    Click(box);
    ASSERT_TRUE(WaitFor([=] { return IsDroppedDown(*box); }));
    Press(WXK_HOME);
    for (int i = 0; i < entry; ++i) Press(WXK_DOWN);
    Press(WXK_RETURN);
    ASSERT_TRUE(WaitFor([=] { return !IsDroppedDown(*box); }));
    Settle();
  }
  std::string Shown(wxChoice* box) {
    return OnMain([=] { return box->GetStringSelection().utf8_string(); });
  }
  std::string ToolTip(wxChoice* box) {
    return OnMain([=] { return box->GetToolTipText().utf8_string(); });
  }

  wxChoice* cliente_ = nullptr;
  wxChoice* controparte_ = nullptr;
  wxChoice* utente_ = nullptr;
};

TEST_F(CreateTest, TheFirstPressShowsTheChoicesAndAsksToConfirm) {
  AgreeToCreate();
  EXPECT_EQ(Action(), "Conferma");
  EXPECT_EQ(ActionSymbol(), Symbol::kUpdate);
  EXPECT_TRUE(OnMain([b = Find<wxButton>("Annulla")] { return b->IsEnabled(); }));
  EXPECT_EQ(Shown(utente_), "SUPERVISORE");
  EXPECT_EQ(Height(), 288);
}

TEST_F(CreateTest, NoToTheQuestionGivesTheFocusBackToTheSearch) {
  Open("profilo-lavoro.txt");
  Press(WXK_RETURN);
  EXPECT_EQ(NextBox(), NoCaseBox());
  Press(WXK_TAB);
  Press(WXK_RETURN);
  ASSERT_TRUE(NoBox());
  EXPECT_TRUE(HasFocus(Find<wxTextCtrl>("ctlTestata1")));
  EXPECT_EQ(Action(), "Crea");
  EXPECT_EQ(Find<wxChoice>("Cliente"), nullptr);
  EXPECT_THAT(NotAsState(), IsEmpty());
}

// Neither answer of a Yes/No question means that it was taken back.
TEST_F(CreateTest, EscapeDoesNotAnswerTheQuestionButTheMnemonicDoes) {
  Open("profilo-lavoro.txt");
  Press(WXK_RETURN);
  EXPECT_EQ(NextBox(), NoCaseBox());
  Press(WXK_ESCAPE);
  EXPECT_EQ(NextBox(), NoCaseBox());
  Press('N', wxMOD_ALT);
  ASSERT_TRUE(NoBox());
  EXPECT_EQ(Action(), "Crea");
  EXPECT_EQ(Ended(), std::nullopt);
}

TEST_F(CreateTest, WithoutACounterpartNothingIsCreated) {
  AgreeToCreate();
  Choose(cliente_, 0);
  Click(Find<wxButton>("Conferma"));
  EXPECT_EQ(NextBox(),
            (Box{"Attenzione", "Selezionare Cliente e Controparte.", wxICON_INFORMATION, {"OK"}}));
  Press(WXK_RETURN);
  ASSERT_TRUE(NoBox());
  EXPECT_THAT(Rows("SELECT count(*) FROM Pratica"), ElementsAre("10"));
  EXPECT_EQ(Action(), "Conferma");
}

TEST_F(CreateTest, AKnownClientIsShownAndLinkedAndTheCaseCreated) {
  AgreeToCreate();
  Choose(cliente_, 0);
  EXPECT_EQ(Shown(cliente_), "D'AMICO LUCA");
  EXPECT_EQ(ToolTip(cliente_), "D'AMICO LUCA");
  Choose(controparte_, 1);
  EXPECT_EQ(Shown(controparte_), "LOGISTICA SERRAVENTO S.P.A.");
  Choose(utente_, 1);
  EXPECT_EQ(Shown(utente_), "FERRIGATI NORA");
  EXPECT_THAT(NotAsState(), IsEmpty());
  Click(Find<wxButton>("Conferma"));
  ASSERT_NE(NextDialog("frmInfoAnagrafica"), nullptr);
  Press(WXK_RETURN);  // Yes is the default
  EXPECT_EQ(NextBox(), CreatedBox());
  Press(WXK_RETURN);
  EXPECT_TRUE(EndsAs(EndReason::kDone));
  EXPECT_THAT(Rows("SELECT ID_Pra, ID_Cliente, ControCognome, ID_Contab, NumeroRegGenerale "
                   "FROM Pratica WHERE ID_Pra > 10"),
              ElementsAre("11|4|LOGISTICA SERRAVENTO S.P.A.|3|3056/2025"));
  EXPECT_THAT(Rows("SELECT count(*) FROM Anagrafica WHERE ID_Ana > 11"), ElementsAre("0"));
  EXPECT_EQ(office_.Setting("Shared", "Id_Utente"), "-1");
}

TEST_F(CreateTest, AClientThatIsNotLinkedIsMadeAnew) {
  AgreeToCreate();
  Choose(cliente_, 0);
  Choose(controparte_, 1);
  Click(Find<wxButton>("Conferma"));
  wxDialog* card = NextDialog("frmInfoAnagrafica");
  ASSERT_NE(card, nullptr);
  Click(OnMain([=] { return Seen<wxButton>(*card, "No"); }));
  EXPECT_EQ(NextBox(), CreatedBox());
  EXPECT_THAT(Rows("SELECT ID_Cliente FROM Pratica WHERE ID_Pra = 11"), ElementsAre("12"));
  EXPECT_THAT(Rows("SELECT Cognome, Nome FROM Anagrafica WHERE ID_Ana = 12"),
              ElementsAre("D'AMICO|LUCA"));
}

TEST_F(CreateTest, ThePartyThatIsTheClientAlreadyClearsTheCounterpart) {
  AgreeToCreate();
  Choose(cliente_, 1);
  Choose(controparte_, 1);
  EXPECT_EQ(Shown(cliente_), "LOGISTICA SERRAVENTO S.P.A.");
  EXPECT_EQ(Shown(controparte_), "");
  EXPECT_THAT(NotAsState(), IsEmpty());
}

TEST_F(CreateTest, TheBoxesCanBeChosenWithTheKeyboardAlone) {
  AgreeToCreate();
  // From the button in front of the choices the tab key must reach them.
  for (int tabs = 0; tabs < 20 && OnMain(FocusedControl) != cliente_; ++tabs) {
    Press(WXK_TAB);
  }
  ASSERT_TRUE(HasFocus(cliente_));
  Press(WXK_DOWN);
  EXPECT_EQ(Shown(cliente_), "D'AMICO LUCA");
  Press(WXK_TAB);
  ASSERT_TRUE(HasFocus(controparte_));
  Press(WXK_DOWN);
  Press(WXK_DOWN);
  EXPECT_EQ(Shown(controparte_), "LOGISTICA SERRAVENTO S.P.A.");
  Press(WXK_TAB);
  ASSERT_TRUE(HasFocus(utente_));
  Press(WXK_DOWN);
  EXPECT_EQ(Shown(utente_), "FERRIGATI NORA");
  EXPECT_THAT(NotAsState(), IsEmpty());
  Press(WXK_TAB);
  EXPECT_TRUE(HasFocus(Find<wxButton>("Conferma")));
  Press(WXK_RETURN);
  EXPECT_NE(NextDialog("frmInfoAnagrafica"), nullptr);
}

TEST_F(CreateTest, CancelTakesThePendingCreateBack) {
  AgreeToCreate();
  Press(WXK_DOWN);
  ASSERT_EQ(Shown(cliente_), "D'AMICO LUCA");
  Press('A', wxMOD_ALT);
  // The toolkit shows the button pressed for a while first.
  EXPECT_TRUE(WaitFor([] { return FrontWindow()->GetDefaultItem()->GetLabel() == "Crea"; }));
  EXPECT_EQ(Action(), "Crea");
  EXPECT_EQ(ActionSymbol(), Symbol::kCreate);
  EXPECT_FALSE(OnMain([b = Find<wxButton>("Annulla")] { return b->IsEnabled(); }));
  EXPECT_EQ(Find<wxChoice>("Cliente"), nullptr);
  EXPECT_THAT(NotAsState(), IsEmpty());
  // And it can be begun again.
  Click(Find<wxButton>("Crea"));
  EXPECT_EQ(NextBox(), NoCaseBox());
}

}  // namespace
}  // namespace ordex::desktop_tests
