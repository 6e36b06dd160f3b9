// The agenda: its entries go into the office's agenda, and the window stays.
#include <gmock/gmock.h>
#include <wx/button.h>
#include <wx/listctrl.h>

#include "desk_test.h"
#include "list_hands.h"

namespace ordex::desktop_tests {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

Box WrittenBox() {
  return {"Operazione effettuata",
          "L'Agenda di Praxion è stata aggiornata !",
          wxICON_INFORMATION,
          {"OK"}};
}

using AgendaTest = DeskTest;

TEST_F(AgendaTest, ReturnWritesTheEntriesAndTheWindowStays) {
  Open("agenda-settimana.txt");
  Press(WXK_RETURN);
  EXPECT_EQ(NextBox(), WrittenBox());
  EXPECT_THAT(Rows("SELECT count(*) FROM SCADENZE"), ElementsAre("25"));
  EXPECT_THAT(Rows("SELECT Codice_Pra, Codice_Cli, IdResponsabile, Responsabile FROM SCADENZE "
                   "WHERE Scadenza = 'Deposito della prova dell''avvenuta notifica'"),
              ElementsAre("2|2|3|FERRIGATI NORA"));
  // A case that the office does not have: its entries go to the first case.
  EXPECT_THAT(Rows("SELECT Codice_Pra, Codice_Cli, IdResponsabile, Responsabile FROM SCADENZE "
                   "WHERE Scadenza = 'Deposito dei conteggi aggiornati'"),
              ElementsAre("1|1|2|SUPERVISORE"));
  Press(WXK_RETURN);
  ASSERT_TRUE(NoBox());
  EXPECT_EQ(Ended(), std::nullopt);
  EXPECT_THAT(NotAsState(), IsEmpty());
}

TEST_F(AgendaTest, ASecondPressWritesNothingTwice) {
  Open("agenda-settimana.txt");
  for (int press = 0; press < 2; ++press) {
    Click(Find<wxButton>("Aggiorna"));
    EXPECT_EQ(NextBox(), WrittenBox());
    Press(WXK_ESCAPE);
    ASSERT_TRUE(NoBox());
  }
  EXPECT_THAT(Rows("SELECT count(*) FROM SCADENZE"), ElementsAre("25"));
  EXPECT_EQ(Ended(), std::nullopt);
}

TEST_F(AgendaTest, CaseRowsAreBoldAndEntriesDarkRed) {
  Open("agenda-settimana.txt");
  const auto* list = Find<wxListCtrl>("lstAgendaAvv");
  EXPECT_TRUE(OnMain([=] { return list->GetItemFont(0).GetWeight() == wxFONTWEIGHT_BOLD; }));
  EXPECT_FALSE(OnMain([=] {
    const wxFont font = list->GetItemFont(1);
    return font.IsOk() && font.GetWeight() == wxFONTWEIGHT_BOLD;
  }));
  EXPECT_EQ(OnMain([=] { return list->GetItemTextColour(1).GetAsString(wxC2S_HTML_SYNTAX); }),
            "#C00000");
  EXPECT_NE(OnMain([=] { return list->GetItemTextColour(0).GetAsString(wxC2S_HTML_SYNTAX); }),
            "#C00000");
}

TEST_F(AgendaTest, AClickOnARowTellsItWholeAsToolTip) {
  Open("agenda-settimana.txt");
  const auto* list = Find<wxListCtrl>("lstAgendaAvv");
  ClickRow(list, 1);
  EXPECT_EQ(OnMain([=] { return list->GetToolTipText().utf8_string(); }),
            "    10/03/2026 -     Citazione dei testimoni: termine per l'intimazione");
  EXPECT_THAT(NotAsState(), IsEmpty());
}

// Its rows belong together: the entries stand under their case.
TEST_F(AgendaTest, AClickOnAHeaderLeavesTheRowsWhereTheyAre) {
  Open("agenda-settimana.txt");
  const std::vector<std::string> before = RowsOf("lstAgendaAvv");
  ASSERT_EQ(before.size(), 33U);
  const auto* list = Find<wxListCtrl>("lstAgendaAvv");
  ClickHeader(list, 0);
  ClickHeader(list, 1);
  EXPECT_EQ(RowsOf("lstAgendaAvv"), before);
  EXPECT_THAT(NotAsState(), IsEmpty());
}

TEST_F(AgendaTest, ReturnInTheListPressesTheButton) {
  Open("agenda-settimana.txt");
  ClickRow(Find<wxListCtrl>("lstAgendaAvv"), 2);
  Press(WXK_RETURN);
  EXPECT_EQ(NextBox(), WrittenBox());
  EXPECT_THAT(Rows("SELECT count(*) FROM SCADENZE"), ElementsAre("25"));
}

TEST_F(AgendaTest, CopiedRowsLieOnTheClipboardWithTabsBetweenTheCells) {
  Open("agenda-settimana.txt");
  ClickRow(Find<wxListCtrl>("lstAgendaAvv"), 0);
  Press(WXK_DOWN, wxMOD_SHIFT);
  Press('c', wxMOD_CONTROL);
  EXPECT_EQ(Clipboard(),
            "1842/2025\tEDILIZIA VALLEBRUNA S.R.L. / IMMOBILIARE PONTEMIRTO S.P.A.\r\n"
            "    10/03/2026\t    Citazione dei testimoni: termine per l'intimazione\r\n");
}

TEST_F(AgendaTest, AFurtherAgendaIsRefused) {
  Open("agenda-settimana.txt");
  HandOver("agenda-vuota.txt");
  EXPECT_EQ(StatusText(), "Completare l'operazione corrente oppure chiudere il programma.");
  EXPECT_EQ(StatusPicture(), "Stop");
  EXPECT_EQ(RowsOf("lstAgendaAvv").size(), 33U);
  EXPECT_THAT(NotAsState(), IsEmpty());
}

}  // namespace
}  // namespace ordex::desktop_tests
