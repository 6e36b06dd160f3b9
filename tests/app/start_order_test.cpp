// The order of the start: which of several faults is met first, and what has been done by then.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "support/window_fixture.h"

namespace ordex::testing {
namespace {

constexpr const char* kNoUser =
    "Tipo non corrispondente: nelle impostazioni di \"Zelmo32\", sezione \"Shared\", il valore di "
    "\"Id_Utente\" è \"ROSSI\" e non il numero di un utente. Aprire Praxion e accedere, poi "
    "avviare di nuovo Ordex";

using Texts = std::vector<std::string>;

// From the last fault that a start can meet to the first. Each test has its own fault and all those
// that would be met later.
enum class Fault { kPageFile, kMapCampi, kUser, kDatabase, kUnknownPage, kMapRestr };

struct FaultyStart : WindowFixture {
  explicit FaultyStart(Fault first) {
    // The page file's name is taken by a folder that is not empty.
    std::filesystem::create_directory(folder / kProfileFile);
    folder.Write(std::filesystem::path(kProfileFile) / "inside", "x");
    if (first >= Fault::kMapCampi) folder.Remove("MapCampi.txt");
    if (first >= Fault::kUser) settings.values[{"Shared", "Id_Utente"}] = "ROSSI";
    if (first >= Fault::kDatabase) cannotOpen = MakeError(ErrorNumber::kDatabase, "spento");
    if (first >= Fault::kUnknownPage) clipboard.text = "altro";
    if (first >= Fault::kMapRestr) folder.Remove("MapRestr.txt");
    Start();
  }

  // The text of the only box.
  std::string Box() {
    return boxes.shown.size() == 1 ? boxes.shown[0].text
                                   : std::to_string(boxes.shown.size()) + " boxes";
  }
  bool Names(const std::string& what) { return Box().find(what) != std::string::npos; }
};

TEST(OrderOfTheStart, TheRecognitionTextsComeFirst) {
  FaultyStart start(Fault::kMapRestr);
  EXPECT_EQ(start.window.ended(), EndReason::kError);
  EXPECT_TRUE(start.Box().starts_with("Errore di run-time '53': ")) << start.Box();
  EXPECT_TRUE(start.Names("MapRestr.txt")) << start.Box();
  EXPECT_EQ(start.settings.saved, (Texts{"Shared/OrdexHandle=4711"}));
  EXPECT_EQ(start.clipboard.reads, 0U);
}

TEST(OrderOfTheStart, TheRecognitionComesBeforeTheDatabase) {
  FaultyStart start(Fault::kUnknownPage);
  EXPECT_EQ(start.window.ended(), EndReason::kRefused);
  EXPECT_EQ(start.boxes.shown, (std::vector<BoxText>{RefusedPageBox()}));
  EXPECT_TRUE(start.opened.empty());
}

TEST(OrderOfTheStart, TheDatabaseComesBeforeTheUser) {
  FaultyStart start(Fault::kDatabase);
  EXPECT_EQ(start.window.ended(), EndReason::kError);
  EXPECT_EQ(start.Box(), "Errore di run-time '-2147467259': Errore del database: spento");
  EXPECT_EQ(start.opened.size(), 1U);
}

TEST(OrderOfTheStart, TheUserComesBeforeTheFieldMap) {
  FaultyStart start(Fault::kUser);
  EXPECT_EQ(start.window.ended(), EndReason::kError);
  EXPECT_EQ(start.Box(), "Errore di run-time '13': " + std::string(kNoUser));
}

TEST(OrderOfTheStart, TheFieldMapComesBeforeThePageFile) {
  FaultyStart start(Fault::kMapCampi);
  EXPECT_EQ(start.window.ended(), EndReason::kError);
  EXPECT_TRUE(start.Box().starts_with("Errore di run-time '53': ")) << start.Box();
  EXPECT_TRUE(start.Names("MapCampi.txt")) << start.Box();
  EXPECT_EQ(start.state().frmMain.caption, "Ordex");
}

TEST(OrderOfTheStart, ThePageFileComesBehindTheCaption) {
  FaultyStart start(Fault::kPageFile);
  EXPECT_EQ(start.window.ended(), EndReason::kError);
  EXPECT_TRUE(start.Box().starts_with("Errore di run-time '75': ")) << start.Box();
  EXPECT_EQ(start.state().frmMain.caption, std::string("Ordex - ") + kProfilePhrase);
  EXPECT_TRUE(start.office.diagnostics.sql.empty());
  EXPECT_TRUE(start.state().lstImport.rows.empty());
}

TEST(OrderOfTheStart, AnErrorIsToldToTheDiagnosticsAndDoesNotUnload) {
  FaultyStart start(Fault::kUser);
  EXPECT_EQ(start.office.diagnostics.failed,
            (std::vector<NotedError>{{"", 13, kNoUser, std::nullopt}}));
  EXPECT_EQ(start.settings.saved, (Texts{"Shared/OrdexHandle=4711"}));
}

// The handle is stored before anything can go wrong: a second start raises the window by it.
TEST(OrderOfTheStart, TheHandleIsStoredUnderItsName) {
  WindowFixture fixture;
  fixture.window.Start("123456");
  EXPECT_EQ(fixture.settings.saved.front(), "Shared/OrdexHandle=123456");
}

TEST(OrderOfTheStart, ThePageAtOpeningIsSetOnlyByAStartThatSucceeds) {
  FaultyStart start(Fault::kPageFile);
  EXPECT_EQ(start.state().page.iOrdexPage, 1);
  EXPECT_EQ(start.state().page.pageAtOpening, 0);
}

}  // namespace
}  // namespace ordex::testing
