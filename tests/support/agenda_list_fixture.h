// An agenda page's list, written into the agenda of the sample office.
#pragma once

#include <string>
#include <vector>

#include "cases/agenda_action.h"
#include "support/office_fixture.h"

namespace ordex::testing {

struct AgendaListFixture {
  void Case(const std::string& number, const std::string& parties = "ROSSI / BIANCHI") {
    list.rows.push_back(number, parties, true);
  }
  // Indented, as the page's entries are.
  void Entry(const std::string& date, const std::string& description) {
    list.rows.push_back("    " + date, "    " + description, false);
  }
  void Write() { WriteAgenda(office.database(), list); }
  // The number of the error that writing ends with; 0 where it ends with none.
  int ErrorOfWriting() {
    return ErrorNumberOf([this] { Write(); });
  }

  // The agenda's rows, in the order they were added.
  std::vector<std::string> Agenda(const std::string& columns) {
    return office.Rows("SELECT " + columns + " FROM SCADENZE ORDER BY ID_Scadenza");
  }

  Office office{Office::Data::kSample};
  AgendaList list;
};

}  // namespace ordex::testing
