// The embedded database: a driver on SQLite's C interface.
#pragma once

#include <filesystem>
#include <memory>

#include "store/db/connection.h"

namespace ordex {

// Opens an existing database file for reading and writing. A writer waits up to 5 seconds for
// another one. Errors: the file is absent, cannot be opened or is no database.
std::unique_ptr<Connection> OpenSqlite(const std::filesystem::path& file);

}  // namespace ordex
