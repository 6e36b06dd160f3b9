// The events of a case's history, table EventiPraOrdex.
#pragma once

#include <cstdint>

#include "state/ports.h"
#include "state/review_rows.h"
#include "store/db/db_record.h"

namespace ordex {

// Writes or refreshes the event with that number: an event that is stored already is not doubled.
// Traps its errors.
void RegistraEventi(const Database& database, std::int16_t progressivo, std::int32_t idPratica,
                    const ReviewRow& riga, const Clock& clock);

// Always adds an event; costs one insert, however many the case has. Traps its errors.
void RegistraEvento(const Database& database, const ReviewRow& voce, std::int32_t idPratica,
                    std::int32_t progressivo, const Clock& clock);

}  // namespace ordex
