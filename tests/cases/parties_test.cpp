// The parties of the page in the boxes of client and counterpart.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "cases/case_choice_rules.h"
#include "support/office_fixture.h"

namespace ordex::testing {
namespace {

using Texts = std::vector<std::string>;

constexpr int kNone = ComboBox::kNoChoice;

Texts Names(const ComboBox& box) {
  Texts names;
  for (const ComboBox::Item& item : box.items) names.push_back(item.text);
  return names;
}

CaseChoice TwoParties() {
  CaseChoice choice;
  LoadcmbParti(choice, "ROSSI MARIO", "Avv. Uno");
  LoadcmbParti(choice, "BIANCHI S.R.L.", "Avv. Due");
  return choice;
}

TEST(LoadcmbParti, OffersEachPartyInBothBoxesWithoutChoosingIt) {
  const CaseChoice choice = TwoParties();
  EXPECT_EQ(Names(choice.cmbParti[kBoxClient]), (Texts{"ROSSI MARIO", "BIANCHI S.R.L."}));
  EXPECT_EQ(Names(choice.cmbParti[kBoxCounterpart]), (Texts{"ROSSI MARIO", "BIANCHI S.R.L."}));
  EXPECT_EQ(choice.cmbParti[kBoxClient].index, kNone);
  EXPECT_EQ(choice.cmbParti[kBoxCounterpart].index, kNone);
}

TEST(LoadcmbParti, KeepsEachPartysCounselUnderItsPlaceInEachBox) {
  const CaseChoice choice = TwoParties();
  EXPECT_EQ(choice.difensori.Count(), 4U);
  EXPECT_EQ(choice.difensori.Item("CL0"), "Avv. Uno");
  EXPECT_EQ(choice.difensori.Item("CO0"), "Avv. Uno");
  EXPECT_EQ(choice.difensori.Item("CL1"), "Avv. Due");
  EXPECT_EQ(choice.difensori.Item("CO1"), "Avv. Due");
}

TEST(LoadcmbParti, TheSamePartyTwiceGetsTwoEntriesAndFourCounselKeys) {
  CaseChoice choice;
  LoadcmbParti(choice, "ROSSI MARIO", "Avv. Uno");
  LoadcmbParti(choice, "ROSSI MARIO", "");
  EXPECT_EQ(Names(choice.cmbParti[kBoxClient]), (Texts{"ROSSI MARIO", "ROSSI MARIO"}));
  EXPECT_EQ(Names(choice.cmbParti[kBoxCounterpart]), (Texts{"ROSSI MARIO", "ROSSI MARIO"}));
  EXPECT_EQ(choice.difensori.Item("CL0"), "Avv. Uno");
  EXPECT_EQ(choice.difensori.Item("CO0"), "Avv. Uno");
  EXPECT_EQ(choice.difensori.Item("CL1"), "");
  EXPECT_EQ(choice.difensori.Item("CO1"), "");
}

TEST(CmbParti, AChosenPartyIsShownWholeInTheToolTip) {
  CaseChoice choice = TwoParties();
  SelectParty(choice, kBoxClient, 0);
  EXPECT_EQ(choice.cmbParti[kBoxClient].Text(), "ROSSI MARIO");
  EXPECT_EQ(choice.cmbParti[kBoxClient].toolTip, "ROSSI MARIO");
  EXPECT_EQ(choice.cmbParti[kBoxCounterpart].toolTip, "");
}

TEST(CmbParti, ClientAndCounterpartMayBeTwoParties) {
  CaseChoice choice = TwoParties();
  SelectParty(choice, kBoxClient, 0);
  SelectParty(choice, kBoxCounterpart, 1);
  EXPECT_EQ(choice.cmbParti[kBoxClient].index, 0);
  EXPECT_EQ(choice.cmbParti[kBoxCounterpart].index, 1);
  EXPECT_EQ(choice.cmbParti[kBoxCounterpart].toolTip, "BIANCHI S.R.L.");
}

TEST(CmbParti, ChoosingTheClientAsCounterpartClearsTheCounterpart) {
  CaseChoice choice = TwoParties();
  SelectParty(choice, kBoxClient, 0);
  SelectParty(choice, kBoxCounterpart, 0);
  EXPECT_EQ(choice.cmbParti[kBoxClient].index, 0);
  EXPECT_EQ(choice.cmbParti[kBoxCounterpart].index, kNone);
}

TEST(CmbParti, ChoosingTheCounterpartAsClientClearsTheClient) {
  CaseChoice choice = TwoParties();
  SelectParty(choice, kBoxCounterpart, 1);
  SelectParty(choice, kBoxClient, 1);
  EXPECT_EQ(choice.cmbParti[kBoxClient].index, kNone);
  EXPECT_EQ(choice.cmbParti[kBoxCounterpart].index, 1);
}

TEST(CmbParti, ComparesTheNamesAndNotTheirPlaces) {
  CaseChoice choice = TwoParties();
  LoadcmbParti(choice, "ROSSI MARIO", "Avv. Tre");
  SelectParty(choice, kBoxClient, 0);
  SelectParty(choice, kBoxCounterpart, 2);
  EXPECT_EQ(choice.cmbParti[kBoxCounterpart].index, kNone);
}

TEST(CmbParti, AChoiceCanBeTakenBack) {
  CaseChoice choice = TwoParties();
  SelectParty(choice, kBoxClient, 0);
  SelectParty(choice, kBoxClient, kNone);
  EXPECT_EQ(choice.cmbParti[kBoxClient].index, kNone);
  EXPECT_EQ(choice.cmbParti[kBoxClient].Text(), "");
}

}  // namespace
}  // namespace ordex::testing
