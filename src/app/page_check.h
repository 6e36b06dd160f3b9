// What stored pages say of the mapping files, through the program's own import.
#pragma once

#include <filesystem>
#include <vector>

#include "app/finding.h"

namespace ordex {

// Runs every text file of `pages` through the program's import: pages that yield nothing or stop,
// and mapping lines that no page uses. Errors: of the mapping files.
std::vector<Finding> CheckPages(const std::filesystem::path& programFolder,
                                const std::filesystem::path& pages);

}  // namespace ordex
