// The OLE DB connection string of the settings, read by its meaning.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/db/connection_string.h"

namespace ordex {

// What a connection string says, whatever names its keys have. Empty: not said.
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

}  // namespace ordex
