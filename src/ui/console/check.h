// "ordex-console check": reports what is wrong in the mapping files.
#pragma once

#include <filesystem>

#include "ui/common/exit_code.h"

namespace ordex::console {

struct CheckOptions {
  std::filesystem::path programFolder;
  std::filesystem::path settings;  // empty: the mapped names are compared with no database
  std::filesystem::path pages;     // empty: no stored pages are tried
  bool json = false;
};

// Well when nothing is wrong, findings otherwise.
// Errors: of the settings, the database and the pages' folder.
ExitCode CheckMappingFiles(const CheckOptions& options);

}  // namespace ordex::console
