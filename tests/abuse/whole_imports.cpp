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
  WholeImport import;
  import.name = "ProfileUpdate";
  import.script.page = SourceFile("samples/profilo-contratto.txt");
  import.script.acts = [](MainWindow & window, FakeClipboard&) { window.PressAzione();
};
import.boxes = {kUpdated};
const char* hearing = "agenda 2 UDIENZA";
const char* witnesses = "agenda 2 Deposito della lista dei testimoni";
const char* notes = "agenda 2 Note di trattazione dell'attore";
const char* others = "agenda 2 Note di trattazione del convenuto e dei terzi chiamati";
import.written = {"case 2 of client 2", "profile of 2", hearing, witnesses, notes, others};
const Labels& all = import.written;
import.stretches = {
    {6, kByNumber, Ending::kReport, {}},  // the look-up, and the case read into the header
    {4, kShowCase, Ending::kReport, {}},  // the press reads it afresh
    {1, kOpenCase, Ending::kSilent, {}},
    {1, "BEGIN", Ending::kSilent, {}},
    {2, "FETCH SELECT * FROM Pratica WHERE Id_Pra = 2", Ending::kSilent, {}},
    // The profile's own handler gives its hearings and deadlines up too.
    {3,
     kProfile,
     Ending::kDone,
     { "case 2 of client 2" }},
    // Each hearing and each deadline is lost alone: case, its two parties, the look-up, the row.
    {9, kCaseOfAgenda, Ending::kDone, Without(all, {hearing})},
    {9, kCaseOfAgenda, Ending::kDone, Without(all, {witnesses})},
    {9, kCaseOfAgenda, Ending::kDone, Without(all, {notes})},
    {9, kCaseOfAgenda, Ending::kDone, Without(all, {others})},
    {1, "COMMIT", Ending::kSilent, {}},
};
return import;
}  // namespace

// --- a profile page, a case made for it ---------------------------------------------------------

void Create(MainWindow& window, FakeClipboard&) {
  window.PressAzione();
  window.SelectParty(kBoxClient, 0);
  window.SelectParty(kBoxCounterpart, 1);
  window.SelectUtenteCont(0);
  window.PressAzione();
}

WholeImport ProfileCreate() {
  WholeImport import;
  import.creates = true;
  import.script.page = SourceFile("samples/profilo-lavoro.txt");
  import.script.acts = Create;
  import.boxes = {kNotChosen, kCreated};
  return import;
}

WholeImport CreateWithLinkedPerson() {
  WholeImport import = ProfileCreate();
  import.name = "CreateWithLinkedPerson";
  import.script.onPersonCard = [](MainWindow & window) { window.frmInfoAnagrafica().cmdSi_Click();
};
const char* notes = "agenda 11 Deposito delle note conclusive";
const char* sums = "agenda 11 Deposito dei conteggi aggiornati";
import.written = {"case 11 of client 4", "profile of 11", notes, sums};
const Labels& all = import.written;
// Where the registry fails, client 0: then the agenda finds nobody's name, and writes no deadline.
const Labels nobody = {"case 11 of client 0", "profile of 11"};
import.stretches = {
    {2, kByNumber, Ending::kReport, {}},
    {2, kUsers, Ending::kReport, {}},
    {1, kOpenCase, Ending::kAskedAgain, {}},
    {2, kPerson, Ending::kDone, nobody, true},
    {1, "BEGIN", Ending::kAskedAgain, {}},
    {4, "PREPARE SELECT MAX(NumPos)", Ending::kAskedAgain, {}},
    {1, "INSERT Pratica (", Ending::kAskedAgain, {}},
    {3,
     kProfile,
     Ending::kDone,
     { "case 11 of client 4" }},
    {7, kCaseOfAgenda, Ending::kDone, Without(all, {notes})},
    {7, kCaseOfAgenda, Ending::kDone, Without(all, {sums})},
    {1, "COMMIT", Ending::kAskedAgain, {}},
};
return import;
}  // namespace ordex::testing

