// The OLE DB connection string of the settings in the words of an ODBC driver.
#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <string_view>

#include "store/db/server_settings.h"

namespace ordex {

// What opening a connection needs.
struct OdbcTarget {
  std::string connectionString;  // the driver's own words; holds the password
  std::string password;          // never to be told; empty where there is none
  std::string shown;             // the server or file, for messages
  std::filesystem::path file;    // of an embedded database; empty: a server
  unsigned loginTimeOut = 15;    // seconds
};

// `driver` is the one to use where the settings name none. A file stands relative to
// `programFolder`.
OdbcTarget TranslateToOdbc(const ServerSettings& settings, std::string_view driver,
                           const std::filesystem::path& programFolder);

// The newest driver for SQL Server among the installed ones; empty where there is none. With
// `preferFreeTds` that one goes before all others.
std::string ChooseDriver(std::span<const std::string> installed, bool preferFreeTds);

}  // namespace ordex
