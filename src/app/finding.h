// What the checks of the mapping files and of the database find.
#pragma once

#include <cstddef>
#include <string>

namespace ordex {

enum class Severity { kWarning, kError };

// Something wrong in a text file.
struct Finding {
  std::string file;
  std::size_t line = 0;  // counted from 1; 0 where the finding is of the file as a whole
  Severity severity = Severity::kWarning;
  std::string text;  // what is wrong, and what to do
};

}  // namespace ordex
