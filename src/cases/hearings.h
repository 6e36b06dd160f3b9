// Hearings and deadlines of a profile page into the office's agenda, table SCADENZE.
#pragma once

#include <string_view>

#include "state/page.h"
#include "state/ports.h"
#include "store/db/db_record.h"
#include "store/portal_profile.h"

namespace ordex {

// Both routines find the case by the page's register number; where no case carries it they write
// nothing. A row that is there already is refreshed, so that an import can be repeated. Errors are
// trapped.
class HearingWriter : public HearingAgenda {
 public:
  HearingWriter(const Database& database, const Page& page, const Clock& clock)
      : database_(database), page_(page), clock_(clock) {}

  void ScriviUdienza(std::string_view key) override;
  void ScriviScadenza(std::string_view data, std::string_view descrizione) override;

 private:
  void WriteHearing(std::string_view key);
  void WriteDeadline(std::string_view data, std::string_view descrizione);

  const Database& database_;
  const Page& page_;
  const Clock& clock_;
};

}  // namespace ordex
