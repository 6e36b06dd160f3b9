// Each kind of page as the window opens on it.
#include "desk_test.h"

#include <gmock/gmock.h>
#include <wx/button.h>
#include <wx/listctrl.h>

#include <sstream>

#include "text_files.h"

namespace ordex::desktop_tests {
namespace {

using ::testing::IsEmpty;

class OpeningTest : public DeskTest {
 protected:
  std::string Title() {
    return Frame([](auto& frame) { return frame.GetTitle().utf8_string(); });
  }
  // In pixels, of which 96 dots per inch give one for 15 twips.
  int Height() {
    return Frame([](auto& frame) { return frame.GetSize().GetHeight(); });
  }
  std::string StatusText() {
    return Frame([](auto& frame) { return frame.Status().GetStatusText(1).utf8_string(); });
  }
  std::string StatusPicture() {
    return Frame([](auto& frame) { return frame.Status().Picture(); });
  }
  wxListCtrl* List(const std::string& name) {
    return OnMain([&] { return dynamic_cast<wxListCtrl*>(wxWindow::FindWindowByName(name)); });
  }
  std::string Row(const std::string& list, long row) {
    return OnMain([&] {
      const auto* shown = dynamic_cast<wxListCtrl*>(wxWindow::FindWindowByName(list));
      std::string text;
      for (int column = 0; column < shown->GetColumnCount(); ++column) {
        text += (column == 0 ? "" : " | ") + shown->GetItemText(row, column).utf8_string();
      }
      return text;
    });
  }
};

TEST_F(OpeningTest, a_profile_page_of_one_case_opens_ready_to_update_it) {
  Open("profilo-contratto.txt");
  EXPECT_EQ(Title(), "Ordex - profilo del fascicolo - dati generali");
  EXPECT_EQ(Height(), 288);  // 4320 twips
  EXPECT_EQ(StatusText(),
            "Trovata una sola pratica sulla base del N. Registro Generale : 1842/2025");
  EXPECT_EQ(StatusPicture(), "Praxion");
  EXPECT_TRUE(HasFocus(Find<wxButton>("Aggiorna")));
  EXPECT_EQ(Row("lstImport", 0),
            "NumeroRegGenerale | Numero di iscrizione a ruolo: | 1842/2025 | ");
  EXPECT_EQ(Find<wxListCtrl>("lstImport"), nullptr) << "the details must be hidden";
  EXPECT_THAT(NotAsState(), IsEmpty());
}

}  // namespace
}  // namespace ordex::desktop_tests
