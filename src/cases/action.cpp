#include "cases/action.h"

#include <algorithm>
#include <string>

#include "cases/agenda_action.h"
#include "cases/case_choice_rules.h"

namespace ordex {
namespace {

BoxText Information(std::string text, std::string title) {
  return {std::move(text), std::move(title), BoxIcon::kInformation, BoxButtons::kOk};
}

BoxText Question(std::string text, std::string title) {
  return {std::move(text), std::move(title), BoxIcon::kQuestion, BoxButtons::kYesNo};
}

// The header counts as showing no case also when it shows one without a single text.
bool ShowsNoCase(const CaseHeader& header) {
  return header.idPra == 0 || (header.title.empty() && header.numeroRG.empty() &&
                               std::all_of(header.descriptions.begin(), header.descriptions.end(),
                                           [](const std::string& text) { return text.empty(); }));
}

bool PartyMissing(const CaseChoice& choice) {
  return std::any_of(choice.cmbParti.begin(), choice.cmbParti.end(),
                     [](const ComboBox& box) { return box.Text().empty(); });
}

// The press that confirms a pending create. Where the create fails no message is shown, and the
// caller goes on as if nothing had been pressed.
enum class Confirmed { kIncomplete, kCreated, kFailed };

Confirmed CreateCase(const ActionTask& task) {
  if (PartyMissing(task.choice)) {
    task.boxes.Show(Information("Selezionare Cliente e Controparte.", "Attenzione"));
    return Confirmed::kIncomplete;
  }
  if (!task.RegistraPratica(0)) return Confirmed::kFailed;
  task.boxes.Show(Information("La pratica è stata creata.", "Pratica Praxion creata"));
  task.commands.bConferma = false;
  task.commands.cmdAnnulla.enabled = false;
  return Confirmed::kCreated;
}

void OfferCreate(const ActionTask& task) {
  const BoxAnswer answer = task.boxes.Show(
      Question("Non è stata selezionata una pratica.\r\n"
               "Procedere con la creazione di una nuova pratica con i dati di OrdexWeb ?\r\n\r\n"
               "(N.B.: Verranno chieste altre informazioni!)",
               "Pratica Praxion non selezionata"));
  if (answer != BoxAnswer::kYes) {
    task.desktop.SetFocus("ctlTestata1");
    return;
  }
  LoadUteContabilita(task.database, task.choice);
  task.choice.frameCliente.visible = true;
  task.choice.frameUtenteCont.visible = true;
  task.commands.bConferma = true;
  task.commands.cmdAzione.caption = "Conferma";
  task.commands.cmdAzione.symbol = Symbol::kUpdate;
  task.commands.cmdAnnulla.enabled = true;
  if (task.page.pageAtOpening == kPageJusticeOfThePeace) task.ShowParties();
}

bool RefusesPenalCase(const ActionTask& task) {
  if (!task.choice.ctlTestata1.penale) return false;
  task.boxes.Show({"La pratica è penale e non può essere aggiornata con i dati di OrdexWeb.",
                   "Pratica Penale", BoxIcon::kWarning, BoxButtons::kOk});
  return true;
}

bool AgreesToOtherNumber(const ActionTask& task) {
  const BoxAnswer answer = task.boxes.Show(
      Question("Il N. Registro Generale della pratica selezionata è diverso dal Numero del "
               "Fascicolo.\r\nConfermi l'allineamento con i dati di Ordex ?",
               "Ordex"));
  if (answer == BoxAnswer::kYes) return true;
  task.desktop.SetFocus("ctlTestata1");
  return false;
}

ActionOutcome UpdateCase(const ActionTask& task) {
  if (!task.RegistraPratica(task.choice.ctlTestata1.idPra)) return ActionOutcome::kFailed;
  task.boxes.Show(Information("La pratica di Praxion è stata aggiornata con i dati di OrdexWeb.",
                              "Pratica Praxion aggiornata"));
  return ActionOutcome::kDone;
}

ActionOutcome CreateOrUpdate(const ActionTask& task) {
  if (task.commands.bConferma) {
    const Confirmed confirmed = CreateCase(task);
    if (confirmed == Confirmed::kCreated) return ActionOutcome::kDone;
    if (confirmed == Confirmed::kIncomplete) return ActionOutcome::kGoOn;
  }
  const CaseHeader& header = task.choice.ctlTestata1;
  // The case is read afresh; one that a colleague has deleted meanwhile is no longer shown.
  if (!ShowsNoCase(header)) task.ctlTestata1.LoadCase(header.idPra);
  if (ShowsNoCase(header)) {
    OfferCreate(task);
    return ActionOutcome::kGoOn;
  }
  if (RefusesPenalCase(task)) return ActionOutcome::kGoOn;
  if (header.numeroRG != task.page.szNumeroRG && !AgreesToOtherNumber(task)) {
    return ActionOutcome::kGoOn;
  }
  return UpdateCase(task);
}

// The case may have been cleared after it was chosen: then nothing is written.
ActionOutcome UpdateHistory(const ActionTask& task) {
  if (ShowsNoCase(task.choice.ctlTestata1)) {
    task.status = {"Exclamation", "Selezionare una pratica."};
    return ActionOutcome::kGoOn;
  }
  if (RefusesPenalCase(task)) return ActionOutcome::kGoOn;
  return UpdateCase(task);
}

ActionOutcome UpdateAgenda(const ActionTask& task) {
  WriteAgenda(task.database, task.lstAgendaAvv);
  task.boxes.Show(Information("L'Agenda di Praxion è stata aggiornata !", "Operazione effettuata"));
  return ActionOutcome::kGoOn;
}

}  // namespace

ActionOutcome cmdAzione_Click(const ActionTask& task) {
  switch (task.page.pageAtOpening) {
    case kPageProfile:
    case kPageJusticeOfThePeace:
      return CreateOrUpdate(task);
    case kPageHistory:
      return UpdateHistory(task);
    case kPageAgenda:
      return UpdateAgenda(task);
    default:
      return ActionOutcome::kGoOn;
  }
}

}  // namespace ordex
