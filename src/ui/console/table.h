// Texts in columns on a terminal.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ordex::console {

// `text` with a blank for each control character but the line feed, so that a page cannot steer the
// terminal; CRLF is brought to LF.
std::string Printable(std::string_view text);
// The columns that `text` takes on a terminal.
std::size_t DisplayWidth(std::string_view text);
// `text` on one line and cut with "…" to fit into `width` columns, filled up with blanks.
std::string Fitted(std::string_view text, std::size_t width);

// A table that fits into `width` columns: cells that are too long are cut, the widest column first.
struct Table {
  std::vector<std::string> headers;
  std::vector<std::vector<std::string>> rows;
};
std::string Drawn(const Table& table, std::size_t width);

}  // namespace ordex::console
