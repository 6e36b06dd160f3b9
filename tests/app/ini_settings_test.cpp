// Reading the per-user settings.
#include <gtest/gtest.h>

#include <string>

#include "app/ini_settings.h"
#include "support/office_fixture.h"

namespace ordex::testing {
namespace {

class IniSettingsRead : public ::testing::Test {
 protected:
  std::string Get(std::string_view text, std::string_view section, std::string_view key) {
    folder_.Write("settings.ini", text);
    return IniSettings(folder_ / "settings.ini").Get(section, key);
  }

  TempFolder folder_;
};

TEST_F(IniSettingsRead, GivesTheTextBehindTheFirstEqualsSignUntrimmed) {
  EXPECT_EQ(Get("[startup]\nSecurity= ;Integrated Security=SSPI; \n", "startup", "Security"),
            " ;Integrated Security=SSPI; ");
}

TEST_F(IniSettingsRead, DoesNotUnquoteAValue) {
  EXPECT_EQ(Get("[startup]\nServer=\"Data Source=SRV\"\n", "startup", "Server"),
            "\"Data Source=SRV\"");
}

TEST_F(IniSettingsRead, ComparesNamesWithoutRegardToLetterCase) {
  EXPECT_EQ(Get("[SHARED]\nID_UTENTE=7\n", "Shared", "Id_Utente"), "7");
}

TEST_F(IniSettingsRead, AllowsBlanksAroundAKeysName) {
  EXPECT_EQ(Get("[Shared]\n  Id_Utente =7\n", "Shared", "Id_Utente"), "7");
}

TEST_F(IniSettingsRead, LooksInTheNamedSectionAlone) {
  const std::string text = "[startup]\nServer=A\n[Shared]\nServer=B\n";
  EXPECT_EQ(Get(text, "startup", "Server"), "A");
  EXPECT_EQ(Get(text, "Shared", "Server"), "B");
  EXPECT_EQ(Get(text, "Other", "Server"), "");
}

TEST_F(IniSettingsRead, GoesOnWhereASectionComesASecondTime) {
  EXPECT_EQ(Get("[Shared]\nA=1\n[x]\nB=2\n[Shared]\nB=3\n", "Shared", "B"), "3");
}

TEST_F(IniSettingsRead, AnAbsentKeyIsAnEmptyText) {
  EXPECT_EQ(Get("[Shared]\nOther=1\n", "Shared", "Id_Utente"), "");
  EXPECT_EQ(Get("", "Shared", "Id_Utente"), "");
}

TEST_F(IniSettingsRead, AnAbsentFileIsAnEmptyText) {
  EXPECT_EQ(IniSettings(folder_ / "none.ini").Get("Shared", "Id_Utente"), "");
}

TEST_F(IniSettingsRead, AnEmptyValueIsAnEmptyText) {
  EXPECT_EQ(Get("[Shared]\nId_Utente=\n", "Shared", "Id_Utente"), "");
}

TEST_F(IniSettingsRead, PassesCommentsAndOtherLinesOver) {
  EXPECT_EQ(
      Get("[Shared]\n;Id_Utente=1\n#Id_Utente=2\nrubbish\n\nId_Utente=3\n", "Shared", "Id_Utente"),
      "3");
}

TEST_F(IniSettingsRead, LeavesTheCarriageReturnOutOfTheValue) {
  EXPECT_EQ(Get("[Shared]\r\nId_Utente=7\r\n", "Shared", "Id_Utente"), "7");
}

TEST_F(IniSettingsRead, ReadsALastLineWithoutAnEnd) {
  EXPECT_EQ(Get("[Shared]\nId_Utente=7", "Shared", "Id_Utente"), "7");
}

TEST_F(IniSettingsRead, SeesWhatAnotherProgramWroteMeanwhile) {
  folder_.Write("settings.ini", "[Shared]\nId_Utente=7\n");
  const IniSettings settings(folder_ / "settings.ini");
  EXPECT_EQ(settings.Get("Shared", "Id_Utente"), "7");
  folder_.Write("settings.ini", "[Shared]\nId_Utente=9\n");
  EXPECT_EQ(settings.Get("Shared", "Id_Utente"), "9");
}

TEST_F(IniSettingsRead, AFileThatCannotBeReadIsAnErrorOfFileAccess) {
  const IniSettings settings(folder_.path());
  EXPECT_EQ(ErrorNumberOf([&] { settings.Get("Shared", "Id_Utente"); }), 75);
}

}  // namespace
}  // namespace ordex::testing
