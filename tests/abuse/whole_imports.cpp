#include "abuse/whole_imports.h"

#include <algorithm>
#include <initializer_list>

#include "support/page_texts.h"

namespace ordex::testing {
namespace {

using Labels = std::vector<std::string>;

// All of `labels` but those named.
Labels Without(const Labels& labels, std::initializer_list<const char*> gone) {
  Labels rest;
  for (const std::string& label : labels) {
    if (std::find(gone.begin(), gone.end(), label) == gone.end()) rest.push_back(label);
  }
  return rest;
}

constexpr const char* kUpdated = "Pratica Praxion aggiornata";
constexpr const char* kCreated = "Pratica Praxion creata";
constexpr const char* kNotChosen = "Pratica Praxion non selezionata";

constexpr const char* kByNumber = "PREPARE Select ID_Pra from Pratica where NumeroRegGenerale";
constexpr const char* kShowCase = "PREPARE SELECT * FROM Pratica WHERE ID_Pra = ?";
constexpr const char* kUsers = "PREPARE Select ID_Utente, NomeUtente from Utenti";
constexpr const char* kOpenCase = "PREPARE SELECT * FROM Pratica WHERE Id_Pra = ";
constexpr const char* kPerson = "PREPARE SELECT * from Anagrafica where  LOWER(Cognome)";
constexpr const char* kProfile = "PREPARE SELECT * from PraOrdex where ID_PraRel = ";
constexpr const char* kCaseOfAgenda = "PREPARE SELECT * from Pratica inner join Utenti";
constexpr const char* kEvents = "PREPARE SELECT * from EventiPraOrdex where ID_PraRel = ";

// --- a profile page, its case found -------------------------------------------------------------

WholeImport ProfileUpdate() {
  WholeImport whole;
  whole.name = "ProfileUpdate";
  whole.script.page = SourceFile("samples/profilo-contratto.txt");
  whole.script.acts = [](MainWindow& window, FakeClipboard&) { window.PressAzione(); };
  whole.boxes = {kUpdated};
  const char* hearing = "agenda 2 UDIENZA";
  const char* witnesses = "agenda 2 Deposito della lista dei testimoni";
  const char* notes = "agenda 2 Note di trattazione dell'attore";
  const char* others = "agenda 2 Note di trattazione del convenuto e dei terzi chiamati";
  whole.written = {"case 2 of client 2", "profile of 2", hearing, witnesses, notes, others};
  const Labels& all = whole.written;
  whole.stretches = {
      {6, kByNumber, Ending::kReport, {}},  // the look-up, and the case read into the header
      {4, kShowCase, Ending::kReport, {}},  // the press reads it afresh
      {1, kOpenCase, Ending::kSilent, {}},
      {1, "BEGIN", Ending::kSilent, {}},
      {2, "FETCH SELECT * FROM Pratica WHERE Id_Pra = 2", Ending::kSilent, {}},
      // The profile's own handler gives its hearings and deadlines up too.
      {3, kProfile, Ending::kDone, {"case 2 of client 2"}},
      // Each hearing and each deadline is lost alone: case, its two parties, the look-up, the row.
      {9, kCaseOfAgenda, Ending::kDone, Without(all, {hearing})},
      {9, kCaseOfAgenda, Ending::kDone, Without(all, {witnesses})},
      {9, kCaseOfAgenda, Ending::kDone, Without(all, {notes})},
      {9, kCaseOfAgenda, Ending::kDone, Without(all, {others})},
      {1, "COMMIT", Ending::kSilent, {}},
  };
  return whole;
}

// --- a profile page, a case made for it ---------------------------------------------------------

void Create(MainWindow& window, FakeClipboard&) {
  window.PressAzione();
  window.SelectParty(kBoxClient, 0);
  window.SelectParty(kBoxCounterpart, 1);
  window.SelectUtenteCont(0);
  window.PressAzione();
}

WholeImport ProfileCreate() {
  WholeImport whole;
  whole.creates = true;
  whole.script.page = SourceFile("samples/profilo-lavoro.txt");
  whole.script.acts = Create;
  whole.boxes = {kNotChosen, kCreated};
  return whole;
}

WholeImport CreateWithLinkedPerson() {
  WholeImport whole = ProfileCreate();
  whole.name = "CreateWithLinkedPerson";
  whole.script.onPersonCard = [](MainWindow& window) { window.frmInfoAnagrafica().cmdSi_Click(); };
  const char* notes = "agenda 11 Deposito delle note conclusive";
  const char* sums = "agenda 11 Deposito dei conteggi aggiornati";
  whole.written = {"case 11 of client 4", "profile of 11", notes, sums};
  const Labels& all = whole.written;
  // Where the registry fails, client 0: then the agenda finds nobody's name, and writes no
  // deadline.
  const Labels nobody = {"case 11 of client 0", "profile of 11"};
  whole.stretches = {
      {2, kByNumber, Ending::kReport, {}},
      {2, kUsers, Ending::kReport, {}},
      {1, kOpenCase, Ending::kAskedAgain, {}},
      {2, kPerson, Ending::kDone, nobody, true},
      {1, "BEGIN", Ending::kAskedAgain, {}},
      {4, "PREPARE SELECT MAX(NumPos)", Ending::kAskedAgain, {}},
      {1, "INSERT Pratica (", Ending::kAskedAgain, {}},
      {3, kProfile, Ending::kDone, {"case 11 of client 4"}},
      {7, kCaseOfAgenda, Ending::kDone, Without(all, {notes})},
      {7, kCaseOfAgenda, Ending::kDone, Without(all, {sums})},
      {1, "COMMIT", Ending::kAskedAgain, {}},
  };
  return whole;
}

WholeImport CreateWithNewPerson() {
  WholeImport whole = ProfileCreate();
  whole.name = "CreateWithNewPerson";
  whole.script.onPersonCard = [](MainWindow& window) { window.frmInfoAnagrafica().cmdNo_Click(); };
  const char* person = "person 12 D'AMICO";
  const char* notes = "agenda 11 Deposito delle note conclusive";
  const char* sums = "agenda 11 Deposito dei conteggi aggiornati";
  whole.written = {person, "case 11 of client 12", "profile of 11", notes, sums};
  whole.ahead = {person};
  const Labels& all = whole.written;
  const Labels nobody = {"case 11 of client 0", "profile of 11"};
  whole.stretches = {
      {2, kByNumber, Ending::kReport, {}},
      {2, kUsers, Ending::kReport, {}},
      {1, kOpenCase, Ending::kAskedAgain, {}},
      {3, kPerson, Ending::kDone, nobody, true},
      {1, "BEGIN", Ending::kAskedAgain, whole.ahead},
      {4, "PREPARE SELECT MAX(NumPos)", Ending::kAskedAgain, whole.ahead},
      {1, "INSERT Pratica (", Ending::kAskedAgain, whole.ahead},
      {3, kProfile, Ending::kDone, {person, "case 11 of client 12"}},
      {7, kCaseOfAgenda, Ending::kDone, Without(all, {notes})},
      {7, kCaseOfAgenda, Ending::kDone, Without(all, {sums})},
      {1, "COMMIT", Ending::kAskedAgain, whole.ahead},
  };
  return whole;
}

// --- an agenda page -----------------------------------------------------------------------------

// Nothing traps an error of the agenda: it ends the program, and what was written before it stays.
WholeImport Agenda() {
  WholeImport whole;
  whole.name = "Agenda";
  whole.script.page =
      AgendaPage("633/2025", {"Scadenza | 10/03/2026 | Uno", "Udienza | 11/03/2026 09:00 | Due"}) +
      "Fascicolo | VERDI / NERI | 9/9999 presso Tribunale\nTipo | Quando | Impegno\n"
      "Scadenza | 12/03/2026 | Tre\n\n";
  whole.script.acts = [](MainWindow& window, FakeClipboard&) { window.PressAzione(); };
  whole.boxes = {"Operazione effettuata"};
  whole.written = {"agenda 6 Uno", "agenda 6 Due", "agenda 1 Tre"};
  const char* find = "PREPARE SELECT ID_Pra,ID_Cliente,ID_Contab,Utenti.NomeUtente";
  const char* entry = "PREPARE SELECT * from SCADENZE where  Data_End =#";
  whole.stretches = {
      {1, "BEGIN", Ending::kReport, {}},
      {2, find, Ending::kReport, {}},
      {3, entry, Ending::kReport, {}},
      {3, entry, Ending::kReport, {"agenda 6 Uno"}},
      {2, find, Ending::kReport, {"agenda 6 Uno", "agenda 6 Due"}},
      {3, entry, Ending::kReport, {"agenda 6 Uno", "agenda 6 Due"}},
      {1, "COMMIT", Ending::kReport, {}},
  };
  return whole;
}

// --- a history of three pages -------------------------------------------------------------------

WholeImport History() {
  WholeImport whole;
  whole.name = "HistoryOfThreePages";
  whole.script.page = HistoryPage("Pagina 1 di 3", {"1 10/01/2026 Uno", "2 11/01/2026 Due"});
  whole.script.acts = [](MainWindow& window, FakeClipboard& clipboard) {
    clipboard.text = HistoryPage("Pagina 2 di 3", {"3 12/01/2026 Tre"});
    window.Poke();
    clipboard.text = HistoryPage("Pagina 3 di 3", {"4 13/01/2026 Quattro"});
    window.Poke();
    window.ChooseCase(6);
    window.PressAzione();
  };
  whole.boxes = {kUpdated};
  whole.written = {"event 6/1", "event 6/2", "event 6/3", "event 6/4", "profile of 6"};
  const Labels& all = whole.written;
  const Labels events = Without(all, {"profile of 6"});
  whole.stretches = {
      {4, kShowCase, Ending::kReport, {}},
      {1, "BEGIN", Ending::kSilent, {}},
      {3, kEvents, Ending::kDone, Without(all, {"event 6/1"})},
      {3, kEvents, Ending::kDone, Without(all, {"event 6/2"})},
      {3, kEvents, Ending::kDone, Without(all, {"event 6/3"})},
      {3, kEvents, Ending::kDone, Without(all, {"event 6/4"})},
      // The page carries nothing for the case row, so that one is only read.
      {2, kOpenCase, Ending::kSilent, events},
      {3, kProfile, Ending::kDone, events},
      {1, "COMMIT", Ending::kSilent, {}},
  };
  return whole;
}

// --- a justice-of-the-peace page ----------------------------------------------------------------

// The events, each of which is lost alone: opening the table, adding the row.
void AppendEvents(WholeImport& whole, const std::string& idPra) {
  for (int number = 1; number <= 5; ++number) {
    const std::string event = "event " + idPra + "/" + std::to_string(number);
    whole.stretches.push_back({2, kEvents, Ending::kDone, Without(whole.written, {event.c_str()})});
  }
}

WholeImport JusticeCreate() {
  WholeImport whole;
  whole.name = "JusticeOfThePeaceCreate";
  whole.creates = true;
  whole.script.page = SourceFile("samples/giudice-di-pace-sinistro.txt");
  // Behind the two masked names and that of the third party stand those that the dialog adds.
  whole.script.acts = [](MainWindow& window, FakeClipboard&) {
    window.PressAzione();
    window.SelectParty(kBoxClient, 3);
    window.SelectParty(kBoxCounterpart, 4);
    window.SelectUtenteCont(0);
    window.PressAzione();
  };
  whole.script.onParties = [](MainWindow& window) {
    window.dlgParti().Type("txtAttore", "VERDI ANNA");
    window.dlgParti().Type("txtConvenuto", "ALTAMAREA S.P.A.");
    window.dlgParti().cmdOk_Click();
  };
  whole.boxes = {kNotChosen, kCreated};
  const char* person = "person 12 VERDI";
  const char* hearing = "agenda 11 UDIENZA";
  whole.ahead = {person};
  whole.written = {person,       "case 11 of client 12", "profile of 11", hearing,     "event 11/1",
                   "event 11/2", "event 11/3",           "event 11/4",    "event 11/5"};
  const Labels& all = whole.written;
  Labels nobody = Without(all, {person, "case 11 of client 12", hearing});
  nobody.push_back("case 11 of client 0");
  whole.stretches = {
      {2, kByNumber, Ending::kReport, {}},
      {2, kUsers, Ending::kReport, {}},
      {1, kOpenCase, Ending::kAskedAgain, {}},
      {3, kPerson, Ending::kDone, nobody, true},
      {1, "BEGIN", Ending::kAskedAgain, whole.ahead},
      {4, "PREPARE SELECT MAX(NumPos)", Ending::kAskedAgain, whole.ahead},
      {1, "INSERT Pratica (", Ending::kAskedAgain, whole.ahead},
      {3, kProfile, Ending::kDone, Without(all, {"profile of 11", hearing})},
      {7, kCaseOfAgenda, Ending::kDone, Without(all, {hearing})},
      // Deleting the old events is the case routine's own statement.
      {1,
       "EXECUTE Delete from EventiPraOrdex",
       Ending::kAskedAgain,
       {person, "case 11 of client 12", "profile of 11", hearing}},
  };
  AppendEvents(whole, "11");
  whole.stretches.push_back({1, "COMMIT", Ending::kAskedAgain, whole.ahead});
  return whole;
}

WholeImport JusticeUpdate() {
  WholeImport whole;
  whole.name = "JusticeOfThePeaceUpdate";
  whole.script.page = SourceFile("samples/giudice-di-pace-sinistro.txt");
  whole.script.acts = [](MainWindow& window, FakeClipboard&) {
    if (window.state().choice.ctlTestata1.idPra == 0) window.ChooseCase(6);
    window.PressAzione();
  };
  whole.boxes = {"Ordex", kUpdated};  // the case has another number: the question comes first
  const char* hearing = "agenda 6 UDIENZA";
  whole.written = {"case 6 of client 7", "profile of 6", hearing,     "event 6/1",
                   "event 6/2",          "event 6/3",    "event 6/4", "event 6/5"};
  const Labels& all = whole.written;
  whole.stretches = {
      {2, kByNumber, Ending::kReport, {}},
      {4, kShowCase, Ending::kReport, {}},
      {4, kShowCase, Ending::kReport, {}},
      {1, kOpenCase, Ending::kSilent, {}},
      {1, "BEGIN", Ending::kSilent, {}},
      {2, "FETCH SELECT * FROM Pratica WHERE Id_Pra = 6", Ending::kSilent, {}},
      {3, kProfile, Ending::kDone, Without(all, {"profile of 6", hearing})},
      {7, kCaseOfAgenda, Ending::kDone, Without(all, {hearing})},
      {1,
       "EXECUTE Delete from EventiPraOrdex",
       Ending::kSilent,
       {"case 6 of client 7", "profile of 6", hearing}},
  };
  AppendEvents(whole, "6");
  whole.stretches.push_back({1, "COMMIT", Ending::kSilent, {}});
  return whole;
}

}  // namespace

std::vector<WholeImport> WholeImports() {
  return {ProfileUpdate(), CreateWithLinkedPerson(), CreateWithNewPerson(), Agenda(),
          History(),       JusticeCreate(),          JusticeUpdate()};
}

}  // namespace ordex::testing
