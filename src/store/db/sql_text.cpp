#include "store/db/sql_text.h"

#include "base/error.h"
#include "base/text.h"

namespace ordex {
namespace {

// The longest text that may be made a literal, in characters.
constexpr std::size_t kLongestLiteral = 32767;

}  // namespace

std::string FormattaStringaSql(std::string_view text) {
  if (!ShorterThan(text, kLongestLiteral + 1)) {
    throw MakeError(ErrorNumber::kOverflow,
                    "un testo SQL può avere al più " + std::to_string(kLongestLiteral) +
                        " caratteri, questo ne ha " + std::to_string(CharCount(text)));
  }
  std::string literal;
  literal.reserve(text.size() + 2);
  literal.push_back('\'');
  for (const char character : text) {
    literal.push_back(character);
    if (character == '\'') literal.push_back('\'');
  }
  literal.push_back('\'');
  return literal;
}

std::string FormattaDataSql(std::string_view date) {
  std::string text = "CONVERT (SMALLDATETIME,'";
  return text.append(date).append("', 105) ");
}

SqlText& SqlText::Append(std::string_view piece) {
  text_.append(piece);
  return *this;
}

SqlText& SqlText::AppendUndoubled(std::string_view value) {
  if (Contains(value, "'")) broken_ = true;
  text_.append("'").append(value).append("'");
  return *this;
}

}  // namespace ordex
