// The action button of history, agenda and justice-of-the-peace pages.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "support/action_fixture.h"

namespace ordex::testing {
namespace {

using Boxes = std::vector<BoxText>;
using Cases = std::vector<std::int32_t>;
using Texts = std::vector<std::string>;

const BoxText kCaseUpdated = {"La pratica di Praxion è stata aggiornata con i dati di OrdexWeb.",
                              "Pratica Praxion aggiornata", BoxIcon::kInformation, BoxButtons::kOk};
const BoxText kPenalCase = {
    "La pratica è penale e non può essere aggiornata con i dati di OrdexWeb.", "Pratica Penale",
    BoxIcon::kWarning, BoxButtons::kOk};
const BoxText kAgendaUpdated = {"L'Agenda di Praxion è stata aggiornata !", "Operazione effettuata",
                                BoxIcon::kInformation, BoxButtons::kOk};

struct KindFixture : ActionFixture {
  explicit KindFixture(PageKind kind) {
    page.iOrdexPage = kind;
    page.pageAtOpening = kind;
    // Only a justice-of-the-peace page carries a number.
    if (kind != kPageJusticeOfThePeace) page.szNumeroRG.clear();
  }
};

// --- a history page -----------------------------------------------------------------------------

TEST(ActionOnAHistory, UpdatesTheChosenCaseTellsTheUserAndIsDone) {
  KindFixture action(kPageHistory);
  action.control.LoadCase(6);
  EXPECT_EQ(action.Press(), ActionOutcome::kDone);
  EXPECT_EQ(action.written, (Cases{6}));
  EXPECT_EQ(action.boxes.shown, (Boxes{kCaseUpdated}));
}

TEST(ActionOnAHistory, ThatCannotBeWrittenFailsWithoutAWord) {
  KindFixture action(kPageHistory);
  action.control.LoadCase(6);
  action.succeeds = false;
  EXPECT_EQ(action.Press(), ActionOutcome::kFailed);
  EXPECT_EQ(action.written, (Cases{6}));
  EXPECT_TRUE(action.boxes.shown.empty());
}

TEST(ActionOnAHistory, RefusesAPenalCase) {
  KindFixture action(kPageHistory);
  action.control.LoadCase(5);
  EXPECT_EQ(action.Press(), ActionOutcome::kGoOn);
  EXPECT_EQ(action.boxes.shown, (Boxes{kPenalCase}));
  EXPECT_TRUE(action.written.empty());
}

TEST(ActionOnAHistory, WithoutACaseWritesNothingAndAsksForOneInTheStatusBar) {
  KindFixture action(kPageHistory);
  action.control.LoadCase(6);
  action.control.Clear();
  EXPECT_EQ(action.Press(), ActionOutcome::kGoOn);
  EXPECT_TRUE(action.written.empty());
  EXPECT_TRUE(action.boxes.shown.empty());
  EXPECT_EQ(action.status.picture, "Exclamation");
  EXPECT_EQ(action.status.text, "Selezionare una pratica.");
}

TEST(ActionOnAHistory, NeverOffersToCreateACase) {
  KindFixture action(kPageHistory);
  action.commands.bConferma = true;
  EXPECT_EQ(action.Press(), ActionOutcome::kGoOn);
  EXPECT_TRUE(action.boxes.shown.empty());
  EXPECT_TRUE(action.written.empty());
  EXPECT_EQ(action.partiesShown, 0);
}

TEST(ActionOnAHistory, IsThatOfThePageAtOpeningAfterARefusedPage) {
  KindFixture action(kPageHistory);
  action.page.iOrdexPage = kPageProfile;
  action.control.LoadCase(6);
  EXPECT_EQ(action.Press(), ActionOutcome::kDone);
  EXPECT_EQ(action.boxes.shown, (Boxes{kCaseUpdated}));
}

// --- an agenda page -----------------------------------------------------------------------------

struct AgendaPage : KindFixture {
  AgendaPage() : KindFixture(kPageAgenda) {
    agenda.rows.push_back("1842/2025", "ROSSI / BIANCHI", true);
    agenda.rows.push_back("    12/03/2026", "    Note", false);
  }
  Texts Entries() { return office.Rows("SELECT Scadenza FROM SCADENZE ORDER BY ID_Scadenza"); }
};

TEST(ActionOnAnAgenda, WritesTheEntriesTellsTheUserAndGoesOn) {
  AgendaPage action;
  EXPECT_EQ(action.Press(), ActionOutcome::kGoOn);
  EXPECT_EQ(action.boxes.shown, (Boxes{kAgendaUpdated}));
  EXPECT_EQ(action.Entries(), (Texts{"Note"}));
  EXPECT_TRUE(action.written.empty());
}

TEST(ActionOnAnAgenda, TwiceTellsTheUserTwiceAndDoublesNothing) {
  AgendaPage action;
  action.Press();
  EXPECT_EQ(action.Press(), ActionOutcome::kGoOn);
  EXPECT_EQ(action.boxes.shown, (Boxes{kAgendaUpdated, kAgendaUpdated}));
  EXPECT_EQ(action.Entries(), (Texts{"Note"}));
}

TEST(ActionOnAnAgenda, HasWrittenEverythingAndHoldsNoTransactionWhileItsBoxIsUp) {
  AgendaPage action;
  Texts seen;
  bool transaction = true;
  action.boxes.onShow = [&](const BoxText&) {
    seen = action.Entries();
    transaction = action.office.connection().InTransaction();
  };
  action.Press();
  EXPECT_EQ(seen, (Texts{"Note"}));
  EXPECT_FALSE(transaction);
}

TEST(ActionOnAnAgenda, TakesNoNoticeOfTheCaseHeader) {
  AgendaPage action;
  action.control.LoadCase(5);
  EXPECT_EQ(action.Press(), ActionOutcome::kGoOn);
  EXPECT_EQ(action.boxes.shown, (Boxes{kAgendaUpdated}));
}

TEST(ActionOnAnAgenda, WithoutEntriesStillTellsTheUser) {
  AgendaPage action;
  action.agenda.rows = {};
  EXPECT_EQ(action.Press(), ActionOutcome::kGoOn);
  EXPECT_EQ(action.boxes.shown, (Boxes{kAgendaUpdated}));
}

TEST(ActionOnAnAgenda, WithADateThatIsNoneRaisesAndShowsNoBox) {
  AgendaPage action;
  action.agenda.rows.push_back("    lunedì", "    Repliche", false);
  EXPECT_EQ(ErrorNumberOf([&] { action.Press(); }), 13);
  EXPECT_TRUE(action.boxes.shown.empty());
  EXPECT_EQ(action.Entries(), (Texts{"Note"}));
}

TEST(ActionOnAnAgenda, IsThatOfThePageAtOpeningAfterARefusedPage) {
  AgendaPage action;
  action.page.iOrdexPage = kPageHistory;
  action.Press();
  EXPECT_EQ(action.boxes.shown, (Boxes{kAgendaUpdated}));
}

// --- a justice-of-the-peace page ----------------------------------------------------------------

TEST(ActionOnAJusticePage, ShowsThePartiesDialogBehindAYesToTheCreate) {
  KindFixture action(kPageJusticeOfThePeace);
  EXPECT_EQ(action.Press(), ActionOutcome::kGoOn);
  EXPECT_EQ(action.boxes.shown, (Boxes{kAskCreate}));
  EXPECT_EQ(action.partiesShown, 1);
  EXPECT_TRUE(action.commands.bConferma);
  EXPECT_TRUE(action.written.empty());
}

TEST(ActionOnAJusticePage, ShowsNoPartiesDialogBehindANo) {
  KindFixture action(kPageJusticeOfThePeace);
  action.boxes.answers = {BoxAnswer::kNo};
  EXPECT_EQ(action.Press(), ActionOutcome::kGoOn);
  EXPECT_EQ(action.partiesShown, 0);
  EXPECT_FALSE(action.commands.bConferma);
  EXPECT_EQ(action.desktop.events, (Texts{"SetFocus ctlTestata1"}));
}

TEST(ActionOnAJusticePage, CreatesOnTheSecondPressWithoutAnotherDialog) {
  KindFixture action(kPageJusticeOfThePeace);
  action.ReadyToCreate();
  EXPECT_EQ(action.Press(), ActionOutcome::kDone);
  EXPECT_EQ(action.written, (Cases{0}));
  EXPECT_EQ(action.partiesShown, 1);
  EXPECT_EQ(action.boxes.Texts(), (Texts{"La pratica è stata creata."}));
}

TEST(ActionOnAJusticePage, AsksAgainAndShowsTheDialogAgainWhereTheCreateFails) {
  KindFixture action(kPageJusticeOfThePeace);
  action.ReadyToCreate();
  action.succeeds = false;
  EXPECT_EQ(action.Press(), ActionOutcome::kGoOn);
  EXPECT_EQ(action.boxes.shown, (Boxes{kAskCreate}));
  EXPECT_EQ(action.partiesShown, 2);
}

TEST(ActionOnAJusticePage, UpdatesTheCaseOfItsNumberWithoutADialog) {
  KindFixture action(kPageJusticeOfThePeace);
  action.page.szNumeroRG = "4417/2025";
  action.control.LoadCase(8);
  EXPECT_EQ(action.Press(), ActionOutcome::kDone);
  EXPECT_EQ(action.written, (Cases{8}));
  EXPECT_EQ(action.boxes.shown, (Boxes{kCaseUpdated}));
  EXPECT_EQ(action.partiesShown, 0);
}

TEST(ActionOnAJusticePage, RefusesAPenalCase) {
  KindFixture action(kPageJusticeOfThePeace);
  action.control.LoadCase(5);
  EXPECT_EQ(action.Press(), ActionOutcome::kGoOn);
  EXPECT_EQ(action.boxes.shown, (Boxes{kPenalCase}));
  EXPECT_TRUE(action.written.empty());
}

// --- the others ---------------------------------------------------------------------------------

TEST(ActionOnAProfile, ShowsNoPartiesDialog) {
  KindFixture action(kPageProfile);
  action.Press();
  EXPECT_TRUE(action.commands.bConferma);
  EXPECT_EQ(action.partiesShown, 0);
}

TEST(ActionOnAnyOtherKind, DoesNothing) {
  for (const std::int16_t kind : std::vector<std::int16_t>{-1, 0, 5}) {
    AgendaPage action;
    action.page.pageAtOpening = kind;
    action.control.LoadCase(2);
    action.office.connection().Forget();
    EXPECT_EQ(action.Press(), ActionOutcome::kGoOn);
    EXPECT_TRUE(action.boxes.shown.empty());
    EXPECT_TRUE(action.office.connection().statements().empty());
    EXPECT_TRUE(action.written.empty());
  }
}

}  // namespace
}  // namespace ordex::testing
