#include "store/db/dialect_sqlite.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>

#include "base/date.h"
#include "base/text.h"
#include "store/db/ascii.h"
#include "store/db/refused_query.h"
#include "store/db/statement_tables.h"

namespace ordex {
namespace {

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
      throw RefusedQuery(std::string(written) + " non è una data (" + std::string(form) + ")");
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

std::string RewriteForSqlite(const std::vector<Token>& tokens, TableCatalog& catalog) {
  return SqliteRewriter(tokens, catalog).Rewrite();
}

}  // namespace ordex
