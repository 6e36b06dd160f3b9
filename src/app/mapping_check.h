// Finds what an office gets wrong when it edits the mapping files.
#pragma once

#include <filesystem>
#include <vector>

#include "app/finding.h"
#include "store/db/connection.h"

namespace ordex {

// Reads the three mapping files of the folder; what they say is compared with what the page kinds
// ask for and with each other.
std::vector<Finding> CheckMappings(const std::filesystem::path& programFolder);

// Compares the mapped field names with the columns of the office's database. Errors: of the
// database.
std::vector<Finding> CheckColumns(const std::filesystem::path& programFolder,
                                  Connection& connection);

}  // namespace ordex
