// A poke while the user is busy with a box or a dialog: it waits.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/window_fixture.h"

namespace ordex::testing {
namespace {

using Texts = std::vector<std::string>;

TEST(PokeWhileABoxIsUp, WaitsUntilTheBoxIsAnsweredAndItsHandlerDone) {
  WindowFixture fixture(SourceFile("samples/profilo-lavoro.txt"));
  fixture.Start();
  std::string numberInTheBox;
  fixture.boxes.onShow = [&](const BoxText&) {
    fixture.Poke(ProfilePage("633/2025"));
    numberInTheBox = fixture.state().page.szNumeroRG;
  };
  fixture.window.PressAzione();
  EXPECT_EQ(numberInTheBox, "3056/2025");
  // The answer was yes, and the create that it began is given up for the new page.
  EXPECT_FALSE(fixture.state().choice.cmbUtenteCont.items.empty());
  EXPECT_FALSE(fixture.state().commands.bConferma);
  EXPECT_EQ(fixture.state().page.szNumeroRG, "633/2025");
  EXPECT_EQ(fixture.state().choice.ctlTestata1.idPra, 6);
}

TEST(PokeWhileABoxIsUp, CountsEachTime) {
  WindowFixture fixture(SourceFile("samples/profilo-lavoro.txt"));
  fixture.Start();
  const std::size_t asked = fixture.office.diagnostics.sql.size();
  fixture.boxes.onShow = [&](const BoxText&) {
    fixture.Poke(ProfilePage("633/2025"));
    fixture.Poke(ProfilePage("633/2025"));
  };
  fixture.boxes.answers = {BoxAnswer::kNo};
  fixture.window.PressAzione();
  const std::string lookUp = "Select ID_Pra from Pratica where NumeroRegGenerale = '633/2025'";
  const Texts& sql = fixture.office.diagnostics.sql;
  EXPECT_EQ(Texts(sql.begin() + static_cast<std::ptrdiff_t>(asked), sql.end()),
            (Texts{lookUp, lookUp}));
}

TEST(PokeWhileABoxIsUp, IsNotTakenWhenTheProgramEndsBehindTheBox) {
  WindowFixture fixture;
  fixture.Start();
  fixture.boxes.onShow = [&](const BoxText&) { fixture.Poke(ProfilePage("633/2025")); };
  fixture.window.PressAzione();
  EXPECT_EQ(fixture.window.ended(), EndReason::kDone);
  EXPECT_EQ(fixture.state().page.szNumeroRG, "1842/2025");
}

TEST(PokeWhileTheErrorBoxIsUp, IsNotTaken) {
  WindowFixture fixture;
  fixture.Start();
  fixture.office.Do("ALTER TABLE Utenti RENAME TO Utenti_");
  fixture.window.PressPulisci();
  bool first = true;
  fixture.boxes.onShow = [&](const BoxText&) {
    if (!first) fixture.Poke(ProfilePage("633/2025"));
    first = false;
  };
  fixture.window.PressAzione();  // the question, then the error of the missing table
  EXPECT_EQ(fixture.boxes.shown.size(), 2U);
  EXPECT_EQ(fixture.window.ended(), EndReason::kError);
  EXPECT_EQ(fixture.state().page.szNumeroRG, "1842/2025");
}

TEST(PokeWhileThePersonCardIsUp, Waits) {
  WindowFixture fixture;
  fixture.Start();
  std::string numberInTheDialog;
  fixture.dialogs.onPersonCard = [&] {
    fixture.Poke(ProfilePage("633/2025"));
    numberInTheDialog = fixture.state().page.szNumeroRG;
  };
  EXPECT_TRUE(fixture.window.ClickPerson(4));
  EXPECT_EQ(numberInTheDialog, "1842/2025");
  EXPECT_EQ(fixture.state().page.szNumeroRG, "633/2025");
}

TEST(PokeWhileTheStartStillShowsABox, WaitsForTheEndOfTheStart) {
  WindowFixture fixture(ProfilePage("1842/2025", "Termini assegnati dal giudice\nNote\n"));
  std::string numberInTheBox;
  fixture.boxes.onShow = [&](const BoxText&) {
    fixture.Poke(ProfilePage("633/2025"));
    numberInTheBox = fixture.state().page.szNumeroRG;
  };
  fixture.Start();
  EXPECT_EQ(numberInTheBox, "1842/2025");
  EXPECT_EQ(fixture.state().page.szNumeroRG, "633/2025");
  EXPECT_TRUE(fixture.desktop.events.empty());
}

TEST(PokeAfterTheEnd, DoesNothing) {
  WindowFixture fixture;
  fixture.Start();
  fixture.window.Close();
  const std::size_t reads = fixture.clipboard.reads;
  fixture.Poke("altro");
  EXPECT_EQ(fixture.clipboard.reads, reads);
  EXPECT_TRUE(fixture.boxes.shown.empty());
  EXPECT_EQ(fixture.window.ended(), EndReason::kClosed);
}

}  // namespace
}  // namespace ordex::testing
