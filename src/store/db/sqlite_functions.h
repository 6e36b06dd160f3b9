// SQL functions of our own connection to the embedded engine.
#pragma once

#include <sqlite3.h>

namespace ordex {

// LOWER, UPPER and UCASE by Unicode; the engine's own know ASCII only. Null stays Null.
void AddUnicodeFunctions(sqlite3* database);

}  // namespace ordex
