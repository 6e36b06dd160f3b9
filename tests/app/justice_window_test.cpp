// The window of a justice-of-the-peace page: its start, its parties dialog, its case written.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/page_texts.h"
#include "support/window_fixture.h"

namespace ordex::testing {
namespace {

using Texts = std::vector<std::string>;

struct KnownCase : WindowFixture {
  KnownCase() : WindowFixture(SourceFile("samples/giudice-di-pace-opposizione.txt")) { Start(); }
};

struct UnknownCase : WindowFixture {
  UnknownCase() : WindowFixture(SourceFile("samples/giudice-di-pace-sinistro.txt")) { Start(); }

  Texts BoxTexts() const {
    Texts texts;
    for (const TextBox& box : state().partiesForm.boxes) texts.push_back(box.text);
    return texts;
  }
  Texts Clients() const {
    Texts texts;
    for (const ComboBox::Item& item : state().choice.cmbParti[kBoxClient].items) {
      texts.push_back(item.text);
    }
    return texts;
  }
  void TypeNames() {
    PartiesDialog& dialog = window.dlgParti();
    dialog.Type("txtAttore", "PELLEGRI SARA");
    dialog.Type("txtAttoreDifensore", "FERRIGATI NORA");
    dialog.Type("txtConvenuto", "TRASPORTI ALFA S.P.A.");
    dialog.Type("txtConvenutoDifensore", "QUADRELLI FOSCO");
  }
  // The first press: the user agrees to a new case and types the names.
  void AgreeAndType() {
    dialogs.onParties = [this] {
      TypeNames();
      window.dlgParti().cmdOk_Click();
    };
    window.PressAzione();
  }
};

const Texts kMasked = {"P******* S****", "T********* A****** S.P.A.", "N**** G*******"};

// --- the start ----------------------------------------------------------------------------------

TEST(StartWithAJusticePage, ShowsItsOneCase) {
  KnownCase fixture;
  const Window& state = fixture.state();
  EXPECT_EQ(state.page.pageAtOpening, 4);
  EXPECT_EQ(state.frmMain.caption, std::string("Ordex - ") + kJusticePhrase);
  EXPECT_EQ(state.frmMain.height, 4320);
  EXPECT_EQ(state.page.szNumeroRG, "4417/2025");
  EXPECT_EQ(state.choice.iCountPra, 1);
  EXPECT_EQ(state.choice.lIdPratica, 8);
  EXPECT_EQ(state.choice.ctlTestata1.idPra, 8);
  EXPECT_EQ(state.status.picture, "Praxion");
  EXPECT_EQ(state.status.text,
            "Trovata una sola pratica sulla base del N. Registro Generale : 4417/2025");
  EXPECT_EQ(state.commands.cmdAzione.caption, "Aggiorna");
  EXPECT_EQ(state.commands.cmdAzione.symbol, Symbol::kUpdate);
  EXPECT_EQ(fixture.office.diagnostics.sql,
            (Texts{"Select ID_Pra from Pratica where NumeroRegGenerale = '4417/2025'"}));
  EXPECT_EQ(fixture.folder.FileCount(), 3U);
}

TEST(StartWithAJusticePage, OfAnUnknownCaseOffersToCreateIt) {
  UnknownCase fixture;
  const Window& state = fixture.state();
  EXPECT_EQ(state.choice.iCountPra, 0);
  EXPECT_EQ(state.choice.ctlTestata1.idPra, 0);
  EXPECT_EQ(state.status.picture, "NoPratiche");
  EXPECT_EQ(state.status.text,
            "Nessuna pratica trovata sulla base del N. Registro Generale : 5230/2025");
  EXPECT_EQ(state.commands.cmdAzione.caption, "Crea");
  EXPECT_EQ(state.commands.cmdAzione.symbol, Symbol::kCreate);
}

TEST(StartWithAJusticePage, PutsItsNumberIntoTheHeadersSearchBox) {
  EXPECT_EQ(KnownCase().state().choice.ctlTestata1.searchText, "4417/2025");
  EXPECT_EQ(UnknownCase().state().choice.ctlTestata1.searchText, "5230/2025");
}

TEST(StartWithAJusticePage, ShowsTheReviewListInTheLayoutOfAProfile) {
  KnownCase fixture;
  const ReviewList& list = fixture.state().lstImport;
  EXPECT_TRUE(list.visible);
  EXPECT_EQ(list.columns[1].width, 5000);
  EXPECT_EQ(list.columns[2].width, 4910);  // 11760 less 1500, 5000 and 350
  EXPECT_EQ(list.columns[3].width, 0);
}

// --- an update ----------------------------------------------------------------------------------

TEST(JusticePageOfTheWindow, UpdatesItsCaseWithHearingAndMovements) {
  KnownCase fixture;
  fixture.window.PressAzione();
  EXPECT_EQ(fixture.window.ended(), EndReason::kDone);
  EXPECT_TRUE(fixture.dialogs.shown.empty());
  EXPECT_EQ(fixture.office.Row("SELECT NumeroRegGenerale, Sezione, Istruttore FROM Pratica WHERE "
                               "ID_Pra = 8"),
            "4417/2025|NULL|Dott. Verzieri Baldassarre");
  EXPECT_EQ(fixture.office.Row("SELECT ID_PraRel, Sezione, DUUd, DPUd FROM PraOrdex"),
            "8|Unica|NULL|17/03/2026 11:15:00");
  EXPECT_EQ(fixture.office.Row("SELECT Scadenza, Data_End, Ora, Codice_Pra FROM SCADENZE"),
            "UDIENZA|17/03/2026|11:15|8");
  EXPECT_EQ(
      fixture.office.Rows("SELECT ID_PraRel, Progressivo, Data, Descrizione, NrPagina FROM "
                          "EventiPraOrdex ORDER BY ID_Evento"),
      (Texts{"8|1|08/10/2025|Deposito del ricorso in opposizione|NULL",
             "8|2|08/10/2025|Iscrizione a ruolo|NULL",
             "8|3|10/10/2025|Assegnazione al giudice Dott. Verzieri Baldassarre|NULL",
             "8|4|14/10/2025|Decreto di fissazione dell'udienza, ore 10:30|NULL",
             "8|5|20/10/2025|Comunicazione del decreto all'autorità che ha emesso l'atto|NULL",
             "8|6|28/11/2025|Costituzione dell'opposto con fascicolo \"amministrativo\"|NULL",
             "8|7|11/12/2025|Udienza: sospesa l'esecuzione dell'atto impugnato, rinvio al "
             "17/03/2026|NULL"}));
}

TEST(JusticePageOfTheWindow, ReplacesTheEventsThatItsCaseHas) {
  KnownCase fixture;
  fixture.office.Do(
      "INSERT INTO EventiPraOrdex (ID_PraRel, Progressivo) VALUES (8, 1), (8, 90), (7, 90)");
  fixture.window.PressAzione();
  EXPECT_EQ(fixture.office.Row("SELECT COUNT(*), MAX(Progressivo) FROM EventiPraOrdex WHERE "
                               "ID_PraRel = 8"),
            "7|7");
  EXPECT_EQ(fixture.office.Row("SELECT Progressivo FROM EventiPraOrdex WHERE ID_PraRel = 7"), "90");
}

TEST(JusticePageOfTheWindow, TellsHowFarTheListHasBeenRead) {
  KnownCase fixture;
  const std::size_t rows = fixture.state().lstImport.rows.size();
  fixture.window.PressAzione();
  ASSERT_EQ(fixture.progress.steps.size(), 7U);
  EXPECT_EQ(fixture.progress.steps.front(), (RecordingProgress::Step{rows - 6, rows}));
  EXPECT_EQ(fixture.progress.steps.back(), (RecordingProgress::Step{rows, rows}));
}

// --- the parties dialog -------------------------------------------------------------------------

TEST(PartiesDialogOfTheWindow, ComesUpBehindTheYesWithEverythingReadyForTheSecondPress) {
  UnknownCase fixture;
  Texts names;
  bool ready = false;
  fixture.dialogs.onParties = [&] {
    names = fixture.BoxTexts();
    const Window& state = fixture.state();
    ready = state.commands.bConferma && state.commands.cmdAzione.caption == "Conferma" &&
            state.commands.cmdAnnulla.enabled && state.choice.frameCliente.visible &&
            state.choice.frameUtenteCont.visible && state.partiesForm.open;
  };
  fixture.window.PressAzione();
  EXPECT_EQ(fixture.boxes.shown.size(), 1U);
  EXPECT_EQ(fixture.dialogs.shown, (Texts{"ShowParties"}));
  EXPECT_TRUE(ready);
  EXPECT_EQ(names, (Texts{"P******* S****", "F******** N***", "T********* A****** S.P.A.",
                          "Q********** F****"}));
  EXPECT_EQ(fixture.desktop.events, (Texts{"SetFocus txtAttore"}));
}

TEST(PartiesDialogOfTheWindow, DoesNotComeUpBehindANo) {
  UnknownCase fixture;
  fixture.boxes.answers = {BoxAnswer::kNo};
  fixture.window.PressAzione();
  EXPECT_TRUE(fixture.dialogs.shown.empty());
}

TEST(PartiesDialogOfTheWindow, OffersTheTypedNamesBehindTheMaskedOnes) {
  UnknownCase fixture;
  ASSERT_EQ(fixture.Clients(), kMasked);
  fixture.AgreeAndType();
  Texts all = kMasked;
  all.insert(all.end(), {"PELLEGRI SARA", "TRASPORTI ALFA S.P.A."});
  EXPECT_EQ(fixture.Clients(), all);
  EXPECT_EQ(fixture.state().choice.difensori.Item("CO4"), "QUADRELLI FOSCO");
  EXPECT_EQ(fixture.state().page.cDatiFasc.Item("ParteAttrice"),
            "PELLEGRI SARA rappresentato/a da FERRIGATI NORA");
  EXPECT_EQ(fixture.state().page.cDatiFasc.Item("ParteConvenuta"),
            "TRASPORTI ALFA S.P.A. rappresentato/a da QUADRELLI FOSCO");
}

TEST(PartiesDialogOfTheWindow, ClosedWithoutOkLeavesTheMaskedNamesAndThePendingCreate) {
  UnknownCase fixture;
  fixture.dialogs.onParties = [&] {
    fixture.TypeNames();
    fixture.window.dlgParti().Close();
  };
  fixture.window.PressAzione();
  EXPECT_EQ(fixture.Clients(), kMasked);
  EXPECT_EQ(fixture.state().page.cDatiFasc.Item("Attore"), "P******* S****");
  EXPECT_TRUE(fixture.state().commands.bConferma);
}

TEST(PartiesDialogOfTheWindow, ShowsTheTypedNamesAgainAfterACancel) {
  UnknownCase fixture;
  fixture.AgreeAndType();
  fixture.window.PressAnnulla();
  Texts names;
  fixture.dialogs.onParties = [&] { names = fixture.BoxTexts(); };
  fixture.window.PressAzione();
  EXPECT_EQ(names,
            (Texts{"PELLEGRI SARA", "FERRIGATI NORA", "TRASPORTI ALFA S.P.A.", "QUADRELLI FOSCO"}));
}

TEST(PartiesDialogOfTheWindow, HoldsNoLockOnTheDatabase) {
  UnknownCase fixture;
  fixture.dialogs.onParties = [&] {
    fixture.office.Do("UPDATE Pratica SET Oggetto = 'di un collega' WHERE ID_Pra = 6");
  };
  fixture.window.PressAzione();
  EXPECT_EQ(fixture.office.Row("SELECT Oggetto FROM Pratica WHERE ID_Pra = 6"), "di un collega");
}

TEST(PartiesDialogOfTheWindow, MakesAFurtherPageWaitUntilItIsClosed) {
  UnknownCase fixture;
  std::size_t beeps = 1;
  fixture.dialogs.onParties = [&] {
    fixture.Sample("giudice-di-pace-opposizione.txt");
    beeps = fixture.desktop.Count("Beep");
  };
  fixture.window.PressAzione();
  EXPECT_EQ(beeps, 0U);
  EXPECT_EQ(fixture.desktop.Count("Beep"), 1U);
  EXPECT_TRUE(fixture.state().commands.bConferma);
}

// --- a create -----------------------------------------------------------------------------------

TEST(JusticePageOfTheWindow, CreatesACaseWithTheTypedNames) {
  UnknownCase fixture;
  fixture.AgreeAndType();
  fixture.window.SelectParty(kBoxClient, 3);
  fixture.window.SelectParty(kBoxCounterpart, 4);
  fixture.window.SelectUtenteCont(1);
  fixture.window.PressAzione();
  EXPECT_EQ(fixture.window.ended(), EndReason::kDone);
  EXPECT_EQ(fixture.boxes.shown.back().text, "La pratica è stata creata.");
  EXPECT_EQ(fixture.office.Row("SELECT ID_Pra, Cognome || ' ' || Nome, ControCognome, AcpCognome, "
                               "ID_Contab, Sezione, Istruttore FROM Pratica JOIN Anagrafica ON "
                               "ID_Cliente = ID_Ana WHERE NumeroRegGenerale = '5230/2025'"),
            "11|PELLEGRI SARA|TRASPORTI ALFA S.P.A.|QUADRELLI FOSCO|3|NULL|Avv. Montanaresi Lidia");
  EXPECT_EQ(fixture.office.Row("SELECT ParteAttrice, ParteConvenuta FROM PraOrdex WHERE ID_PraRel "
                               "= 11"),
            "PELLEGRI SARA rappresentato/a da FERRIGATI NORA|TRASPORTI ALFA S.P.A. rappresentato/a "
            "da QUADRELLI FOSCO");
  EXPECT_EQ(fixture.office.Row("SELECT COUNT(*), MIN(Progressivo), MAX(Progressivo) FROM "
                               "EventiPraOrdex WHERE ID_PraRel = 11"),
            "5|1|5");
}

TEST(JusticePageOfTheWindow, ThatWasCreatedIsFoundByItsNumber) {
  UnknownCase first;
  first.AgreeAndType();
  first.window.SelectParty(kBoxClient, 3);
  first.window.SelectParty(kBoxCounterpart, 4);
  first.window.PressAzione();
  ASSERT_EQ(first.window.ended(), EndReason::kDone);
  MainWindow second(first.folder.path(),
                    {first.boxes, first.dialogs, first.desktop, first.clipboard, first.clock,
                     first.settings, first.office.diagnostics, first.progress,
                     [&](std::string_view) { return OpenSqlite(first.office.file()); }});
  second.Start("4712");
  EXPECT_EQ(second.state().choice.ctlTestata1.idPra, 11);
  EXPECT_EQ(second.state().commands.cmdAzione.caption, "Aggiorna");
}

}  // namespace
}  // namespace ordex::testing
