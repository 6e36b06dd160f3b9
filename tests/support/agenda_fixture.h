// Hearings and deadlines of a profile page, written into the agenda of the sample office.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cases/hearings.h"
#include "support/office_fixture.h"

namespace ordex::testing {

struct AgendaFixture {
  explicit AgendaFixture(std::string number = "1842/2025") { page.szNumeroRG = std::move(number); }

  // Hands the value to the hearing's routine as the page's next hearing.
  void Hearing(std::string value) {
    if (ItemExists(page.cDatiFasc, "DPUd")) page.cDatiFasc.Remove("DPUd");
    page.cDatiFasc.Add(std::move(value), "DPUd");
    writer.ScriviUdienza("DPUd");
  }
  void Deadline(std::string_view data, std::string_view descrizione) {
    writer.ScriviScadenza(data, descrizione);
  }

  // The agenda's rows, in the order they were added.
  std::vector<std::string> Agenda(const std::string& columns) {
    return office.Rows("SELECT " + columns + " FROM SCADENZE ORDER BY ID_Scadenza");
  }
  std::string Entry(const std::string& columns) {
    return office.Row("SELECT " + columns + " FROM SCADENZE");
  }

  Office office{Office::Data::kSample};
  Page page;
  FakeClock clock;  // 20/02/2026 09:15:30
  Database database = office.database();
  HearingWriter writer{database, page, clock};
};

}  // namespace ordex::testing
