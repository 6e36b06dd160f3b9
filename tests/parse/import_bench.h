// What a test of the import needs: a program folder with mapping files of its own, the tables, and
// recorders for all that comes out.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "parse/import.h"
#include "parse/mapping_files.h"
#include "state/mappings.h"
#include "state/page.h"
#include "support/recording_sink.h"
#include "support/temp_folder.h"

namespace ordex::testing {

// The wording of a portal of our own, so that a rule's test does not hang on the shipped files.
inline constexpr std::string_view kBenchDelimiters =
    "Numero di ruolo generale:=DELPF1\n"
    ":=DELPF2\n"
    " - Avv. =DELPF3\n"
    "Termini assegnati=DELPF4\n"
    "Deposito documenti=DELPF6\n"
    "Attore=DELPF7\n"
    "Convenuto=DELPF8\n"
    "Ricorrente=TESTO1\n"
    "Resistente=TESTO2\n"
    "Terzo chiamato=TESTO3\n"
    "Intervenuto=TESTO4\n";

inline constexpr std::string_view kBenchFields =
    "NumeroRegGenerale=Numero di ruolo generale:\n"
    "Oggetto=Oggetto\n"
    "Materia=Materia\n"
    "Unita=Unità locale\n"
    "Lettera=È\n"
    "Note=Note\n"
    "Note=Avvisi\n"
    "DUUd=Ultima udienza\n"
    "DPUd=Prossima udienza\n"
    "Esito=Esito\n"
    "ParteAttrice=Attore\n"
    "ParteAttrice=Ricorrente\n"
    "ParteConvenuta=Convenuto\n"
    "ParteConvenuta=Resistente\n"
    "AltreParti=Terzo chiamato\n"
    "AltreParti=Intervenuto\n";

// Why an import stopped, as a value that a test compares whole; all empty where it did not.
struct Stop {
  int number = 0;
  std::string description;
  std::size_t line = 0;
  std::string lineText;
  bool inPage = false;

  bool operator==(const Stop&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const Stop& stop) {
  return out << stop.number << " " << stop.description << " (" << (stop.inPage ? "page " : "file ")
             << "line " << stop.line << ": \"" << stop.lineText << "\")";
}

inline Stop StopOf(const std::optional<ImportStop>& stop) {
  if (!stop) return {};
  return {stop->error.number(), stop->error.description(), stop->line, stop->lineText,
          stop->inPage};
}

// The line of a page at which the import stopped, and why.
inline Stop StopInPage(int number, std::string description, std::size_t line,
                       std::string lineText) {
  return {number, std::move(description), line, std::move(lineText), true};
}

// The words for a page line that lacks the separator ":".
inline constexpr const char* kNoSeparator =
    "Indice non incluso nell'intervallo: nella riga manca il separatore \":\" tra etichetta e "
    "valore";
inline constexpr const char* kPageTooShort =
    "Input oltre la fine del file: la pagina finisce dove si attendeva altro testo";

using NamedValues = std::vector<std::pair<std::string, std::string>>;

// The entries of a table in order, each as key and value.
inline NamedValues ValuesOf(const KeyedTable& table) {
  NamedValues values;
  for (const KeyedTable::Entry& entry : table.Entries()) {
    values.emplace_back(entry.key, entry.value);
  }
  return values;
}

// By key, for values whose order means nothing.
inline NamedValues Sorted(NamedValues values) {
  std::sort(values.begin(), values.end());
  return values;
}

inline Row FieldRow(std::string NomeDb, std::string label, std::string value) {
  return {std::move(NomeDb), std::move(label), std::move(value), "", ""};
}

inline Row DeadlineRow(std::string label, std::string value) {
  return {"", std::move(label), std::move(value), "", "Scadenza Termini"};
}

inline Row DepositRow(std::string value) {
  return {"", "Data dep. relaz. notarile/documentazione ipocatastale", std::move(value), "", ""};
}

using Rows = std::vector<Row>;
using Parties = std::vector<Party>;

class ImportBench {
 public:
  ImportBench() {
    LocateMappings(mappings, folder.path());
    Delimiters(kBenchDelimiters);
    Fields(kBenchFields);
  }

  // What the import will find as "MapDelimitatori.txt".
  void Delimiters(std::string_view bytes) { folder.Write(kMapDelimitatori, bytes); }
  // Replaces the field map.
  void Fields(std::string_view bytes) {
    folder.Write(kMapCampi, bytes);
    LoadOrdexMap(mappings);
  }

  // Imports a page file of these lines, each ended by CRLF.
  Stop Run(const std::vector<std::string>& lines, std::int16_t kind = kPageProfile) {
    std::string bytes;
    for (const std::string& line : lines) bytes.append(line).append("\r\n");
    return RunBytes(bytes, kind);
  }
  // Imports a page file of exactly these bytes.
  Stop RunBytes(std::string_view bytes, std::int16_t kind = kPageProfile) {
    folder.Write("pagina.txt", bytes);
    return RunFile("pagina", kind);
  }
  Stop RunFile(std::string_view stem, std::int16_t kind = kPageProfile) {
    return StopOf(Import({folder.path(), mappings, page, paging, sink, &trace}, stem, kind));
  }

  // Drops all that earlier imports left; the folder and the field map stay.
  void Forget() {
    page = {};
    sink = {};
    trace = {};
  }

  NamedValues Values() const { return ValuesOf(page.cDatiFasc); }

  TempFolder folder;
  Mappings mappings;
  Page page;
  HistoryPaging paging;
  RecordingSink sink;
  RecordingTrace trace;
};

}  // namespace ordex::testing
