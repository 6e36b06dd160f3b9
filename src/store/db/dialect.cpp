#include "store/db/dialect.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "base/date.h"
#include "base/error.h"
#include "base/text.h"
#include "store/db/ascii.h"
#include "store/db/sql_tokens.h"
#include "store/db/statement_tables.h"

namespace ordex {
namespace {

RunTimeError Refused(const std::string& why) {
  return MakeError(ErrorNumber::kDatabase, "interrogazione rifiutata: " + why);
}

// --- cutting into tokens ------------------------------------------------------------------------

enum class CharClass : unsigned char { kSymbol, kBlank, kWord, kDigit };

constexpr std::array<CharClass, 256> MakeCharClasses() {
  std::array<CharClass, 256> classes{};
  for (const char blank : {' ', '\t', '\n', '\r', '\f', '\v'}) {
    classes.at(static_cast<unsigned char>(blank)) = CharClass::kBlank;
  }
  for (std::size_t i = '0'; i <= '9'; ++i) classes.at(i) = CharClass::kDigit;
  for (std::size_t i = 'A'; i <= 'Z'; ++i) classes.at(i) = CharClass::kWord;
  for (std::size_t i = 'a'; i <= 'z'; ++i) classes.at(i) = CharClass::kWord;
  for (std::size_t i = 0x80; i <= 0xFF; ++i) classes.at(i) = CharClass::kWord;
  classes.at('_') = CharClass::kWord;
  classes.at('@') = CharClass::kWord;
  classes.at('$') = CharClass::kWord;
  return classes;
}

constexpr std::array<CharClass, 256> kCharClasses = MakeCharClasses();

CharClass ClassOf(char character) {
  return kCharClasses[static_cast<unsigned char>(character)];
}

class Tokenizer {
 public:
  explicit Tokenizer(std::string_view sql) : sql_(sql) {}

  bool AtEnd() const { return at_ == sql_.size(); }

  Token Next() {
    start_ = at_;
    switch (ClassOf(sql_[at_])) {
      case CharClass::kBlank:
        return Run(TokenKind::kBlank, [](CharClass next) { return next == CharClass::kBlank; });
      case CharClass::kWord:
        return Run(TokenKind::kWord, [](CharClass next) {
          return next == CharClass::kWord || next == CharClass::kDigit;
        });
      case CharClass::kDigit:
        return Number();
      case CharClass::kSymbol:
        break;
    }
    return Symbol();
  }

 private:
  Token Cut(TokenKind kind, std::size_t end) {
    at_ = end;
    return {kind, sql_.substr(start_, end - start_)};
  }

  template <class Belongs>
  Token Run(TokenKind kind, Belongs belongs) {
    std::size_t end = at_ + 1;
    while (end < sql_.size() && belongs(ClassOf(sql_[end]))) ++end;
    return Cut(kind, end);
  }

  char CharAt(std::size_t place) const { return place < sql_.size() ? sql_[place] : '\0'; }

  // Ends where the engines end it: "1OR" is a number and a word.
  Token Number() {
    std::size_t end = at_;
    const auto digits = [&] {
      while (ClassOf(CharAt(end)) == CharClass::kDigit) ++end;
    };
    digits();
    if (CharAt(end) == '.') {
      ++end;
      digits();
    }
    if (CharAt(end) == 'e' || CharAt(end) == 'E') {
      const bool sign = CharAt(end + 1) == '+' || CharAt(end + 1) == '-';
      if (ClassOf(CharAt(end + (sign ? 2 : 1))) == CharClass::kDigit) {
        end += sign ? 2 : 1;
        digits();
      }
    }
    return Cut(TokenKind::kNumber, end);
  }

  // Up to `close`, which stands doubled where it is meant itself.
  Token Enclosed(TokenKind kind, char close) {
    std::size_t end = at_ + 1;
    for (;;) {
      end = sql_.find(close, end);
      if (end == std::string_view::npos) return Cut(TokenKind::kUnfinished, sql_.size());
      if (CharAt(++end) != close || end == sql_.size()) return Cut(kind, end);
      ++end;
    }
  }

  Token UpTo(TokenKind kind, std::string_view close, std::size_t from) {
    const std::size_t end = sql_.find(close, from);
    if (end == std::string_view::npos) return Cut(TokenKind::kUnfinished, sql_.size());
    return Cut(kind, end + close.size());
  }

