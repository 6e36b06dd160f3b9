#include "store/portal_profile.h"

#include <set>
#include <string>

#include "store/db/transaction.h"

namespace ordex {
namespace {

constexpr std::string_view kLastHearingColumn = "DUUd";
constexpr std::string_view kNextHearingColumn = "DPUd";

// A last hearing never becomes a next one. The office's rule compares today's date with the
// hearing as a text, and among values of mixed kinds a date is always less than a text: so the
// hearing stays the last one, whatever its day, and the row keeps no next hearing.
void KeepLastHearing(DbRecord& record) {
  record.Set(kNextHearingColumn, Null{});
}

void SetColumn(DbRecord& record, const std::string& column, const std::string& value) {
  record.Set(column, value);
  if (column == kLastHearingColumn && !value.empty()) KeepLastHearing(record);
  // A row that carries a next hearing keeps no last one.
  if (column == kNextHearingColumn) record.Set(kLastHearingColumn, Null{});
}

void WriteProfileRow(const Database& database, std::int32_t idPratica, const KeyedTable& cDatiFasc,
                     const Clock& clock) {
  DbRecord record;
  record.Open(database, "SELECT * from PraOrdex where ID_PraRel = " + std::to_string(idPratica),
              kForChanges);
  Recordset& rows = record.recordset();
  if (rows.RecordCount() == 0) {
    rows.AddNew();
    record.Set("ID_PraRel", std::int64_t{idPratica});
  }
  // The first two columns are the row's identity and the case.
  const std::vector<ColumnInfo>& columns = rows.Fields();
  for (std::size_t i = 2; i < columns.size(); ++i) {
    const std::string* value = cDatiFasc.Lookup(columns[i].name);
    if (value != nullptr) SetColumn(record, columns[i].name, *value);
  }
  record.Set("DataAcquisizione", DateOnly(clock.Now()));
  rows.Update();
}

// The collection of tagged rows only grows, so an index may name a row that is gone, or that
// another page has taken, or the same row again.
void WriteDeadlines(const ReviewList& lstImport, HearingAgenda& agenda) {
  std::set<std::size_t> written;
  for (const std::size_t index : lstImport.taggedRows) {
    if (index > lstImport.rows.size()) continue;
    const ReviewRow row = lstImport.rows[index - 1];
    if (row.tag.empty() || !written.insert(index).second) continue;
    agenda.ScriviScadenza(row.sub[1], row.sub[0]);
  }
}

}  // namespace

void RegistraDatiOrdex(const Database& database, std::int32_t idPratica, const Page& page,
                       const ReviewList& lstImport, const Clock& clock, HearingAgenda& agenda) {
  TrapErrors(database, "RegistraDatiOrdex", [&] {
    WriteProfileRow(database, idPratica, page.cDatiFasc, clock);
    if (ItemExists(page.cDatiFasc, kNextHearingColumn)) agenda.ScriviUdienza(kNextHearingColumn);
    if (lstImport.hasTaggedRows) WriteDeadlines(lstImport, agenda);
  });
}

}  // namespace ordex
