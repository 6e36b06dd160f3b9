#include "ui/console/check.h"

#include <iostream>
#include <iterator>
#include <vector>

#include "app/ini_settings.h"
#include "app/main_window.h"
#include "app/mapping_check.h"
#include "app/page_check.h"
#include "base/error.h"
#include "base/path_text.h"
#include "store/db/open_connection.h"
#include "ui/console/json_events.h"
#include "ui/console/state_json.h"

namespace ordex::console {
namespace {

void Append(std::vector<Finding>& findings, std::vector<Finding> more) {
  std::move(more.begin(), more.end(), std::back_inserter(findings));
}

void PrintFinding(const Finding& finding, bool json) {
  const bool error = finding.severity == Severity::kError;
  if (json) {
    PrintJsonLine(std::cout, {{"event", "finding"},
                              {"file", finding.file},
                              {"line", finding.line},
                              {"severity", error ? "error" : "warning"},
                              {"text", finding.text}});
    return;
  }
  std::cout << finding.file;
  if (finding.line > 0) std::cout << ", riga " << finding.line;
  std::cout << ": " << (error ? "errore" : "avviso") << ". " << finding.text << "\n";
}

void AppendColumns(std::vector<Finding>& findings, const CheckOptions& options) {
  try {
    const IniSettings settings(options.settings);
    const auto connection = OpenConnection(ConnectionStringOf(settings), options.programFolder);
    Append(findings, CheckColumns(options.programFolder, *connection));
  } catch (const RunTimeError& error) {
    findings.push_back({TextOf(options.settings), 0, Severity::kError, error.description()});
  }
}

void AppendPages(std::vector<Finding>& findings, const CheckOptions& options) {
  try {
    Append(findings, CheckPages(options.programFolder, options.pages));
  } catch (const FileLineError&) {
    // Pages say nothing of a file that cannot be loaded; the line at fault is told already.
    if (findings.empty()) throw;
  }
}

std::vector<Finding> Check(const CheckOptions& options) {
  std::vector<Finding> findings = CheckMappings(options.programFolder);
  if (!options.settings.empty()) AppendColumns(findings, options);
  if (!options.pages.empty()) AppendPages(findings, options);
  return findings;
}

}  // namespace

ExitCode CheckMappingFiles(const CheckOptions& options) {
  const std::vector<Finding> findings = Check(options);
  for (const Finding& finding : findings) PrintFinding(finding, options.json);
  if (findings.empty() && !options.json) std::cout << "I file di mappatura sono in ordine.\n";
  return findings.empty() ? ExitCode::kWell : ExitCode::kFindings;
}

}  // namespace ordex::console
