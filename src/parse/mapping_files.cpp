#include "parse/mapping_files.h"

#include <string>
#include <string_view>

#include "base/error.h"
#include "base/path_text.h"
#include "base/text.h"
#include "base/text_file.h"
#include "parse/lines.h"

namespace ordex {
namespace {

constexpr std::size_t kLongestShown = 300;  // characters

enum class Values { kAsWritten, kLowerCase };

bool IsEntry(std::string_view line) {
  return !ShorterThan(line, 2) && !Contains(line, "°");
}

FileLineError LineError(ErrorNumber number, const std::filesystem::path& file,
                        const MappingLine& line, std::string_view advice) {
  std::string where = "file \"" + TextOf(file.filename()) + "\", riga " +
                      std::to_string(line.number) + ", \"" +
                      std::string(Left(line.text, kLongestShown)) + "\". ";
  return {number, Describe(number, where.append(advice)), line.number};
}

void AddEntry(KeyedTable& table, const std::filesystem::path& file, const MappingLine& line,
              Values values) {
  if (!line.hasEquals) {
    throw LineError(ErrorNumber::kSubscript, file, line,
                    "Nella riga" + std::string(kMissingEquals));
  }
  if (ItemExists(table, line.right)) {
    throw LineError(ErrorNumber::kDuplicateKey, file, line,
                    "La chiave \"" + std::string(Left(line.right, kLongestShown)) +
                        "\" sta già in una riga precedente: togliere una delle due righe.");
  }
  table.Add(values == Values::kLowerCase ? Lower(line.left) : line.left, line.right);
}

std::string ReadMappingFile(const std::filesystem::path& file) {
  try {
    return ReadTextFile(file);
  } catch (const RunTimeError& error) {
    const std::string_view advice = error.code() == ErrorNumber::kFileNotFound
                                        ? ". Il file di mappatura deve stare nella cartella del "
                                          "programma: rimetterlo al suo posto."
                                        : "";
    throw FileLineError(error.code(), error.description() + std::string(advice), 0);
  }
}

// An editor's "Unicode" is UTF-16: read by bytes, no line of it would be found again.
void RequireBytesOfText(const std::filesystem::path& file, std::size_t number,
                        std::string_view line) {
  if (line.find('\0') == std::string_view::npos) return;
  throw FileLineError(
      ErrorNumber::kFileAccess,
      Describe(ErrorNumber::kFileAccess,
               "il file \"" + TextOf(file.filename()) + "\", riga " + std::to_string(number) +
                   ", contiene caratteri nulli: forse è salvato come UTF-16 "
                   "(\"Unicode\"). Salvarlo di nuovo come UTF-8."),
      number);
}

void LoadMappingFile(KeyedTable& table, const std::filesystem::path& file, Values values) {
  table.Clear();
  for (const MappingLine& line : ReadMappingLines(file)) AddEntry(table, file, line, values);
}

}  // namespace

std::vector<MappingLine> ReadMappingLines(const std::filesystem::path& file) {
  const std::string text = ReadMappingFile(file);
  std::vector<MappingLine> entries;
  Lines lines(text);
  for (std::size_t number = 1; !lines.AtEnd(); ++number) {
    const std::string_view line = lines.Next();
    RequireBytesOfText(file, number, line);
    if (!IsEntry(line)) continue;
    const auto halves = SplitOnce(line, "=");
    entries.push_back({number, std::string(line), halves.has_value(),
                       std::string(halves ? halves->left : line),
                       std::string(halves ? halves->right : "")});
  }
  return entries;
}

void LocateMappings(Mappings& mappings, const std::filesystem::path& programFolder) {
  mappings.mapCampi = programFolder / kMapCampi;
  mappings.mapRestr = programFolder / kMapRestr;
  mappings.mapDelimitatori = programFolder / kMapDelimitatori;
}

void LoadRestr(Mappings& mappings) {
  LoadMappingFile(mappings.cRestr, mappings.mapRestr, Values::kLowerCase);
}

void LoadOrdexMap(Mappings& mappings) {
  LoadMappingFile(mappings.cOrdexMap, mappings.mapCampi, Values::kAsWritten);
}

void LoadDelimitatori(Mappings& mappings) {
  LoadMappingFile(mappings.cDelimitatori, mappings.mapDelimitatori, Values::kAsWritten);
}

}  // namespace ordex
