// The action button while no case is chosen: the way to a new one, in two presses.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/action_fixture.h"

namespace ordex::testing {
namespace {

using Boxes = std::vector<BoxText>;
using Cases = std::vector<std::int32_t>;
using Texts = std::vector<std::string>;

TEST(ActionWithoutACase, AsksWhetherToCreateOne) {
  ActionFixture action;
  EXPECT_EQ(action.Press(), ActionOutcome::kGoOn);
  EXPECT_EQ(action.boxes.shown, (Boxes{kAskCreate}));
  EXPECT_TRUE(action.written.empty());
}

TEST(ActionWithoutACase, ANoHandsTheFocusBackToTheHeaderAndChangesNothing) {
  ActionFixture action;
  action.boxes.answers = {BoxAnswer::kNo};
  EXPECT_EQ(action.Press(), ActionOutcome::kGoOn);
  EXPECT_EQ(action.desktop.events, (Texts{"SetFocus ctlTestata1"}));
  EXPECT_FALSE(action.commands.bConferma);
  EXPECT_FALSE(action.commands.cmdAnnulla.enabled);
  EXPECT_FALSE(action.choice.frameCliente.visible);
  EXPECT_FALSE(action.choice.frameUtenteCont.visible);
  EXPECT_EQ(action.commands.cmdAzione.caption, "Azione");
  EXPECT_TRUE(action.choice.cmbUtenteCont.items.empty());
}

TEST(ActionWithoutACase, AYesShowsTheChoicesAndWaitsForTheSecondPress) {
  ActionFixture action;
  EXPECT_EQ(action.Press(), ActionOutcome::kGoOn);
  EXPECT_TRUE(action.commands.bConferma);
  EXPECT_TRUE(action.choice.frameCliente.visible);
  EXPECT_TRUE(action.choice.frameUtenteCont.visible);
  EXPECT_EQ(action.commands.cmdAzione.caption, "Conferma");
  EXPECT_EQ(action.commands.cmdAzione.symbol, Symbol::kUpdate);
  EXPECT_TRUE(action.commands.cmdAnnulla.enabled);
  EXPECT_EQ(action.choice.cmbUtenteCont.items.size(), 2U);
  EXPECT_EQ(action.choice.lIdContab, 2);
  EXPECT_TRUE(action.desktop.events.empty());
}

TEST(ActionWithoutACase, AskedASecondTimeOffersTheAccountingUsersAfresh) {
  ActionFixture action;
  action.Press();
  action.commands.bConferma = false;
  action.Press();
  EXPECT_EQ(action.choice.cmbUtenteCont.items.size(), 2U);
}

TEST(ActionWithoutACase, WithoutAnAccountingUserIsAnErrorThatNothingTraps) {
  ActionFixture action;
  action.office.Do("UPDATE Utenti SET TitContabilita = 0");
  EXPECT_EQ(ErrorNumberOf([&] { action.Press(); }), 9);
}

TEST(ActionWithoutACase, ACaseWithoutASingleTextCountsAsNone) {
  ActionFixture action;
  action.choice.ctlTestata1.idPra = 1;
  EXPECT_EQ(action.Press(), ActionOutcome::kGoOn);
  EXPECT_EQ(action.boxes.shown, (Boxes{kAskCreate}));
  EXPECT_TRUE(action.written.empty());
}

TEST(ActionWithoutACase, TextsWithoutACaseCountAsNone) {
  ActionFixture action;
  action.choice.ctlTestata1.title = "ROSSI";
  action.choice.ctlTestata1.numeroRG = "1842/2025";
  action.Press();
  EXPECT_EQ(action.boxes.shown, (Boxes{kAskCreate}));
}

// --- the second press ---------------------------------------------------------------------------

const BoxText kChooseParties = {"Selezionare Cliente e Controparte.", "Attenzione",
                                BoxIcon::kInformation, BoxButtons::kOk};

TEST(ActionSecondPress, WithoutAClientOrACounterpartCreatesNothing) {
  for (const std::size_t box : {kBoxClient, kBoxCounterpart}) {
    ActionFixture action;
    action.ReadyToCreate();
    action.choice.cmbParti[box].index = ComboBox::kNoChoice;
    EXPECT_EQ(action.Press(), ActionOutcome::kGoOn);
    EXPECT_EQ(action.boxes.shown, (Boxes{kChooseParties}));
    EXPECT_TRUE(action.written.empty());
    EXPECT_TRUE(action.commands.bConferma);
  }
}

TEST(ActionSecondPress, WithAPartyThatHasNoNameCreatesNothing) {
  ActionFixture action;
  LoadcmbParti(action.choice, "", "");
  action.ReadyToCreate();
  action.choice.cmbParti[kBoxCounterpart].index = 2;
  action.Press();
  EXPECT_EQ(action.boxes.shown, (Boxes{kChooseParties}));
  EXPECT_TRUE(action.written.empty());
}

TEST(ActionSecondPress, CreatesTheCaseTellsTheUserAndIsDone) {
  ActionFixture action;
  action.ReadyToCreate();
  EXPECT_EQ(action.Press(), ActionOutcome::kDone);
  EXPECT_EQ(action.written, (Cases{0}));
  EXPECT_EQ(action.boxes.shown, (Boxes{{"La pratica è stata creata.", "Pratica Praxion creata",
                                        BoxIcon::kInformation, BoxButtons::kOk}}));
  EXPECT_FALSE(action.commands.bConferma);
  EXPECT_FALSE(action.commands.cmdAnnulla.enabled);
}

TEST(ActionSecondPress, ThatFailsGoesOnToTheQuestionWithoutAMessageOfItsOwn) {
  ActionFixture action;
  action.ReadyToCreate();
  action.succeeds = false;
  action.boxes.answers = {BoxAnswer::kNo};
  EXPECT_EQ(action.Press(), ActionOutcome::kGoOn);
  EXPECT_EQ(action.written, (Cases{0}));
  EXPECT_EQ(action.boxes.shown, (Boxes{kAskCreate}));
  EXPECT_EQ(action.desktop.events, (Texts{"SetFocus ctlTestata1"}));
  EXPECT_TRUE(action.commands.bConferma);
}

TEST(ActionSecondPress, ThatFailsWhileACaseIsChosenGoesOnToUpdateThatCase) {
  ActionFixture action;
  action.ReadyToCreate();
  action.control.LoadCase(2);
  action.succeeds = false;
  EXPECT_EQ(action.Press(), ActionOutcome::kFailed);
  EXPECT_EQ(action.written, (Cases{0, 2}));
  EXPECT_TRUE(action.boxes.shown.empty());
}

// --- other page kinds ---------------------------------------------------------------------------

TEST(ActionPageKind, IsThatAtOpeningAfterAPageOfAnotherKindWasRefused) {
  ActionFixture action;
  action.page.iOrdexPage = kPageAgenda;
  action.Press();
  EXPECT_EQ(action.boxes.shown, (Boxes{kAskCreate}));
}

TEST(ActionPageKind, ThatIsUnknownDoesNothing) {
  ActionFixture action;
  action.page.pageAtOpening = 9;
  EXPECT_EQ(action.Press(), ActionOutcome::kGoOn);
  EXPECT_TRUE(action.boxes.shown.empty());
  EXPECT_TRUE(action.written.empty());
}

}  // namespace
}  // namespace ordex::testing
