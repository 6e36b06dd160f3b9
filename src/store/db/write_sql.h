// INSERT and UPDATE with a "?" for each value, for every engine.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "store/db/connection.h"

namespace ordex {

std::vector<std::string> NamesOf(std::span<const NamedValue> values);

// What stands around a name. Both engines take what stands in brackets for a name and never for a
// text, but SQLite cannot have a bracket inside; SQLite's own connections are told to take double
// quotes in the same way.
struct NameQuotes {
  char open;
  char close;  // doubled inside
};

inline constexpr NameQuotes kDoubleQuotes = {'"', '"'};
inline constexpr NameQuotes kBrackets = {'[', ']'};

std::string QuotedName(std::string_view name, NameQuotes quotes);

// "INSERT INTO [T] ([A], [B]) VALUES (?, ?)", or DEFAULT VALUES where there are no columns.
std::string InsertSql(std::string_view table, std::span<const std::string> columns,
                      NameQuotes quotes);
// "UPDATE [T] SET [A] = ?, [B] = ? WHERE [K] = ?".
std::string UpdateSql(std::string_view table, std::span<const std::string> columns,
                      std::string_view key, NameQuotes quotes);

}  // namespace ordex
