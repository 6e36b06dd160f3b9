#include "parse/mapping_files.h"

#include <string>
#include <string_view>

#include "base/error.h"
#include "base/text.h"
#include "base/text_file.h"
#include "parse/lines.h"

namespace ordex {
namespace {

enum class Values { kAsWritten, kLowerCase };

bool IsEntry(std::string_view line) {
  return !ShorterThan(line, 2) && !Contains(line, "°");
}

FileLineError LineError(ErrorNumber number, const std::filesystem::path& file,
                        std::size_t number_of, std::string_view line, std::string_view advice) {
  std::string where = "file \"" + file.filename().string() + "\", riga " +
                      std::to_string(number_of) + ", \"" + std::string(line) + "\". ";
  return {number, Describe(number, where.append(advice)), number_of};
}

void AddEntry(KeyedTable& table, const std::filesystem::path& file, std::size_t number,
              std::string_view line, Values values) {
  const auto halves = SplitOnce(line, "=");
  if (!halves) {
    throw LineError(ErrorNumber::kSubscript, file, number, line,
                    "Nella riga manca il segno \"=\": scriverla nella forma testo=chiave, oppure "
                    "aggiungere il segno \"°\" se è un commento.");
  }
  if (table.Exists(halves->right)) {
    throw LineError(ErrorNumber::kDuplicateKey, file, number, line,
                    "La chiave \"" + std::string(halves->right) +
                        "\" sta già in una riga precedente: togliere una delle due righe.");
  }
  table.Add(values == Values::kLowerCase ? Lower(halves->left) : std::string(halves->left),
            halves->right);
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

void LoadMappingFile(KeyedTable& table, const std::filesystem::path& file, Values values) {
  table.Clear();
  const std::string text = ReadMappingFile(file);
  Lines lines(text);
  for (std::size_t number = 1; !lines.AtEnd(); ++number) {
    const std::string_view line = lines.Next();
    if (IsEntry(line)) AddEntry(table, file, number, line, values);
  }
}

}  // namespace

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
