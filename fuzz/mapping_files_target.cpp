// The loaders of the mapping files, on any bytes.
#include <optional>
#include <string>
#include <vector>

#include "base/error.h"
#include "base/text.h"
#include "base/text_file.h"
#include "parse/mapping_files.h"
#include "support/folder.h"

namespace ordex::fuzz {
namespace {

void CheckEntry(const MappingLine& line) {
  Require(CharCount(line.text) >= 2 && !Contains(line.text, "\xC2\xB0"), "no comment is an entry");
  const std::string joined = line.hasEquals ? line.left + "=" + line.right : line.left;
  Require(joined == line.text, "a line is cut at its first equals sign");
  Require(!Contains(line.left, "="), "a line is cut at its first equals sign");
}

void CheckError(const FileLineError& error) {
  Require(error.line() >= 1, "an error names its line");
  Require(Contains(error.description(), "riga " + std::to_string(error.line())),
          "and says it to the user");
}

// Nothing where a line holds what no text holds.
std::optional<std::vector<MappingLine>> LinesOf(const Folder& folder) {
  try {
    return ReadMappingLines(folder.path() / kMapCampi);
  } catch (const FileLineError& error) {
    CheckError(error);
    return std::nullopt;
  }
}

void Load(const Folder& folder, void (*load)(Mappings&), KeyedTable Mappings::*table,
          const std::vector<MappingLine>& lines) {
  Mappings mappings;
  LocateMappings(mappings, folder.path());
  try {
    load(mappings);
    Require((mappings.*table).Count() == lines.size(), "every line gives an entry");
  } catch (const FileLineError& error) {
    CheckError(error);
  }
}

}  // namespace
}  // namespace ordex::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace ordex;
  using namespace ordex::fuzz;
  static const Folder folder;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  for (const std::string_view name : {kMapRestr, kMapCampi, kMapDelimitatori}) {
    folder.Write(name, bytes);
  }
  const auto lines = LinesOf(folder);
  if (!lines) return 0;
  for (const MappingLine& line : *lines) CheckEntry(line);
  Load(folder, LoadRestr, &Mappings::cRestr, *lines);
  Load(folder, LoadOrdexMap, &Mappings::cOrdexMap, *lines);
  Load(folder, LoadDelimitatori, &Mappings::cDelimitatori, *lines);
  return 0;
}
