// Opens the office's database.
#pragma once

#include <filesystem>
#include <memory>
#include <string_view>

#include "store/db/connection.h"

namespace ordex {

// `connectionString` is an OLE DB connection string. A data source of the form "file:PATH" is an
// embedded SQLite database (PATH relative to `programFolder`), every other one a SQL Server.
// Error: database, in Italian, saying which source could not be opened and why.
std::unique_ptr<Connection> OpenConnection(std::string_view connectionString,
                                           const std::filesystem::path& programFolder);

}  // namespace ordex
