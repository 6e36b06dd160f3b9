#include "app/ini_settings.h"

#include <optional>
#include <system_error>
#include <vector>

#include "base/error.h"
#include "base/text.h"
#include "base/text_file.h"

namespace ordex {
namespace fs = std::filesystem;
namespace {

// The text cut into lines, each without its line end; remembers which line end the file uses.
struct IniText {
  explicit IniText(std::string_view text) : lineEnd(Contains(text, "\r\n") ? "\r\n" : "\n") {
    for (std::string_view line : Split(text, "\n")) {
      if (line.ends_with('\r')) line.remove_suffix(1);
      lines.emplace_back(line);
    }
    // The end of the last line opens no further one.
    if (lines.back().empty()) lines.pop_back();
  }

  std::string Joined() const {
    std::string text;
    for (const std::string& line : lines) text.append(line).append(lineEnd);
    return text;
  }

  std::vector<std::string> lines;
  std::string_view lineEnd;
};

std::optional<std::string_view> SectionOf(std::string_view line) {
  line = Trim(line);
  if (!line.starts_with('[') || !line.ends_with(']')) return std::nullopt;
  return line.substr(1, line.size() - 2);
}

bool IsComment(std::string_view line) {
  line = TrimLeft(line);
  return line.starts_with(';') || line.starts_with('#');
}

// The place of a key in the file, and where its section ends.
struct Place {
  std::optional<std::size_t> line;
  std::optional<std::size_t> sectionEnd;
};

Place FindKey(const IniText& ini, std::string_view section, std::string_view key) {
  Place place;
  bool inside = false;
  for (std::size_t i = 0; i < ini.lines.size(); ++i) {
    if (const auto name = SectionOf(ini.lines[i])) {
      inside = EqualIgnoringCase(*name, section);
      if (inside) place.sectionEnd = i + 1;
    } else if (inside && !IsComment(ini.lines[i])) {
      const auto halves = SplitOnce(ini.lines[i], "=");
      if (halves && EqualIgnoringCase(Trim(halves->left), key)) {
        place.line = i;
        return place;
      }
      if (!Trim(ini.lines[i]).empty()) place.sectionEnd = i + 1;
    }
  }
  return place;
}

}  // namespace

std::string IniSettings::ReadFile() const {
  std::error_code ignored;
  return fs::exists(file_, ignored) ? ReadTextFile(file_) : std::string{};
}

std::string IniSettings::Get(std::string_view section, std::string_view key) const {
  const IniText ini(ReadFile());
  const Place place = FindKey(ini, section, key);
  if (!place.line) return {};
  return std::string(SplitOnce(ini.lines[*place.line], "=")->right);
}

void IniSettings::Save(std::string_view section, std::string_view key, std::string_view value) {
  IniText ini(ReadFile());
  const Place place = FindKey(ini, section, key);
  const std::string entry = std::string(key).append("=").append(value);
  if (place.line) {
    const std::string_view name = SplitOnce(ini.lines[*place.line], "=")->left;
    ini.lines[*place.line] = std::string(name).append("=").append(value);
  } else if (place.sectionEnd) {
    ini.lines.insert(ini.lines.begin() + static_cast<std::ptrdiff_t>(*place.sectionEnd), entry);
  } else {
    ini.lines.push_back("[" + std::string(section) + "]");
    ini.lines.push_back(entry);
  }
  std::error_code ignored;
  if (file_.has_parent_path()) fs::create_directories(file_.parent_path(), ignored);
  ReplaceTextFile(file_, ini.Joined());
}

}  // namespace ordex
