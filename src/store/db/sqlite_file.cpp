#include "store/db/sqlite_file.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <system_error>

#include "base/path_text.h"
#include "store/db/sqlite_error.h"

namespace ordex {
namespace fs = std::filesystem;
namespace {

RunTimeError OpenError(const fs::path& file, std::string_view problem) {
  return SqliteFileError(file, "impossibile aprire il database: " + std::string(problem));
}

// What the engine would only report in general words.
void RequireFile(const fs::path& file) {
  std::error_code failure;
  const fs::file_status status = fs::status(file, failure);
  if (status.type() == fs::file_type::not_found) {
    throw OpenError(file, "il file non esiste; controllare il nome nelle impostazioni");
  }
  if (fs::is_directory(status)) {
    throw OpenError(file, "è una cartella; indicare il file del database");
  }
  if (!fs::exists(status)) {
    throw OpenError(file, SqliteErrorText(SQLITE_CANTOPEN, {}));
  }
  // The engine would take an empty file for a database without tables.
  if (!fs::is_regular_file(status) || fs::file_size(file, failure) == 0) {
    throw OpenError(file, SqliteErrorText(SQLITE_NOTADB, {}));
  }
}

constexpr std::string_view kNoWorkingFolder =
    "la cartella di lavoro del programma non esiste più; avviare di nuovo il programma da un'altra "
    "cartella";

// Nothing where the name is relative and the working directory was removed: a name such as
// "../x.db" then still leads to a file.
std::optional<fs::path> Absolute(const fs::path& file) {
  std::error_code failure;
  fs::path absolute = fs::absolute(file, failure);
  if (failure) return std::nullopt;
  return absolute;
}

struct Opened {
  SqliteHandle database;
  int code;
};

// Opens and reads the table of contents: only then does the engine look into the file.
Opened Open(const std::string& name, int flags, int busyMilliseconds) {
  sqlite3* database = nullptr;
  int code = sqlite3_open_v2(name.c_str(), &database, flags, nullptr);
  SqliteHandle handle(database);
  if (code == SQLITE_OK) {
    sqlite3_extended_result_codes(database, 1);
    sqlite3_busy_timeout(database, busyMilliseconds);
    code = sqlite3_exec(database, "SELECT 1 FROM sqlite_master LIMIT 1", nullptr, nullptr, nullptr);
  }
  return {std::move(handle), code};
}

// The file as a URI whose every unusual byte is encoded, so that a "?" or "%" in a name is a
// character like any other.
std::string UnchangingUri(const fs::path& absolute) {
  constexpr std::string_view kPlain =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_./:";
  constexpr std::string_view kHex = "0123456789ABCDEF";
  const std::string name = GenericTextOf(absolute);
  std::string uri = name.starts_with('/') ? "file://" : "file:///";
  for (const char character : name) {
    if (kPlain.find(character) != std::string_view::npos) {
      uri.push_back(character);
    } else {
      const auto byte = static_cast<unsigned char>(character);
      uri.append({'%', kHex[byte / 16], kHex[byte % 16]});
    }
  }
  return uri + "?immutable=1";
}

// True where the engine failed for want of rights and neither of the logs is there that would hold
// a part of the data.
bool MayBeReadAsItStands(int code, const fs::path& file) {
  const int plain = code & 0xFF;
  if (plain != SQLITE_READONLY && plain != SQLITE_CANTOPEN) return false;
  std::error_code failure;
  const fs::path real = fs::canonical(file, failure);
  if (failure) return false;
  return !fs::exists(fs::path(real).concat("-wal"), failure) && !failure &&
         !fs::exists(fs::path(real).concat("-journal"), failure) && !failure;
}

}  // namespace

std::string SqliteFileName(const fs::path& file) {
  const std::optional<fs::path> absolute = Absolute(file);
  if (!absolute) throw MakeError(ErrorNumber::kDatabase, kNoWorkingFolder);
  return TextOf(*absolute);
}

SqliteHandle OpenSqliteFile(const fs::path& file, int busyMilliseconds) {
  RequireFile(file);
  const std::optional<fs::path> absolute = Absolute(file);
  if (!absolute) throw OpenError(file, kNoWorkingFolder);
  Opened opened = Open(TextOf(*absolute), SQLITE_OPEN_READWRITE, busyMilliseconds);
  // In a folder that we may not write to, the engine cannot make the working files that even a
  // reader needs.
  if (MayBeReadAsItStands(opened.code, file)) {
    Opened unchanging =
        Open(UnchangingUri(*absolute), SQLITE_OPEN_READONLY | SQLITE_OPEN_URI, busyMilliseconds);
    if (unchanging.code == SQLITE_OK) return std::move(unchanging.database);
  }
  if (opened.code != SQLITE_OK) {
    throw OpenError(
        file, SqliteErrorText(opened.code, opened.database ? sqlite3_errmsg(opened.database.get())
                                                           : sqlite3_errstr(opened.code)));
  }
  return std::move(opened.database);
}

SqliteHandle MakeSqliteFile(const fs::path& file) {
  Opened opened = Open(SqliteFileName(file), SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, 0);
  if (opened.code != SQLITE_OK) {
    throw MakeError(ErrorNumber::kDatabase,
                    SqliteErrorText(opened.code, sqlite3_errstr(opened.code)));
  }
  return std::move(opened.database);
}

void RequireFileInPlace(sqlite3* database) {
  int moved = 0;
  const int code = sqlite3_file_control(database, "main", SQLITE_FCNTL_HAS_MOVED, &moved);
  if (code != SQLITE_OK || moved == 0) return;
  throw MakeError(
      ErrorNumber::kDatabase,
      "il file del database è stato spostato, eliminato o sostituito mentre era aperto; "
      "chiudere Ordex, rimettere il file al suo posto e copiare di nuovo la pagina");
}

}  // namespace ordex
