// Finds what an office gets wrong when it edits the mapping files.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include "store/db/connection.h"

namespace ordex {

enum class Severity { kWarning, kError };

struct Finding {
  std::string file;
  std::size_t line = 0;  // counted from 1; 0 where the finding is of the file as a whole
  Severity severity = Severity::kWarning;
  std::string text;  // what is wrong, and what to do
};

// Reads the three mapping files of the folder; what they say is compared with what the page kinds
// ask for and with each other.
std::vector<Finding> CheckMappings(const std::filesystem::path& programFolder);

// Compares the mapped field names with the columns of the office's database. Errors: of the
// database.
std::vector<Finding> CheckColumns(const std::filesystem::path& programFolder,
                                  Connection& connection);

// Runs every text file of `pages` through the program's import: pages that yield nothing or stop,
// and mapping lines that no page uses. Errors: of the mapping files.
std::vector<Finding> CheckPages(const std::filesystem::path& programFolder,
                                const std::filesystem::path& pages);

}  // namespace ordex
