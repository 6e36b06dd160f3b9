// The logic of the parties dialog dlgParti: the user types the names that the page masks.
#pragma once

#include <functional>
#include <string_view>

#include "state/dialogs.h"
#include "state/mappings.h"
#include "state/page.h"
#include "state/ports.h"

namespace ordex {

class PartiesDialog {
 public:
  using LoadParty = std::function<void(std::string_view szSoggetto, std::string_view szDifensore)>;

  // `LoadcmbParti` offers a party in the parties boxes of the main window.
  PartiesDialog(PartiesForm& form, Page& page, const Mappings& mappings, LoadParty LoadcmbParti,
                Dialogs& dialogs, Desktop& desktop, MessageBoxes& boxes);

  // Fills the dialog from the page's values, shows it and waits until it is closed.
  void ShowModal();

  // Puts a text into a text box. False where there is no box of that name.
  bool Type(std::string_view box, std::string_view text);
  void cmdOk_Click();
  // Closed without taking the names over.
  void Close();

  // The control name of a text box.
  static std::string_view NameOf(PartyBox box);

 private:
  void Form_Load();
  void Form_Activate();
  bool VerificaCampi();
  void StoreNames();
  void OfferParties();
  void StorePartyText(std::string_view code, PartyBox party, PartyBox counsel);

  PartiesForm& form_;
  Page& page_;
  const Mappings& mappings_;
  LoadParty LoadcmbParti_;
  Dialogs& dialogs_;
  Desktop& desktop_;
  MessageBoxes& boxes_;
};

}  // namespace ordex
