// The action button of a profile page over the sample office. What writes the case is the test's.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "cases/action.h"
#include "cases/case_choice_rules.h"
#include "support/office_fixture.h"

namespace ordex::testing {

struct ActionFixture {
  ActionFixture() {
    page.iOrdexPage = kPageProfile;
    page.pageAtOpening = kPageProfile;
    page.szNumeroRG = "1842/2025";
    control.SetConnection(office.connection());
    LoadcmbParti(choice, "ROSSI MARIO", "Avv. Uno");
    LoadcmbParti(choice, "BIANCHI S.R.L.", "Avv. Due");
  }

  ActionOutcome Press() {
    const Database database = office.database();
    return cmdAzione_Click({database, page, choice, commands, control, status, agenda, boxes,
                            desktop, [this] { ++partiesShown; },
                            [this](std::int32_t idPra) {
                              written.push_back(idPra);
                              return succeeds;
                            }});
  }
  // The user has agreed to create a case and chosen client and counterpart.
  void ReadyToCreate() {
    Press();
    boxes.shown.clear();
    choice.cmbParti[kBoxClient].index = 0;
    choice.cmbParti[kBoxCounterpart].index = 1;
  }

  Office office{Office::Data::kSample};
  Page page;
  CaseChoice choice;
  Commands commands;
  CaseHeaderControl control{choice.ctlTestata1};
  StatusBar status;
  AgendaList agenda;
  FakeMessageBoxes boxes;
  FakeDesktop desktop;

  int partiesShown = 0;
  bool succeeds = true;
  std::vector<std::int32_t> written;  // the cases that were to be written, 0 for a new one
};

inline const BoxText kAskCreate = {
    "Non è stata selezionata una pratica.\r\n"
    "Procedere con la creazione di una nuova pratica con i dati di OrdexWeb ?\r\n\r\n"
    "(N.B.: Verranno chieste altre informazioni!)",
    "Pratica Praxion non selezionata", BoxIcon::kQuestion, BoxButtons::kYesNo};

}  // namespace ordex::testing
