// Registers each session file of this folder as a test of its own. With ORDEX_SESSIONS_DRIVER every
// session is run twice, with the embedded database as it is and through the ODBC driver of that
// name, and must leave the same tables behind.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <map>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "console_program.h"
#include "expectations.h"
#include "session_file.h"
#include "session_runner.h"
#include "text_files.h"

namespace ordex::sessions {
namespace fs = std::filesystem;
namespace {

const fs::path kSource = ORDEX_SOURCE_DIR;

// The ODBC driver to reach the databases through; empty: none.
std::string Driver() {
  const char* named = std::getenv("ORDEX_SESSIONS_DRIVER");
  return named == nullptr ? std::string() : std::string(named);
}

// A moment of today holds the clock's time where a session does not set it.
std::string WithoutClock(std::string row) {
  const std::time_t now = std::time(nullptr);
  std::array<char, 16> today{};
  const std::size_t length = std::strftime(today.data(), today.size(), "%Y-%m-%d", localtime(&now));
  constexpr std::size_t kTime = 9;  // " HH:MM:SS"
  const std::string_view date(today.data(), length);
  for (std::size_t at = row.find(date); at != std::string::npos; at = row.find(date, at + 1)) {
    row.erase(at + length, kTime);
  }
  return row;
}

Content WithoutClock(Content tables) {
  for (auto& [name, rows] : tables) {
    for (std::string& row : rows) row = WithoutClock(std::move(row));
  }
  return tables;
}

// The sessions that cannot pass through ODBC, with the reason: lines "folder/name: reason".
std::map<std::string, std::string> LeftOut() {
  std::map<std::string, std::string> sessions;
  std::istringstream lines(ReadFile(kSource / "tests/sessions/left-out-through-odbc.txt"));
  for (std::string line; std::getline(lines, line);) {
    const std::size_t colon = line.find(": ");
    if (line.starts_with('#') || colon == std::string::npos) continue;
    sessions[line.substr(0, colon)] = line.substr(colon + 2);
  }
  return sessions;
}

class SessionTest : public ::testing::Test {
 public:
  SessionTest(fs::path file, std::string leftOutBecause)
      : file_(std::move(file)), leftOutBecause_(std::move(leftOutBecause)) {}

  void TestBody() override {
    if (!leftOutBecause_.empty()) GTEST_SKIP() << leftOutBecause_;
    try {
      const std::vector<Step> steps = ParseSession(ReadFile(file_));
      const Content plain = Run(steps, {});
      if (Driver().empty()) return;
      const auto difference =
          ContentDifference(WithoutClock(plain), WithoutClock(Run(steps, Driver())));
      if (difference) Fail(1, "through ODBC other tables are left behind: " + *difference);
    } catch (const SyntaxError& error) {
      Fail(error.line(), std::string("the session file is wrong: ") + error.what());
    } catch (const std::exception& error) {
      Fail(1, std::string("the session cannot be run: ") + error.what());
    }
  }

 private:
  Content Run(const std::vector<Step>& steps, const std::string& driver) const {
    const SessionSetup setup{kSource, ConsoleProgram(), kTimeLimit, driver};
    return RunSession(steps, setup, [&](std::size_t line, const std::string& text) {
      Fail(line, driver.empty() ? text : "through ODBC: " + text);
    });
  }

  void Fail(std::size_t line, const std::string& text) const {
    ADD_FAILURE_AT(file_.c_str(), static_cast<int>(line)) << text;
  }

  fs::path file_;
  std::string leftOutBecause_;
};

// "update/one-case-found.session" becomes update.one_case_found.
std::string TestName(const fs::path& path) {
  std::string name = path.stem().string();
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
}

void RegisterSessions() {
  const fs::path folder = kSource / "tests/sessions";
  std::vector<fs::path> files;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.path().extension() == ".session") files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  std::map<std::string, std::string> left_out;
  if (!Driver().empty()) left_out = LeftOut();
  for (const fs::path& file : files) {
    const std::string suite = TestName(file.parent_path().lexically_relative(folder));
    const std::string why =
        left_out[file.lexically_relative(folder).replace_extension().generic_string()];
    ::testing::RegisterTest(
        suite.c_str(), TestName(file).c_str(), nullptr, nullptr, file.c_str(), 1,
        [file, why]() -> ::testing::Test* { return new SessionTest(file, why); });
  }
}

}  // namespace
}  // namespace ordex::sessions

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  // A console that has ended already does not read what we write to it.
  std::signal(SIGPIPE, SIG_IGN);
  ordex::sessions::RegisterSessions();
  return RUN_ALL_TESTS();
}
