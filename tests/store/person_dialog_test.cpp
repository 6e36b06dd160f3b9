// The person dialog's question, buttons and e-mail link.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/person_fixture.h"

namespace ordex::testing {
namespace {

using Texts = std::vector<std::string>;

TEST(PersonDialog, InModeTwoAsksWhetherToLinkTheClient) {
  PersonFixture person(Office::Data::kSample);
  person.Fill(4, CardMode::kWithQuestion);
  EXPECT_EQ(person.card.lblDomanda,
            "Sono stati trovati dati anagrafici corrispondenti a D'AMICO LUCA.\r\n"
            "Collegare il cliente a questi dati ?");
  EXPECT_TRUE(person.card.questionVisible);
}

TEST(PersonDialog, AsksAlsoAboutARowWhoseNameHoldsNullo) {
  PersonFixture person;
  person.Fill(1, CardMode::kWithQuestion);
  EXPECT_EQ(person.card.lblDomanda,
            "Sono stati trovati dati anagrafici corrispondenti a NULLO .\r\n"
            "Collegare il cliente a questi dati ?");
}

TEST(PersonDialog, InModeOneHidesTheQuestionAndKeepsTheButtons) {
  PersonFixture person(Office::Data::kSample);
  person.Fill(4, CardMode::kWithQuestion);
  person.Fill(6, CardMode::kOnly);
  EXPECT_FALSE(person.card.questionVisible);
  EXPECT_TRUE(person.card.cmdSi.visible);
  EXPECT_TRUE(person.card.cmdNo.visible);
  EXPECT_TRUE(person.card.cmdSi.enabled);
  EXPECT_TRUE(person.card.cmdNo.enabled);
}

TEST(PersonDialog, HasItsCaptionWithTwoLeadingBlanksAndOneToolTipOnBothButtons) {
  constexpr const char* kToolTip =
      "I dati di OrdexWeb non saranno importati in Quorvin. Il programma verrà chiuso";
  PersonFixture person(Office::Data::kSample);
  person.Fill(4);
  EXPECT_EQ(person.card.caption, "  Info Anagrafica");
  EXPECT_EQ(person.card.cmdSi.toolTip, kToolTip);
  EXPECT_EQ(person.card.cmdNo.toolTip, kToolTip);
}

TEST(PersonDialog, LoadingItTakesBackAnEarlierYes) {
  PersonFixture person(Office::Data::kSample);
  person.bCollegareAna = true;
  person.Fill(4);
  EXPECT_FALSE(person.bCollegareAna);
}

TEST(PersonDialog, YesLinksAndCloses) {
  PersonFixture person(Office::Data::kSample);
  person.Fill(4);
  bool open = true;
  person.dialogs.onPersonCard = [&] {
    person.dialog.cmdSi_Click();
    open = person.card.open;
  };
  person.dialog.ShowModal();
  EXPECT_TRUE(person.bCollegareAna);
  EXPECT_FALSE(open);
}

TEST(PersonDialog, NoTakesAnEarlierYesBackAndCloses) {
  PersonFixture person(Office::Data::kSample);
  person.Fill(4);
  bool open = true;
  person.dialogs.onPersonCard = [&] {
    person.dialog.cmdSi_Click();
    person.dialog.cmdNo_Click();
    open = person.card.open;
  };
  person.dialog.ShowModal();
  EXPECT_FALSE(person.bCollegareAna);
  EXPECT_FALSE(open);
}

TEST(PersonDialog, ClosedWithoutAnAnswerLinksNothing) {
  PersonFixture person(Office::Data::kSample);
  person.bCollegareAna = true;
  person.Fill(4);
  person.Answer(CardAnswer::kClosed);
  person.dialog.ShowModal();
  EXPECT_FALSE(person.bCollegareAna);
  EXPECT_FALSE(person.card.open);
}

TEST(PersonDialog, IsOpenWhileItIsShown) {
  PersonFixture person(Office::Data::kSample);
  person.Fill(4);
  bool open = false;
  person.dialogs.onPersonCard = [&] { open = person.card.open; };
  person.dialog.ShowModal();
  EXPECT_TRUE(open);
  EXPECT_FALSE(person.card.open);
  EXPECT_EQ(person.dialogs.shown, (Texts{"ShowPersonCard"}));
}

TEST(EmailLink, OpensTheUsersMailProgram) {
  PersonFixture person(Office::Data::kSample);
  person.Fill(4);
  person.dialog.lblInfo2_Click();
  EXPECT_EQ(person.desktop.events, (Texts{"Open mailto:luca.damico@posta.example"}));
  EXPECT_TRUE(person.boxes.shown.empty());
}

TEST(EmailLink, ThatIsEmptyDoesNothing) {
  PersonFixture person(Office::Data::kSample);
  person.Fill(6);
  person.dialog.lblInfo2_Click();
  EXPECT_TRUE(person.desktop.events.empty());
  EXPECT_TRUE(person.boxes.shown.empty());
}

TEST(EmailLink, ThatCannotBeOpenedIsToldToTheUser) {
  PersonFixture person(Office::Data::kSample);
  person.Fill(4);
  person.desktop.openSucceeds = false;
  person.dialog.lblInfo2_Click();
  EXPECT_EQ(person.boxes.shown, (std::vector<BoxText>{{"Impossibile aprire e-mail !", "Praxion",
                                                       BoxIcon::kInformation, BoxButtons::kOk}}));
}

TEST(EmailLink, LeavesTheLabelsWordsOutOfTheAddress) {
  PersonFixture person;
  person.card.lblInfo2 = "E-mail :  anna@posta.example";
  person.dialog.lblInfo2_Click();
  EXPECT_EQ(person.desktop.events, (Texts{"Open mailto:anna@posta.example"}));
}

// The address comes from a shared registry: it must name a recipient and nothing else.
TEST(EmailLink, AnAddressCannotCarryFurtherArgumentsIntoTheLink) {
  PersonFixture person;
  person.card.lblInfo2 = "a@b.example?cc=x@y.example&body=ciao#1";
  person.dialog.lblInfo2_Click();
  EXPECT_EQ(person.desktop.events,
            (Texts{"Open mailto:a@b.example%3Fcc%3Dx@y.example%26body%3Dciao%231"}));
}

TEST(EmailLink, BlanksQuotesPercentSignsAndLineEndsAreEscaped) {
  PersonFixture person;
  person.card.lblInfo2 = "a \"b\"%20\r\n@c.example";
  person.dialog.lblInfo2_Click();
  EXPECT_EQ(person.desktop.events, (Texts{"Open mailto:a%20%22b%22%2520%0D%0A@c.example"}));
}

TEST(EmailLink, SignsOfACommandLineAreEscaped) {
  PersonFixture person;
  person.card.lblInfo2 = "a\\b|c<d>(e)`f^g@h.example";
  person.dialog.lblInfo2_Click();
  EXPECT_EQ(person.desktop.events,
            (Texts{"Open mailto:a%5Cb%7Cc%3Cd%3E%28e%29%60f%5Eg@h.example"}));
}

TEST(EmailLink, TwoAddressesAndForeignLettersStayAsTheyStand) {
  PersonFixture person;
  person.card.lblInfo2 = "anna@posta.example;niccolò@posta.example";
  person.dialog.lblInfo2_Click();
  EXPECT_EQ(person.desktop.events, (Texts{"Open mailto:anna@posta.example;niccolò@posta.example"}));
}

}  // namespace
}  // namespace ordex::testing
