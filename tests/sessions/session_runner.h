// Runs a session file, step by step, and reports what is not as the file expects.
#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "console_run.h"
#include "database.h"
#include "session_file.h"
#include "workplace.h"

namespace ordex::sessions {

struct SessionSetup {
  std::filesystem::path source;      // the root of the source tree
  std::vector<std::string> program;  // the console, with what stands in front of it
  std::chrono::seconds timeLimit = kTimeLimit;
  std::string driver = {};  // the ODBC driver to reach the database through; empty: none
};

// Told of each expectation that failed, with the transcript of the last run.
using FailureReport = std::function<void(std::size_t line, const std::string& text)>;

// The tables as the session left them. Error: SyntaxError, std::runtime_error for what cannot be
// set up.
Content RunSession(const std::vector<Step>& steps, const SessionSetup& setup,
                   const FailureReport& report);

}  // namespace ordex::sessions
