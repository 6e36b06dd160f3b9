#include "ui/console/explain.h"

#include <iostream>
#include <memory>

#include "app/intake.h"
#include "app/page_trial.h"
#include "base/text.h"
#include "base/text_file.h"
#include "ui/console/json_events.h"
#include "ui/console/state_json.h"
#include "ui/console/table.h"
#include "ui/console/terminal.h"
#include "ui/console/text_events.h"

namespace ordex::console {
namespace {

Json LineJson(const PageTrial& trial, const LineReport& line) {
  Json rows = Json::array();
  for (const std::size_t place : line.reviewRows) {
    rows.push_back(ReviewRowJson(trial.window.lstImport.rows[place]));
  }
  for (const std::size_t place : line.agendaRows) {
    rows.push_back(AgendaRowJson(trial.window.lstAgendaAvv.rows[place]));
  }
  Json event = {{"event", "line"}, {"number", line.number}, {"text", line.text}};
  event["rule"] = line.rule.empty() ? Json(nullptr) : Json(line.rule);
  event["rows"] = std::move(rows);
  return event;
}

void PrintJson(const PageTrial& trial) {
  for (const LineReport& line : trial.lines) PrintJsonLine(std::cout, LineJson(trial, line));
  JsonEvents events(std::cout);
  if (trial.stop) events.Error(trial.stop->error, trial.stop->line);
  events.State(trial.window);
}

// What a line became: "NumeroRegGenerale = 1842/2025".
std::string Became(const PageTrial& trial, const LineReport& line) {
  std::string text;
  const auto append = [&text](std::string_view name, std::string_view value) {
    if (!text.empty()) text.append("; ");
    text.append(name).append(name.empty() || value.empty() ? "" : " = ").append(value);
  };
  const bool stopped = trial.stop && trial.stop->line == line.number;
  if (line.rule == kNumberOfEntries && !stopped) {
    append("Impegni", std::to_string(trial.window.page.iNrEventiAgenda));
  }
  for (const std::size_t place : line.reviewRows) {
    const ReviewRow row = trial.window.lstImport.rows[place];
    // An event's date is a value, a field's label is none.
    const bool event = !row.sub[2].empty() || row.text == kHistoryRow;
    append(row.text.empty() ? row.sub[0] : row.text,
           event ? std::string(row.sub[0]).append(" ").append(row.sub[1]) : row.sub[1]);
  }
  for (const std::size_t place : line.agendaRows) {
    const AgendaRow row = trial.window.lstAgendaAvv.rows[place];
    append(Trim(row.text), Trim(row.sub));
  }
  return text;
}

void PrintText(const PageTrial& trial) {
  Table table;
  table.headers = {"Riga", "Testo", "Regola", "Che cosa è diventata"};
  for (const LineReport& line : trial.lines) {
    if (Trim(line.text).empty() && line.rule.empty()) continue;
    table.rows.push_back({std::to_string(line.number), line.text,
                          line.rule.empty() ? "nessuna" : line.rule, Became(trial, line)});
  }
  std::cout << trial.window.frmMain.caption << "\n\n" << Drawn(table, TerminalWidth()) << "\n";
  if (trial.stop) {
    std::cout << Printable(ImportStopBox(*trial.stop).text) << "\n";
  }
}

}  // namespace

ExitCode Explain(const std::filesystem::path& programFolder, const std::filesystem::path& pageFile,
                 bool json) {
  const auto trial = TryPage(programFolder, ReadTextFile(pageFile));
  if (!trial) {
    if (json) {
      JsonEvents(std::cout).End(EndReason::kRefused);
    } else {
      TextEvents(std::cout).End(EndReason::kRefused);
    }
    return ExitCode::kRefused;
  }
  if (json) {
    PrintJson(*trial);
  } else {
    PrintText(*trial);
  }
  return trial->stop ? ExitCode::kError : ExitCode::kWell;
}

}  // namespace ordex::console
