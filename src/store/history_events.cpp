#include "store/history_events.h"

#include <string>

#include "base/text.h"
#include "store/db/transaction.h"

namespace ordex {
namespace {

std::string EventsOf(std::int32_t idPratica) {
  return "SELECT * from EventiPraOrdex where ID_PraRel = " + std::to_string(idPratica);
}

void SetEvent(DbRecord& record, const ReviewRow& row, const Clock& clock) {
  record.Set("Data", std::string(row.sub[0]));
  record.Set("Descrizione", std::string(row.sub[1]));
  record.Set("DataAcquisizione", DateOnly(clock.Now()));
}

}  // namespace

void RegistraEventi(const Database& database, std::int16_t progressivo, std::int32_t idPratica,
                    const ReviewRow& riga, const Clock& clock) {
  TrapErrors(database, "RegistraEventi", [&] {
    DbRecord record;
    record.Open(database, EventsOf(idPratica) + " and Progressivo = " + std::to_string(progressivo),
                kForChanges);
    if (record.recordset().Eof()) {
      record.recordset().AddNew();
      record.Set("ID_PraRel", std::int64_t{idPratica});
      record.Set("Progressivo", std::string(riga.text));
    }
    SetEvent(record, riga, clock);
    record.Set("NrPagina", std::string(Split(riga.sub[2], "/", 2)[0]));
    record.recordset().Update();
  });
}

void RegistraEvento(const Database& database, const ReviewRow& voce, std::int32_t idPratica,
                    std::int32_t progressivo, const Clock& clock) {
  TrapErrors(database, "RegistraEvento", [&] {
    DbRecord record;
    record.Open(database, EventsOf(idPratica), kForChanges);
    record.recordset().AddNew();
    record.Set("ID_PraRel", std::int64_t{idPratica});
    record.Set("Progressivo", std::int64_t{progressivo});
    SetEvent(record, voce, clock);
    record.recordset().Update();
  });
}

}  // namespace ordex
