// Registers each session file of this folder as a test of its own.
#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "session_file.h"
#include "session_runner.h"
#include "text_files.h"

namespace ordex::sessions {
namespace fs = std::filesystem;
namespace {

const fs::path kSource = ORDEX_SOURCE_DIR;

// The console, cut at its blanks: something that runs it may stand in front.
std::vector<std::string> Console() {
  const char* named = std::getenv("ORDEX_CONSOLE");
  std::string text = named != nullptr && *named != '\0' ? named : ORDEX_CONSOLE_FILE;
  std::vector<std::string> words;
  while (!text.empty()) {
    const std::size_t blank = text.find(' ');
    if (blank != 0) words.push_back(text.substr(0, blank));
    text.erase(0, blank == std::string::npos ? text.size() : blank + 1);
  }
  return words;
}

class SessionTest : public ::testing::Test {
 public:
  explicit SessionTest(fs::path file) : file_(std::move(file)) {}

  void TestBody() override {
    try {
      RunSession(ParseSession(ReadFile(file_)), {kSource, Console()},
                 [&](std::size_t line, const std::string& text) { Fail(line, text); });
    } catch (const SyntaxError& error) {
      Fail(error.line(), std::string("the session file is wrong: ") + error.what());
    } catch (const std::exception& error) {
      Fail(1, std::string("the session cannot be run: ") + error.what());
    }
  }

 private:
  void Fail(std::size_t line, const std::string& text) const {
    ADD_FAILURE_AT(file_.c_str(), static_cast<int>(line)) << text;
  }

  fs::path file_;
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
  for (const fs::path& file : files) {
    const std::string suite = TestName(file.parent_path().lexically_relative(folder));
    ::testing::RegisterTest(suite.c_str(), TestName(file).c_str(), nullptr, nullptr, file.c_str(),
                            1, [file]() -> ::testing::Test* { return new SessionTest(file); });
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
