#include "ui/console/text_events.h"

#include <algorithm>
#include <string>

#include "base/text.h"
#include "ui/console/table.h"
#include "ui/console/terminal.h"

namespace ordex::console {
namespace {

constexpr std::size_t kLabelWidth = 14;
constexpr std::size_t kBoxNameWidth = 24;

// "Stato         Trovata una sola pratica …"
void PrintLine(std::ostream& out, std::string_view label, std::string_view value) {
  if (value.empty()) return;
  out << Fitted(label, kLabelWidth) << Printable(value) << "\n";
}

std::string WithoutMnemonic(std::string_view caption) {
  return ReplaceAll(caption, "&", "");
}

// "[Aggiorna]", or "(Annulla)" where it cannot be pressed.
std::string Drawn(const Button& button) {
  const std::string caption = WithoutMnemonic(button.caption);
  return button.enabled ? "[" + caption + "]" : "(" + caption + ")";
}

std::string Drawn(const ComboBox& box) {
  std::string text;
  for (std::size_t i = 0; i < box.items.size(); ++i) {
    const bool chosen = box.index == static_cast<int>(i);
    text.append(i == 0 ? "" : "\n" + std::string(kLabelWidth, ' '))
        .append(chosen ? "● " : "○ ")
        .append(std::to_string(i) + "  " + box.items[i].text);
  }
  return text;
}

// The persons of the case, with the numbers by which the command "person" shows them.
std::string Drawn(const PersonLink& person) {
  if (person.idAna == 0) return person.name;
  return person.name + " (persona " + std::to_string(person.idAna) + ")";
}

void PrintCase(std::ostream& out, const CaseHeader& header) {
  if (!header.visible) return;
  PrintLine(out, "Pratica", header.idPra == 0 ? "nessuna" : header.title);
  PrintLine(out, "Cliente", Drawn(header.cliente));
  PrintLine(out, "Controparte", Drawn(header.controparte));
  PrintLine(out, "Oggetto", header.descriptions[0]);
  PrintLine(out, "Sezione", header.descriptions[1]);
  if (header.penale) PrintLine(out, "", "PRATICA PENALE");
}

void PrintChoice(std::ostream& out, const CaseChoice& choice) {
  if (choice.frameCliente.visible) {
    PrintLine(out, "Cliente ?", Drawn(choice.cmbParti[kBoxClient]));
    PrintLine(out, "Controparte ?", Drawn(choice.cmbParti[kBoxCounterpart]));
  }
  if (choice.frameUtenteCont.visible) {
    PrintLine(out, "Contabilità ?", Drawn(choice.cmbUtenteCont));
  }
}

Table ReviewTable(const ReviewList& list) {
  Table table;
  std::vector<std::size_t> shown;
  for (std::size_t i = 0; i < list.columns.size(); ++i) {
    if (list.columns[i].width > 0) shown.push_back(i);
  }
  table.headers.emplace_back("#");
  for (const std::size_t column : shown) table.headers.push_back(list.columns[column].header);
  for (std::size_t place = 0; place < list.order.size(); ++place) {
    const ReviewRow row = list.rows[list.order[place]];
    std::vector<std::string> cells = {std::to_string(place + 1)};
    for (const std::size_t column : shown) {
      cells.emplace_back(column == 0 ? row.text : row.sub[column - 1]);
    }
    table.rows.push_back(std::move(cells));
  }
  return table;
}

Table AgendaTable(const AgendaList& list) {
  Table table;
  table.headers = {"#", list.columns[0].header, list.columns[1].header};
  for (std::size_t i = 0; i < list.rows.size(); ++i) {
    const AgendaRow row = list.rows[i];
    table.rows.push_back({std::to_string(i + 1), std::string(row.text), std::string(row.sub)});
  }
  return table;
}

// The boxes by the names that the command "type" knows.
void PrintParties(std::ostream& out, const ControlTexts& texts) {
  out << "\n";
  for (const auto& [control, text] : texts) {
    if (control == "caption") out << "── " << text << " ──\n";
    if (control == "lblTitolo") out << text << "\n\n";
    if (control.starts_with("txt")) {
      out << Fitted(control, kBoxNameWidth) << Printable(text) << "\n";
    }
  }
  out << "[OK: click cmdOk]" << std::endl;
}

std::string_view Ending(EndReason reason) {
  switch (reason) {
    case EndReason::kClosed:
      return "La finestra è stata chiusa.";
    case EndReason::kDone:
      return "Operazione completata.";
    case EndReason::kFailed:
      return "L'aggiornamento non è riuscito: controllare la pratica in Praxion.";
    case EndReason::kRefused:
      return "La pagina non è stata riconosciuta.";
    case EndReason::kError:
      return "Il programma è terminato per un errore.";
  }
  return "";
}

}  // namespace

void TextEvents::Command(std::string_view text) {
  out_ << "> " << text << std::endl;
}

void TextEvents::State(const Window& window) {
  out_ << "\n" << window.frmMain.caption << "\n\n";
  const Table table =
      window.lstImport.visible ? ReviewTable(window.lstImport) : AgendaTable(window.lstAgendaAvv);
  if (!table.rows.empty()) out_ << Drawn(table, TerminalWidth()) << "\n";
  Brief(window);
}

void TextEvents::Brief(const Window& window) {
  const Commands& commands = window.commands;
  PrintCase(out_, window.choice.ctlTestata1);
  PrintChoice(out_, window.choice);
  PrintLine(
      out_, "Comandi",
      Drawn(commands.cmdAzione) + " " + Drawn(commands.cmdAnnulla) + " " + Drawn(commands.cmdNo));
  PrintLine(out_, "Stato", window.status.text);
  out_ << std::flush;
}

void TextEvents::BoxUp(const BoxText& box) {
  out_ << "\n── " << box.title << " ──\n"
       << Printable(box.text) << "\n"
       << (box.buttons == BoxButtons::kOk ? "[OK]" : "[Sì] [No]") << std::endl;
}

void TextEvents::Message(const BoxText& box, BoxAnswer answer) {
  if (box.buttons == BoxButtons::kOk) return;
  out_ << "Risposta: " << (answer == BoxAnswer::kYes ? "Sì" : "No") << std::endl;
}

void TextEvents::Dialog(std::string_view name, bool open, const ControlTexts& texts) {
  if (!open) return;
  if (name == "dlgParti") {
    PrintParties(out_, texts);
    return;
  }
  const auto text = [&texts](std::string_view control) {
    const auto found = std::find_if(texts.begin(), texts.end(),
                                    [&](const auto& pair) { return pair.first == control; });
    return found == texts.end() ? std::string{} : Printable(found->second);
  };
  out_ << "\n── " << Trim(text("caption")) << " ──\n" << text("lblInfo") << "\n";
  if (!text("lblInfo2").empty()) out_ << text("Label1") << text("lblInfo2") << "\n";
  if (!text("lblDomanda").empty()) {
    out_ << "\n" << text("lblDomanda") << "\n[Sì: click cmdSi] [No: click cmdNo]\n";
  }
  out_ << std::flush;
}

void TextEvents::Found(const std::vector<FoundCase>& cases) {
  if (cases.empty()) {
    out_ << "Nessuna pratica trovata." << std::endl;
    return;
  }
  Table table;
  table.headers = {"ID_Pra", "N. R.G.", "Pratica"};
  for (const FoundCase& found : cases) {
    table.rows.push_back({std::to_string(found.idPra), found.numeroRG, found.title});
  }
  out_ << Drawn(table, TerminalWidth()) << std::flush;
}

void TextEvents::Sql(std::string_view text) {
  out_ << "SQL: " << Printable(text) << std::endl;
}

void TextEvents::Trapped(std::string_view routine, std::string_view text) {
  out_ << "Errore assorbito in " << routine << ": " << Printable(text) << std::endl;
}

// The box that follows says it all.
void TextEvents::Error(const RunTimeError&, std::optional<std::size_t>) {}

void TextEvents::Beep() {
  out_ << "\aSegnale acustico." << std::endl;
}

void TextEvents::Raise() {
  out_ << "La finestra viene in primo piano." << std::endl;
}

void TextEvents::Focus(std::string_view) {}

void TextEvents::ToolTip(std::string_view text) {
  if (!text.empty()) out_ << Printable(text) << std::endl;
}

void TextEvents::Open(std::string_view link) {
  out_ << "Apertura di " << Printable(link) << std::endl;
}

void TextEvents::Progress(std::size_t done, std::size_t total) {
  out_ << "Righe registrate: " << done << " di " << total << std::endl;
}

void TextEvents::End(EndReason reason) {
  out_ << Ending(reason) << std::endl;
}

std::string_view HelpText() {
  return "click cmdAzione        il pulsante principale (Aggiorna, Crea, Conferma)\n"
         "click cmdAnnulla       annulla la creazione in corso\n"
         "click cmdPulisci       pulisce i campi della pratica\n"
         "click chkDettagli      mostra o nasconde i dettagli\n"
         "select cmbParti 0 N    sceglie il cliente (voce N, da 0)\n"
         "select cmbParti 1 N    sceglie la controparte\n"
         "select cmbUtenteCont N sceglie il titolare della contabilità\n"
         "find TESTO             cerca una pratica per numero, parte od oggetto\n"
         "choose ID              sceglie la pratica con quell'ID_Pra\n"
         "person ID              mostra la persona con quell'ID_Ana\n"
         "column N               ordina l'elenco secondo la colonna N\n"
         "row N                  mostra per intero il valore della riga N\n"
         "yes, no, ok            risponde al messaggio (Invio: la risposta predefinita)\n"
         "click cmdSi, cmdNo     risponde nella scheda della persona\n"
         "type CASELLA TESTO     scrive un nome nella finestra delle parti (txtAttore ...)\n"
         "click cmdOk            conferma la finestra delle parti\n"
         "clipboard FILE         mette il testo del file negli appunti\n"
         "poke                   importa la pagina che sta negli appunti\n"
         "state                  mostra di nuovo la finestra\n"
         "close                  chiude\n";
}

}  // namespace ordex::console
