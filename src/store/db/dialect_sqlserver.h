// Rewrites the SQL that the routines write into what SQL Server understands, token by token, never
// inside a literal.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/db/sql_tokens.h"

namespace ordex {

// The engine takes the date conversions and 'TRUE' against a bit column as the routines write
// them. Errors (database): a date between number signs that is none.
std::string RewriteForSqlServer(const std::vector<Token>& tokens);

// `text` as a T-SQL literal: between apostrophes, doubled inside, and with N in front where it
// holds a character that a code page might not have.
std::string SqlServerLiteral(std::string_view text);

}  // namespace ordex
