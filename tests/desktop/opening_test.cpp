// Each kind of page as the window opens on it.
#include <gmock/gmock.h>
#include <wx/button.h>
#include <wx/listctrl.h>
#include <wx/panel.h>
#include <wx/textctrl.h>
#include <wx/tglbtn.h>

#include <sstream>

#include "database.h"
#include "desk_test.h"
#include "ui/desktop/platform.h"

namespace ordex::desktop_tests {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// The rows that belong to a sample page, without the tags, which no column shows.
std::vector<std::string> ExpectedRows(const std::string& page) {
  std::istringstream lines(SourceText("tests/parse/expected/" + page + ".rows"));
  std::vector<std::string> rows;
  for (std::string line; std::getline(lines, line);) {
    rows.push_back(line.substr(0, line.rfind(" | ")));
  }
  return rows;
}

class OpeningTest : public DeskTest {
 protected:
  std::vector<std::string> Headers(const std::string& list) {
    return OnMain([&] {
      const auto* shown = dynamic_cast<wxListCtrl*>(wxWindow::FindWindowByName(list));
      std::vector<std::string> headers;
      for (int place = 0; place < shown->GetColumnCount(); ++place) {
        wxListItem column;
        column.SetMask(wxLIST_MASK_TEXT);
        shown->GetColumn(place, column);
        headers.push_back(column.GetText().utf8_string());
      }
      return headers;
    });
  }
  std::vector<int> Widths(const std::string& list) {
    return OnMain([&] {
      const auto* shown = dynamic_cast<wxListCtrl*>(wxWindow::FindWindowByName(list));
      std::vector<int> widths;
      for (int place = 0; place < shown->GetColumnCount(); ++place) {
        widths.push_back(shown->GetColumnWidth(place));
      }
      return widths;
    });
  }
  bool Enabled(const std::string& button) {
    const auto* shown = Find<wxButton>(button);
    return OnMain([=] { return shown != nullptr && shown->IsEnabled(); });
  }
};

TEST_F(OpeningTest, AProfilePageOfOneCaseOpensReadyToUpdateIt) {
  Open("profilo-contratto.txt");
  EXPECT_EQ(Title(), "Ordex - profilo del fascicolo - dati generali");
  EXPECT_EQ(Height(), 288);  // 4320 twips
  EXPECT_EQ(StatusText(),
            "Trovata una sola pratica sulla base del N. Registro Generale : 1842/2025");
  EXPECT_EQ(StatusPicture(), "Praxion");
  EXPECT_EQ(Action(), "Aggiorna");
  EXPECT_EQ(ActionSymbol(), Symbol::kUpdate);
  EXPECT_TRUE(HasFocus(Find<wxButton>("Aggiorna")));
  EXPECT_FALSE(Enabled("Annulla"));
  EXPECT_TRUE(Enabled("Pulisci campi"));
  EXPECT_TRUE(Enabled("Chiudi"));
  EXPECT_EQ(RowsOf("lstImport"), ExpectedRows("profilo-contratto"));
  EXPECT_THAT(Headers("lstImport"), ElementsAre("NomeDb", "Descrizione", "Valore", "Pagina"));
  EXPECT_EQ(Find<wxListCtrl>("lstImport"), nullptr) << "the details must be hidden";
  EXPECT_THAT(NotAsState(), IsEmpty());
}

TEST_F(OpeningTest, AProfilePageWithoutACaseOffersToCreateOne) {
  Open("profilo-lavoro.txt");
  EXPECT_EQ(Height(), 288);
  EXPECT_EQ(StatusText(),
            "Nessuna pratica trovata sulla base del N. Registro Generale : 3056/2025");
  EXPECT_EQ(StatusPicture(), "NoPratiche");
  EXPECT_EQ(Action(), "Crea");
  EXPECT_EQ(ActionSymbol(), Symbol::kCreate);
  EXPECT_EQ(RowsOf("lstImport"), ExpectedRows("profilo-lavoro"));
  EXPECT_THAT(NotAsState(), IsEmpty());
}

TEST_F(OpeningTest, AProfilePageOfTwoCasesShowsTheFirstAndCountsBoth) {
  Open("profilo-condominio.txt");
  EXPECT_EQ(StatusText(),
            "Sono state trovate 2 pratiche sulla base del N. Registro Generale : 907/2024");
  EXPECT_EQ(StatusPicture(), "Praxion");
  EXPECT_EQ(Action(), "Aggiorna");
  EXPECT_EQ(State([](const Window& state) { return state.choice.ctlTestata1.idPra; }), 3);
  EXPECT_THAT(NotAsState(), IsEmpty());
}

TEST_F(OpeningTest, AHistoryPageWaitsForACaseWithItsButtonDisabled) {
  Open("storico-pagina-1.txt");
  EXPECT_EQ(Title(), "Ordex - storico del fascicolo - elenco eventi");
  EXPECT_EQ(Height(), 288);
  EXPECT_EQ(StatusText(), "Selezionare una pratica.");
  EXPECT_EQ(StatusPicture(), "");
  EXPECT_EQ(Action(), "Aggiorna");
  EXPECT_EQ(ActionSymbol(), Symbol::kUpdate);
  EXPECT_FALSE(Enabled("Aggiorna"));
  EXPECT_TRUE(HasFocus(Find<wxTextCtrl>("ctlTestata1")));
  EXPECT_EQ(RowsOf("lstImport"), ExpectedRows("storico-pagina-1"));
  EXPECT_THAT(Headers("lstImport"), ElementsAre("NomeDb", "Data", "Descrizione", "Pagina"));
  EXPECT_THAT(NotAsState(), IsEmpty());
  // Neither Return nor a click presses what is disabled.
  Press(WXK_RETURN);
  Click(Find<wxButton>("Aggiorna"));
  EXPECT_TRUE(NoBox());
  EXPECT_EQ(Ended(), std::nullopt);
}

TEST_F(OpeningTest, TheAgendaOpensAtItsDesignHeightWithItsListInSight) {
  Open("agenda-settimana.txt");
  EXPECT_EQ(Title(), "Ordex - agenda dell'avvocato - impegni del periodo");
  EXPECT_EQ(Height(), 437);  // 6555 twips
  EXPECT_EQ(StatusText(), "25 eventi saranno riportati nell'Agenda di Praxion.");
  EXPECT_EQ(StatusPicture(), "Praxion");
  EXPECT_EQ(Action(), "Aggiorna");
  EXPECT_TRUE(Enabled("Aggiorna"));
  EXPECT_NE(Find<wxListCtrl>("lstAgendaAvv"), nullptr);
  EXPECT_EQ(Find<wxListCtrl>("lstImport"), nullptr);
  EXPECT_EQ(Find<wxButton>("Pulisci campi"), nullptr);
  EXPECT_EQ(Find<wxPanel>("Pratica"), nullptr);
  EXPECT_TRUE(OnMain([this, toggle = Find<wxToggleButton>("Dettagli ...")] {
    return toggle != nullptr && toggle->GetValue();
  }));
  EXPECT_THAT(Headers("lstAgendaAvv"),
              ElementsAre("Registro Generale\\Data", "Descrizione\\Descrizione"));
  EXPECT_EQ(RowsOf("lstAgendaAvv").size(), 33U);  // 25 entries under 8 cases
  EXPECT_EQ(Row("lstAgendaAvv", 0),
            "1842/2025 | EDILIZIA VALLEBRUNA S.R.L. / IMMOBILIARE PONTEMIRTO S.P.A.");
  EXPECT_THAT(NotAsState(), IsEmpty());
}

TEST_F(OpeningTest, AnAgendaWithoutEntriesSaysSo) {
  Open("agenda-vuota.txt");
  EXPECT_EQ(StatusText(), "0 nell'Agenda di Praxion.");
  EXPECT_THAT(RowsOf("lstAgendaAvv"), IsEmpty());
  EXPECT_THAT(NotAsState(), IsEmpty());
}

TEST_F(OpeningTest, AJusticeOfThePeacePageOpensLikeAProfileWithItsNumberInTheSearch) {
  Open("giudice-di-pace-sinistro.txt");
  EXPECT_EQ(Title(), "Ordex - giudice di pace - scheda del procedimento");
  EXPECT_EQ(Height(), 288);
  EXPECT_EQ(StatusText(),
            "Nessuna pratica trovata sulla base del N. Registro Generale : 5230/2025");
  EXPECT_EQ(StatusPicture(), "NoPratiche");
  EXPECT_EQ(Action(), "Crea");
  EXPECT_EQ(OnMain([search = Find<wxTextCtrl>("ctlTestata1")] {
              return search->GetValue().utf8_string();
            }),
            "5230/2025");
  EXPECT_EQ(RowsOf("lstImport"), ExpectedRows("giudice-di-pace-sinistro"));
  EXPECT_THAT(NotAsState(), IsEmpty());
}

TEST_F(OpeningTest, AJusticeOfThePeacePageFindsItsCase) {
  Open("giudice-di-pace-opposizione.txt");
  EXPECT_EQ(StatusText(),
            "Trovata una sola pratica sulla base del N. Registro Generale : 4417/2025");
  EXPECT_EQ(Action(), "Aggiorna");
  EXPECT_EQ(State([](const Window& state) { return state.choice.ctlTestata1.idPra; }), 8);
  EXPECT_THAT(NotAsState(), IsEmpty());
}

// The columns are told in twips: 1500, 5000, 11760 - 1500 - 5000 - 350 and 0 on a profile. The list
// is wider than the 11760 it was designed for by what the frame leaves; the value takes that.
TEST_F(OpeningTest, TheColumnsOfAProfileHaveTheirWidths) {
  Open("profilo-contratto.txt");
  const std::vector<int> widths = Widths("lstImport");
  ASSERT_EQ(widths.size(), 4U);
  EXPECT_EQ(widths[0], 100);
  EXPECT_EQ(widths[1], 333);
  EXPECT_GE(widths[2], 327);
  EXPECT_LE(widths[2], 327 + 16);
  EXPECT_EQ(widths[3], 0);
}

// To the toolkit an ampersand and an underscore announce the letter of a mnemonic.
TEST_F(OpeningTest, SignsInNamesAreDrawnAsTheyAre) {
  sessions::RunSql(office_.database(),
                   "UPDATE Anagrafica SET Cognome = 'ROSSI & FIGLI_2 S.R.L.', Nome = '' "
                   "WHERE Cognome LIKE 'EDILIZIA VALLEBRUNA%'");
  Open("profilo-contratto.txt");
  EXPECT_THAT(Frame([](const wxWindow& frame) { return DrawnTextsOf(frame); }),
              ::testing::Contains("ROSSI & FIGLI_2 S.R.L."));
}

TEST_F(OpeningTest, TheColumnsOfAHistoryHaveTheirWidths) {
  Open("storico-pagina-1.txt");
  const std::vector<int> widths = Widths("lstImport");
  ASSERT_EQ(widths.size(), 4U);
  EXPECT_EQ(widths[1], 100);  // 1500 twips
  EXPECT_GE(widths[2], 486);  // 7300
  EXPECT_LE(widths[2], 486 + 16);
  EXPECT_EQ(widths[3], 73);  // 1100
}

TEST_F(OpeningTest, ATextThatIsNoPageIsRefusedAndTheClipboardEmptied) {
  Open("not-a-page/messaggio-di-posta.txt");
  EXPECT_EQ(NextBox(), RefusedBox());
  Press(WXK_RETURN);
  EXPECT_TRUE(EndsAs(EndReason::kRefused));
  EXPECT_EQ(Clipboard(), "");
  // It ends at once, without the steps of a window that is closed.
  EXPECT_EQ(office_.Setting("Shared", "Id_Utente"), "7");
}

TEST_F(OpeningTest, AnEmptyClipboardIsRefused) {
  OpenText("");
  EXPECT_EQ(NextBox(), RefusedBox());
  Press(WXK_ESCAPE);
  EXPECT_TRUE(EndsAs(EndReason::kRefused));
}

TEST_F(OpeningTest, AnImportThatStopsIsToldAndTheWindowOpensWithWhatWasRead) {
  // A date that is none stops the import of an agenda at its line.
  OpenText(
      "Agenda dell'avvocato - Impegni del periodo\nTotale impegni: molti nel periodo scelto, in 8 "
      "fascicoli\n");
  const Box box = NextBox();
  EXPECT_EQ(box.title, "Praxion");
  EXPECT_EQ(box.icon, wxICON_EXCLAMATION);
  EXPECT_THAT(box.text, ::testing::HasSubstr("Totale impegni: molti nel periodo"));
  Press(WXK_RETURN);
  ASSERT_TRUE(NoBox());
  EXPECT_TRUE(WaitFor([] { return wxWindow::FindWindowByName("frmMain")->IsShown(); }));
  EXPECT_THAT(NotAsState(), IsEmpty());
}

TEST_F(OpeningTest, TheHandleOfTheWindowIsKeptForTheNextStart) {
  Open("profilo-contratto.txt");
  EXPECT_EQ(office_.Setting("Shared", "OrdexHandle"),
            Frame([](const auto& frame) { return std::to_string(desktop::HandleOf(frame)); }));
  EXPECT_NE(office_.Setting("Shared", "OrdexHandle"), "0");
}

}  // namespace
}  // namespace ordex::desktop_tests
