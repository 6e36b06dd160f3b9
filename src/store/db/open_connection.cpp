#include "store/db/open_connection.h"

#include <string>

#include "base/error.h"
#include "base/path_text.h"
#include "base/text.h"
#include "store/db/odbc_connection.h"
#include "store/db/odbc_drivers.h"
#include "store/db/odbc_settings.h"
#include "store/db/server_settings.h"
#include "store/db/sqlite_connection.h"

namespace ordex {
namespace fs = std::filesystem;
namespace {

constexpr std::string_view kFilePrefix = "file:";

RunTimeError SettingsError(std::string_view problem) {
  return MakeError(ErrorNumber::kDatabase,
                   std::string(problem) +
                       ". Controllare le impostazioni \"Zelmo32\", sezione \"startup\", chiavi "
                       "\"Security\" e \"Server\".");
}

std::unique_ptr<Connection> OpenNamedDriver(const ServerSettings& settings,
                                            const fs::path& programFolder) {
  const OdbcTarget target = TranslateToOdbc(settings, {}, programFolder);
  // What keeps a file from being opened the driver for it does not tell.
  if (!target.file.empty()) OpenSqlite(target.file);
  return OpenOdbc(target);
}

}  // namespace

std::unique_ptr<Connection> OpenConnection(std::string_view connectionString,
                                           const fs::path& programFolder) {
  const ServerSettings settings = ReadServerSettings(connectionString);
  const std::string& source = settings.source;
  if (!settings.driver.empty()) return OpenNamedDriver(settings, programFolder);
  if (source.empty()) {
    throw SettingsError("le impostazioni non indicano un server (manca \"Data Source\")");
  }
  if (EqualIgnoringCase(Left(source, kFilePrefix.size()), kFilePrefix)) {
    const std::string_view file = Trim(std::string_view(source).substr(kFilePrefix.size()));
    if (file.empty()) throw SettingsError("\"Data Source=file:\" non indica nessun file");
    return OpenSqlite(programFolder / PathOf(file));
  }
  return OpenOdbc(TranslateToOdbc(settings, PlatformDriver(), programFolder));
}

}  // namespace ordex
