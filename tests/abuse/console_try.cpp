#include "abuse/console_try.h"

#include <chrono>

#include "console_program.h"

namespace ordex::abuse {
namespace {

constexpr std::chrono::seconds kTimeLimit{120};

std::vector<std::string> CommandLine() {
  std::vector<std::string> words = sessions::ConsoleProgram();
  words.insert(words.end(), {"--dir", "office", "--settings", "settings.ini", "--json",
                             "--clipboard", "page.txt", "--now", "20/02/2026 09:30:00"});
  return words;
}

sessions::ProcessTask TaskFor(const sessions::Workplace& workplace,
                              std::optional<std::size_t> largestFile) {
  sessions::ProcessTask task;
  task.command = CommandLine();
  task.folder = workplace.folder();
  task.environment = {{"ORDEX_DIR", ""}};
  task.largestFile = largestFile;
  return task;
}

}  // namespace

ConsoleTry::ConsoleTry(const sessions::Workplace& workplace, const Commands& commands,
                       std::optional<std::size_t> largestFile)
    : console_(TaskFor(workplace, largestFile), sessions::ChildProcess::Clock::now() + kTimeLimit) {
  for (const std::string& command : commands) Command(command);
}

bool ConsoleTry::Prints(std::string_view text) {
  console_.ReadUntil(
      [&](const std::string& output) { return output.find(text) != std::string::npos; });
  return Printed(text);
}

}  // namespace ordex::abuse
