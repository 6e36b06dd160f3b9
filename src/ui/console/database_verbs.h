// "ordex-console db script" and "ordex-console db test".
#pragma once

#include <filesystem>
#include <string>

#include "ui/common/exit_code.h"

namespace ordex::console {

struct DatabaseTestOptions {
  std::filesystem::path programFolder;
  std::string settings;  // empty: the user's own
  bool json = false;
};

// Prints the tables of an empty test database in T-SQL.
void PrintDatabaseScript();

// Opens the connection that the settings name and prints what is missing in the database. Well
// when nothing is, findings where something is, error where the database cannot be opened or stops
// answering.
ExitCode TestDatabase(const DatabaseTestOptions& options);

}  // namespace ordex::console
