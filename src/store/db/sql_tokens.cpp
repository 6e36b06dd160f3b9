#include "store/db/sql_tokens.h"

#include <algorithm>
#include <array>

namespace ordex {
namespace {

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

}  // namespace

std::vector<Token> Tokenize(std::string_view sql) {
  std::vector<Token> tokens;
  tokens.reserve(sql.size() / 3 + 4);
  Tokenizer tokenizer(sql);
  while (!tokenizer.AtEnd()) tokens.push_back(tokenizer.Next());
  return tokens;
}

}  // namespace ordex
