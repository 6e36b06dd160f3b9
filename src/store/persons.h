// The person registry: finds a party of the page in table Anagrafica, or adds it.
#pragma once

#include <cstdint>
#include <string_view>

#include "state/ports.h"
#include "store/db/db_record.h"
#include "store/person_dialog.h"

namespace ordex {

// The ID_Ana of the registry's row for the party named `soggetto`. Where the registry holds that
// name the user is asked whether that row is meant; where not, or the user says no, a row is added.
// Any error is shown to the user and gives 0.
//
// `bCollegareAna` is the person dialog's last answer. It is reset only when the dialog is loaded,
// that is, when a row was found: a Yes left from an earlier use is taken also when nothing is
// found, and then reading the row that is not there is the error that is shown.
std::int32_t CercaAnagrafica(const Database& database, std::string_view soggetto,
                             PersonDialog& frmInfoAnagrafica, const bool& bCollegareAna,
                             MessageBoxes& boxes);

}  // namespace ordex
