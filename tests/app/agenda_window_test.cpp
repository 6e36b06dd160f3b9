// The window of an agenda page: its start, and its entries carried into the database.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/page_texts.h"
#include "support/window_fixture.h"

namespace ordex::testing {
namespace {

using Texts = std::vector<std::string>;

struct AgendaWindow : WindowFixture {
  explicit AgendaWindow(std::string page = SourceFile("samples/agenda-settimana.txt"))
      : WindowFixture(std::move(page)) {
    Start();
  }
};

TEST(StartWithAnAgenda, IsReadyToWriteIt) {
  AgendaWindow fixture;
  const Window& state = fixture.state();
  EXPECT_FALSE(fixture.window.ended().has_value());
  EXPECT_EQ(state.page.pageAtOpening, 3);
  EXPECT_EQ(state.frmMain.caption, std::string("Ordex - ") + kAgendaPhrase);
  EXPECT_EQ(state.status.picture, "Praxion");
  EXPECT_EQ(state.status.text, "25 eventi saranno riportati nell'Agenda di Praxion.");
  EXPECT_EQ(state.commands.cmdAzione.caption, "Aggiorna");
  EXPECT_EQ(state.commands.cmdAzione.symbol, Symbol::kUpdate);
  EXPECT_TRUE(state.commands.cmdAzione.enabled);
}

TEST(StartWithAnAgenda, ShowsTheAgendaListInThePlaceOfTheReviewListAndTheHeader) {
  AgendaWindow fixture;
  const Window& state = fixture.state();
  EXPECT_TRUE(state.lstAgendaAvv.visible);
  EXPECT_EQ(state.lstAgendaAvv.top, 1725);
  EXPECT_FALSE(state.lstImport.visible);
  EXPECT_FALSE(state.choice.ctlTestata1.visible);
  EXPECT_FALSE(state.commands.cmdPulisci.visible);
  EXPECT_TRUE(state.commands.chkDettagli.pressed);
  EXPECT_EQ(state.frmMain.frameButtonsTop, 480);
  EXPECT_EQ(state.frmMain.height, 6555);
}

TEST(StartWithAnAgenda, FillsTheAgendaListAlone) {
  AgendaWindow fixture;
  const AgendaList& list = fixture.state().lstAgendaAvv;
  ASSERT_EQ(list.rows.size(), 33U);  // 8 cases, 25 entries
  EXPECT_EQ(list.rows[0].text, "1842/2025");
  EXPECT_EQ(list.rows[0].sub, "EDILIZIA VALLEBRUNA S.R.L. / IMMOBILIARE PONTEMIRTO S.P.A.");
  EXPECT_TRUE(list.rows[0].bold);
  EXPECT_EQ(list.rows[3].text, "    12/03/2026 09:30");
  EXPECT_EQ(list.rows[3].sub, "    Udienza per l'escussione dei testimoni (Aula 7)");
  EXPECT_FALSE(list.rows[3].bold);
  EXPECT_TRUE(fixture.state().lstImport.rows.empty());
}

TEST(StartWithAnAgenda, LooksNoCaseUpAndLeavesNoPageFileBehind) {
  AgendaWindow fixture;
  EXPECT_TRUE(fixture.office.diagnostics.sql.empty());
  EXPECT_EQ(fixture.folder.FileCount(), 3U);
}

TEST(StartWithAnAgenda, OfAnEmptyWeekSaysSo) {
  AgendaWindow fixture(SourceFile("samples/agenda-vuota.txt"));
  EXPECT_EQ(fixture.state().status.text, "0 nell'Agenda di Praxion.");
  EXPECT_TRUE(fixture.state().lstAgendaAvv.rows.empty());
  EXPECT_TRUE(fixture.state().commands.cmdAzione.enabled);
}

// --- the lists ----------------------------------------------------------------------------------

TEST(AgendaOfTheWindow, AClickedRowShowsBothItsTexts) {
  AgendaWindow fixture;
  fixture.window.ClickRow(2);
  EXPECT_EQ(fixture.state().lstAgendaAvv.toolTip,
            "    10/03/2026 -     Citazione dei testimoni: termine per l'intimazione");
  EXPECT_EQ(fixture.state().lstImport.toolTip, "");
}

TEST(AgendaOfTheWindow, AClickedHeaderSortsNothing) {
  AgendaWindow fixture;
  fixture.window.ClickColumn(1);
  EXPECT_EQ(fixture.state().lstImport.columns[0].icon, ColumnIcon::kNone);
  EXPECT_EQ(fixture.state().lstAgendaAvv.rows[0].text, "1842/2025");
}

// --- writing it ---------------------------------------------------------------------------------

TEST(AgendaOfTheWindow, IsWrittenUnderItsCasesAndTheWindowStaysOpen) {
  AgendaWindow fixture;
  fixture.window.PressAzione();
  EXPECT_EQ(fixture.boxes.shown, (std::vector<BoxText>{{"L'Agenda di Praxion è stata aggiornata !",
                                                        "Operazione effettuata",
                                                        BoxIcon::kInformation, BoxButtons::kOk}}));
  EXPECT_FALSE(fixture.window.ended().has_value());
  EXPECT_EQ(fixture.office.Rows("SELECT Scadenza, Data_End, Ora, Responsabile FROM SCADENZE WHERE "
                                "Codice_Pra = 2 ORDER BY ID_Scadenza"),
            (Texts{"Citazione dei testimoni: termine per l'intimazione|10/03/2026|NULL|FERRIGATI "
                   "NORA",
                   "Deposito della prova dell'avvenuta notifica|11/03/2026|NULL|FERRIGATI NORA",
                   "Udienza per l'escussione dei testimoni (Aula 7)|12/03/2026|09:30|FERRIGATI "
                   "NORA",
                   "Istanza per l'acquisizione del documento \"allegato C\" all'originale del "
                   "contratto|13/03/2026|NULL|FERRIGATI NORA"}));
  // Three of the eight numbers are of no case.
  EXPECT_EQ(fixture.office.Rows("SELECT Codice_Pra, COUNT(*) FROM SCADENZE GROUP BY Codice_Pra "
                                "ORDER BY Codice_Pra"),
            (Texts{"1|10", "2|4", "3|2", "6|4", "7|3", "9|2"}));
}

TEST(AgendaOfTheWindow, PressedTwiceDoublesNothing) {
  AgendaWindow fixture;
  fixture.window.PressAzione();
  fixture.window.PressAzione();
  EXPECT_EQ(fixture.boxes.shown.size(), 2U);
  EXPECT_EQ(fixture.office.Row("SELECT COUNT(*) FROM SCADENZE"), "25");
}

// Another program must be able to write while the user reads the message.
TEST(AgendaOfTheWindow, IsDurableAndHoldsNoLockWhileItsBoxIsUp) {
  AgendaWindow fixture;
  std::string seen;
  fixture.boxes.onShow = [&](const BoxText&) {
    seen = fixture.office.Row("SELECT COUNT(*) FROM SCADENZE");
    fixture.office.Do("UPDATE SCADENZE SET Priorita = 9");
  };
  fixture.window.PressAzione();
  EXPECT_EQ(seen, "25");
  EXPECT_EQ(fixture.office.Row("SELECT COUNT(*) FROM SCADENZE WHERE Priorita = 9"), "25");
}

TEST(AgendaOfTheWindow, AfterARefusedPageIsStillWritten) {
  AgendaWindow fixture;
  fixture.Sample("agenda-vuota.txt");
  fixture.Sample("profilo-contratto.txt");
  fixture.window.PressAzione();
  EXPECT_EQ(fixture.office.Row("SELECT COUNT(*) FROM SCADENZE"), "25");
  EXPECT_EQ(fixture.office.Row("SELECT COUNT(*) FROM PraOrdex"), "0");
}

TEST(AgendaOfTheWindow, WithADateThatIsNoneReportsTheErrorKeepsWhatWasWrittenAndEnds) {
  AgendaWindow fixture(
      AgendaPage("1842/2025", {"Scadenza | 10/03/2026 | Note", "Scadenza | domani | Repliche",
                               "Scadenza | 12/03/2026 | Perizia"}));
  std::string seen;
  fixture.boxes.onShow = [&](const BoxText&) {
    seen = fixture.office.Row("SELECT Scadenza FROM SCADENZE");
    fixture.office.Do("UPDATE SCADENZE SET Priorita = 9");
  };
  fixture.window.PressAzione();
  ASSERT_EQ(fixture.boxes.shown.size(), 1U);
  EXPECT_EQ(fixture.boxes.shown[0].text,
            "Errore di run-time '13': Tipo non corrispondente: \"domani\" non è una data "
            "(GG/MM/AAAA). È la data dell'impegno \"Repliche\". Gli impegni prima di questo sono "
            "stati scritti; controllare la pagina sul portale e copiarla di nuovo");
  EXPECT_EQ(fixture.boxes.shown[0].title, "Ordex");
  EXPECT_EQ(fixture.boxes.shown[0].icon, BoxIcon::kStop);
  EXPECT_EQ(seen, "Note");
  EXPECT_EQ(fixture.office.Rows("SELECT Scadenza, Priorita FROM SCADENZE"), (Texts{"Note|9"}));
  EXPECT_EQ(fixture.window.ended(), EndReason::kError);
  EXPECT_EQ(fixture.settings.saved, (Texts{"Shared/OrdexHandle=4711"}));
}

TEST(AgendaOfTheWindow, WithANumberThatHoldsAnApostropheReportsTheErrorAndTouchesNoCase) {
  AgendaWindow fixture(AgendaPage("1'; DELETE FROM Pratica; --", {"Scadenza | 10/03/2026 | Note"}));
  fixture.window.PressAzione();
  ASSERT_EQ(fixture.boxes.shown.size(), 1U);
  EXPECT_TRUE(fixture.boxes.shown[0].text.starts_with("Errore di run-time '-2147467259': "));
  EXPECT_EQ(fixture.window.ended(), EndReason::kError);
  EXPECT_EQ(fixture.office.Row("SELECT COUNT(*) FROM Pratica"), "10");
  EXPECT_EQ(fixture.office.Row("SELECT COUNT(*) FROM SCADENZE"), "0");
}

}  // namespace
}  // namespace ordex::testing
