#include "store/db/open_connection.h"

#include <algorithm>
#include <array>
#include <string>

#include "base/error.h"
#include "base/path_text.h"
#include "base/text.h"
#include "store/db/connection_string.h"
#include "store/db/sqlite_connection.h"

namespace ordex {
namespace fs = std::filesystem;
namespace {

constexpr std::array<std::string_view, 5> kSourceNames = {"Data Source", "Server", "Address",
                                                          "Addr", "Network Address"};
constexpr std::string_view kFilePrefix = "file:";

// All names of the data source are one key, so the last of them wins, whatever its name.
std::string DataSource(const ConnectionString& settings) {
  std::string source;
  for (const ConnectionKey& key : settings.keys()) {
    const bool names_source =
        std::any_of(kSourceNames.begin(), kSourceNames.end(),
                    [&](std::string_view name) { return EqualIgnoringCase(key.name, name); });
    if (names_source) source = key.value;
  }
  return source;
}

RunTimeError SettingsError(std::string_view problem) {
  return MakeError(ErrorNumber::kDatabase,
                   std::string(problem) +
                       ". Controllare le impostazioni \"Zelmo32\", sezione \"startup\", chiavi "
                       "\"Security\" e \"Server\".");
}

// A server's name holds no "="; where a semicolon was forgotten, what follows one may be a
// password.
std::string_view Presentable(std::string_view source) {
  return source.substr(0, source.find('='));
}

}  // namespace

std::unique_ptr<Connection> OpenConnection(std::string_view connectionString,
                                           const fs::path& programFolder) {
  const std::string source = DataSource(ConnectionString(connectionString));
  if (source.empty()) {
    throw SettingsError("le impostazioni non indicano un server (manca \"Data Source\")");
  }
  if (EqualIgnoringCase(Left(source, kFilePrefix.size()), kFilePrefix)) {
    const std::string_view file = Trim(std::string_view(source).substr(kFilePrefix.size()));
    if (file.empty()) throw SettingsError("\"Data Source=file:\" non indica nessun file");
    return OpenSqlite(programFolder / PathOf(file));
  }
  throw MakeError(ErrorNumber::kDatabase,
                  "impossibile aprire \"" + std::string(Presentable(source)) +
                      "\": questa versione del programma non contiene il driver per SQL Server");
}

}  // namespace ordex
