// The OLE DB connection string of the settings in the words of an ODBC driver.
#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "store/db/connection_string.h"

namespace ordex {

// What such a string says, whatever names its keys have. Empty: not said.
struct ServerSettings {
  std::string driver;
  std::string source;  // the server, or "file:PATH"
  std::string database;
  std::string user;
  std::string password;
  bool integrated = false;  // log on as the user of Windows
  std::string network;      // "DBMSSOCN" and the like
  std::string timeOut;
  std::string encrypt;
  std::string trustCertificate;
  std::string application;
  std::string workstation;
  std::string mars;
  std::string language;
  std::string attachFile;
  std::string failoverPartner;
  std::string intent;
  std::string multiSubnet;
  std::vector<ConnectionKey> others;  // keys of no meaning here
};

// Letter case, blanks and underscores in names do not count; the last of several names of one thing
// wins. A semicolon that is missing in front of a known key, or where the program joins the
// fragments of the settings, is put back.
ServerSettings ReadServerSettings(std::string_view connectionString);

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

// The drivers that are installed on this computer.
std::vector<std::string> InstalledOdbcDrivers();
// The one that this platform uses: on Windows the newest of the maker of the server, elsewhere
// FreeTDS. Error (database): none is installed.
std::string PlatformDriver();

}  // namespace ordex
