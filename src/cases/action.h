// The action button: writes the page into the office's database, after asking what must be asked.
#pragma once

#include <functional>

#include "cases/case_header.h"
#include "state/case_choice.h"
#include "state/commands.h"
#include "state/page.h"
#include "state/ports.h"
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
  MessageBoxes& boxes;
  Desktop& desktop;
  // Creates (0) or updates the case with that ID_Pra; false where it failed.
  std::function<bool(std::int32_t idPra)> RegistraPratica;
};

// Errors: of the database, outside RegistraPratica.
ActionOutcome cmdAzione_Click(const ActionTask& task);

}  // namespace ordex
