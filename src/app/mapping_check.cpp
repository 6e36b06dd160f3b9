#include "app/mapping_check.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "base/error.h"
#include "base/quoted.h"
#include "base/text.h"
#include "parse/delimiter_keys.h"
#include "parse/mapping_files.h"
#include "state/page.h"

namespace ordex {
namespace {

// The labels that stand in both files must be written alike.
constexpr std::array<std::string_view, 11> kLabelKeys = {
    "DELPF1", "DELPF7",  "DELPF8",  "TESTO1",   "TESTO2",  "TESTO3",
    "TESTO4", "DELGDP8", "DELGDP9", "DELGDP10", "DELGDP11"};
// Those that are looked up in the field map as they stand.
constexpr std::array<std::string_view, 3> kMappedKeys = {"DELPF1", "DELGDP8", "DELGDP9"};
// Those that are compared with a label already cut at the separator and trimmed.
constexpr std::array<std::string_view, 6> kCutLabelKeys = {"DELPF7", "DELPF8", "TESTO1",
                                                           "TESTO2", "TESTO3", "TESTO4"};
// Searched for in a text without blanks.
constexpr std::array<std::string_view, 4> kBlanklessKeys = {"DELSF4", "DELSF5", "DELSF6", "DELSF7"};
constexpr std::array<std::string_view, 4> kReservedFields = {kPlaintiffKey, kPlaintiffCounselKey,
                                                             kDefendantKey, kDefendantCounselKey};
constexpr std::size_t kPageKinds = 4;

// What is left of a label when blanks, colons and letter case do not count.
std::string Bare(std::string_view label) {
  return Lower(ReplaceAll(ReplaceAll(label, " ", ""), ":", ""));
}

template <class Texts>
bool IsOneOf(const Texts& texts, std::string_view text) {
  return std::any_of(texts.begin(), texts.end(),
                     [text](std::string_view one) { return EqualIgnoringCase(one, text); });
}

// Accented letters that were saved as UTF-8 and read as single bytes begin with "Ã" or "Â", and
// what follows is no ASCII character either.
bool LooksDoublyEncoded(std::string_view text) {
  for (const std::string_view lead : {"Ã", "Â"}) {
    for (std::size_t at = text.find(lead); at != std::string_view::npos;
         at = text.find(lead, at + 1)) {
      const std::size_t next = at + lead.size();
      if (next < text.size() && static_cast<unsigned char>(text[next]) >= 0x80) return true;
    }
  }
  return Contains(text, "\xEF\xBF\xBD");
}

class Check {
 public:
  explicit Check(const std::filesystem::path& programFolder) {
    recognition_ = Read(programFolder, kMapRestr);
    fields_ = Read(programFolder, kMapCampi);
    delimiters_ = Read(programFolder, kMapDelimitatori);
  }

  std::vector<Finding> Run() {
    // Of a file that is not there every key would be missing.
    if (allRead_) CheckTexts();
    std::stable_sort(findings_.begin(), findings_.end(), [](const Finding& a, const Finding& b) {
      return std::pair(a.file, a.line) < std::pair(b.file, b.line);
    });
    return std::move(findings_);
  }

 private:
  using Entries = std::vector<MappingLine>;

  void CheckTexts() {
    CheckRecognition();
    CheckDelimiterKeys();
    CheckDelimiterTexts();
    CheckFields();
    CheckLabels();
  }

  void Add(std::string_view file, std::size_t line, Severity severity, std::string text) {
    findings_.push_back({std::string(file), line, severity, std::move(text)});
  }

  Entries Read(const std::filesystem::path& programFolder, std::string_view file) {
    Entries entries;
    try {
      entries = ReadMappingLines(programFolder / file);
    } catch (const FileLineError& error) {
      Add(file, error.line(), Severity::kError, error.description());
      allRead_ = false;
      return entries;
    }
    CheckLines(file, entries);
    std::erase_if(entries, [](const MappingLine& line) { return !line.hasEquals; });
    return entries;
  }

