// How the window ends, and what it leaves in the settings.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/window_fixture.h"

namespace ordex::testing {
namespace {

using Texts = std::vector<std::string>;

const Texts kUnloaded = {"Shared/OrdexHandle=4711", "Shared/Id_Utente=-1"};
const Texts kNotUnloaded = {"Shared/OrdexHandle=4711"};

TEST(EndOfTheWindow, ClosedWritesThatNobodyIsLoggedOn) {
  WindowFixture fixture;
  fixture.Start();
  fixture.window.Close();
  EXPECT_EQ(fixture.window.ended(), EndReason::kClosed);
  EXPECT_EQ(fixture.settings.saved, kUnloaded);
}

TEST(EndOfTheWindow, ByItsCloseButtonDoesTheSame) {
  WindowFixture fixture;
  fixture.Start();
  fixture.window.PressNo();
  EXPECT_EQ(fixture.window.ended(), EndReason::kClosed);
  EXPECT_EQ(fixture.settings.saved, kUnloaded);
}

TEST(EndOfTheWindow, AfterAnUpdateUnloads) {
  WindowFixture fixture;
  fixture.Start();
  fixture.window.PressAzione();
  EXPECT_EQ(fixture.window.ended(), EndReason::kDone);
  EXPECT_EQ(fixture.settings.saved, kUnloaded);
}

TEST(EndOfTheWindow, AfterAFailedUpdateUnloadsInSilence) {
  WindowFixture fixture;
  // The case row has no such column to write.
  fixture.office.Do("ALTER TABLE Pratica RENAME COLUMN Sezione TO Altra");
  fixture.Start();
  fixture.window.PressAzione();
  EXPECT_EQ(fixture.window.ended(), EndReason::kFailed);
  EXPECT_TRUE(fixture.boxes.shown.empty());
  EXPECT_EQ(fixture.settings.saved, kUnloaded);
}

TEST(EndOfTheWindow, ByAnErrorDoesNotUnload) {
  WindowFixture fixture;
  fixture.Start();
  fixture.office.Do("ALTER TABLE Pratica RENAME TO Pratica_");
  fixture.window.PressAzione();
  EXPECT_EQ(fixture.window.ended(), EndReason::kError);
  ASSERT_EQ(fixture.boxes.shown.size(), 1U);
  EXPECT_TRUE(fixture.boxes.shown[0].text.starts_with("Errore di run-time '-2147467259': "));
  EXPECT_EQ(fixture.boxes.shown[0].title, "Ordex");
  EXPECT_EQ(fixture.boxes.shown[0].icon, BoxIcon::kStop);
  EXPECT_EQ(fixture.boxes.shown[0].buttons, BoxButtons::kOk);
  EXPECT_EQ(fixture.settings.saved, kNotUnloaded);
}

TEST(EndOfTheWindow, ComesOnceWhateverIsDoneAfterwards) {
  WindowFixture fixture;
  fixture.Start();
  fixture.window.Close();
  fixture.window.Close();
  fixture.window.PressAzione();
  fixture.window.PressPulisci();
  EXPECT_FALSE(fixture.window.ChooseCase(6));
  EXPECT_EQ(fixture.settings.saved, kUnloaded);
  EXPECT_TRUE(fixture.boxes.shown.empty());
  EXPECT_EQ(fixture.state().choice.ctlTestata1.idPra, 2);
  EXPECT_EQ(fixture.office.Row("SELECT COUNT(*) FROM PraOrdex"), "0");
}

}  // namespace
}  // namespace ordex::testing
