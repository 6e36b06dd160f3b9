#include "cases/hearings.h"

#include <optional>
#include <string>

#include "base/date.h"
#include "base/text.h"
#include "cases/nominativo.h"
#include "store/db/transaction.h"
#include "store/fixed_rows.h"

namespace ordex {
namespace {

constexpr std::size_t kLongestSide = 30;  // characters of each party in `Parti`
constexpr int kWarningDays = 20;          // a deadline's reminder starts so many days before it

// The case that the page's number names, as the agenda needs it.
struct AgendaCase {
  std::int32_t idPra = 0;
  std::int32_t idCliente = 0;
  std::int32_t idContab = 0;
  std::int32_t idControparte = 0;
  std::string nomeUtente;
  std::string controCognome;
};

std::optional<AgendaCase> FindCase(const Database& database, const SqlText& numberLiteral) {
  SqlText szSql("SELECT *");
  szSql.Append(" from Pratica inner join Utenti on Pratica.ID_Contab = Utenti.ID_Utente ");
  szSql.Append(" where Pratica.NumeroRegGenerale = ").Append(numberLiteral);
  DbRecord record;
  record.Open(database, szSql, kForReadingToo);
  if (record.recordset().Eof()) return std::nullopt;
  AgendaCase found;
  found.idPra = AsInt32(record.Get("ID_Pra"));
  found.idCliente = AsInt32(record.Get("ID_Cliente"));
  found.idContab = AsInt32(record.Get("ID_Contab"));
  found.idControparte = AsInt32(record.Get("ID_Controparte"));
  found.nomeUtente = ToText(record.Get("NomeUtente"));
  if (found.idControparte == kNobody) found.controCognome = ToText(record.Get("ControCognome"));
  return found;
}

std::string SurnameOf(const Database& database, std::int32_t ID_Ana) {
  return CognomeDaNominativo(LeggiNominativo(database, ID_Ana));
}

std::string PartiesText(const Database& database, const AgendaCase& found) {
  std::string parti;
  if (found.idCliente != kNobody) {
    parti = Left(SurnameOf(database, found.idCliente), kLongestSide);
  }
  const std::string controparte = found.idControparte == kNobody
                                      ? found.controCognome
                                      : SurnameOf(database, found.idControparte);
  if (!controparte.empty()) parti.append(" \\ ").append(Left(controparte, kLongestSide));
  return parti;
}

// "… Data_End =CONVERT (…)  and Codice_Pra = 7": what both look-ups begin with.
std::string OnDayOfCase(const DateTime& day, std::int32_t idPra) {
  return "select * from SCADENZE where  Data_End =" + FormattaDataSql(FormatDayFirst(day)) +
         " and Codice_Pra = " + std::to_string(idPra);
}

void SetCaseColumns(DbRecord& record, const AgendaCase& found, const std::string& parti,
                    bool isUdienza) {
  record.Set("IsUdienza", isUdienza);
  record.Set("Codice_Pra", std::int64_t{found.idPra});
  record.Set("Codice_Cli", std::int64_t{found.idCliente});
  record.Set("IsOrdex", true);
  record.Set("IsMemo", !isUdienza);
  record.Set("Parti", parti);
}

// A new row, with its text and priority. A row that is there keeps both: they may be the user's.
void AddIfMissing(DbRecord& record, std::string_view scadenza) {
  if (!record.recordset().Eof()) return;
  record.recordset().AddNew();
  record.Set("Scadenza", std::string(scadenza));
  record.Set("Priorita", std::int64_t{1});
}

}  // namespace

void HearingWriter::ScriviUdienza(std::string_view key) {
  TrapErrors(database_, "ScriviUdienza", [&] { WriteHearing(key); });
}

void HearingWriter::WriteHearing(std::string_view key) {
  const auto parts = Split(page_.cDatiFasc.Item(key), " ");
  const std::string_view data = Trim(parts[0]);
  if (data.empty()) return;
  const auto found = FindCase(database_, FormattaStringaSql(page_.szNumeroRG));
  if (!found) return;
  const std::string parti = PartiesText(database_, *found);

  DbRecord record;
  record.Open(
      database_,
      OnDayOfCase(ToDate(data), found->idPra) + " and IsUdienza = 'TRUE'" + " and IsOrdex = 'TRUE'",
      kForChanges);
  AddIfMissing(record, "UDIENZA");
  record.Set("Data_End", std::string(data));
  SetCaseColumns(record, *found, parti, true);
  // From here on errors are passed over one by one: a time that cannot be read leaves the column as
  // it was, and costs neither the other columns nor the hearing.
  const auto pass_over = [this](const auto& step) { TrapErrors(database_, "ScriviUdienza", step); };
  pass_over([&] {
    if (parts.size() < 2) return;
    if (const auto ora = FormatTimeOfDay(parts[1])) record.Set("Ora", *ora);
  });
  pass_over([&] { record.Set("Responsabile", found->nomeUtente); });
  pass_over([&] { record.Set("IdResponsabile", std::int64_t{found->idContab}); });
  pass_over([&] { record.Set("LastLocalUpdate", clock_.Now()); });
  pass_over([&] { record.recordset().Update(); });
}

void HearingWriter::ScriviScadenza(std::string_view data, std::string_view descrizione) {
  TrapErrors(database_, "ScriviScadenza", [&] { WriteDeadline(data, descrizione); });
}

void HearingWriter::WriteDeadline(std::string_view data, std::string_view descrizione) {
  // Here the number stands in the text undoubled, unlike in the hearing's look-up.
  SqlText number;
  number.AppendUndoubled(page_.szNumeroRG);
  const auto found = FindCase(database_, number);
  if (!found) return;
  const std::string parti = PartiesText(database_, *found);

  const std::string_view scadenza = Trim(descrizione);
  DbRecord record;
  record.Open(database_,
              OnDayOfCase(ToDate(data), found->idPra) +
                  " and Scadenza = " + FormattaStringaSql(scadenza) + " and IsOrdex = 'TRUE'",
              kForChanges);
  AddIfMissing(record, scadenza);
  record.Set("Data_End", std::string(Trim(data)));
  record.Set("Data_Start", AddDays(AsDate(record.Get("Data_End")), -kWarningDays));
  SetCaseColumns(record, *found, parti, false);
  record.Set("Responsabile", found->nomeUtente);
  record.Set("IdResponsabile", std::int64_t{found->idContab});
  record.Set("LastLocalUpdate", clock_.Now());
  record.recordset().Update();
}

}  // namespace ordex
