#include "store/db/connection_string.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/text.h"

namespace ordex {
namespace {

struct QuotedValue {
  std::string value;
  std::size_t end;  // behind the closing quote and the blanks that follow it
};

// Reads the value that begins with a quote at the start of `text`. nullopt where the quote is not
// closed or where something other than a semicolon follows it: then it is no quote but a part of
// the value.
std::optional<QuotedValue> ReadQuoted(std::string_view text) {
  const char close = text.front() == '{' ? '}' : text.front();
  QuotedValue quoted{{}, 1};
  for (;;) {
    const std::size_t at = text.find(close, quoted.end);
    if (at == std::string_view::npos) return std::nullopt;
    quoted.value.append(text.substr(quoted.end, at - quoted.end));
    quoted.end = at + 1;
    if (quoted.end == text.size() || text[quoted.end] != close) break;
    quoted.value.push_back(close);
    ++quoted.end;
  }
  while (quoted.end < text.size() && text[quoted.end] == ' ') ++quoted.end;
  if (quoted.end < text.size() && text[quoted.end] != ';') return std::nullopt;
  return quoted;
}

bool BeginsWithQuote(std::string_view text) {
  return text.starts_with('\'') || text.starts_with('"') || text.starts_with('{');
}

// Takes the value off the front of `text`, together with the semicolon that ends it.
void TakeValue(std::string_view& text, ConnectionKey& key) {
  text = TrimLeft(text);
  std::optional<QuotedValue> quoted;
  if (BeginsWithQuote(text)) quoted = ReadQuoted(text);
  const std::size_t end = quoted ? quoted->end : text.find(';');
  key.quoted = quoted.has_value();
  key.value = quoted ? std::move(quoted->value) : std::string(Trim(text.substr(0, end)));
  text.remove_prefix(end >= text.size() ? text.size() : end + 1);
}

}  // namespace

ConnectionString::ConnectionString(std::string_view text) {
  while (!text.empty()) {
    const std::size_t end = text.find_first_of("=;");
    ConnectionKey key{std::string(Trim(text.substr(0, end))), {}};
    const bool has_value = end != std::string_view::npos && text[end] == '=';
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    if (has_value) TakeValue(text, key);
    if (!key.name.empty()) keys_.push_back(std::move(key));
  }
}

std::string ConnectionString::Value(std::string_view name) const {
  const auto key = std::find_if(keys_.rbegin(), keys_.rend(), [&](const ConnectionKey& each) {
    return EqualIgnoringCase(each.name, name);
  });
  return key == keys_.rend() ? std::string() : key->value;
}

}  // namespace ordex
