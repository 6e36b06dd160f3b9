// What the embedded engine reports, told to the user.
#pragma once

#include <sqlite3.h>

#include <filesystem>
#include <string>
#include <string_view>

#include "base/error.h"

namespace ordex {

// What went wrong and what to do, in Italian, for a result code of the engine (plain or extended).
// `engineWords`, the engine's own message, is quoted where the code alone does not say it all.
std::string SqliteErrorText(int code, std::string_view engineWords);

// The database error for `code`, which a call on `database` has just returned.
RunTimeError SqliteError(sqlite3* database, int code);

// The same for a file that could not be opened or made: names the file.
RunTimeError SqliteFileError(const std::filesystem::path& file, std::string_view problem);

}  // namespace ordex
