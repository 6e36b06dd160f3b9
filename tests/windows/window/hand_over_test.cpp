// A second start, or another program, hands a page over to the window that is open.
#include <gmock/gmock.h>

#include "ordex_test.h"

namespace ordex::window_tests {
namespace {

using ::testing::ElementsAre;

const std::string kOneCase =
    "Trovata una sola pratica sulla base del N. Registro Generale : 1842/2025";
const std::string kTwoCases =
    "Sono state trovate 2 pratiche sulla base del N. Registro Generale : 907/2024";

class HandOverTest : public OrdexTest {
 protected:
  // The page that is handed over shows in the window, and what is then written is that page.
  void ExpectUpdateOfOneCase(HWND window) {
    EXPECT_TRUE(ShowsStatus(window, kOneCase));
    EXPECT_TRUE(Shows(window, "N. R.G. 1842/2025"));
    SetForegroundWindow(window);
    ASSERT_TRUE(Press(window, VK_RETURN));
    ASSERT_NE(Window(kUpdatedTitle), nullptr);
    EXPECT_THAT(Rows("SELECT ID_PraRel, NumeroRegGenerale FROM PraOrdex"),
                ElementsAre("2|1842/2025"));
  }
};

TEST_F(HandOverTest, ASecondStartEndsAtOnceAndTheFirstWindowTakesThePage) {
  HWND window = Open("profilo-condominio.txt");
  ASSERT_TRUE(ShowsStatus(window, kTwoCases));
  Copy(Sample("profilo-contratto.txt"));
  EXPECT_EQ(Start().ExitCode(), 0);
  EXPECT_TRUE(IsInFront(window));
  EXPECT_THAT(WindowsOf(kProfileTitle), ElementsAre(window));
  EXPECT_EQ(Setting("Id_Utente"), "7");
  ExpectUpdateOfOneCase(window);
}

TEST_F(HandOverTest, ASecondStartBringsBackAMinimizedWindow) {
  HWND window = Open("profilo-condominio.txt");
  ShowWindowAsync(window, SW_MINIMIZE);
  ASSERT_TRUE(WaitFor([&] { return IsIconic(window) != 0; }));
  Copy(Sample("profilo-contratto.txt"));
  EXPECT_EQ(Start().ExitCode(), 0);
  EXPECT_TRUE(WaitFor([&] { return IsIconic(window) == 0; }));
  EXPECT_TRUE(IsInFront(window));
  EXPECT_TRUE(ShowsStatus(window, kOneCase));
}

TEST_F(HandOverTest, AnotherProgramPokesPlainText) {
  HWND window = Open("profilo-condominio.txt");
  Copy(Sample("profilo-contratto.txt"));
  EXPECT_EQ(Poke({}, "10:31:07", CF_TEXT), Told::kTaken);
  ExpectUpdateOfOneCase(window);
}

TEST_F(HandOverTest, AnotherProgramPokesWideTextWithNamesInOtherLetterCase) {
  HWND window = Open("profilo-condominio.txt");
  Copy(Sample("profilo-contratto.txt"));
  EXPECT_EQ(Poke({"ORDEX", "Main", "lbllinkdde"}, "10:31:07", CF_UNICODETEXT), Told::kTaken);
  EXPECT_TRUE(ShowsStatus(window, kOneCase));
}

TEST_F(HandOverTest, AnotherProgramLinksALabelAndPokesIt) {
  HWND window = Open("profilo-condominio.txt");
  Copy(Sample("profilo-contratto.txt"));
  EXPECT_EQ(LinkAndPoke({}, "10:31:07"), Told::kTaken);
  EXPECT_TRUE(ShowsStatus(window, kOneCase));
}

// Were one of them taken for ours, the text would be refused with a box, and the program end.
TEST_F(HandOverTest, OtherNamesAreNotOurs) {
  HWND window = Open("profilo-condominio.txt");
  Copy("nessuna pagina");
  EXPECT_EQ(Poke({"Ordex", "SYSINFO", "lblLinkDDE"}, "x", CF_TEXT), Told::kNoConversation);
  EXPECT_EQ(Poke({"Praxion", "MAIN", "lblLinkDDE"}, "x", CF_TEXT), Told::kNoConversation);
  Poke({"Ordex", "MAIN", "lblAltro"}, "x", CF_TEXT);
  EXPECT_EQ(StatusText(window), kTwoCases);
  Copy(Sample("profilo-contratto.txt"));
  EXPECT_EQ(Poke({}, "10:31:07", CF_TEXT), Told::kTaken);
  ExpectUpdateOfOneCase(window);
}

TEST_F(HandOverTest, APokeWaitsUntilTheBoxInFrontIsAnswered) {
  HWND window = Open("profilo-lavoro.txt");
  ASSERT_TRUE(Press(window, VK_RETURN));
  HWND question = Window(kQuestionTitle);
  ASSERT_TRUE(IsInFront(question));
  Copy(Sample("profilo-contratto.txt"));
  EXPECT_EQ(Poke({}, "10:31:07", CF_TEXT), Told::kTaken);
  EXPECT_TRUE(Shows(window, "Nessuna pratica selezionata"));
  ASSERT_TRUE(Click(question, "No"));
  EXPECT_TRUE(ShowsStatus(window, kOneCase));
}

TEST_F(HandOverTest, APageOfAnotherKindIsRefusedAndTheOpenWorkStays) {
  HWND window = Open("profilo-condominio.txt");
  Copy(Sample("agenda-settimana.txt"));
  EXPECT_EQ(Start().ExitCode(), 0);
  EXPECT_TRUE(
      ShowsStatus(window, "Completare l'operazione corrente oppure chiudere il programma."));
  EXPECT_EQ(Window(kProfileTitle), window);
  EXPECT_TRUE(Shows(window, "N. R.G. 907/2024"));
}

TEST_F(HandOverTest, AfterAnInstanceThatWasKilledTheNextStartIsTheFirst) {
  Copy(Sample("profilo-condominio.txt"));
  const Program& killed = Start();
  HWND before = Window(kProfileTitle);
  ASSERT_NE(before, nullptr);
  killed.Kill();
  HWND window = Open("profilo-contratto.txt");
  EXPECT_TRUE(ShowsStatus(window, kOneCase));
}

}  // namespace
}  // namespace ordex::window_tests
