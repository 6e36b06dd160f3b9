// Compares the office's database with what the program reads and writes there.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "app/finding.h"
#include "store/db/connection.h"

namespace ordex {

// What is wrong with one table, and what it means.
struct TableFinding {
  std::string table;
  std::string column;  // empty where the finding is of the table as a whole
  Severity severity = Severity::kError;
  std::string text;
};

// Tables, columns, keys and fixed rows that are missing, or that the user may not read. Changes
// nothing. Errors (database): where the connection is lost.
std::vector<TableFinding> CheckDatabase(Connection& connection);

}  // namespace ordex
