// Whether the case application is among the running processes.
#include "app/praxion_running.h"

#include <gtest/gtest.h>

#include <utility>

namespace ordex::testing {
namespace {

using Names = std::vector<std::string>;

class FakeProcesses : public Processes {
 public:
  FakeProcesses(std::optional<SystemVersion> version, std::optional<Names> names)
      : version_(version), names_(std::move(names)) {}
  std::optional<SystemVersion> Version() const override { return version_; }
  std::optional<Names> Snapshot() const override { return names_; }

 private:
  std::optional<SystemVersion> version_;
  std::optional<Names> names_;
};

constexpr SystemVersion kWin32s = {0, 0};
constexpr SystemVersion kWindows95 = {1, 0};
constexpr SystemVersion kWindows98 = {1, 10};
constexpr SystemVersion kWindowsMe = {1, 90};
constexpr SystemVersion kWindows10 = {2, 0};

bool Runs(std::optional<SystemVersion> version, Names names) {
  return PraxionInEsecuzione(FakeProcesses(version, std::move(names)));
}

// --- systems of today -------------------------------------------------------------------------

TEST(PraxionInEsecuzione, FindsItByNameInAnyLetterCase) {
  EXPECT_TRUE(Runs(kWindows10, {"explorer.exe", "Praxion.exe"}));
  EXPECT_TRUE(Runs(kWindows10, {"praxion.EXE", "explorer.exe"}));
}

TEST(PraxionInEsecuzione, AnyNameThatHoldsItsNameWillDo) {
  EXPECT_TRUE(Runs(kWindows10, {"AvviaPraxion32.exe"}));
}

TEST(PraxionInEsecuzione, OtherProcessesAreNotTakenForIt) {
  EXPECT_FALSE(Runs(kWindows10, {"explorer.exe", "praxi.exe", "Ordex.exe"}));
  EXPECT_FALSE(Runs(kWindows10, {}));
}

TEST(PraxionInEsecuzione, ZeroCharactersInANameAreTakenOut) {
  EXPECT_TRUE(Runs(kWindows10, {std::string("Prax\0ion.exe\0\0\0", 15)}));
}

TEST(PraxionInEsecuzione, WithoutAListOfProcessesItIsNotRunning) {
  EXPECT_FALSE(PraxionInEsecuzione(FakeProcesses(kWindows10, std::nullopt)));
}

// --- old systems ------------------------------------------------------------------------------

TEST(PraxionInEsecuzione, OldSystemsGiveWholePathsOfWhichTheFileNameCounts) {
  for (const auto& version : {kWin32s, kWindows95, kWindows98}) {
    EXPECT_TRUE(Runs(version, {"C:\\Programmi\\Studio\\Praxion.exe"}));
    EXPECT_TRUE(Runs(version, {"PRAXION.EXE"}));
    EXPECT_FALSE(Runs(version, {"C:\\Praxion\\Agenda.exe"}));
    EXPECT_FALSE(Runs(version, {"C:\\Programmi\\AvviaPraxion.exe"}));
  }
}

TEST(PraxionInEsecuzione, OnAnOldSystemZeroCharactersBehindTheNameDoNotHideIt) {
  EXPECT_TRUE(Runs(kWindows98, {std::string("C:\\Praxion.exe\0\0", 16)}));
}

TEST(PraxionInEsecuzione, MillenniumCountsAsASystemOfToday) {
  EXPECT_TRUE(Runs(kWindowsMe, {"C:\\Praxion\\Agenda.exe"}));
}

TEST(PraxionInEsecuzione, ASystemThatDoesNotTellItsVersionCountsAsOld) {
  EXPECT_TRUE(Runs(std::nullopt, {"C:\\Programmi\\Praxion.exe"}));
  EXPECT_FALSE(Runs(std::nullopt, {"C:\\Programmi\\AvviaPraxion.exe"}));
}

// --- file names -------------------------------------------------------------------------------

TEST(EstraiNomeFile, GivesWhatStandsBehindTheLastBackslash) {
  EXPECT_EQ(EstraiNomeFile("C:\\Programmi\\Studio\\Praxion.exe"), "Praxion.exe");
}

TEST(EstraiNomeFile, WithoutABackslashGivesTheWholeText) {
  EXPECT_EQ(EstraiNomeFile("Praxion.exe"), "Praxion.exe");
  EXPECT_EQ(EstraiNomeFile("C:/Praxion.exe"), "C:/Praxion.exe");
  EXPECT_EQ(EstraiNomeFile(""), "");
}

TEST(EstraiNomeFile, OfAFolderWithItsBackslashNothingIsLeft) {
  EXPECT_EQ(EstraiNomeFile("C:\\Programmi\\"), "");
}

}  // namespace
}  // namespace ordex::testing
