#include "store/db/odbc_drivers.h"

#include <algorithm>
#include <array>

#include "base/error.h"
#include "store/db/odbc_handle.h"
#include "store/db/odbc_settings.h"
#include "store/db/odbc_text.h"

namespace ordex {
namespace {

#ifdef _WIN32
constexpr bool kPreferFreeTds = false;
constexpr const char* kWhatToInstall = "\"ODBC Driver 18 for SQL Server\"";
#else
constexpr bool kPreferFreeTds = true;
constexpr const char* kWhatToInstall = "FreeTDS (pacchetto \"tdsodbc\")";
#endif

}  // namespace

std::vector<std::string> InstalledOdbcDrivers() {
  std::vector<std::string> drivers;
  const auto environment = MakeOdbcEnvironment();
  if (!environment) return drivers;
  std::array<SQLWCHAR, 512> name{};
  std::array<SQLWCHAR, 4096> attributes{};  // not used, but some managers insist on a place
  SQLSMALLINT length = 0;
  SQLSMALLINT attributes_length = 0;
  SQLUSMALLINT direction = SQL_FETCH_FIRST;
  while (Succeeded(SQLDriversW(environment->get(), direction, name.data(),
                               static_cast<SQLSMALLINT>(name.size()), &length, attributes.data(),
                               static_cast<SQLSMALLINT>(attributes.size()), &attributes_length))) {
    const auto used = static_cast<std::size_t>(std::max<SQLSMALLINT>(length, 0));
    drivers.push_back(FromWide(name.data(), std::min(used, name.size() - 1)));
    direction = SQL_FETCH_NEXT;
  }
  return drivers;
}

std::string PlatformDriver() {
  std::string driver = ChooseDriver(InstalledOdbcDrivers(), kPreferFreeTds);
  if (driver.empty()) {
    throw MakeError(ErrorNumber::kDatabase,
                    std::string("su questo computer non c'è un driver ODBC per SQL Server; "
                                "installare ") +
                        kWhatToInstall);
  }
  return driver;
}

}  // namespace ordex
