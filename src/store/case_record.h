// The case record: carries a page into table Pratica, with its client, its portal profile and its
// history.
#pragma once

#include <cstdint>

#include "state/case_choice.h"
#include "state/page.h"
#include "state/ports.h"
#include "state/review_list.h"
#include "store/db/db_record.h"
#include "store/person_dialog.h"
#include "store/portal_profile.h"

namespace ordex {

// What the routine reads of the window, and whom it turns to.
struct CaseRecordTask {
  const Database& database;
  const Page& page;
  const ReviewList& lstImport;
  const CaseChoice& choice;
  const bool& bCollegareAna;
  PersonDialog& frmInfoAnagrafica;
  MessageBoxes& boxes;
  const Clock& clock;
  HearingAgenda& agenda;
  Progress& progress;
};

// Creates a case (idPra 0) or refreshes the one with that ID_Pra. After the client has been found
// everything is written in one transaction. Traps its errors without a message and then returns
// false; what was written before the error stays.
bool RegistraPratica(const CaseRecordTask& task, std::int32_t idPra);

// The position number of the next case. Errors: invalid use of Null, where there is no case at
// all; overflow; of the database.
std::int32_t CalcolaNumPos(const Database& database);

}  // namespace ordex
