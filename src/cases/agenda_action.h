// The agenda page's entries into the office's agenda, table SCADENZE.
#pragma once

#include "state/review_list.h"
#include "store/db/db_record.h"

namespace ordex {

// Writes the entries of the list, each under the case of the bold row above it; entries of a case
// that the office does not have go to case 1 under the supervisor. An entry that is there already
// is not doubled. All in one transaction. Errors: of the database; type mismatch, where an entry's
// date is none. What was written before an error stays.
void WriteAgenda(const Database& database, const AgendaList& lstAgendaAvv);

}  // namespace ordex
