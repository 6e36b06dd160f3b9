// The action button: writes the page into the office's database, after asking what must be asked.
#pragma once

#include <functional>

#include "cases/case_header.h"
#include "state/case_choice.h"
#include "state/commands.h"
#include "state/page.h"
#include "state/ports.h"
#include "state/review_list.h"
#include "store/db/db_record.h"

namespace ordex {

// Where a press of the action button leaves the program.
enum class ActionOutcome {
  kGoOn,    // the window stays open
  kDone,    // a case was created or updated, and the user told: the program ends
  kFailed,  // an update failed: the program ends without a word
};

struct ActionTask {
  const Database& database;
  const Page& page;
  CaseChoice& choice;
  Commands& commands;
  CaseHeaderControl& ctlTestata1;
  StatusBar& status;
  const AgendaList& lstAgendaAvv;
  MessageBoxes& boxes;
  Desktop& desktop;
  // Shows the parties dialog, on a page that masks the parties' names.
  std::function<void()> ShowParties;
  // Creates (0) or updates the case with that ID_Pra; false where it failed.
  std::function<bool(std::int32_t idPra)> RegistraPratica;
};

// Errors: of the database, outside RegistraPratica; of the agenda's entries.
ActionOutcome cmdAzione_Click(const ActionTask& task);

}  // namespace ordex
