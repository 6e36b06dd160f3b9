// The C interface of ODBC, for the driver's own files alone.
#pragma once

#ifdef _WIN32
#include <windows.h>
#endif

#include <sql.h>
#include <sqlext.h>
#include <sqltypes.h>
#include <sqlucode.h>

namespace ordex {

// Wide characters are UTF-16 units on every platform that we build for; so the conversions of
// odbc_text.h assume.
static_assert(sizeof(SQLWCHAR) == 2);

// Both answers that mean that the call did what it should. SQL_NO_DATA is told apart by the caller.
inline bool Succeeded(SQLRETURN code) {
  return code == SQL_SUCCESS || code == SQL_SUCCESS_WITH_INFO;
}

}  // namespace ordex
