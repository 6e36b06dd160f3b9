// The portal profile of one case, written from page values.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "support/case_record_fixture.h"

namespace ordex::testing {

struct ProfileFixture {
  void Value(std::string value, std::string_view key) { page.cDatiFasc.Add(std::move(value), key); }
  // A review row; returns nothing, its index is its place.
  void Row(const std::string& label, const std::string& value, const std::string& tag) {
    lstImport.rows.push_back({"", {label, value, ""}, tag});
    if (tag.empty()) return;
    lstImport.taggedRows.push_back(lstImport.rows.size());
    lstImport.hasTaggedRows = true;
  }
  void Write(std::int32_t idPratica = 7) {
    RegistraDatiOrdex(office.database(), idPratica, page, lstImport, clock, agenda);
  }
  // The columns of the one profile row.
  std::string Columns(const std::string& columns) {
    return office.Row("SELECT " + columns + " FROM PraOrdex");
  }

  Office office;
  Page page;
  ReviewList lstImport;
  FakeClock clock;  // 20/02/2026 09:15:30
  RecordingAgenda agenda;
};

}  // namespace ordex::testing
