#include "app/database_check.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>

#include "base/error.h"
#include "base/quoted.h"
#include "base/text.h"
#include "store/fixed_rows.h"

namespace ordex {
namespace {

constexpr std::array<std::string_view, 22> kPratica = {"ID_Pra",
                                                       "Posizione",
                                                       "ID_Cliente",
                                                       "ID_Controparte",
                                                       "ID_Acp",
                                                       "DataInizio",
                                                       "ID_Cla",
                                                       "ID_FatturareA",
                                                       "NumPos",
                                                       "ID_Riservata",
                                                       "Fk_Gruppo",
                                                       "ID_Corrispondente",
                                                       "Cambio",
                                                       "Valuta",
                                                       "Rilevanza",
                                                       "ControCognome",
                                                       "AcpCognome",
                                                       "ID_Contab",
                                                       "NumeroRegGenerale",
                                                       "Sezione",
                                                       "Istruttore",
                                                       "Oggetto"};
constexpr std::array<std::string_view, 3> kUtenti = {"ID_Utente", "NomeUtente", "TitContabilita"};
constexpr std::array<std::string_view, 21> kAnagrafica = {
    "ID_Ana",       "Cognome",      "Nome",          "IsFisicaGiuridica", "IsSostitutoImposta",
    "Cambio",       "Valuta",       "StatoCivile",   "TipoSocieta",       "Categoria",
    "Sesso",        "LuogoNascita", "DataNascita",   "CittaRes",          "IndirizzoRes",
    "NumCivicoRes", "PartitaIva",   "CodiceFiscale", "NumeroTel",         "NumeroFax",
    "Email"};
constexpr std::array<std::string_view, 4> kPraOrdex = {"ID_PraRel", "DUUd", "DPUd",
                                                       "DataAcquisizione"};
constexpr std::array<std::string_view, 6> kEventiPraOrdex = {
    "ID_PraRel", "Progressivo", "Data", "Descrizione", "NrPagina", "DataAcquisizione"};
constexpr std::array<std::string_view, 14> kScadenze = {
    "Scadenza",   "Priorita",     "Data_End",       "Data_Start",     "IsUdienza",
    "Codice_Pra", "Codice_Cli",   "IsOrdex",        "IsMemo",         "Parti",
    "Ora",        "Responsabile", "IdResponsabile", "LastLocalUpdate"};

struct NeededTable {
  std::string_view name;
  std::span<const std::string_view> columns;
  bool written = true;
};

constexpr std::array<NeededTable, 6> kTables = {{{"Pratica", kPratica},
                                                 {"Utenti", kUtenti, false},
                                                 {"Anagrafica", kAnagrafica},
                                                 {"PraOrdex", kPraOrdex},
                                                 {"EventiPraOrdex", kEventiPraOrdex},
                                                 {"SCADENZE", kScadenze}}};

// A row that the rules fall back to.
struct FixedRow {
  std::string_view table;
  std::string_view key;
  std::int32_t value;
  std::string_view meaning;
};

constexpr std::array<FixedRow, 3> kFixedRows = {
    {{"Utenti", "ID_Utente", kSupervisor, "l'utente usato quando Praxion non ne indica nessuno"},
     {"Anagrafica", "ID_Ana", kNobody, "la persona che sta per \"nessuno\""},
     {"Pratica", "ID_Pra", kNoCase, "la pratica che sta per \"nessuna\""}}};

bool HoldsColumn(const std::vector<ColumnInfo>& columns, std::string_view name) {
  return std::any_of(columns.begin(), columns.end(), [&](const ColumnInfo& column) {
    return EqualIgnoringCase(column.name, name);
  });
}

class Check {
 public:
  explicit Check(Connection& connection) : connection_(connection) {}

  std::vector<TableFinding> Run() {
    for (const NeededTable& table : kTables) CheckTable(table);
    for (const FixedRow& row : kFixedRows) CheckRow(row);
    return std::move(findings_);
  }

 private:
  void Add(std::string_view table, std::string_view column, Severity severity, std::string text) {
    findings_.push_back({std::string(table), std::string(column), severity, std::move(text)});
  }

  bool IsMissing(std::string_view table) const {
    return std::find(unread_.begin(), unread_.end(), table) != unread_.end();
  }

  void CheckTable(const NeededTable& table) {
    const std::vector<ColumnInfo>& columns = connection_.TableColumns(std::string(table.name));
    if (columns.empty()) {
      unread_.push_back(table.name);
      Add(table.name, {}, Severity::kError,
          "La tabella " + Quoted(table.name) +
              " non esiste, o l'utente del database non la può vedere.");
      return;
    }
    for (const std::string_view column : table.columns) {
      if (HoldsColumn(columns, column)) continue;
      Add(table.name, column, Severity::kError,
          "Nella tabella " + Quoted(table.name) + " manca la colonna " + Quoted(column) + ".");
    }
    if (table.name == "Pratica" && !HoldsColumn(columns, "IsPenale")) {
      Add(table.name, "IsPenale", Severity::kWarning,
          "Nella tabella \"Pratica\" manca la colonna \"IsPenale\": nessuna pratica verrà "
          "riconosciuta come penale.");
    }
    CheckKey(table, columns);
    CheckReading(table);
  }

  void CheckKey(const NeededTable& table, const std::vector<ColumnInfo>& columns) {
    const bool has_key = std::any_of(columns.begin(), columns.end(), [](const ColumnInfo& column) {
      return column.identity || column.primaryKey;
    });
    if (has_key || !table.written) return;
    Add(table.name, {}, Severity::kError,
        "La tabella " + Quoted(table.name) +
            " non ha né una colonna numerata dal database né una chiave di una colonna: le sue "
            "righe non si possono modificare.");
  }

  void CheckReading(const NeededTable& table) {
    try {
      connection_.Prepare("SELECT * FROM " + std::string(table.name) + " WHERE 1 = 0")->FetchAll();
    } catch (const RunTimeError& error) {
      unread_.push_back(table.name);
      Add(table.name, {}, Severity::kError,
          "La tabella " + Quoted(table.name) + " non si può leggere: " + error.description());
    }
  }

  void CheckRow(const FixedRow& row) {
    if (IsMissing(row.table)) return;
    const std::string key(row.key);
    if (!HoldsColumn(connection_.TableColumns(std::string(row.table)), key)) return;
    const std::string sql = "SELECT " + key + " FROM " + std::string(row.table) + " WHERE " + key +
                            " = " + std::to_string(row.value);
    if (!connection_.Prepare(sql)->FetchAll().empty()) return;
    Add(row.table, row.key, Severity::kWarning,
        "Nella tabella " + Quoted(row.table) + " manca la riga con " + key + " " +
            std::to_string(row.value) + ", " + std::string(row.meaning) + ".");
  }

  Connection& connection_;
  std::vector<std::string_view> unread_;
  std::vector<TableFinding> findings_;
};

}  // namespace

std::vector<TableFinding> CheckDatabase(Connection& connection) {
  return Check(connection).Run();
}

}  // namespace ordex
