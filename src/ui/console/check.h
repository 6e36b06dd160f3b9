// "ordex-console check": reports what is wrong in the mapping files.
#pragma once

#include <filesystem>

namespace ordex::console {

struct CheckOptions {
  std::filesystem::path programFolder;
  std::filesystem::path settings;  // empty: the mapped names are compared with no database
  std::filesystem::path pages;     // empty: no stored pages are tried
  bool json = false;
};

// Returns the exit code: 0 when nothing is wrong, 1 otherwise.
// Errors: of the settings, the database and the pages' folder.
int CheckMappingFiles(const CheckOptions& options);

}  // namespace ordex::console
