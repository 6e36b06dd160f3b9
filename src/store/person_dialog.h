// The logic of the person dialog frmInfoAnagrafica: a row of the registry as a short card.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "state/dialogs.h"
#include "state/ports.h"
#include "store/db/db_record.h"

namespace ordex {

// What the card is shown for.
enum class CardMode : std::int16_t { kOnly = 1, kWithQuestion = 2 };

class PersonDialog {
 public:
  PersonDialog(PersonCard& card, bool& bCollegareAna, Dialogs& dialogs, Desktop& desktop,
               MessageBoxes& boxes);

  // Loads the dialog, which sets bCollegareAna to false, and fills it from the record's current
  // row. Errors: of the record.
  void ValorizzaInfo(DbRecord& record, CardMode mode);
  // Shows the dialog and waits until it is closed.
  void ShowModal();

  void cmdSi_Click();
  void cmdNo_Click();
  void lblInfo2_Click();
  // Closed without an answer.
  void Close();

 private:
  // Asks the shell for a new mail. The card gives neither subject nor body; a link carries both.
  bool InviaEmail(std::string_view address, std::string_view subject, std::string_view body);

  PersonCard& card_;
  bool& bCollegareAna_;
  Dialogs& dialogs_;
  Desktop& desktop_;
  MessageBoxes& boxes_;
};

}  // namespace ordex