  void CheckLines(std::string_view file, const Entries& entries) {
    std::map<std::string, std::size_t> seen;
    for (const MappingLine& line : entries) {
      if (!line.hasEquals) {
        Add(file, line.number, Severity::kError,
            "Nella riga " + Quoted(line.text) + std::string(kMissingEquals));
        continue;
      }
      const auto [first, added] = seen.try_emplace(Lower(line.right), line.number);
      if (!added) {
        Add(file, line.number, Severity::kError,
            "La chiave " + Quoted(line.right) + " sta già nella riga " +
                std::to_string(first->second) + ": togliere una delle due righe.");
      }
      if (line.left.empty() || line.right.empty()) {
        Add(file, line.number, Severity::kError,
            "La riga " + Quoted(line.text) + " non ha testo " +
                (line.left.empty() ? "prima" : "dopo") +
                " del segno \"=\": completarla o toglierla.");
      }
      if (LooksDoublyEncoded(line.text)) {
        Add(file, line.number, Severity::kWarning,
            "La riga " + Quoted(line.text) +
                " sembra salvata con una codifica sbagliata: riscrivere le lettere accentate e "
                "salvare il file come UTF-8.");
      }
    }
  }

  void CheckRecognition() {
    if (recognition_.size() != kPageKinds) {
      Add(kMapRestr, 0, Severity::kWarning,
          "Il file ha " + std::to_string(recognition_.size()) +
              " righe, le pagine note sono 4: profilo, storico, agenda e giudice di pace, in "
              "quest'ordine.");
    }
    for (const MappingLine& line : recognition_) CheckFileName(line);
    for (std::size_t later = 1; later < recognition_.size(); ++later) {
      for (std::size_t earlier = 0; earlier < later; ++earlier) {
        CheckHiding(recognition_[earlier], recognition_[later]);
      }
    }
  }

  // The page file is named after the text.
  void CheckFileName(const MappingLine& line) {
    const std::size_t at = line.left.find_first_of("/\\:*?\"<>|");
    if (at == std::string::npos) return;
    Add(kMapRestr, line.number, Severity::kError,
        "Il testo " + Quoted(line.left) + " contiene il segno " +
            Quoted(std::string_view(line.left).substr(at, 1)) +
            ", che in un nome di file non può stare: il file della pagina prende il nome dal "
            "testo. "
            "Usare un testo senza quel segno.");
  }

  void CheckHiding(const MappingLine& earlier, const MappingLine& later) {
    if (!Contains(Lower(later.left), Lower(earlier.left))) return;
    Add(kMapRestr, later.number, Severity::kError,
        "Il testo " + Quoted(later.left) + " contiene quello della riga " +
            std::to_string(earlier.number) + ", " + Quoted(earlier.left) +
            ": questa pagina non verrà mai riconosciuta. Usare due testi che non stanno uno "
            "nell'altro.");
  }

  const MappingLine* DelimiterLine(std::string_view key) const {
    const auto found =
        std::find_if(delimiters_.begin(), delimiters_.end(),
                     [key](const MappingLine& line) { return EqualIgnoringCase(line.right, key); });
    return found == delimiters_.end() ? nullptr : &*found;
  }

  void CheckDelimiterKeys() {
    for (const DelimiterKey& needed : kDelimiterKeys) {
      if (DelimiterLine(needed.key) != nullptr) continue;
      Add(kMapDelimitatori, 0, Severity::kError,
          "Manca la chiave " + Quoted(needed.key) + ", che serve " + PageName(needed.kind) +
              ": aggiungere la riga testo=" + std::string(needed.key) + ".");
    }
    for (const MappingLine& line : delimiters_) {
      const bool known = std::any_of(
          kDelimiterKeys.begin(), kDelimiterKeys.end(),
          [&line](const DelimiterKey& one) { return EqualIgnoringCase(one.key, line.right); });
      if (known) continue;
      Add(kMapDelimitatori, line.number, Severity::kWarning,
          "Nessuna pagina chiede la chiave " + Quoted(line.right) +
              ": correggerla o togliere la riga.");
    }
  }

  static std::string PageName(std::int16_t kind) {
    switch (kind) {
      case kPageProfile:
        return "alla pagina del profilo";
      case kPageHistory:
        return "alla pagina dello storico";
      case kPageAgenda:
        return "alla pagina dell'agenda";
      case kPageJusticeOfThePeace:
        return "alla pagina del giudice di pace";
      default:
        return "a una pagina che il programma non conosce";
    }
  }

  void CheckDelimiterTexts() {
    for (const MappingLine& line : delimiters_) {
      if (!IsOneOf(kBlanklessKeys, line.right) || !Contains(line.left, " ")) continue;
      Add(kMapDelimitatori, line.number, Severity::kError,
          "Il testo " + Quoted(line.left) + " di " + line.right +
              " contiene uno spazio: viene cercato in un testo senza spazi e non verrà mai "
              "trovato. Togliere gli spazi.");
    }
    for (const std::string_view key : kMappedKeys) CheckMapped(key);
  }

