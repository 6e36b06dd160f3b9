// The person dialog with everything that it touches, over an office's registry.
#pragma once

#include <cstdint>
#include <string>

#include "store/person_dialog.h"
#include "support/office_fixture.h"

namespace ordex::testing {

// What a user does while the card is open.
enum class CardAnswer { kYes, kNo, kClosed };

struct PersonFixture {
  explicit PersonFixture(Office::Data data = Office::Data::kFixedRows) : office(data) {}

  // Fills the dialog from the person with that ID_Ana.
  void Fill(std::int32_t idAna, CardMode mode = CardMode::kOnly) {
    DbRecord record;
    record.Open(office.database(),
                "SELECT * FROM Anagrafica WHERE ID_Ana = " + std::to_string(idAna), kForReading);
    dialog.ValorizzaInfo(record, mode);
  }

  // The user answers so whenever the card comes up.
  void Answer(CardAnswer answer) {
    dialogs.onPersonCard = [this, answer] {
      questions.push_back(card.lblDomanda);
      transactionWhileOpen = transactionWhileOpen || office.connection().InTransaction();
      if (answer == CardAnswer::kYes) dialog.cmdSi_Click();
      if (answer == CardAnswer::kNo) dialog.cmdNo_Click();
      if (answer == CardAnswer::kClosed) dialog.Close();
    };
  }

  Office office;
  PersonCard card;
  bool bCollegareAna = false;
  FakeDialogs dialogs;
  FakeDesktop desktop;
  FakeMessageBoxes boxes;
  PersonDialog dialog{card, bCollegareAna, dialogs, desktop, boxes};

  std::vector<std::string> questions;  // those that were asked, in order
  bool transactionWhileOpen = false;
};

}  // namespace ordex::testing
