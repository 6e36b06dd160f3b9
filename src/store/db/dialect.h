// Rewrites the SQL that the routines write into what an engine understands, token by token, never
// inside a literal.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/db/connection.h"

namespace ordex {

enum class TokenKind {
  kBlank,      // white space
  kComment,    // "-- …" to the end of the line, or "/* … */"
  kWord,       // an identifier or keyword
  kBracketed,  // an identifier between square brackets
  kNumber,
  kText,    // a literal between apostrophes, doubled apostrophes inside
  kQuoted,  // a text between double quotes, doubled double quotes inside
  kDate,    // a date between number signs
  kSemicolon,
  kSymbol,      // any other single character
  kUnfinished,  // a literal or comment that the text ends in
};

struct Token {
  TokenKind kind;
  std::string_view text;  // with its quotes
};

// The whole text as tokens: joined again they give the text.
std::vector<Token> Tokenize(std::string_view sql);

// Error (database): where the text is not exactly one statement. A semicolon at the very end is
// allowed; a literal or comment that is not closed is not.
void RequireOneStatement(const std::vector<Token>& tokens);

// Error (database): where the text is not exactly one statement that begins with SELECT. Stricter
// than RequireOneStatement: SQL Server takes a second statement without any semicolon, so the words
// that begin one are refused wherever they stand outside a literal or a quoted name.
void RequireOneSelect(const std::vector<Token>& tokens);

// What the embedded SQLite engine understands.
// Errors (database): a date expression whose text is no date.
std::string RewriteForSqlite(const std::vector<Token>& tokens, TableCatalog& catalog);

// What SQL Server understands. It takes the date conversions and 'TRUE' against a bit column as the
// routines write them. Errors (database): a date between number signs that is none.
std::string RewriteForSqlServer(const std::vector<Token>& tokens);

// `text` as a T-SQL literal: between apostrophes, doubled inside, and with N in front where it
// holds a character that a code page might not have.
std::string SqlServerLiteral(std::string_view text);

}  // namespace ordex
