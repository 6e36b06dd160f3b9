// The everyday road: the window opens, Return is pressed, the case is updated.
#include <gmock/gmock.h>
#include <wx/button.h>
#include <wx/textctrl.h>

#include "database.h"
#include "desk_test.h"

namespace ordex::desktop_tests {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using UpdateTest = DeskTest;

TEST_F(UpdateTest, ReturnUpdatesTheCaseAndReturnInTheBoxEndsTheProgram) {
  Open("profilo-contratto.txt");
  Press(WXK_RETURN);
  EXPECT_EQ(NextBox(), UpdatedBox());
  EXPECT_THAT(Rows("SELECT Sezione, Istruttore FROM Pratica WHERE ID_Pra = 2"),
              ElementsAre("Seconda Civile|Dott.ssa Bracalenti Ersilia"));
  EXPECT_THAT(Rows("SELECT ID_PraRel, DPUd FROM PraOrdex"), ElementsAre("2|2026-03-12 09:30:00"));
  EXPECT_THAT(Rows("SELECT count(*) FROM SCADENZE"), ElementsAre("4"));
  Press(WXK_RETURN);
  EXPECT_TRUE(EndsAs(EndReason::kDone));
  EXPECT_EQ(office_.Setting("Shared", "Id_Utente"), "-1");
  EXPECT_THAT(office_.Leftovers(), IsEmpty());
}

TEST_F(UpdateTest, AClickOnTheButtonUpdatesAsWell) {
  Open("profilo-contratto.txt");
  Click(Find<wxButton>("Aggiorna"));
  EXPECT_EQ(NextBox(), UpdatedBox());
  EXPECT_THAT(Rows("SELECT count(*) FROM PraOrdex"), ElementsAre("1"));
}

TEST_F(UpdateTest, WhileTheBoxIsUpTheWindowTakesNoAct) {
  Open("profilo-contratto.txt");
  auto* button = Find<wxButton>("Aggiorna");
  Press(WXK_RETURN);
  EXPECT_EQ(NextBox(), UpdatedBox());
  const wxPoint corner = OnMain([=] { return button->GetScreenPosition() + wxPoint(4, 4); });
  ClickAt(corner);
  EXPECT_EQ(NextBox(), UpdatedBox());
  Press(WXK_RETURN);
  EXPECT_TRUE(EndsAs(EndReason::kDone));
  EXPECT_THAT(Rows("SELECT count(*) FROM PraOrdex"), ElementsAre("1"));
}

TEST_F(UpdateTest, ACaseOfAnotherNumberIsAskedForAndNoLeavesItAlone) {
  Open("profilo-contratto.txt");
  auto* search = Find<wxTextCtrl>("ctlTestata1");
  Click(search);
  Type("633/2025");
  Press(WXK_RETURN);
  Press(WXK_RETURN);
  ASSERT_EQ(State([](const Window& state) { return state.choice.ctlTestata1.idPra; }), 6);
  EXPECT_THAT(NotAsState(), IsEmpty());
  Click(Find<wxButton>("Aggiorna"));
  EXPECT_EQ(NextBox(),
            (Box{"Ordex",
                 "Il N. Registro Generale della pratica selezionata è diverso dal Numero del "
                 "Fascicolo.\nConfermi l'allineamento con i dati di Ordex ?",
                 wxICON_QUESTION,
                 {"No", "Sì"}}));
  Press('N', wxMOD_ALT);
  ASSERT_TRUE(NoBox());
  EXPECT_TRUE(HasFocus(search)) << "the focus goes back to the case header";
  EXPECT_THAT(Rows("SELECT count(*) FROM PraOrdex"), ElementsAre("0"));
  EXPECT_EQ(Ended(), std::nullopt);
}

TEST_F(UpdateTest, APenalCaseIsMarkedAndRefused) {
  Open("profilo-contratto.txt");
  EXPECT_EQ(Find<wxWindow>(" PENALE "), nullptr);
  Click(Find<wxTextCtrl>("ctlTestata1"));
  Type("2210/2025");
  Press(WXK_RETURN);
  Press(WXK_RETURN);
  EXPECT_NE(Find<wxWindow>(" PENALE "), nullptr);
  EXPECT_THAT(NotAsState(), IsEmpty());
  Click(Find<wxButton>("Aggiorna"));
  EXPECT_EQ(NextBox(), PenalBox());
  Press(WXK_RETURN);
  ASSERT_TRUE(NoBox());
  EXPECT_EQ(Ended(), std::nullopt);
  EXPECT_THAT(Rows("SELECT count(*) FROM PraOrdex"), ElementsAre("0"));
}

TEST_F(UpdateTest, AnUpdateThatFailsEndsWithoutAWord) {
  Open("profilo-contratto.txt");
  sessions::RunSql(office_.database(),
                   "CREATE TRIGGER Blocco BEFORE UPDATE ON Pratica "
                   "BEGIN SELECT RAISE(ABORT, 'bloccata'); END");
  Press(WXK_RETURN);
  EXPECT_TRUE(EndsAs(EndReason::kFailed));
  EXPECT_EQ(office_.Setting("Shared", "Id_Utente"), "-1");
}

TEST_F(UpdateTest, AnErrorThatNothingTrapsIsReportedAndEndsTheProgram) {
  Open("profilo-contratto.txt");
  sessions::RunSql(office_.database(), "ALTER TABLE Anagrafica RENAME TO Altrove");
  Click(Find<wxTextCtrl>("ctlTestata1"));
  Type("633/2025");
  Press(WXK_RETURN);
  const Box box = NextBox();
  EXPECT_EQ(box.title, "Ordex");
  EXPECT_EQ(box.icon, wxICON_ERROR);
  EXPECT_THAT(box.text, ::testing::StartsWith("Errore di run-time '-2147467259':"));
  Press(WXK_RETURN);
  EXPECT_TRUE(EndsAs(EndReason::kError));
  EXPECT_EQ(office_.Setting("Shared", "Id_Utente"), "7");
}

TEST_F(UpdateTest, AHistoryIsWrittenOnceACaseIsChosenAndReturnPressed) {
  Open("storico-pagina-1.txt");
  Type("1842");
  Press(WXK_RETURN);
  Press(WXK_RETURN);
  EXPECT_THAT(StatusText(), ::testing::StartsWith("Pratica selezionata : "));
  EXPECT_EQ(StatusPicture(), "Praxion");
  auto* button = Find<wxButton>("Aggiorna");
  EXPECT_TRUE(OnMain([=] { return button->IsEnabled(); }));
  EXPECT_THAT(NotAsState(), IsEmpty());
  EXPECT_TRUE(HasFocus(button)) << "Return is all that is left to press";
  Press(WXK_RETURN);
  EXPECT_EQ(NextBox(), UpdatedBox());
  EXPECT_THAT(Rows("SELECT count(*), min(Progressivo), max(Progressivo) FROM EventiPraOrdex "
                   "WHERE ID_PraRel = 2"),
              ElementsAre("15|1|15"));
}

TEST_F(UpdateTest, AHistoryOfAPenalCaseIsRefused) {
  Open("storico-pagina-1.txt");
  Type("2210/2025");
  Press(WXK_RETURN);
  Press(WXK_RETURN);
  Press(WXK_RETURN);
  EXPECT_EQ(NextBox(), PenalBox());
  Press(WXK_ESCAPE);
  ASSERT_TRUE(NoBox());
  EXPECT_EQ(Ended(), std::nullopt);
  EXPECT_THAT(Rows("SELECT count(*) FROM EventiPraOrdex"), ElementsAre("0"));
}

}  // namespace
}  // namespace ordex::desktop_tests
