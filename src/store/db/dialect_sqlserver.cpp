#include "store/db/dialect_sqlserver.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

#include "base/date.h"
#include "base/text.h"
#include "store/db/refused_query.h"

namespace ordex {
namespace {

bool IsAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char letter) { return static_cast<unsigned char>(letter) < 0x80; });
}

bool IsLineEnd(char character) {
  return character == '\r' || character == '\n';
}

// A date and time that reads the same whatever the session's language and date format: year, month
// and day without separators.
std::string UnseparatedDate(const DateTime& date) {
  std::string text = FormatIso(date);
  std::erase(text, '-');
  constexpr std::size_t kDay = 8;
  return date == DateOnly(date) ? text.substr(0, kDay) : text;
}

class SqlServerRewriter {
 public:
  explicit SqlServerRewriter(const std::vector<Token>& tokens) : tokens_(tokens) {}

  std::string Rewrite() {
    for (std::size_t i = 0; i < tokens_.size(); ++i) Take(i);
    return std::move(out_);
  }

 private:
  void Take(std::size_t i) {
    const Token& token = tokens_[i];
    switch (token.kind) {
      case TokenKind::kWord:
        out_.append(IsUcase(i) ? std::string_view("UPPER") : token.text);
        return;
      case TokenKind::kText:
        TakeText(i);
        return;
      case TokenKind::kQuoted:
        // The session has QUOTED_IDENTIFIER ON: left as it is it would name a column.
        out_.append(SqlServerLiteral(ReplaceAll(Inside(token.text), "\"\"", "\"")));
        return;
      case TokenKind::kDate:
        TakeDate(token);
        return;
      default:
        out_.append(token.text);
    }
  }

  bool IsUcase(std::size_t i) const {
    const std::size_t next = NextToken(tokens_, i);
    return IsWord(tokens_[i], "UCASE") && next != kNoToken && IsSymbol(tokens_[next], '(');
  }

  void TakeText(std::size_t i) {
    const bool has_prefix = i > 0 && IsWord(tokens_[i - 1], "N");
    const std::string literal = SqlServerLiteral(ReplaceAll(Inside(tokens_[i].text), "''", "'"));
    out_.append(literal, has_prefix && literal.front() == 'N' ? 1 : 0);
  }

  void TakeDate(const Token& token) {
    const std::optional<DateTime> date = ParseMonthFirst(Inside(token.text));
    if (!date) {
      throw RefusedQuery(std::string(token.text) + " non è una data (MM/GG/AAAA)");
    }
    out_.append("'").append(UnseparatedDate(*date)).append("'");
  }

  const std::vector<Token>& tokens_;
  std::string out_;
};

}  // namespace

std::string SqlServerLiteral(std::string_view text) {
  const std::string_view open = IsAscii(text) ? "'" : "N'";
  std::string literal(open);
  char before = '\0';
  for (const char character : text) {
    // The server drops a backslash together with the line end behind it, as a literal that goes on
    // in the next line.
    if (before == '\\' && IsLineEnd(character)) literal.append("'+").append(open);
    literal.push_back(character);
    if (character == '\'') literal.push_back('\'');
    before = character;
  }
  return literal.append("'");
}

std::string RewriteForSqlServer(const std::vector<Token>& tokens) {
  return SqlServerRewriter(tokens).Rewrite();
}

}  // namespace ordex
