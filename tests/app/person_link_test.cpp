// A person clicked in the case header.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/window_fixture.h"

namespace ordex::testing {
namespace {

using Texts = std::vector<std::string>;

TEST(PersonLinkOfTheHeader, ShowsThePersonsCardWithoutAQuestion) {
  WindowFixture fixture;
  fixture.Start();
  std::string card;
  fixture.dialogs.onPersonCard = [&] { card = fixture.state().personCard.lblInfo; };
  EXPECT_TRUE(fixture.window.ClickPerson(10));
  EXPECT_EQ(card,
            "MOTTALINI  BRUNO\r\n\r\nnato in VALDOMBRA il 25/01/1968\r\nresidente in VALDOMBRA\r\n"
            "VIA DELLE FORNACI n. 40\r\nC.F. :  MTTBRN00X00X000X");
  EXPECT_FALSE(fixture.state().personCard.questionVisible);
  EXPECT_EQ(fixture.dialogs.shown, (Texts{"ShowPersonCard"}));
  EXPECT_EQ(fixture.office.diagnostics.sql.back(), "SELECT * FROM Anagrafica WHERE ID_Ana = 10");
}

TEST(PersonLinkOfTheHeader, ShowsTheHourglassAroundIt) {
  WindowFixture fixture;
  fixture.Start();
  fixture.window.ClickPerson(10);
  EXPECT_EQ(fixture.desktop.events, (Texts{"Hourglass", "DefaultPointer"}));
}

TEST(PersonLinkOfTheHeader, OfAPersonThatIsNotThereShowsNothing) {
  WindowFixture fixture;
  fixture.Start();
  EXPECT_FALSE(fixture.window.ClickPerson(99));
  EXPECT_TRUE(fixture.dialogs.shown.empty());
  EXPECT_EQ(fixture.desktop.events, (Texts{"Hourglass", "DefaultPointer"}));
  EXPECT_FALSE(fixture.window.ended().has_value());
}

}  // namespace
}  // namespace ordex::testing
