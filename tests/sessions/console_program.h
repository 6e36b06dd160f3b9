// The console that the tests run.
#pragma once

#include <string>
#include <vector>

namespace ordex::sessions {

// The one that was built, or the one that the environment names in ORDEX_CONSOLE: cut at its
// blanks, as something that runs it may stand in front.
std::vector<std::string> ConsoleProgram();

}  // namespace ordex::sessions
