// The three mapping files in which the office keeps the portal's wording.
//
// One entry a line, "text=key", cut at the first "=" and trimmed nowhere: blanks around "=" belong
// to the texts. A line that holds "°" is a comment; a line of fewer than two characters is passed
// over.
#pragma once

#include <filesystem>
#include <string_view>

#include "base/keyed_table.h"
#include "state/mappings.h"

namespace ordex {

// The names under which the files stand in the program folder.
inline constexpr std::string_view kMapCampi = "MapCampi.txt";
inline constexpr std::string_view kMapRestr = "MapRestr.txt";
inline constexpr std::string_view kMapDelimitatori = "MapDelimitatori.txt";

// Sets the paths of the three files.
void LocateMappings(Mappings& mappings, const std::filesystem::path& programFolder);

// Each replaces its table by a new one and fills it from its file.
// Errors: FileLineError that names the file, the line and what to mend: file not found, a line
// without "=" (subscript), a repeated key. Loading stops there; what was read before it stays.
void LoadRestr(Mappings& mappings);
void LoadOrdexMap(Mappings& mappings);
void LoadDelimitatori(Mappings& mappings);

}  // namespace ordex