  Token Symbol() {
    switch (sql_[at_]) {
      case '\'':
        return Enclosed(TokenKind::kText, '\'');
      case '"':
        return Enclosed(TokenKind::kQuoted, '"');
      case '[':
        return Enclosed(TokenKind::kBracketed, ']');
      case '#':
        return UpTo(TokenKind::kDate, "#", at_ + 1);
      case ';':
        return Cut(TokenKind::kSemicolon, at_ + 1);
      case '-':
        if (CharAt(at_ + 1) != '-') break;
        return Cut(TokenKind::kComment, std::min(sql_.find('\n', at_), sql_.size()));
      case '/':
        if (CharAt(at_ + 1) != '*') break;
        return UpTo(TokenKind::kComment, "*/", at_ + 2);
      default:
        break;
    }
    return Cut(TokenKind::kSymbol, at_ + 1);
  }

  std::string_view sql_;
  std::size_t at_ = 0;
  std::size_t start_ = 0;
};

// --- one statement, and a SELECT ----------------------------------------------------------------

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
    throw Refused("un testo, una data o un commento non è chiuso: " + std::string(token.text));
  }
  // The engines do not agree on where such a comment ends.
  if (token.kind == TokenKind::kComment && token.text.find("/*", 1) != std::string_view::npos) {
    throw Refused("un commento ne contiene un altro: " + std::string(token.text));
  }
}

RunTimeError SecondStatement() {
  return Refused("il testo SQL contiene più di un'istruzione");
}

// --- rewriting ----------------------------------------------------------------------------------

void AppendLiteral(std::string& out, std::string_view text) {
  out.push_back('\'');
  for (const char character : text) {
    out.push_back(character);
    if (character == '\'') out.push_back('\'');
  }
  out.push_back('\'');
}

class SqliteRewriter {
 public:
  SqliteRewriter(const std::vector<Token>& tokens, TableCatalog& catalog)
      : tokens_(tokens), catalog_(catalog) {}

  std::string Rewrite() {
    std::size_t length = 16;
    for (const Token& token : tokens_) length += token.text.size();
    out_.reserve(length);
    for (std::size_t i = 0; i < tokens_.size(); ++i) i = Take(i);
    return std::move(out_);
  }

 private:
  static constexpr std::size_t kNone = kNoToken;

  // Writes the token at `i`, perhaps with some that follow; the place of the last one written.
  std::size_t Take(std::size_t i) {
    const Token& token = tokens_[i];
    switch (token.kind) {
      case TokenKind::kWord:
        return TakeWord(i);
      case TokenKind::kText:
        TakeText(i);
        return i;
      case TokenKind::kQuoted:
        KeepApart();
        AppendLiteral(out_, ReplaceAll(Inside(token.text), "\"\"", "\""));
        return i;
      case TokenKind::kDate:
        AppendDate(ParseMonthFirst(Inside(token.text)), token.text, "MM/GG/AAAA");
        return i;
      default:
        out_.append(token.text);
        return i;
    }
  }

  std::size_t TakeWord(std::size_t i) {
    const std::string_view word = tokens_[i].text;
    if (EqualAscii(word, "CONVERT")) {
      const std::size_t last = TakeConversion(i);
      if (last != kNone) return last;
    }
    const bool is_ucase =
        EqualAscii(word, "UCASE") && Next(i) != kNone && IsSymbol(tokens_[Next(i)], '(');
    out_.append(is_ucase ? std::string_view("UPPER") : word);
    return i;
  }

  // CONVERT ( SMALLDATETIME , '…' , 105 ); kNone where something else stands there.
  std::size_t TakeConversion(std::size_t i) {
    std::size_t at = i;
    const auto next_is = [&](auto&& wanted) {
      at = Next(at);
      return at != kNone && wanted(tokens_[at]);
    };
    const auto symbol = [](char wanted) {
      return [wanted](const Token& token) { return IsSymbol(token, wanted); };
    };
    std::string_view date;
    const bool matches = next_is(symbol('(')) && next_is([](const Token& token) {
                           return IsWord(token, "SMALLDATETIME") || IsWord(token, "DATETIME");
                         }) &&
                         next_is(symbol(',')) && next_is([&](const Token& token) {
                           date = token.text;
                           return token.kind == TokenKind::kText;
                         }) &&
                         next_is(symbol(',')) && next_is([](const Token& token) {
                           return token.kind == TokenKind::kNumber && token.text == "105";
                         }) &&
                         next_is(symbol(')'));
    if (!matches) return kNone;
    AppendDate(ParseDayFirst(Inside(date)), date, "GG/MM/AAAA");
    return at;
  }

