// A machine whose memory is used up: the console says so, with the exit code of an error, and
// leaves no page behind.
#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "console_program.h"
#include "console_run.h"
#include "workplace.h"

namespace ordex::abuse {
namespace {

namespace fs = std::filesystem;
using sessions::RunOutcome;
using sessions::RunTask;
using sessions::Workplace;

constexpr std::uintmax_t kMegabyte = 1'000'000;

// A call with 300 MB of memory and that page, which takes no room on the disk.
RunOutcome RunWithLittleMemory(const Workplace& workplace, std::vector<std::string> arguments,
                               std::uintmax_t pageSize) {
  const fs::path page = workplace.folder() / "large.txt";
  std::ofstream(page) << "Profilo del fascicolo - Dati generali\n";
  fs::resize_file(page, pageSize);
  RunTask task;
  task.program = {"/bin/sh", "-c", "ulimit -v 300000 && exec \"$@\"", "sh"};
  for (const std::string& word : sessions::ConsoleProgram()) task.program.push_back(word);
  task.arguments = std::move(arguments);
  return RunConsole(task, workplace);
}

constexpr const char* kAdvice = "Memoria insufficiente. Chiudere altri programmi";

TEST(NoMemory, ForThePageEndsTheSession) {
  const Workplace workplace(ORDEX_SOURCE_DIR);
  const RunOutcome outcome = RunWithLittleMemory(
      workplace,
      {"--dir", "office", "--settings", "settings.ini", "--json", "--clipboard", "large.txt"},
      200 * kMegabyte);
  EXPECT_EQ(outcome.exitCode, 4) << outcome.transcript;
  EXPECT_EQ(outcome.fault, "");
  ASSERT_FALSE(outcome.events.empty());
  EXPECT_EQ(outcome.events.back()["reason"], "error");
  EXPECT_NE(outcome.errors.find(kAdvice), std::string::npos) << outcome.errors;
  EXPECT_TRUE(workplace.Leftovers().empty());
}

TEST(NoMemory, ForTheClipboardEndsTheCall) {
  const Workplace workplace(ORDEX_SOURCE_DIR);
  const RunOutcome outcome = RunWithLittleMemory(
      workplace, {"--dir", "office", "--settings", "settings.ini", "--clipboard", "large.txt"},
      400 * kMegabyte);
  EXPECT_EQ(outcome.exitCode, 4) << outcome.transcript;
  EXPECT_NE(outcome.errors.find(kAdvice), std::string::npos) << outcome.errors;
}

TEST(NoMemory, ForAPageThatIsExplainedEndsTheCall) {
  const Workplace workplace(ORDEX_SOURCE_DIR);
  const RunOutcome outcome =
      RunWithLittleMemory(workplace, {"explain", "--dir", "office", "large.txt"}, 400 * kMegabyte);
  EXPECT_EQ(outcome.exitCode, 4) << outcome.transcript;
  EXPECT_NE(outcome.errors.find(kAdvice), std::string::npos) << outcome.errors;
}

}  // namespace
}  // namespace ordex::abuse
