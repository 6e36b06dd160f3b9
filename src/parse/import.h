// The one routine that turns a saved page file into review rows and values.
//
// It walks the file line by line and hands each line to the rules of the page kind; those of each
// kind stand in a file of their own (profile_rules.cpp …).
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "base/error.h"
#include "state/mappings.h"
#include "state/page.h"

namespace ordex {

// Where the rules write what they read.
class ImportSink {
 public:
  virtual ~ImportSink() = default;
  virtual void SetWidthlstImport(int kind) = 0;
  virtual void WriteListView(std::string_view ValueItem, std::string_view FirstSubItem,
                             std::string_view SecondSubItem, std::string_view ThirdSubItem,
                             std::string_view szTag) = 0;
  virtual void AggiungiRigaAgenda(std::string_view ValueItem, std::string_view FirstSubItem,
                                  bool bold) = 0;
  virtual void LoadcmbParti(std::string_view szSoggetto, std::string_view szDifensore) = 0;
};

// A line of the page file. `number` counts from 1.
struct PageLine {
  std::string_view text;
  std::size_t number = 0;
};

// The rule of the line that says how many entries an agenda has, none included.
inline constexpr std::string_view kNumberOfEntries = "numero impegni";

// Follows an import line by line. Lines are told in the order they are read, and then, at any later
// time, which rule took them; a line that is never told as taken was taken by none.
class ImportTrace {
 public:
  virtual ~ImportTrace() = default;
  virtual void Read(const PageLine& line) = 0;
  virtual void Taken(const PageLine& line, std::string_view rule) = 0;
  // The rows written from here on come from this line.
  virtual void WorkOn(const PageLine& line) = 0;
};

// Why an import stopped before the end of the page.
struct ImportStop {
  RunTimeError error;
  std::size_t line = 0;  // where it stopped; 0 where no line was at fault
  std::string lineText;
  bool inPage = false;  // `line` is a line of the page, not of a mapping file
};

struct ImportTask {
  std::filesystem::path programFolder;
  Mappings& mappings;
  Page& page;
  HistoryPaging& paging;
  ImportSink& sink;
  ImportTrace* trace = nullptr;
};

// The page file of that stem.
std::filesystem::path PageFile(const std::filesystem::path& programFolder,
                               std::string_view szNameInput);

// Reads the page file named after `szNameInput` by the rules of `iOrdexPage`. An error stops the
// import at its line; what was read before it stays, and the error is returned, not raised.
std::optional<ImportStop> Import(const ImportTask& task, std::string_view szNameInput,
                                 std::int16_t iOrdexPage);

}  // namespace ordex
