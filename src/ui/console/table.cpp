#include "ui/console/table.h"

#include <utf8proc.h>

#include <algorithm>
#include <numeric>

#include "base/text.h"

namespace ordex::console {
namespace {

constexpr std::size_t kGap = 2;
constexpr std::size_t kNarrowest = 6;

// So that a value stays on its line.
std::string OnOneLine(std::string_view text) {
  std::string line = Printable(text);
  std::replace(line.begin(), line.end(), '\n', ' ');
  return line;
}

bool IsControl(char byte) {
  return static_cast<unsigned char>(byte) < 0x20 || byte == '\x7F';
}

// The controls U+0080 to U+009F are two bytes each.
bool IsLateControl(std::string_view text) {
  return text.size() > 1 && text[0] == '\xC2' &&
         (static_cast<unsigned char>(text[1]) & 0xE0U) == 0x80;
}

std::size_t CharacterWidth(std::string_view character) {
  utf8proc_int32_t code = 0;
  utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(character.data()),
                   static_cast<utf8proc_ssize_t>(character.size()), &code);
  return code < 0 ? 1 : static_cast<std::size_t>(utf8proc_charwidth(code));
}

std::vector<std::size_t> ColumnWidths(const Table& table, std::size_t width) {
  std::vector<std::size_t> widths;
  for (std::size_t column = 0; column < table.headers.size(); ++column) {
    std::size_t widest = DisplayWidth(table.headers[column]);
    for (const auto& row : table.rows) {
      widest = std::max(widest, DisplayWidth(OnOneLine(row[column])));
    }
    widths.push_back(widest);
  }
  const std::size_t gaps = kGap * (widths.size() - 1);
  while (std::accumulate(widths.begin(), widths.end(), gaps) > width) {
    const auto widest = std::max_element(widths.begin(), widths.end());
    if (*widest <= kNarrowest) break;
    --*widest;
  }
  return widths;
}

void AppendRow(std::string& text, const std::vector<std::string>& cells,
               const std::vector<std::size_t>& widths) {
  std::string line;
  for (std::size_t column = 0; column < cells.size(); ++column) {
    if (column > 0) line.append(kGap, ' ');
    line.append(Fitted(cells[column], widths[column]));
  }
  text.append(line.substr(0, line.find_last_not_of(' ') + 1)).append("\n");
}

}  // namespace

std::string Printable(std::string_view text) {
  std::string printable;
  printable.reserve(text.size());
  while (!text.empty()) {
    std::size_t taken = 1;
    if (text.starts_with("\r\n")) {
      printable.push_back('\n');
      taken = 2;
    } else if (IsLateControl(text)) {
      printable.push_back(' ');
      taken = 2;
    } else {
      const char byte = text.front();
      printable.push_back(IsControl(byte) && byte != '\n' ? ' ' : byte);
    }
    text.remove_prefix(taken);
  }
  return printable;
}

std::size_t DisplayWidth(std::string_view text) {
  std::size_t width = 0;
  while (!text.empty()) {
    const std::string_view character = Left(text, 1);
    width += CharacterWidth(character);
    text.remove_prefix(character.size());
  }
  return width;
}

std::string Fitted(std::string_view text, std::size_t width) {
  std::string fitted = OnOneLine(text);
  std::size_t used = DisplayWidth(fitted);
  if (used > width) {
    std::string_view rest = fitted;
    std::string cut;
    used = 1;
    while (!rest.empty()) {
      const std::string_view character = Left(rest, 1);
      if (used + CharacterWidth(character) > width) break;
      used += CharacterWidth(character);
      cut.append(character);
      rest.remove_prefix(character.size());
    }
    fitted = cut + "…";
  }
  return fitted.append(width > used ? width - used : 0, ' ');
}

std::string Drawn(const Table& table, std::size_t width) {
  const std::vector<std::size_t> widths = ColumnWidths(table, width);
  std::string text;
  AppendRow(text, table.headers, widths);
  std::vector<std::string> rule;
  for (const std::size_t columnWidth : widths) {
    std::string line;
    for (std::size_t i = 0; i < columnWidth; ++i) line.append("─");
    rule.push_back(std::move(line));
  }
  AppendRow(text, rule, widths);
  for (const auto& row : table.rows) AppendRow(text, row, widths);
  return text;
}

}  // namespace ordex::console
