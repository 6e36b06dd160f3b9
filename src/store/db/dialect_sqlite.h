// Rewrites the SQL that the routines write into what SQLite understands, token by token, never
// inside a literal.
#pragma once

#include <string>
#include <vector>

#include "store/db/connection.h"
#include "store/db/sql_tokens.h"

namespace ordex {

// Errors (database): a date expression whose text is no date.
std::string RewriteForSqlite(const std::vector<Token>& tokens, TableCatalog& catalog);

}  // namespace ordex
