// Reads a page as the program would, without a database and without leaving a file behind, and
// keeps what became of each of its lines.
#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "parse/import.h"
#include "state/window.h"

namespace ordex {

// A line of the page file, and what it gave.
struct LineReport {
  std::size_t number = 0;               // counted from 1
  std::string text;                     // as it stands in the page file, double quotes included
  std::string rule;                     // the rule that took it; empty where none did
  std::vector<std::size_t> reviewRows;  // places in lstImport, counted from 0
  std::vector<std::size_t> agendaRows;  // places in lstAgendaAvv
};

struct PageTrial {
  Window window;
  std::vector<LineReport> lines;
  std::optional<ImportStop> stop;
};

// `pageText` is a text as it would stand on the clipboard. Null where the page is of no known kind.
// Errors: of the mapping files in `programFolder`; file access, where no temporary file can be
// written.
std::unique_ptr<PageTrial> TryPage(const std::filesystem::path& programFolder,
                                   std::string_view pageText);

}  // namespace ordex
