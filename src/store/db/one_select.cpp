#include "store/db/one_select.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "store/db/ascii.h"
#include "store/db/refused_query.h"

namespace ordex {
namespace {

// Words that begin a statement. SQL Server needs no semicolon in front of them, and none of them
// can be a name unless it is quoted. In alphabetical order.
constexpr std::array<std::string_view, 38> kStatementWords = {
    "ALTER",    "BACKUP",   "BEGIN",     "BREAK",   "BULK",    "CHECKPOINT", "CLOSE",    "COMMIT",
    "CREATE",   "DBCC",     "DECLARE",   "DELETE",  "DENY",    "DROP",       "DUMP",     "EXEC",
    "EXECUTE",  "GOTO",     "GRANT",     "IF",      "INSERT",  "INTO",       "KILL",     "MERGE",
    "OPEN",     "PRINT",    "RAISERROR", "RESTORE", "RETURN",  "REVOKE",     "ROLLBACK", "SET",
    "SHUTDOWN", "TRUNCATE", "UPDATE",    "USE",     "WAITFOR", "WHILE"};

// For each letter the place of the first word that begins with it or a later one.
constexpr std::array<std::uint8_t, 27> MakePlaces() {
  std::array<std::uint8_t, 27> places{};
  for (std::size_t letter = 0; letter < places.size(); ++letter) {
    for (const std::string_view word : kStatementWords) {
      if (static_cast<std::size_t>(word.front() - 'A') < letter) ++places.at(letter);
    }
  }
  return places;
}

constexpr std::array<std::uint8_t, 27> kPlaces = MakePlaces();

bool BeginsStatement(std::string_view word) {
  const char first = LowerAscii(word.front());
  if (first < 'a' || first > 'z') return false;
  const auto letter = static_cast<std::size_t>(first - 'a');
  return std::any_of(kStatementWords.begin() + kPlaces[letter],
                     kStatementWords.begin() + kPlaces[letter + 1],
                     [&](std::string_view known) { return EqualAscii(word, known); });
}

// A SELECT inside a statement stands in parentheses or joins two results.
bool MayPrecedeSelect(const Token* before) {
  return before == nullptr || IsSymbol(*before, '(') || IsWord(*before, "UNION") ||
         IsWord(*before, "ALL") || IsWord(*before, "EXCEPT") || IsWord(*before, "INTERSECT");
}

void RequireWhole(const Token& token) {
  if (token.kind == TokenKind::kUnfinished) {
    throw RefusedQuery("un testo, una data o un commento non è chiuso: " + std::string(token.text));
  }
  // The engines do not agree on where such a comment ends.
  if (token.kind == TokenKind::kComment && token.text.find("/*", 1) != std::string_view::npos) {
    throw RefusedQuery("un commento ne contiene un altro: " + std::string(token.text));
  }
}

RunTimeError SecondStatement() {
  return RefusedQuery("il testo SQL contiene più di un'istruzione");
}

}  // namespace

void RequireOneStatement(const std::vector<Token>& tokens) {
  bool any = false;
  bool ended = false;
  for (const Token& token : tokens) {
    RequireWhole(token);
    if (IsSilent(token)) continue;
    if (ended) throw SecondStatement();
    ended = token.kind == TokenKind::kSemicolon;
    any = any || !ended;
  }
  if (!any) throw RefusedQuery("il testo SQL è vuoto");
}

void RequireOneSelect(const std::vector<Token>& tokens) {
  RequireOneStatement(tokens);
  const Token* before = nullptr;
  for (const Token& token : tokens) {
    if (IsSilent(token)) continue;
    const bool is_select = IsWord(token, "SELECT");
    if (before == nullptr && !is_select) {
      throw RefusedQuery("il testo SQL non comincia con SELECT: " + std::string(token.text));
    }
    if ((is_select && !MayPrecedeSelect(before)) ||
        (token.kind == TokenKind::kWord && BeginsStatement(token.text))) {
      throw SecondStatement();
    }
    before = &token;
  }
}

}  // namespace ordex
