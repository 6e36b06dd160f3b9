// The ODBC drivers of this computer.
#pragma once

#include <string>
#include <vector>

namespace ordex {

// The drivers that are installed on this computer.
std::vector<std::string> InstalledOdbcDrivers();
// The one that this platform uses: on Windows the newest of the maker of the server, elsewhere
// FreeTDS. Error (database): none is installed.
std::string PlatformDriver();

}  // namespace ordex