  void CheckMapped(std::string_view key) {
    const MappingLine* line = DelimiterLine(key);
    if (line == nullptr) return;
    const bool mapped = std::any_of(
        fields_.begin(), fields_.end(),
        [line](const MappingLine& field) { return EqualIgnoringCase(field.right, line->left); });
    if (mapped) return;
    const bool number = key == "DELPF1";
    Add(kMapDelimitatori, line->number, number ? Severity::kError : Severity::kWarning,
        "Il testo " + Quoted(line->left) + " di " + line->right + " manca in \"" +
            std::string(kMapCampi) + "\": aggiungere la riga " +
            (number ? "NumeroRegGenerale=" : "campo=") + line->left);
  }

  void CheckFields() {
    for (const MappingLine& line : fields_) {
      if (!IsOneOf(kReservedFields, line.left)) continue;
      Add(kMapCampi, line.number, Severity::kWarning,
          "Il nome " + Quoted(line.left) +
              " è riservato ai nomi delle parti: usare un altro nome di campo.");
    }
  }

  // A label that is nearly a delimiter's text is meant to be it; and a label is compared without
  // the separator and the blanks around it.
  void CheckLabels() {
    const MappingLine* separator = DelimiterLine("DELPF2");
    for (const MappingLine& line : fields_) {
      if (CheckAgainstDelimiters(line)) continue;
      if (Trim(line.right) != line.right) {
        Add(kMapCampi, line.number, Severity::kWarning,
            "L'etichetta " + Quoted(line.right) +
                " ha spazi all'inizio o alla fine: non verrà mai trovata. Toglierli.");
      } else if (separator != nullptr && !separator->left.empty() &&
                 Contains(line.right, separator->left)) {
        Add(kMapCampi, line.number, Severity::kWarning,
            "L'etichetta " + Quoted(line.right) + " contiene il separatore " +
                Quoted(separator->left) + ", che viene tagliato via: scrivere l'etichetta senza.");
      }
    }
  }

  // Returns whether the label is one of the delimiters' texts that are looked up as they stand, or
  // nearly a delimiter's text.
  bool CheckAgainstDelimiters(const MappingLine& label) {
    const MappingLine* near = nullptr;
    for (const std::string_view key : kLabelKeys) {
      const MappingLine* line = DelimiterLine(key);
      if (line == nullptr || line->left.empty()) continue;
      if (line->left == label.right) return !IsOneOf(kCutLabelKeys, key);
      if (Bare(line->left) == Bare(label.right)) near = line;
    }
    if (near == nullptr) return false;
    Add(kMapCampi, label.number, Severity::kWarning,
        "L'etichetta " + Quoted(label.right) +
            " differisce solo per spazi, due punti o maiuscole "
            "dal testo " +
            Quoted(near->left) + " di " + near->right + " (\"" + std::string(kMapDelimitatori) +
            "\", riga " + std::to_string(near->number) + "): scriverle uguali.");
    return true;
  }

  bool allRead_ = true;
  Entries recognition_;
  Entries fields_;
  Entries delimiters_;
  std::vector<Finding> findings_;
};

}  // namespace

std::vector<Finding> CheckMappings(const std::filesystem::path& programFolder) {
  return Check(programFolder).Run();
}

std::vector<Finding> CheckColumns(const std::filesystem::path& programFolder,
                                  Connection& connection) {
  std::vector<Finding> findings;
  std::vector<MappingLine> lines;
  try {
    lines = ReadMappingLines(programFolder / kMapCampi);
  } catch (const FileLineError&) {
    return findings;  // of the files, and told with the others of theirs
  }
  const std::vector<ColumnInfo>& columns = connection.TableColumns("PraOrdex");
  for (const MappingLine& line : lines) {
    const bool known = std::any_of(
        columns.begin(), columns.end(),
        [&line](const ColumnInfo& column) { return EqualIgnoringCase(column.name, line.left); });
    if (known || !line.hasEquals) continue;
    findings.push_back({std::string(kMapCampi), line.number, Severity::kWarning,
                        "Il campo " + Quoted(line.left) +
                            " non è una colonna della tabella PraOrdex: il valore di " +
                            Quoted(line.right) + " non verrà registrato. Correggere il nome."});
  }
  return findings;
}

}  // namespace ordex
