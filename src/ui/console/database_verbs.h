// "ordex-console db script" and "ordex-console db test".
#pragma once

#include <filesystem>
#include <string>

namespace ordex::console {

struct DatabaseTestOptions {
  std::filesystem::path programFolder;
  std::string settings;  // empty: the user's own
  bool json = false;
};

// Prints the tables of an empty test database in T-SQL.
void PrintDatabaseScript();

// Opens the connection that the settings name and prints what is missing in the database. Returns
// the exit code: 0 when nothing is wrong, 1 where something is missing, 4 where the database cannot
// be opened or stops answering.
int TestDatabase(const DatabaseTestOptions& options);

}  // namespace ordex::console
