#include "ui/console/session.h"

#include <algorithm>
#include <iostream>
#include <utility>

#include "base/error.h"
#include "base/number.h"
#include "base/path_text.h"
#include "base/text.h"
#include "base/text_file.h"
#include "store/db/open_connection.h"
#include "ui/console/text_events.h"

namespace ordex::console {
namespace {

// The console has no screen of its own; a usual one stands in (1920 by 1080 at 96 dots per inch).
constexpr ScreenSize kScreen = {28800, 16200};

std::optional<std::int32_t> Number(std::string_view text) {
  try {
    return ToInt32(text);
  } catch (const RunTimeError&) {
    return std::nullopt;
  }
}

// A number between `least` and `most`.
std::optional<int> NumberWithin(std::string_view text, std::int64_t least, std::int64_t most) {
  const auto number = Number(text);
  if (!number || *number < least || *number > most) return std::nullopt;
  return *number;
}

// How often long work is told of, in rows.
constexpr std::size_t kProgressStep = 1000;

bool IsOneOf(std::string_view word, std::initializer_list<std::string_view> words) {
  return std::find(words.begin(), words.end(), word) != words.end();
}

ControlTexts TextsOf(const PersonCard& card) {
  return {{"caption", card.caption},       {"lblInfo", card.lblInfo},
          {"Label1", card.Label1},         {"lblInfo2", card.lblInfo2},
          {"lblDomanda", card.lblDomanda}, {"cmdSi", card.cmdSi.caption},
          {"cmdNo", card.cmdNo.caption}};
}

ControlTexts TextsOf(const PartiesForm& form) {
  ControlTexts texts = {{"caption", form.caption},
                        {"lblTitolo", form.lblTitolo},
                        {"frameAttore", form.frameAttore},
                        {"lblAttore", form.lblAttore},
                        {"lblAttoreDifensore", form.lblAttoreDifensore},
                        {"frameConvenuto", form.frameConvenuto},
                        {"lblConvenuto", form.lblConvenuto},
                        {"lblConvenutoDifensore", form.lblConvenutoDifensore},
                        {"cmdOk", form.cmdOk.caption}};
  for (std::size_t i = 0; i < kPartyBoxes; ++i) {
    texts.emplace_back(PartiesDialog::NameOf(static_cast<PartyBox>(i)), form.boxes[i].text);
  }
  return texts;
}

}  // namespace

Session::Session(const SessionSetup& setup, CommandSource& commands, Events& events)
    : commands_(commands),
      events_(events),
      clipboard_(setup.clipboard),
      tellSql_(setup.tellSql),
      window_(setup.programFolder,
              {.boxes = *this,
               .dialogs = *this,
               .desktop = *this,
               .clipboard = setup.clipboard,
               .clock = setup.clock,
               .settings = setup.settings,
               .diagnostics = *this,
               .progress = *this,
               .openDatabase = [folder = setup.programFolder](std::string_view connectionString) {
                 return OpenConnection(connectionString, folder);
               }}) {}

SessionEnd Session::Run() {
  bool scriptError = false;
  try {
    // The console takes no part in the test for a single instance.
    window_.Start("0");
    if (!window_.ended()) events_.State(State());
    RunCommands();
  } catch (const Misfit& misfit) {
    std::cerr << "Riga " << misfit.line << " dei comandi: \"" << misfit.text
              << "\" qui non si può eseguire. La finestra viene chiusa.\n";
    scriptError = true;
  }
  if (!window_.ended()) window_.Close();
  const EndReason reason = *window_.ended();
  events_.End(reason);
  return {reason, scriptError};
}

void Session::RunCommands() {
  while (!window_.ended()) {
    const auto command = commands_.Next();
    if (!command) return;
    Carry(*command, [this](const Command& one) { return ActOnWindow(one); });
    const bool changes = command->verb == "click" || command->verb == "select" ||
                         command->verb == "choose" || command->verb == "poke";
    if (!commands_.Interactive() || window_.ended()) continue;
    if (changes) events_.Brief(State());
    if (command->verb == "column") events_.State(State());
  }
}

void Session::Carry(const Command& command, const std::function<bool(const Command&)>& act) {
  const std::string line = command.verb + " " + command.rest;
  const std::string_view text = Trim(line);
  if (!commands_.Interactive()) events_.Command(text);
  if (ActAnywhere(command) || act(command)) return;
  if (!commands_.Interactive()) throw Misfit{command.line, std::string(text)};
  if (!text.empty()) {
    std::cerr << "\"" << text << "\" qui non si può eseguire. \"aiuto\" elenca i comandi.\n";
  }
}

bool Session::ActAnywhere(const Command& command) {
  if (command.verb == "state") {
    events_.State(State());
  } else if (command.verb == "clipboard") {
    return PutOnClipboard(command.rest);
  } else if (command.verb == "poke") {
    Poke();
  } else if (commands_.Interactive() && IsOneOf(command.verb, {"aiuto", "help", "?"})) {
    std::cout << HelpText() << std::flush;
  } else {
    return false;
  }
  return true;
}

bool Session::ActOnWindow(const Command& command) {
  const std::string_view verb = command.verb;
  if (verb == "click") return Click(Trim(command.rest));
  if (verb == "select") return Select(command.rest);
  if (verb == "choose") return ChooseCase(command.rest);
  if (verb == "person") return ClickPerson(command.rest);
  if (verb == "column") return ClickColumn(command.rest);
  if (verb == "row") return ClickRow(command.rest);
  if (verb == "find") {
    if (!State().choice.ctlTestata1.visible) return false;
    window_.FindCases(command.rest);
    if (!window_.ended()) events_.Found(State().choice.ctlTestata1.found);
    return true;
  }
  if (verb == "close") {
    window_.Close();
    return true;
  }
  return false;
}

bool Session::Click(std::string_view name) {
  const Commands& controls = State().commands;
  if (name == "cmdAzione" && controls.cmdAzione.enabled) {
    window_.PressAzione();
  } else if (name == "cmdAnnulla" && controls.cmdAnnulla.enabled) {
    window_.PressAnnulla();
  } else if (name == "cmdPulisci" && controls.cmdPulisci.visible) {
    window_.PressPulisci();
  } else if (name == "cmdNo") {
    window_.PressNo();
  } else if (name == "chkDettagli") {
    window_.ToggleDettagli();
  } else {
    return false;
  }
  return true;
}

bool Session::Select(std::string_view rest) {
  const auto words = Split(Trim(rest), " ");
  if (words.size() == 3 && words[0] == "cmbParti") return SelectParty(words[1], words[2]);
  if (words.size() != 2 || words[0] != "cmbUtenteCont") return false;
  const CaseChoice& choice = State().choice;
  const auto place = NumberWithin(words[1], 0, std::ssize(choice.cmbUtenteCont.items) - 1);
  if (!place || !choice.frameUtenteCont.visible) return false;
  window_.SelectUtenteCont(*place);
  return true;
}

bool Session::SelectParty(std::string_view box, std::string_view place) {
  const CaseChoice& choice = State().choice;
  const auto which = NumberWithin(box, 0, std::ssize(choice.cmbParti) - 1);
  if (!which || !choice.frameCliente.visible) return false;
  const auto index = static_cast<std::size_t>(*which);
  const auto entry =
      NumberWithin(place, ComboBox::kNoChoice, std::ssize(choice.cmbParti[index].items) - 1);
  if (!entry) return false;
  window_.SelectParty(index, *entry);
  return true;
}

bool Session::ChooseCase(std::string_view id) {
  const auto idPra = Number(id);
  if (!idPra || !State().choice.ctlTestata1.visible) return false;
  // Where looking the case up ended the program, the command did fit.
  return window_.ChooseCase(*idPra) || window_.ended();
}

bool Session::ClickPerson(std::string_view id) {
  const CaseHeader& header = State().choice.ctlTestata1;
  const auto idAna = Number(id);
  const bool shown = idAna && *idAna != 0 && header.visible &&
                     (header.cliente.idAna == *idAna || header.controparte.idAna == *idAna);
  return shown && (window_.ClickPerson(*idAna) || window_.ended());
}

bool Session::ClickColumn(std::string_view number) {
  const ReviewList& list = State().lstImport;
  const bool review = list.visible;
  const std::ptrdiff_t count =
      review ? std::ssize(list.columns) : std::ssize(State().lstAgendaAvv.columns);
  const auto column = NumberWithin(number, 1, count);
  if (!column) return false;
  if (review && list.columns[static_cast<std::size_t>(*column - 1)].width == 0) return false;
  window_.ClickColumn(*column);
  return true;
}

bool Session::ClickRow(std::string_view number) {
  const std::ptrdiff_t count = State().lstImport.visible
                                   ? static_cast<std::ptrdiff_t>(State().lstImport.rows.size())
                                   : std::ssize(State().lstAgendaAvv.rows);
  const auto row = NumberWithin(number, 1, count);
  if (!row) return false;
  window_.ClickRow(static_cast<std::size_t>(*row));
  events_.ToolTip(State().lstImport.visible ? State().lstImport.toolTip
                                            : State().lstAgendaAvv.toolTip);
  return true;
}

bool Session::PutOnClipboard(const std::string& file) {
  try {
    clipboard_.SetText(ReadTextFile(PathOf(file)));
    return true;
  } catch (const RunTimeError& error) {
    std::cerr << error.description() << "\n";
    // A person has been told and may try again; a script goes wrong here.
    return commands_.Interactive();
  }
}

// The signal, then the raising of this window, as a second start does them.
void Session::Poke() {
  window_.Poke();
  if (!window_.ended()) events_.Raise();
}

// --- boxes and dialogs ------------------------------------------------------------------------

BoxAnswer Session::Show(const BoxText& box) {
  std::optional<BoxAnswer> answer;
  events_.BoxUp(box);
  if (dying_) answer = BoxAnswer::kOk;
  while (!answer) {
    const auto command = commands_.Next();
    if (!command) {
      answer = box.buttons == BoxButtons::kOk ? BoxAnswer::kOk : BoxAnswer::kNo;
      break;
    }
    Carry(*command, [&](const Command& one) { return AnswerBox(one, box, answer); });
  }
  events_.Message(box, *answer);
  return *answer;
}

bool Session::AnswerBox(const Command& command, const BoxText& box,
                        std::optional<BoxAnswer>& answer) {
  const std::string_view verb = command.verb;
  // To a person the Return key is the default button, and Italian words will do.
  const bool person = commands_.Interactive();
  if (box.buttons == BoxButtons::kOk) {
    if (IsOneOf(verb, {"ok", "close"}) || (person && verb.empty())) answer = BoxAnswer::kOk;
  } else if (verb == "yes" || (person && IsOneOf(verb, {"", "s", "si", "sì", "y"}))) {
    answer = BoxAnswer::kYes;
  } else if (verb == "no" || (person && verb == "n")) {
    answer = BoxAnswer::kNo;
  }
  return answer.has_value();
}

void Session::ShowPersonCard() {
  const PersonCard& card = State().personCard;
  events_.Dialog("frmInfoAnagrafica", true, TextsOf(card));
  while (card.open) {
    const auto command = commands_.Next();
    if (!command) {
      window_.frmInfoAnagrafica().Close();
      break;
    }
    Carry(*command, [this](const Command& one) { return ActOnPersonCard(one); });
  }
  events_.Dialog("frmInfoAnagrafica", false, TextsOf(card));
}

bool Session::ActOnPersonCard(const Command& command) {
  PersonDialog& dialog = window_.frmInfoAnagrafica();
  const std::string_view control = Trim(command.rest);
  if (command.verb == "close") {
    dialog.Close();
    return true;
  }
  if (command.verb != "click") return false;
  if (control == "cmdSi") {
    dialog.cmdSi_Click();
  } else if (control == "cmdNo") {
    dialog.cmdNo_Click();
  } else if (control == "lblInfo2") {
    dialog.lblInfo2_Click();
  } else {
    return false;
  }
  return true;
}

void Session::ShowParties() {
  const PartiesForm& form = State().partiesForm;
  events_.Dialog("dlgParti", true, TextsOf(form));
  while (form.open) {
    const auto command = commands_.Next();
    if (!command) {
      window_.dlgParti().Close();
      break;
    }
    Carry(*command, [this](const Command& one) { return ActOnParties(one); });
  }
  events_.Dialog("dlgParti", false, TextsOf(form));
}

bool Session::ActOnParties(const Command& command) {
  PartiesDialog& dialog = window_.dlgParti();
  if (command.verb == "close") {
    dialog.Close();
  } else if (command.verb == "click" && Trim(command.rest) == "cmdOk") {
    dialog.cmdOk_Click();
  } else if (command.verb == "type") {
    const auto halves = SplitOnce(command.rest, " ");
    return halves ? dialog.Type(halves->left, halves->right) : dialog.Type(command.rest, "");
  } else {
    return false;
  }
  return true;
}

// --- the desktop ------------------------------------------------------------------------------

bool Session::Open(const std::string& link) {
  events_.Open(link);
  return true;
}

ScreenSize Session::Screen() const {
  return kScreen;
}

void Session::DebugszSql(std::string_view szSql) {
  if (tellSql_) events_.Sql(szSql);
}

void Session::Trapped(std::string_view routine, const RunTimeError& error) {
  if (tellSql_) events_.Trapped(routine, error.description());
}

void Session::Failed(const RunTimeError& error, std::optional<std::size_t> line) {
  events_.Error(error, line);
  dying_ = dying_ || !line;
}

void Session::Advance(std::size_t done, std::size_t total) {
  if (done % kProgressStep == 0) events_.Progress(done, total);
}

}  // namespace ordex::console
