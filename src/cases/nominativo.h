// Names of registered persons.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "store/db/db_record.h"

namespace ordex {

// "Cognome,Nome" of the person with that ID_Ana, each trimmed.
// Errors: where there is no such person; of the database.
std::string LeggiNominativo(const Database& database, std::int32_t ID_Ana);

// The part before the first comma. Error: subscript, where there is none.
std::string CognomeDaNominativo(std::string_view nominativo);

}  // namespace ordex
