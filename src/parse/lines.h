// Walks over the lines of a text without copying them.
#pragma once

#include <string_view>

namespace ordex {

// Lines end at LF or CRLF; the end itself is no part of the line. A line end at the very end of
// the text opens no further line.
class Lines {
 public:
  explicit Lines(std::string_view text) : rest_(text) {}

  bool AtEnd() const { return rest_.empty(); }

  // The next line. Only where there is one.
  std::string_view Next() {
    const std::size_t end = rest_.find('\n');
    std::string_view line = rest_.substr(0, end);
    rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
    if (end != std::string_view::npos && line.ends_with('\r')) line.remove_suffix(1);
    return line;
  }

 private:
  std::string_view rest_;
};

}  // namespace ordex
