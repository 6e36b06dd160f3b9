#include "cases/agenda_action.h"

#include <cstdint>
#include <string>

#include "base/date.h"
#include "base/error.h"
#include "base/text.h"
#include "store/db/transaction.h"
#include "store/fixed_rows.h"

namespace ordex {
namespace {

constexpr std::size_t kLongestEntry = 200;  // characters of SCADENZE.Scadenza

// The case that the entries below a bold row belong to; before the first bold row it is nobody's.
struct CurrentCase {
  std::int32_t idPra = 0;
  std::int32_t idCliente = 0;
  std::int32_t idContab = 0;
  std::string nomeUtente;
  std::string parti;
};

CurrentCase FindCase(const Database& database, const AgendaRow& row) {
  SqlText szSql("SELECT ID_Pra,ID_Cliente,ID_Contab,Utenti.NomeUtente");
  szSql.Append(" from Pratica inner join Utenti on Pratica.ID_Contab = Utenti.ID_Utente ");
  szSql.Append(" where Pratica.NumeroRegGenerale = ").AppendUndoubled(row.text);
  DbRecord record;
  record.Open(database, szSql, kForReadingToo);
  if (record.recordset().Eof()) {
    return {kNoCase, kNobody, kSupervisor, std::string(kSupervisorName), std::string(row.sub)};
  }
  return {AsInt32(record.Get("ID_Pra")), AsInt32(record.Get("ID_Cliente")),
          AsInt32(record.Get("ID_Contab")), ToText(record.Get("NomeUtente")), std::string(row.sub)};
}

// A text between double quotes; those inside are doubled, so that an entry that holds some imports.
std::string DoubleQuoted(std::string_view text) {
  return "\"" + ReplaceAll(text, "\"", "\"\"") + "\"";
}

// Error: type mismatch, naming the entry.
DateTime DateOf(const AgendaRow& row) {
  try {
    return ToDate(Trim(row.text));
  } catch (const RunTimeError& error) {
    throw RunTimeError(error.code(), error.description() + ". È la data dell'impegno \"" +
                                         std::string(Trim(row.sub)) +
                                         "\". Gli impegni prima di questo sono stati scritti; "
                                         "controllare la pagina sul portale e copiarla di nuovo");
  }
}

void WriteEntry(const Database& database, const CurrentCase& current, const AgendaRow& row) {
  const DateTime when = DateOf(row);
  const DateTime day = DateOnly(when);
  const std::string_view parti = Trim(current.parti);
  // What is compared is what is stored, so that a second press doubles no long entry.
  const std::string_view scadenza = Left(Trim(row.sub), kLongestEntry);

  DbRecord record;
  // Unlike in the look-ups of hearings and deadlines, the date is written month first.
  record.Open(database,
              "SELECT * from SCADENZE where  Data_End =#" + FormatMonthFirst(day) +
                  "# and Codice_Pra = " + std::to_string(current.idPra) + " and Parti = " +
                  DoubleQuoted(parti) + " and ucase(Scadenza) = " + DoubleQuoted(Upper(scadenza)),
              kForChanges);
  if (!record.recordset().Eof()) return;
  record.recordset().AddNew();
  record.Set("Scadenza", std::string(scadenza));
  record.Set("Data_End", day);
  record.Set("Parti", std::string(parti));
  record.Set("IsOrdex", true);
  record.Set("IsMemo", false);
  record.Set("Priorita", std::int64_t{1});
  record.Set("Codice_Pra", std::int64_t{current.idPra});
  record.Set("Codice_Cli", std::int64_t{current.idCliente});
  record.Set("IdResponsabile", std::int64_t{current.idContab});
  record.Set("Responsabile", current.nomeUtente);
  if (const auto halves = SplitOnce(Trim(row.text), " ")) {
    record.Set("Ora", *FormatTimeOfDay(halves->right));
  }
  record.recordset().Update();
}

}  // namespace

void WriteAgenda(const Database& database, const AgendaList& lstAgendaAvv) {
  InTransaction(database, [&] {
    CurrentCase current;
    for (std::size_t i = 0; i < lstAgendaAvv.rows.size(); ++i) {
      const AgendaRow row = lstAgendaAvv.rows[i];
      if (row.bold) {
        current = FindCase(database, row);
      } else {
        WriteEntry(database, current, row);
      }
    }
  });
}

}  // namespace ordex
