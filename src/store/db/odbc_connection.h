// A database behind an ODBC driver: SQL Server in the office.
#pragma once

#include <memory>

#include "store/db/connection.h"
#include "store/db/odbc_settings.h"

namespace ordex {

// Error (database): the driver is not there, or the server is not reached or refuses the user.
std::unique_ptr<Connection> OpenOdbc(const OdbcTarget& target);

}  // namespace ordex
