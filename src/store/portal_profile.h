// The portal's own view of a case: table PraOrdex, and from it the hearings and deadlines.
#pragma once

#include <cstdint>
#include <string_view>

#include "state/page.h"
#include "state/ports.h"
#include "state/review_list.h"
#include "store/db/db_record.h"

namespace ordex {

// Takes hearings and deadlines of a profile page into the office's agenda.
class HearingAgenda {
 public:
  virtual ~HearingAgenda() = default;
  // The hearing stored in the page's values under that key.
  virtual void ScriviUdienza(std::string_view key) = 0;
  virtual void ScriviScadenza(std::string_view data, std::string_view descrizione) = 0;
};

// Writes the profile row of the case from the page's values, then the next hearing and the tagged
// deadline rows of the review list. Traps its errors: what was updated before one stays.
void RegistraDatiOrdex(const Database& database, std::int32_t idPratica, const Page& page,
                       const ReviewList& lstImport, const Clock& clock, HearingAgenda& agenda);

}  // namespace ordex
