// Comparing and printing what a check of the mapping files finds, and editing the files as an
// office would.
#pragma once

#include <algorithm>
#include <cstddef>
#include <ostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "app/mapping_check.h"
#include "support/temp_folder.h"

namespace ordex {

inline bool operator==(const Finding& a, const Finding& b) {
  return a.file == b.file && a.line == b.line && a.severity == b.severity && a.text == b.text;
}

inline std::ostream& operator<<(std::ostream& out, const Finding& finding) {
  return out << finding.file << ":" << finding.line
             << (finding.severity == Severity::kError ? " error " : " warning ") << finding.text;
}

}  // namespace ordex

namespace ordex::testing {

using Findings = std::vector<Finding>;

inline constexpr const char* kRestr = "MapRestr.txt";
inline constexpr const char* kCampi = "MapCampi.txt";
inline constexpr const char* kDelimitatori = "MapDelimitatori.txt";

inline Finding ErrorAt(std::string file, std::size_t line, std::string text) {
  return {std::move(file), line, Severity::kError, std::move(text)};
}

inline Finding WarningAt(std::string file, std::size_t line, std::string text) {
  return {std::move(file), line, Severity::kWarning, std::move(text)};
}

// The place of `line`, which the text holds exactly once as a whole line; counted from 1.
inline std::size_t LineOf(std::string_view text, const std::string& line) {
  const std::string framed = "\n" + line + "\n";
  const std::string all = "\n" + std::string(text) + "\n";
  const std::size_t at = all.find(framed);
  if (at == std::string::npos || all.find(framed, at + 1) != std::string::npos) {
    throw std::runtime_error("not exactly once: " + line);
  }
  return static_cast<std::size_t>(
      std::count(all.begin(), all.begin() + static_cast<long>(at) + 1, '\n'));
}

// A program folder whose shipped mapping files can be edited.
struct EditedMapping : TempProgramFolder {
  // Changes the one line of the file that reads `line` and returns its number.
  std::size_t Change(const std::string& file, const std::string& line, const std::string& to) {
    const std::size_t number = LineOf(Read(file), line);
    std::string text = "\n" + Read(file);
    text.replace(text.find("\n" + line + "\n") + 1, line.size(), to);
    Write(file, text.substr(1));
    return number;
  }
  void Drop(const std::string& file, const std::string& line) {
    std::string text = "\n" + Read(file);
    LineOf(Read(file), line);
    text.erase(text.find("\n" + line + "\n"), line.size() + 1);
    Write(file, text.substr(1));
  }
  // Puts a line behind the last one and returns its number.
  std::size_t Append(const std::string& file, const std::string& line) {
    Write(file, Read(file) + line + "\n");
    const std::string text = Read(file);
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
  }
  std::size_t Line(const std::string& file, const std::string& line) const {
    return LineOf(Read(file), line);
  }
  Findings Check() const { return CheckMappings(path()); }
};

}  // namespace ordex::testing
