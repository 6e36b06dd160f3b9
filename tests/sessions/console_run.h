// One run of the console: its commands, what it printed, how it ended.
#pragma once

#include <chrono>
#include <string>
#include <vector>

#include "json_match.h"
#include "workplace.h"

namespace ordex::sessions {

// Only there to end a run that hangs.
inline constexpr std::chrono::seconds kTimeLimit{150};

struct RunTask {
  std::vector<std::string> program;    // the console, with what stands in front of it
  std::vector<std::string> arguments;  // in place of the usual ones, where there are any
  std::vector<std::string> options;    // besides the usual arguments
  std::string now;
  // Three lines are none of the console's: at "!sql TEXT" another program changes the database, at
  // "!kill" the console is ended by force, and at "!unlock TEXT", once the console has printed
  // TEXT, the lock goes.
  std::vector<std::string> commands;
  bool asNobody = false;
  bool locked = false;  // another program holds the database
  std::chrono::seconds timeLimit = kTimeLimit;
};

struct RunOutcome {
  int exitCode = 0;
  bool timedOut = false;
  std::vector<Json> events;
  std::string output;
  std::string errors;
  std::string fault;       // what is wrong with the output itself; empty where nothing is
  std::string transcript;  // everything, for whoever reads of a failure
};

RunOutcome RunConsole(const RunTask& task, const Workplace& workplace);

}  // namespace ordex::sessions
