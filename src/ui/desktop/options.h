// The options of a start, for portable use and for tests.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/date.h"

namespace ordex::desktop {

struct Options {
  std::string dir;              // the program folder
  std::string settings;         // the file of the user's settings
  std::optional<DateTime> now;  // the clock stands still here
  bool help = false;
};

// `arguments` without the program's name. Throws std::invalid_argument with an Italian text.
Options ReadOptions(const std::vector<std::string>& arguments);

// The text of --help.
std::string OptionsHelp();

}  // namespace ordex::desktop
