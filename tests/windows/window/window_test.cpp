// The program from its start to its end, as the user sees it.
#include <gmock/gmock.h>

#include "ordex_test.h"

namespace ordex::window_tests {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const Box kUpdated = {
    kUpdatedTitle, "La pratica di Praxion è stata aggiornata con i dati di OrdexWeb.", {"OK"}};

class WindowTest : public OrdexTest {};

TEST_F(WindowTest, ReturnUpdatesTheCaseOfTheCopiedPage) {
  Copy(Sample("profilo-contratto.txt"));
  const Program& program = Start();
  HWND window = Window(kProfileTitle);
  ASSERT_NE(window, nullptr);
  EXPECT_TRUE(ShowsStatus(window,
                          "Trovata una sola pratica sulla base del N. Registro Generale : "
                          "1842/2025"));
  EXPECT_EQ(Setting("OrdexHandle"),
            std::to_string(static_cast<LONG>(reinterpret_cast<INT_PTR>(window))));
  EXPECT_EQ(Setting("Id_Utente"), "7");
  ASSERT_TRUE(Press(window, VK_RETURN));
  EXPECT_EQ(BoxOf(kUpdated.title), kUpdated);
  EXPECT_THAT(Rows("SELECT ID_PraRel, NumeroRegGenerale, DPUd FROM PraOrdex"),
              ElementsAre("2|1842/2025|2026-03-12 09:30:00"));
  ASSERT_TRUE(Press(Window(kUpdated.title), VK_RETURN));
  EXPECT_EQ(program.ExitCode(), 0);
  EXPECT_EQ(Setting("Id_Utente"), "-1");
  EXPECT_EQ(settings_.Get("startup", "Server"), "Data Source=file:office.db");
}

TEST_F(WindowTest, AClickOnCloseWritesNothing) {
  Copy(Sample("profilo-contratto.txt"));
  const Program& program = Start();
  HWND window = Window(kProfileTitle);
  ASSERT_TRUE(IsInFront(window));
  ASSERT_TRUE(Click(window, "Chiudi"));
  EXPECT_EQ(program.ExitCode(), 0);
  EXPECT_THAT(Rows("SELECT * FROM PraOrdex"), IsEmpty());
  EXPECT_EQ(Setting("Id_Utente"), "-1");
}

TEST_F(WindowTest, AQuestionHasItalianButtonsAndNoLeavesEverythingAsItWas) {
  HWND window = Open("profilo-lavoro.txt");
  ASSERT_TRUE(Press(window, VK_RETURN));
  EXPECT_THAT(BoxOf(kQuestionTitle).buttons, ElementsAre("Sì", "No"));
  ASSERT_TRUE(IsInFront(Window(kQuestionTitle)));
  ASSERT_TRUE(Click(Window(kQuestionTitle), "No"));
  ASSERT_EQ(Window(kProfileTitle), window);
  EXPECT_THAT(Rows("SELECT * FROM PraOrdex"), IsEmpty());
}

TEST_F(WindowTest, ATextThatIsNoPageIsRefusedAndTakenFromTheClipboard) {
  Copy(Sample("not-a-page/messaggio-di-posta.txt"));
  const Program& program = Start();
  EXPECT_EQ(BoxOf("Praxion"),
            (Box{"Praxion", "La pagina corrente non può essere importata in Praxion.", {"OK"}}));
  ASSERT_TRUE(Press(Window("Praxion"), VK_RETURN));
  EXPECT_EQ(program.ExitCode(), 3);
  EXPECT_EQ(Clipboard(), "");
  EXPECT_EQ(Setting("Id_Utente"), "7");
}

TEST_F(WindowTest, WithoutAUserInTheSettingsTheErrorIsToldBeforeTheProgramEnds) {
  settings_.Save("Shared", "Id_Utente", "");
  Copy(Sample("profilo-contratto.txt"));
  const Program& program = Start();
  const Box box = BoxOf("Ordex");
  EXPECT_THAT(box.text, ::testing::StartsWith("Errore di run-time '13': "));
  EXPECT_THAT(box.buttons, ElementsAre("OK"));
  ASSERT_TRUE(Press(Window("Ordex"), VK_RETURN));
  EXPECT_EQ(program.ExitCode(), 4);
}

TEST_F(WindowTest, AClipboardThatAnotherProgramHoldsIsTold) {
  Copy(Sample("profilo-contratto.txt"));
  std::string text;
  const Program* program = nullptr;
  {
    const HeldClipboard held;
    program = &Start();
    text = BoxOf("Ordex").text;
  }
  EXPECT_THAT(text, ::testing::HasSubstr("un altro programma tiene occupati gli appunti. Copiare "
                                         "di nuovo la pagina e riavviare Ordex."));
  ASSERT_TRUE(Press(Window("Ordex"), VK_RETURN));
  EXPECT_EQ(program->ExitCode(), 4);
}

}  // namespace
}  // namespace ordex::window_tests
