// Opening the embedded engine's files, without any table work.
#pragma once

#include <filesystem>
#include <string>

#include "store/db/sqlite_statement.h"

namespace ordex {

// The file's name as the engine wants it: UTF-8 and absolute. A relative name could begin with
// "file:" or ":" and would not be taken as a name. Error (database), without the file's name: there
// is no working directory any more.
std::string SqliteFileName(const std::filesystem::path& file);

// Opens an existing database file for reading and writing, or for reading where the rights allow no
// more, and makes sure that it is one. Errors (database), naming the file: absent, no file, empty,
// no rights, no database, no working directory that a relative name could stand in.
SqliteHandle OpenSqliteFile(const std::filesystem::path& file, int busyMilliseconds);

// Makes a new, empty database. Error (database), without the file's name.
SqliteHandle MakeSqliteFile(const std::filesystem::path& file);

// Error (database): the file is no longer the one that was opened. The engine would go on writing
// into a file that nobody finds again, and say that all is well. Systems that let nobody remove an
// open file have nothing to tell here.
void RequireFileInPlace(sqlite3* database);

}  // namespace ordex
