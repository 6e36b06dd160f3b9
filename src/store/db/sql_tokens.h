// A SQL text cut into tokens, and small questions about them.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "store/db/ascii.h"

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

inline constexpr std::size_t kNoToken = static_cast<std::size_t>(-1);

inline bool IsSilent(const Token& token) {
  return token.kind == TokenKind::kBlank || token.kind == TokenKind::kComment;
}

inline bool IsWord(const Token& token, std::string_view upperCase) {
  return token.kind == TokenKind::kWord && EqualAscii(token.text, upperCase);
}

inline bool IsSymbol(const Token& token, char symbol) {
  return token.kind == TokenKind::kSymbol && token.text.front() == symbol;
}

// What stands between the quotes, as it is written.
inline std::string_view Inside(std::string_view quoted) {
  return quoted.substr(1, quoted.size() - 2);
}

inline bool IsName(const Token& token) {
  return token.kind == TokenKind::kWord || token.kind == TokenKind::kBracketed;
}

inline std::string_view Name(const Token& token) {
  return token.kind == TokenKind::kBracketed ? Inside(token.text) : token.text;
}

// The place of the next (the last) token that says something; kNoToken where there is none.
inline std::size_t NextToken(const std::vector<Token>& tokens, std::size_t i) {
  while (++i < tokens.size()) {
    if (!IsSilent(tokens[i])) return i;
  }
  return kNoToken;
}

inline std::size_t PreviousToken(const std::vector<Token>& tokens, std::size_t i) {
  while (i-- > 0) {
    if (!IsSilent(tokens[i])) return i;
  }
  return kNoToken;
}

}  // namespace ordex
