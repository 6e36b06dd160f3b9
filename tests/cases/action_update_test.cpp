// The action button while a case is chosen: it is brought up to date.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/action_fixture.h"

namespace ordex::testing {
namespace {

using Boxes = std::vector<BoxText>;
using Cases = std::vector<std::int32_t>;
using Texts = std::vector<std::string>;

const BoxText kUpdated = {"La pratica di Praxion è stata aggiornata con i dati di OrdexWeb.",
                          "Pratica Praxion aggiornata", BoxIcon::kInformation, BoxButtons::kOk};
const BoxText kPenal = {"La pratica è penale e non può essere aggiornata con i dati di OrdexWeb.",
                        "Pratica Penale", BoxIcon::kWarning, BoxButtons::kOk};
const BoxText kAskOtherNumber = {
    "Il N. Registro Generale della pratica selezionata è diverso dal Numero del Fascicolo.\r\n"
    "Confermi l'allineamento con i dati di Ordex ?",
    "Ordex", BoxIcon::kQuestion, BoxButtons::kYesNo};

TEST(ActionWithACase, OfThePagesNumberUpdatesItTellsTheUserAndIsDone) {
  ActionFixture action;
  action.control.LoadCase(2);
  EXPECT_EQ(action.Press(), ActionOutcome::kDone);
  EXPECT_EQ(action.written, (Cases{2}));
  EXPECT_EQ(action.boxes.shown, (Boxes{kUpdated}));
}

TEST(ActionWithACase, ThatCannotBeUpdatedFailsWithoutAWord) {
  ActionFixture action;
  action.control.LoadCase(2);
  action.succeeds = false;
  EXPECT_EQ(action.Press(), ActionOutcome::kFailed);
  EXPECT_TRUE(action.boxes.shown.empty());
}

TEST(ActionWithACase, OneTextIsEnoughForACase) {
  const auto pressWith = [](auto&& give) {
    ActionFixture action;
    action.office.Do("UPDATE Pratica SET NumeroRegGenerale = '1842/2025' WHERE ID_Pra = 1");
    action.choice.ctlTestata1.idPra = 1;
    give(action.choice.ctlTestata1);
    action.Press();
    return action.written;
  };
  EXPECT_EQ(pressWith([](CaseHeader& header) { header.title = "x"; }), (Cases{1}));
  EXPECT_EQ(pressWith([](CaseHeader& header) { header.numeroRG = "x"; }), (Cases{1}));
  EXPECT_EQ(pressWith([](CaseHeader& header) { header.descriptions[0] = "x"; }), (Cases{1}));
  EXPECT_EQ(pressWith([](CaseHeader& header) { header.descriptions[1] = "x"; }), (Cases{1}));
}

// --- the refresh --------------------------------------------------------------------------------

TEST(ActionWithACase, IsReadAnewBeforeItsNumberIsCompared) {
  ActionFixture action;
  action.control.LoadCase(2);
  action.office.Do("UPDATE Pratica SET NumeroRegGenerale = '5/2026' WHERE ID_Pra = 2");
  action.boxes.answers = {BoxAnswer::kNo};
  EXPECT_EQ(action.Press(), ActionOutcome::kGoOn);
  EXPECT_EQ(action.boxes.shown, (Boxes{kAskOtherNumber}));
  EXPECT_EQ(action.choice.ctlTestata1.numeroRG, "5/2026");
}

TEST(ActionWithACase, IsReadAnewBeforeItsPenalFlagIsTested) {
  ActionFixture action;
  action.control.LoadCase(2);
  action.office.Do("UPDATE Pratica SET IsPenale = 1 WHERE ID_Pra = 2");
  EXPECT_EQ(action.Press(), ActionOutcome::kGoOn);
  EXPECT_EQ(action.boxes.shown, (Boxes{kPenal}));
}

// Another program has deleted it: it must not come back as a new case that nobody asked for.
TEST(ActionWithACase, ThatIsGoneMeanwhileIsNotCreatedAnew) {
  ActionFixture action;
  action.control.LoadCase(2);
  action.office.Do("DELETE FROM Pratica WHERE ID_Pra = 2");
  action.boxes.answers = {BoxAnswer::kNo, BoxAnswer::kNo};
  EXPECT_EQ(action.Press(), ActionOutcome::kGoOn);
  EXPECT_TRUE(action.written.empty());
  EXPECT_EQ(action.boxes.shown, (Boxes{kAskCreate}));
}

// --- a penal case -------------------------------------------------------------------------------

TEST(ActionWithAPenalCase, OfThePagesNumberIsRefused) {
  ActionFixture action;
  action.page.szNumeroRG = "2210/2025";
  action.control.LoadCase(5);
  EXPECT_EQ(action.Press(), ActionOutcome::kGoOn);
  EXPECT_EQ(action.boxes.shown, (Boxes{kPenal}));
  EXPECT_TRUE(action.written.empty());
}

TEST(ActionWithAPenalCase, OfAnotherNumberIsRefusedBeforeTheQuestion) {
  ActionFixture action;
  action.control.LoadCase(5);
  EXPECT_EQ(action.Press(), ActionOutcome::kGoOn);
  EXPECT_EQ(action.boxes.shown, (Boxes{kPenal}));
  EXPECT_TRUE(action.written.empty());
}

// --- a case of another number -------------------------------------------------------------------

TEST(ActionWithAnotherNumber, ANoHandsTheFocusBackToTheHeader) {
  ActionFixture action;
  action.control.LoadCase(6);
  action.boxes.answers = {BoxAnswer::kNo};
  EXPECT_EQ(action.Press(), ActionOutcome::kGoOn);
  EXPECT_EQ(action.boxes.shown, (Boxes{kAskOtherNumber}));
  EXPECT_EQ(action.desktop.events, (Texts{"SetFocus ctlTestata1"}));
  EXPECT_TRUE(action.written.empty());
}

TEST(ActionWithAnotherNumber, AYesUpdatesTheChosenCase) {
  ActionFixture action;
  action.control.LoadCase(6);
  EXPECT_EQ(action.Press(), ActionOutcome::kDone);
  EXPECT_EQ(action.boxes.shown, (Boxes{kAskOtherNumber, kUpdated}));
  EXPECT_EQ(action.written, (Cases{6}));
  EXPECT_TRUE(action.desktop.events.empty());
}

TEST(ActionWithAnotherNumber, AYesToACaseThatCannotBeUpdatedFailsWithoutAWord) {
  ActionFixture action;
  action.control.LoadCase(6);
  action.succeeds = false;
  EXPECT_EQ(action.Press(), ActionOutcome::kFailed);
  EXPECT_EQ(action.boxes.shown, (Boxes{kAskOtherNumber}));
}

TEST(ActionWithAnotherNumber, NumbersThatDifferInLetterCaseAreOther) {
  ActionFixture action;
  action.office.Do("UPDATE Pratica SET NumeroRegGenerale = '12/2026/BIS' WHERE ID_Pra = 6");
  action.page.szNumeroRG = "12/2026/bis";
  action.control.LoadCase(6);
  action.Press();
  EXPECT_EQ(action.boxes.shown, (Boxes{kAskOtherNumber, kUpdated}));
}

TEST(ActionWithAnotherNumber, ACaseWithoutANumberIsAskedAbout) {
  ActionFixture action;
  action.control.LoadCase(10);
  action.Press();
  EXPECT_EQ(action.boxes.shown, (Boxes{kAskOtherNumber, kUpdated}));
}

}  // namespace
}  // namespace ordex::testing
