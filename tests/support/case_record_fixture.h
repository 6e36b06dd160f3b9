// A profile page with its parties chosen, ready to be written into an office's case table.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "store/case_record.h"
#include "support/person_fixture.h"

namespace ordex::testing {

// Remembers what was handed to the agenda, and whether a transaction was open then.
class RecordingAgenda final : public HearingAgenda {
 public:
  void ScriviUdienza(std::string_view key) override { Take("udienza " + std::string(key)); }
  void ScriviScadenza(std::string_view data, std::string_view descrizione) override {
    Take("scadenza " + std::string(data) + ", " + std::string(descrizione));
  }

  std::vector<std::string> taken;
  std::function<void()> onTake;

 private:
  void Take(std::string what) {
    taken.push_back(std::move(what));
    if (onTake) onTake();
  }
};

struct CaseRecordFixture {
  explicit CaseRecordFixture(Office::Data data = Office::Data::kFixedRows) : person(data) {
    page.iOrdexPage = kPageProfile;
    page.pageAtOpening = kPageProfile;
    page.szNumeroRG = "77/2026";
    page.cDatiFasc.Add("77/2026", "NumeroRegGenerale");
    page.cDatiFasc.Add("Prima Civile", "Sezione");
    page.cDatiFasc.Add("Dott. Neri", "Istruttore");
    page.cDatiFasc.Add("Locazione", "Oggetto");
    Offer("VERDI ANNA", "Avv. Uno");
    Offer("BIANCHI S.R.L.", "Avv. Due");
    choice.cmbParti[kBoxClient].index = 0;
    choice.cmbParti[kBoxCounterpart].index = 1;
    choice.lIdContab = 2;
  }

  // A party of the page with its counsel, in both boxes.
  void Offer(const std::string& party, const std::string& counsel) {
    const std::string place = std::to_string(choice.cmbParti[0].items.size());
    choice.difensori.Add(counsel, "CL" + place);
    choice.difensori.Add(counsel, "CO" + place);
    for (ComboBox& box : choice.cmbParti) box.items.push_back({party, 0});
  }

  bool Create() { return Write(0); }
  bool Write(std::int32_t idPra) {
    return RegistraPratica({office.database(), page, lstImport, choice, person.bCollegareAna,
                            person.dialog, person.boxes, clock, agenda, progress},
                           idPra);
  }

  PersonFixture person;
  Office& office = person.office;
  Page page;
  ReviewList lstImport;
  CaseChoice choice;
  FakeClock clock;  // 20/02/2026 09:15:30
  RecordingAgenda agenda;
  RecordingProgress progress;
};

}  // namespace ordex::testing