WholeImport CreateWithNewPerson() {
  WholeImport import = ProfileCreate();
  import.name = "CreateWithNewPerson";
  import.script.onPersonCard = [](MainWindow & window) { window.frmInfoAnagrafica().cmdNo_Click();
};
const char* person = "person 12 D'AMICO";
const char* notes = "agenda 11 Deposito delle note conclusive";
const char* sums = "agenda 11 Deposito dei conteggi aggiornati";
import.written = {person, "case 11 of client 12", "profile of 11", notes, sums};
import.ahead = {person};
const Labels& all = import.written;
const Labels nobody = {"case 11 of client 0", "profile of 11"};
import.stretches = {
    {2, kByNumber, Ending::kReport, {}},
    {2, kUsers, Ending::kReport, {}},
    {1, kOpenCase, Ending::kAskedAgain, {}},
    {3, kPerson, Ending::kDone, nobody, true},
    {1, "BEGIN", Ending::kAskedAgain, import.ahead},
    {4, "PREPARE SELECT MAX(NumPos)", Ending::kAskedAgain, import.ahead},
    {1, "INSERT Pratica (", Ending::kAskedAgain, import.ahead},
    {3,
     kProfile,
     Ending::kDone,
     { person,
       "case 11 of client 12" }},
    {7, kCaseOfAgenda, Ending::kDone, Without(all, {notes})},
    {7, kCaseOfAgenda, Ending::kDone, Without(all, {sums})},
    {1, "COMMIT", Ending::kAskedAgain, import.ahead},
};
return import;
}

// --- an agenda page -----------------------------------------------------------------------------

// Nothing traps an error of the agenda: it ends the program, and what was written before it stays.
WholeImport Agenda() {
  WholeImport import;
  import.name = "Agenda";
  import.script.page =
      AgendaPage("633/2025", {"Scadenza | 10/03/2026 | Uno", "Udienza | 11/03/2026 09:00 | Due"}) +
      "Fascicolo | VERDI / NERI | 9/9999 presso Tribunale\nTipo | Quando | Impegno\n"
      "Scadenza | 12/03/2026 | Tre\n\n";
  import.script.acts = [](MainWindow & window, FakeClipboard&) { window.PressAzione();
};
import.boxes = {"Operazione effettuata"};
import.written = {"agenda 6 Uno", "agenda 6 Due", "agenda 1 Tre"};
const char* find = "PREPARE SELECT ID_Pra,ID_Cliente,ID_Contab,Utenti.NomeUtente";
const char* entry = "PREPARE SELECT * from SCADENZE where  Data_End =#";
import.stretches = {
    {1, "BEGIN", Ending::kReport, {}},
    {2, find, Ending::kReport, {}},
    {3, entry, Ending::kReport, {}},
    {3,
     entry,
     Ending::kReport,
     { "agenda 6 Uno" }},
    {2,
     find,
     Ending::kReport,
     { "agenda 6 Uno",
       "agenda 6 Due" }},
    {3,
     entry,
     Ending::kReport,
     { "agenda 6 Uno",
       "agenda 6 Due" }},
    {1, "COMMIT", Ending::kReport, {}},
};
return import;
}

// --- a history of three pages -------------------------------------------------------------------

