// SQL texts, as the routines build them by joining pieces.
#pragma once

#include <concepts>
#include <string>
#include <string_view>
#include <utility>

namespace ordex {

// `text` between apostrophes, each apostrophe inside doubled. Error: overflow, where the text is
// longer than 32,767 characters.
std::string FormattaStringaSql(std::string_view text);

// A date, written day-month-year, as the engine's conversion expression
// "CONVERT (SMALLDATETIME,'…', 105) ". The text is not escaped.
std::string FormattaDataSql(std::string_view date);

// A SQL text that remembers which of its stretches came from a page as they stood. Such a stretch
// stands between apostrophes and must not hold one itself: it would end the literal, and what the
// engine would be asked would no longer be the query that the routine meant.
class SqlText {
 public:
  SqlText() = default;
  SqlText(std::string text) : text_(std::move(text)) {}  // NOLINT: a text is a SQL text
  SqlText(const char* text) : text_(text) {}             // NOLINT

  SqlText& Append(std::string_view piece);
  // With what `piece` remembers. Takes nothing that would first have to become a SqlText: a plain
  // text could then mean either function.
  SqlText& Append(const std::same_as<SqlText> auto& piece) {
    text_.append(piece.text_);
    broken_ = broken_ || piece.broken_;
    return *this;
  }
  // An apostrophe, `value` as it stands, an apostrophe.
  SqlText& AppendUndoubled(std::string_view value);

  const std::string& text() const { return text_; }
  // True when no stretch holds an apostrophe.
  bool HoldsTogether() const { return !broken_; }

 private:
  std::string text_;
  bool broken_ = false;
};

}  // namespace ordex
