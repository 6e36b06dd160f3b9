// The case-header control ctlTestata1: shows one case of the office, and finds others.
#pragma once

#include <cstdint>
#include <string_view>

#include "state/case_choice.h"
#include "store/db/connection.h"

namespace ordex {

class CaseHeaderControl {
 public:
  // The control draws into `header`. `LoadCase` and `Search` need a connection.
  explicit CaseHeaderControl(CaseHeader& header) : header_(header) {}

  void SetConnection(Connection& connection) { connection_ = &connection; }
  void SetUser(std::int32_t idUtente) { header_.idUtente = idUtente; }

  // Prepares for a new page: no case, no search. The user stays, and so does whether it is shown.
  void Reset();
  // Clears the fields: what is left is what a new page begins with.
  void Clear();
  // Shows the case with that ID_Pra; where there is none, no case is shown and it returns false.
  // Errors: of the database.
  bool LoadCase(std::int32_t idPra);
  // Fills `found` with the first 50 cases whose register number, party, title or subject matches;
  // numbers first, then parties, then subjects. Letter case is ignored. Errors: of the database.
  void Search(std::string_view text);

 private:
  CaseHeader& header_;
  Connection* connection_ = nullptr;
};

}  // namespace ordex
