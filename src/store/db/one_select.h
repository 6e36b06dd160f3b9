// Whether a text is one statement, or one SELECT, and nothing else.
#pragma once

#include <vector>

#include "store/db/sql_tokens.h"

namespace ordex {

// Error (database): where the text is not exactly one statement. A semicolon at the very end is
// allowed; a literal or comment that is not closed is not.
void RequireOneStatement(const std::vector<Token>& tokens);

// Error (database): where the text is not exactly one statement that begins with SELECT. Stricter
// than RequireOneStatement: SQL Server takes a second statement without any semicolon, so the words
// that begin one are refused wherever they stand outside a literal or a quoted name.
void RequireOneSelect(const std::vector<Token>& tokens);

}  // namespace ordex