WholeImport History() {
  WholeImport import;
  import.name = "HistoryOfThreePages";
  import.script.page = HistoryPage("Pagina 1 di 3", {"1 10/01/2026 Uno", "2 11/01/2026 Due"});
  import.script.acts = [](MainWindow & window, FakeClipboard & clipboard) {
    clipboard.text = HistoryPage("Pagina 2 di 3", {"3 12/01/2026 Tre"});
  window.Poke();
  clipboard.text = HistoryPage("Pagina 3 di 3", {"4 13/01/2026 Quattro"});
  window.Poke();
  window.ChooseCase(6);
  window.PressAzione();
};
import.boxes = {kUpdated};
import.written = {"event 6/1", "event 6/2", "event 6/3", "event 6/4", "profile of 6"};
const Labels& all = import.written;
const Labels events = Without(all, {"profile of 6"});
import.stretches = {
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
return import;
}

// --- a justice-of-the-peace page ----------------------------------------------------------------

// The events, each of which is lost alone: opening the table, adding the row.
void AppendEvents(WholeImport& import, const std::string& idPra) {
  for (int number = 1; number <= 5; ++number) {
    const std::string event = "event " + idPra + "/" + std::to_string(number);
    import.stretches.push_back(
        {2, kEvents, Ending::kDone, Without(import.written, {event.c_str()})});
  }
}

WholeImport JusticeCreate() {
  WholeImport import;
  import.name = "JusticeOfThePeaceCreate";
  import.creates = true;
  import.script.page = SourceFile("samples/giudice-di-pace-sinistro.txt");
  // Behind the two masked names and that of the third party stand those that the dialog adds.
  import.script.acts = [](MainWindow & window, FakeClipboard&) { window.PressAzione();
  window.SelectParty(kBoxClient, 3);
  window.SelectParty(kBoxCounterpart, 4);
  window.SelectUtenteCont(0);
  window.PressAzione();
};
import.script.onParties = [](MainWindow & window) {
  window.dlgParti().Type("txtAttore", "VERDI ANNA");
window.dlgParti().Type("txtConvenuto", "ALTAMAREA S.P.A.");
window.dlgParti().cmdOk_Click();
}
;
import.boxes = {kNotChosen, kCreated};
const char* person = "person 12 VERDI";
const char* hearing = "agenda 11 UDIENZA";
import.ahead = {person};
import.written = {person,       "case 11 of client 12", "profile of 11", hearing,     "event 11/1",
                  "event 11/2", "event 11/3",           "event 11/4",    "event 11/5"};
const Labels& all = import.written;
Labels nobody = Without(all, {person, "case 11 of client 12", hearing});
nobody.push_back("case 11 of client 0");
import.stretches = {
    {2, kByNumber, Ending::kReport, {}},
    {2, kUsers, Ending::kReport, {}},
    {1, kOpenCase, Ending::kAskedAgain, {}},
    {3, kPerson, Ending::kDone, nobody, true},
    {1, "BEGIN", Ending::kAskedAgain, import.ahead},
    {4, "PREPARE SELECT MAX(NumPos)", Ending::kAskedAgain, import.ahead},
    {1, "INSERT Pratica (", Ending::kAskedAgain, import.ahead},
    {3, kProfile, Ending::kDone, Without(all, {"profile of 11", hearing})},
    {7, kCaseOfAgenda, Ending::kDone, Without(all, {hearing})},
    // Deleting the old events is the case routine's own statement.
    {1,
     "EXECUTE Delete from EventiPraOrdex",
     Ending::kAskedAgain,
     { person,
       "case 11 of client 12",
       "profile of 11",
       hearing }},
};
AppendEvents(import, "11");
import.stretches.push_back({1, "COMMIT", Ending::kAskedAgain, import.ahead});
return import;
}

WholeImport JusticeUpdate() {
  WholeImport import;
  import.name = "JusticeOfThePeaceUpdate";
  import.script.page = SourceFile("samples/giudice-di-pace-sinistro.txt");
  import.script.acts = [](MainWindow & window, FakeClipboard&) {
    if (window.state().choice.ctlTestata1.idPra == 0) window.ChooseCase(6);
  window.PressAzione();
};
import.boxes = {"Ordex", kUpdated};  // the case has another number: the question comes first
const char* hearing = "agenda 6 UDIENZA";
import.written = {"case 6 of client 7", "profile of 6", hearing,     "event 6/1",
                  "event 6/2",          "event 6/3",    "event 6/4", "event 6/5"};
const Labels& all = import.written;
import.stretches = {
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
     { "case 6 of client 7",
       "profile of 6",
       hearing }},
};
AppendEvents(import, "6");
import.stretches.push_back({1, "COMMIT", Ending::kSilent, {}});
return import;
}

}  // namespace

std::vector<WholeImport> WholeImports() {
  return {ProfileUpdate(), CreateWithLinkedPerson(), CreateWithNewPerson(), Agenda(),
          History(),       JusticeCreate(),          JusticeUpdate()};
}

}  // namespace ordex::testing
