#include "console_run.h"

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <string_view>
#include <thread>

#include "child_process.h"
#include "database.h"
#include "session_file.h"
#include "text_files.h"

namespace ordex::sessions {
namespace fs = std::filesystem;
namespace {

constexpr std::size_t kLongestLineShown = 6000;
constexpr std::string_view kKill = "!kill";
constexpr std::string_view kUnlock = "!unlock ";
// From the text that the console prints last to the place where it waits for the lock.
constexpr std::chrono::milliseconds kOnItsWay{300};

bool HoldsOwnCommands(const RunTask& task) {
  for (const std::string& command : task.commands) {
    if (command.starts_with('!')) return true;
  }
  return false;
}

std::vector<std::string> Arguments(const RunTask& task, const Workplace& workplace) {
  if (!task.arguments.empty()) return task.arguments;
  std::vector<std::string> arguments = {"--dir", "office", "--settings", "settings.ini", "--json"};
  if (workplace.page()) arguments.insert(arguments.end(), {"--clipboard", "page.txt"});
  if (!task.now.empty()) arguments.insert(arguments.end(), {"--now", task.now});
  // What we have to do in between needs a console that waits for its next command.
  if (!HoldsOwnCommands(task)) arguments.insert(arguments.end(), {"--script", "script.txt"});
  arguments.insert(arguments.end(), task.options.begin(), task.options.end());
  return arguments;
}

// An unprivileged user may not reach the folder that the program was built in.
std::vector<std::string> Program(const RunTask& task, const Workplace& workplace) {
  if (!task.asNobody || task.program.size() != 1) return task.program;
  const fs::path copy = workplace.folder() / "ordex-console";
  fs::copy_file(task.program.front(), copy, fs::copy_options::overwrite_existing);
  fs::permissions(copy, fs::perms::all);
  return {copy.string()};
}

// Of the lines that are whole already.
std::size_t CountStates(std::string_view output) {
  output = output.substr(0, output.rfind('\n') + 1);
  std::size_t count = 0;
  constexpr std::string_view kState = R"({"event":"state")";
  for (std::size_t at = output.find(kState); at != std::string_view::npos;
       at = output.find(kState, at + 1)) {
    ++count;
  }
  return count;
}

void DoBetween(const std::string& command, const Workplace& workplace, ChildProcess& console) {
  constexpr std::string_view kSql = "!sql ";
  if (command == kKill) {
    console.Kill();
  } else if (command.starts_with(kSql)) {
    RunSql(workplace.database(), command.substr(kSql.size()));
  } else {
    throw std::runtime_error("no command of the runner: " + command);
  }
}

// The console waits for the lock, and so can print no state. Where the machine is so busy that it
// is not there yet, the lock is gone when it comes, and what follows is the same.
void Unlock(std::string_view awaited, ChildProcess& console, std::optional<WriteLock>& lock) {
  console.ReadUntil(
      [&](const std::string& output) { return output.find(awaited) != std::string::npos; });
  std::this_thread::sleep_for(kOnItsWay);
  lock.reset();
}

// Feeds the commands one after the other. Before each of ours the console is asked for its state:
// once that is printed, it has carried out all that stands before.
void Feed(const RunTask& task, const Workplace& workplace, ChildProcess& console,
          std::optional<WriteLock>& lock) {
  std::size_t states = 1;  // the first is printed when the window is ready
  for (const std::string& command : task.commands) {
    if (!command.starts_with('!')) {
      console.Write(command + "\n");
      if (command == "state") ++states;
      continue;
    }
    if (command.starts_with(kUnlock)) {
      Unlock(std::string_view(command).substr(kUnlock.size()), console, lock);
      continue;
    }
    console.Write("state\n");
    ++states;
    console.ReadUntil([&](const std::string& output) { return CountStates(output) >= states; });
    DoBetween(command, workplace, console);
  }
}

std::string Joined(const std::vector<std::string>& words, std::string_view separator) {
  std::string text;
  for (const std::string& word : words) text.append(word).append(separator);
  return text;
}

// The beginning of a long line, cut between two characters.
std::string_view Beginning(std::string_view line) {
  std::size_t end = std::min(line.size(), kLongestLineShown);
  const auto continues = [&] { return (static_cast<unsigned char>(line[end]) & 0xC0U) == 0x80U; };
  while (end < line.size() && end > 0 && continues()) --end;
  return line.substr(0, end);
}

std::string Shown(std::string_view text) {
  std::string shown;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    const std::string_view line = text.substr(0, end);
    const std::string_view beginning = Beginning(line);
    shown.append("  | ").append(beginning).append(beginning.size() < line.size() ? " …\n" : "\n");
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  return shown;
}

// The events of the output; a line that is none is told in `fault`.
void ReadEvents(std::string_view output, RunOutcome& outcome) {
  while (!output.empty()) {
    const std::size_t end = output.find('\n');
    std::string_view line = output.substr(0, end);
    if (line.ends_with('\r')) line.remove_suffix(1);
    Json event = Json::parse(line, nullptr, false);
    if (event.is_object() && event.contains("event") && event["event"].is_string()) {
      outcome.events.push_back(std::move(event));
    } else if (outcome.fault.empty()) {
      outcome.fault = "a line of the output is no event: " + std::string(line);
    }
    output.remove_prefix(end == std::string_view::npos ? output.size() : end + 1);
  }
}

// What holds of every run: "end" is the last event, the only one of its kind, and fits the exit
// code. A wrong call prints nothing.
void CheckEnd(RunOutcome& outcome) {
  if (!outcome.fault.empty()) return;
  if (outcome.events.empty()) {
    if (outcome.exitCode != 2) outcome.fault = "no event was printed";
    return;
  }
  for (std::size_t i = 0; i + 1 < outcome.events.size(); ++i) {
    if (outcome.events[i]["event"] == "end") outcome.fault = "\"end\" is not the last event";
  }
  const Json& end = outcome.events.back();
  if (end["event"] != "end") {
    outcome.fault = "the last event is not \"end\"";
    return;
  }
  const std::string reason = end.value("reason", "");
  const bool fits = (outcome.exitCode == 0 && (reason == "closed" || reason == "done")) ||
                    (outcome.exitCode == 2 && reason == "closed") ||
                    (outcome.exitCode == 3 && reason == "refused") ||
                    (outcome.exitCode == 4 && reason == "error") ||
                    (outcome.exitCode == 5 && reason == "failed");
  if (!fits) {
    outcome.fault =
        "exit code " + std::to_string(outcome.exitCode) + " does not fit \"" + reason + "\"";
  }
}

}  // namespace

RunOutcome RunConsole(const RunTask& task, const Workplace& workplace) {
  workplace.Prepare(task.asNobody);
  WriteFile(workplace.folder() / "script.txt", Joined(task.commands, "\n"));
  ProcessTask process;
  process.command = Program(task, workplace);
  const std::vector<std::string> arguments = Arguments(task, workplace);
  process.command.insert(process.command.end(), arguments.begin(), arguments.end());
  process.folder = workplace.folder();
  // The user's own settings and program folder must play no part.
  process.environment = {{"XDG_CONFIG_HOME", (workplace.folder() / "config").string()},
                         {"ORDEX_DIR", ""}};
  process.asNobody = task.asNobody;

  std::optional<WriteLock> lock;
  if (task.locked) lock.emplace(workplace.database());
  ChildProcess console(process, ChildProcess::Clock::now() + task.timeLimit);
  if (HoldsOwnCommands(task)) Feed(task, workplace, console, lock);
  console.Finish();
  lock.reset();
  workplace.LookInto();

  RunOutcome outcome;
  outcome.exitCode = console.exitCode();
  outcome.timedOut = console.timedOut();
  outcome.output = console.output();
  outcome.errors = console.errors();
  outcome.transcript = Joined(process.command, " ") + "\n--- commands\n" +
                       Shown(Joined(task.commands, "\n")) + "--- output\n" +
                       Shown(console.output()) + "--- error output\n" + Shown(console.errors()) +
                       "--- exit code " + std::to_string(console.exitCode()) + "\n";
  if (outcome.timedOut) {
    outcome.fault = "the time limit of " + std::to_string(task.timeLimit.count()) + " s is over";
  } else if (!task.arguments.empty()) {
    // A verb prints events of its own, and no "end" behind what it reports.
    const auto& words = task.arguments;
    if (std::find(words.begin(), words.end(), "--json") != words.end()) {
      ReadEvents(console.output(), outcome);
    }
  } else {
    const bool killed = !task.commands.empty() && task.commands.back() == kKill;
    ReadEvents(console.output(), outcome);
    if (!killed) CheckEnd(outcome);
  }
  return outcome;
}

}  // namespace ordex::sessions
