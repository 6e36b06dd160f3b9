#include "ui/console/database_verbs.h"

#include <iostream>
#include <vector>

#include "app/database_check.h"
#include "app/main_window.h"
#include "app/mapping_check.h"
#include "base/error.h"
#include "store/db/embedded_sql.h"
#include "store/db/open_connection.h"
#include "ui/common/settings_store.h"
#include "ui/console/json_events.h"
#include "ui/console/state_json.h"

namespace ordex::console {
namespace {

void PrintFinding(const TableFinding& finding, bool json) {
  const bool error = finding.severity == Severity::kError;
  if (json) {
    PrintJsonLine(std::cout, {{"event", "finding"},
                              {"table", finding.table},
                              {"column", finding.column},
                              {"severity", error ? "error" : "warning"},
                              {"text", finding.text}});
  } else {
    std::cout << (error ? "errore. " : "avviso. ") << finding.text << "\n";
  }
}

ExitCode PrintError(const RunTimeError& error, bool json) {
  if (json) {
    PrintJsonLine(std::cout,
                  {{"event", "error"}, {"number", error.number()}, {"text", error.description()}});
  } else {
    std::cout << error.description() << "\n";
  }
  return ExitCode::kError;
}

// The columns that the mapping names are the office's own: without one a value is not stored, but
// nothing fails.
void AddMappedColumns(const std::filesystem::path& programFolder, Connection& connection,
                      std::vector<TableFinding>& findings) {
  if (connection.TableColumns("PraOrdex").empty()) return;
  for (const Finding& finding : CheckColumns(programFolder, connection)) {
    findings.push_back(
        {"PraOrdex",
         {},
         finding.severity,
         finding.file + ", riga " + std::to_string(finding.line) + ": " + finding.text});
  }
}

}  // namespace

void PrintDatabaseScript() {
  std::cout << kSqlServerTables;
}

ExitCode TestDatabase(const DatabaseTestOptions& options) {
  try {
    const auto settings = OpenSettings(options.settings);
    const auto connection = OpenConnection(ConnectionStringOf(*settings), options.programFolder);
    if (!options.json) std::cout << "Il database risponde.\n";
    std::vector<TableFinding> findings = CheckDatabase(*connection);
    AddMappedColumns(options.programFolder, *connection, findings);
    for (const TableFinding& finding : findings) PrintFinding(finding, options.json);
    if (!findings.empty()) return ExitCode::kFindings;
    if (!options.json) std::cout << "Tabelle e colonne sono al completo.\n";
    return ExitCode::kWell;
  } catch (const RunTimeError& error) {
    return PrintError(error, options.json);
  }
}

}  // namespace ordex::console
