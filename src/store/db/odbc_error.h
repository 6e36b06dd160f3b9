// What ODBC reports, gathered and told to the user.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "base/error.h"
#include "store/db/odbc_api.h"

namespace ordex {

// One diagnostic record of a handle.
struct OdbcDiagnostic {
  std::string state;  // SQLSTATE, five characters
  int native = 0;     // the engine's own number
  std::string words;  // the engine's own words, without the names of drivers in brackets
};

// The records of a handle, in order. Reading them does not change the handle.
std::vector<OdbcDiagnostic> DiagnosticsOf(SQLSMALLINT handleType, SQLHANDLE handle);

// True where a record is an error, not a warning or a piece of information.
bool HoldsError(std::span<const OdbcDiagnostic> diagnostics);
// The connection is gone: whatever was not committed is gone too.
bool LostConnection(std::span<const OdbcDiagnostic> diagnostics);
// The engine itself ended the transaction (deadlock victim).
bool EndedTransaction(std::span<const OdbcDiagnostic> diagnostics);

// What went wrong and what to do, in Italian, for a statement on SQL Server. The engine's own words
// are quoted where the numbers alone do not say it all.
std::string SqlServerErrorText(std::span<const OdbcDiagnostic> diagnostics);

// The same for a connection that could not be opened.
std::string ConnectErrorText(std::span<const OdbcDiagnostic> diagnostics);

}  // namespace ordex
