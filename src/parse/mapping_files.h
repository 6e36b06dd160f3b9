// The three mapping files in which the office keeps the portal's wording.
//
// One entry a line, "text=key", cut at the first "=" and trimmed nowhere: blanks around "=" belong
// to the texts. A line that holds "°" is a comment; a line of fewer than two characters is passed
// over.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "base/keyed_table.h"
#include "state/mappings.h"

namespace ordex {

// The names under which the files stand in the program folder.
inline constexpr std::string_view kMapCampi = "MapCampi.txt";
inline constexpr std::string_view kMapRestr = "MapRestr.txt";
inline constexpr std::string_view kMapDelimitatori = "MapDelimitatori.txt";

// What is wrong with a line without "=", behind the words that name the line.
inline constexpr std::string_view kMissingEquals =
    " manca il segno \"=\": scriverla nella forma testo=chiave, oppure aggiungere il segno "
    "\"°\" se è un commento.";

// Sets the paths of the three files.
void LocateMappings(Mappings& mappings, const std::filesystem::path& programFolder);

// A line of a mapping file that is neither a comment nor too short to count.
struct MappingLine {
  std::size_t number = 0;  // counted from 1
  std::string text;
  bool hasEquals = false;
  std::string left;   // before the first "="; the whole line where there is none
  std::string right;  // behind it
};

// All such lines of a file. Error: FileLineError, where the file cannot be read.
std::vector<MappingLine> ReadMappingLines(const std::filesystem::path& file);

// Each replaces its table by a new one and fills it from its file.
// Errors: FileLineError that names the file, the line and what to mend: file not found, a line
// without "=" (subscript), a repeated key. Loading stops there; what was read before it stays.
void LoadRestr(Mappings& mappings);
void LoadOrdexMap(Mappings& mappings);
void LoadDelimitatori(Mappings& mappings);

}  // namespace ordex