  void TakeText(std::size_t i) {
    const std::string_view text = tokens_[i].text;
    const bool is_true = EqualAscii(text, "'TRUE'");
    if ((is_true || EqualAscii(text, "'FALSE'")) && ComparesBitColumn(i)) {
      out_.push_back(is_true ? '1' : '0');
      // A digit or a letter directly behind the literal would become a part of the number.
      const bool joins = i + 1 < tokens_.size() && (tokens_[i + 1].kind == TokenKind::kNumber ||
                                                    tokens_[i + 1].kind == TokenKind::kWord);
      if (joins) out_.push_back(' ');
    } else {
      KeepApart();
      out_.append(text);
    }
  }

  // Two literals of different kinds may touch. Once both stand between apostrophes they would be
  // one, with an apostrophe inside.
  void KeepApart() {
    if (out_.ends_with('\'')) out_.push_back(' ');
  }

  // Whether a bit column and "=" stand before the literal at `i`.
  bool ComparesBitColumn(std::size_t i) {
    const std::size_t equals = Previous(i);
    if (equals == kNone || !IsSymbol(tokens_[equals], '=')) return false;
    const std::size_t column = Previous(equals);
    if (column == kNone || !IsName(tokens_[column])) return false;
    const std::size_t dot = Previous(column);
    std::string_view qualifier;
    if (dot != kNone && IsSymbol(tokens_[dot], '.')) {
      const std::size_t before = Previous(dot);
      if (before == kNone || !IsName(tokens_[before])) return false;
      qualifier = Name(tokens_[before]);
    }
    return catalog_.IsBitColumn(Candidates(qualifier), Name(tokens_[column]));
  }

  // The tables that a column with that qualifier may belong to; all where there is none.
  std::vector<std::string> Candidates(std::string_view qualifier) {
    if (!tables_) tables_ = FindTables(tokens_);
    std::vector<std::string> names;
    for (const NamedTable& table : *tables_) {
      if (qualifier.empty() || EqualAscii(qualifier, table.name) ||
          EqualAscii(qualifier, table.alias)) {
        names.push_back(table.name);
      }
    }
    return names;
  }

  void AppendDate(const std::optional<DateTime>& date, std::string_view written,
                  std::string_view form) {
    if (!date) {
      throw Refused(std::string(written) + " non è una data (" + std::string(form) + ")");
    }
    KeepApart();
    AppendLiteral(out_, FormatIso(*date));
  }

  std::size_t Next(std::size_t i) const { return NextToken(tokens_, i); }
  std::size_t Previous(std::size_t i) const { return PreviousToken(tokens_, i); }

  const std::vector<Token>& tokens_;
  TableCatalog& catalog_;
  std::optional<std::vector<NamedTable>> tables_;  // found when first needed
  std::string out_;
};

}  // namespace

std::vector<Token> Tokenize(std::string_view sql) {
  std::vector<Token> tokens;
  tokens.reserve(sql.size() / 3 + 4);
  Tokenizer tokenizer(sql);
  while (!tokenizer.AtEnd()) tokens.push_back(tokenizer.Next());
  return tokens;
}

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
  if (!any) throw Refused("il testo SQL è vuoto");
}

void RequireOneSelect(const std::vector<Token>& tokens) {
  RequireOneStatement(tokens);
  const Token* before = nullptr;
  for (const Token& token : tokens) {
    if (IsSilent(token)) continue;
    const bool is_select = IsWord(token, "SELECT");
    if (before == nullptr && !is_select) {
      throw Refused("il testo SQL non comincia con SELECT: " + std::string(token.text));
    }
    if ((is_select && !MayPrecedeSelect(before)) ||
        (token.kind == TokenKind::kWord && BeginsStatement(token.text))) {
      throw SecondStatement();
    }
    before = &token;
  }
}

std::string RewriteForSqlite(const std::vector<Token>& tokens, TableCatalog& catalog) {
  return SqliteRewriter(tokens, catalog).Rewrite();
}

}  // namespace ordex
