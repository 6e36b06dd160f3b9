// Writing the per-user settings, which other programs use too.
#include <gtest/gtest.h>

#include <string>

#include "app/ini_settings.h"
#include "support/office_fixture.h"

namespace ordex::testing {
namespace {

class IniSettingsWrite : public ::testing::Test {
 protected:
  // The file's content after a value was saved into it.
  std::string Save(std::string_view before, std::string_view section, std::string_view key,
                   std::string_view value) {
    folder_.Write("settings.ini", before);
    IniSettings(folder_ / "settings.ini").Save(section, key, value);
    return folder_.Read("settings.ini");
  }

  TempFolder folder_;
};

TEST_F(IniSettingsWrite, ReplacesAValueAndNothingElse) {
  EXPECT_EQ(Save("; studio\n[startup]\nServer= Data Source=SRV \n\n[Shared]\nId_Utente=7\nX=1\n",
                 "Shared", "Id_Utente", "-1"),
            "; studio\n[startup]\nServer= Data Source=SRV \n\n[Shared]\nId_Utente=-1\nX=1\n");
}

TEST_F(IniSettingsWrite, KeepsTheNameAsItIsWrittenInTheFile) {
  EXPECT_EQ(Save("[SHARED]\n id_utente =7\n", "Shared", "Id_Utente", "-1"),
            "[SHARED]\n id_utente =-1\n");
}

TEST_F(IniSettingsWrite, AddsANewKeyBehindTheLastOfItsSection) {
  EXPECT_EQ(Save("[Shared]\nA=1\n\n[startup]\nB=2\n", "Shared", "OrdexHandle", "4711"),
            "[Shared]\nA=1\nOrdexHandle=4711\n\n[startup]\nB=2\n");
}

TEST_F(IniSettingsWrite, AddsANewKeyToAnEmptySection) {
  EXPECT_EQ(Save("[Shared]\n[startup]\nB=2\n", "Shared", "OrdexHandle", "4711"),
            "[Shared]\nOrdexHandle=4711\n[startup]\nB=2\n");
}

TEST_F(IniSettingsWrite, AddsANewSectionAtTheEnd) {
  EXPECT_EQ(Save("[startup]\nB=2\n", "Shared", "OrdexHandle", "4711"),
            "[startup]\nB=2\n[Shared]\nOrdexHandle=4711\n");
}

TEST_F(IniSettingsWrite, AddsNoKeyOfAnotherSection) {
  EXPECT_EQ(Save("[startup]\nId_Utente=5\n[Shared]\nX=1\n", "Shared", "Id_Utente", "-1"),
            "[startup]\nId_Utente=5\n[Shared]\nX=1\nId_Utente=-1\n");
}

TEST_F(IniSettingsWrite, KeepsLineEndsOfCrLf) {
  EXPECT_EQ(Save("[Shared]\r\nId_Utente=7\r\n", "Shared", "OrdexHandle", "4711"),
            "[Shared]\r\nId_Utente=7\r\nOrdexHandle=4711\r\n");
}

TEST_F(IniSettingsWrite, WritesValuesThatHoldEqualsSignsAndBlanks) {
  Save("", "startup", "Server", " Data Source=file:studio.db; ");
  EXPECT_EQ(IniSettings(folder_ / "settings.ini").Get("startup", "Server"),
            " Data Source=file:studio.db; ");
}

TEST_F(IniSettingsWrite, MakesTheFileAndItsFolders) {
  const auto file = folder_ / "one" / "two" / "settings.ini";
  IniSettings(file).Save("Shared", "Id_Utente", "2");
  EXPECT_EQ(folder_.Read("one/two/settings.ini"), "[Shared]\nId_Utente=2\n");
}

TEST_F(IniSettingsWrite, LeavesNothingBesideTheFile) {
  Save("[Shared]\n", "Shared", "Id_Utente", "2");
  EXPECT_EQ(folder_.FileCount(), 1U);
}

TEST_F(IniSettingsWrite, ANewFileIsReadBack) {
  IniSettings settings(folder_ / "new.ini");
  settings.Save("Shared", "Id_Utente", "2");
  settings.Save("Shared", "OrdexHandle", "4711");
  settings.Save("Shared", "Id_Utente", "-1");
  EXPECT_EQ(settings.Get("Shared", "Id_Utente"), "-1");
  EXPECT_EQ(settings.Get("Shared", "OrdexHandle"), "4711");
}

TEST_F(IniSettingsWrite, AFileThatCannotBeWrittenIsAnErrorOfFileAccess) {
  folder_.Write("file", "x");
  IniSettings settings(folder_ / "file" / "settings.ini");
  EXPECT_EQ(ErrorNumberOf([&] { settings.Save("Shared", "Id_Utente", "2"); }), 75);
}

}  // namespace
}  // namespace ordex::testing
