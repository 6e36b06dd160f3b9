#include "store/case_record.h"

#include <string>

#include "base/number.h"
#include "store/db/transaction.h"
#include "store/fixed_rows.h"
#include "store/history_events.h"
#include "store/persons.h"

namespace ordex {
namespace {

std::string CounsellorOfCounterpart(const CaseChoice& choice) {
  const int place = choice.cmbParti[kBoxCounterpart].index;
  return choice.difensori.Item("CO" + std::to_string(place));
}

// The position is computed twice, on purpose: another user may create a case in between.
void SetCreationColumns(DbRecord& record, const CaseRecordTask& task, std::int32_t idCliente) {
  record.Set("Posizione", std::int64_t{CalcolaNumPos(task.database)});
  record.Set("ID_Cliente", std::int64_t{idCliente});
  record.Set("ID_Controparte", std::int64_t{kNobody});
  record.Set("ID_Acp", std::int64_t{kNobody});
  record.Set("DataInizio", DateOnly(task.clock.Now()));
  record.Set("ID_Cla", std::int64_t{1});
  record.Set("ID_FatturareA", std::int64_t{idCliente});
  record.Set("NumPos", std::int64_t{CalcolaNumPos(task.database)});
  record.Set("ID_Riservata", std::int64_t{0});
  record.Set("Fk_Gruppo", Null{});
  record.Set("ID_Corrispondente", std::int64_t{kNobody});
  record.Set("Cambio", kLiraRate);
  record.Set("Valuta", std::string("EURO"));
  record.Set("Rilevanza", std::int64_t{100});
  record.Set("ControCognome", task.choice.cmbParti[kBoxCounterpart].Text());
  record.Set("AcpCognome", CounsellorOfCounterpart(task.choice));
  record.Set("ID_Contab", std::int64_t{task.choice.lIdContab});
}

void SetIfRead(DbRecord& record, const KeyedTable& cDatiFasc, std::string_view column) {
  if (const std::string* value = cDatiFasc.Lookup(column)) record.Set(column, *value);
}

void SetPageColumns(DbRecord& record, const Page& page, bool create) {
  if (page.pageAtOpening == kPageProfile) {
    record.Set("NumeroRegGenerale", page.cDatiFasc.Item("NumeroRegGenerale"));
    SetIfRead(record, page.cDatiFasc, "Sezione");
  } else if (create || !page.szNumeroRG.empty()) {
    // A history page carries no number: the stored one is left alone.
    record.Set("NumeroRegGenerale", page.szNumeroRG);
  }
  SetIfRead(record, page.cDatiFasc, "Istruttore");
  SetIfRead(record, page.cDatiFasc, "Oggetto");
}

// Writes the case row and returns its ID_Pra.
std::int32_t WriteCaseRow(DbRecord& record, const CaseRecordTask& task, bool create,
                          std::int32_t idCliente) {
  if (create) {
    record.recordset().AddNew();
    SetCreationColumns(record, task, idCliente);
  }
  SetPageColumns(record, task.page, create);
  record.recordset().Update();
  return AsInt32(record.Get("ID_Pra"));
}

void RefreshEvents(const CaseRecordTask& task, std::int32_t idPra) {
  for (std::size_t i = 0; i < task.lstImport.rows.size(); ++i) {
    const ReviewRow row = task.lstImport.rows[i];
    RegistraEventi(task.database, ToInt16(row.text), idPra, row, task.clock);
    task.progress.Advance(i + 1, task.lstImport.rows.size());
  }
}

// The history that a justice-of-the-peace page brings along replaces the stored one as a whole.
void ReplaceEvents(const CaseRecordTask& task, std::int32_t idPra) {
  std::int32_t progressivo = 0;
  for (std::size_t i = 0; i < task.lstImport.rows.size(); ++i) {
    const ReviewRow row = task.lstImport.rows[i];
    if (row.text != kHistoryRow) continue;
    if (++progressivo == 1) {
      Execute(task.database,
              "Delete from EventiPraOrdex where ID_PraRel = " + std::to_string(idPra));
    }
    RegistraEvento(task.database, row, idPra, progressivo, task.clock);
    task.progress.Advance(i + 1, task.lstImport.rows.size());
  }
}

void OpenCase(DbRecord& record, const CaseRecordTask& task, std::int32_t idPra) {
  record.Open(task.database, "SELECT * FROM Pratica WHERE Id_Pra = " + std::to_string(idPra),
              kForChanges);
}

// A history page is for a case that exists; its events come first.
void RegisterHistoryPage(const CaseRecordTask& task, std::int32_t idPra) {
  InTransaction(task.database, [&] {
    RefreshEvents(task, idPra);
    DbRecord record;
    OpenCase(record, task, idPra);
    const std::int32_t written = WriteCaseRow(record, task, false, 0);
    RegistraDatiOrdex(task.database, written, task.page, task.lstImport, task.clock, task.agenda);
  });
}

void RegisterCasePage(const CaseRecordTask& task, std::int32_t idPra) {
  DbRecord record;
  OpenCase(record, task, idPra);
  const bool create = idPra == 0;
  std::int32_t idCliente = 0;
  if (create) {
    idCliente = CercaAnagrafica(task.database, task.choice.cmbParti[kBoxClient].Text(),
                                task.frmInfoAnagrafica, task.bCollegareAna, task.boxes);
  }
  InTransaction(task.database, [&] {
    const std::int32_t written = WriteCaseRow(record, task, create, idCliente);
    RegistraDatiOrdex(task.database, written, task.page, task.lstImport, task.clock, task.agenda);
    ReplaceEvents(task, written);
  });
}

}  // namespace

bool RegistraPratica(const CaseRecordTask& task, std::int32_t idPra) {
  return TrapErrors(task.database, "RegistraPratica", [&] {
    if (task.page.pageAtOpening == kPageHistory) {
      RegisterHistoryPage(task, idPra);
    } else {
      RegisterCasePage(task, idPra);
    }
  });
}

std::int32_t CalcolaNumPos(const Database& database) {
  DbRecord record;
  record.Open(database, "SELECT MAX(NumPos) AS PosMax FROM Pratica", kForChanges);
  // In 64 bits, so that behind the last number there is an overflow to report.
  return AsInt32(std::int64_t{AsInt32(record.Get("PosMax"))} + 1);
}

}  // namespace ordex
