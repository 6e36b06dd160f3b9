#include "app/page_check.h"

#include <algorithm>
#include <set>
#include <string>
#include <utility>

#include "app/page_trial.h"
#include "base/path_text.h"
#include "base/text.h"
#include "base/text_file.h"
#include "parse/mapping_files.h"

namespace ordex {
namespace fs = std::filesystem;
namespace {

std::vector<fs::path> TextFiles(const fs::path& folder) {
  std::vector<fs::path> files;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
    const bool text = EqualIgnoringCase(TextOf(entry.path().extension()), ".txt");
    if (text && entry.is_regular_file()) files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

class PageCheck {
 public:
  explicit PageCheck(fs::path programFolder) : programFolder_(std::move(programFolder)) {}

  void Run(const fs::path& file) {
    const std::string name = TextOf(file.filename());
    const auto trial = TryPage(programFolder_, ReadTextFile(file));
    if (!trial) {
      Add(name, 0, Severity::kWarning,
          "La pagina non viene riconosciuta: nessun testo di \"" + std::string(kMapRestr) +
              "\" vi compare.");
      return;
    }
    if (trial->stop) {
      Add(name, trial->stop->inPage ? trial->stop->line : 0, Severity::kError,
          "L'importazione si ferma: " + trial->stop->error.description());
    } else if (YieldsNothing(*trial)) {
      Add(name, 0, Severity::kWarning,
          "Dalla pagina non viene letto nulla: controllare le diciture in \"" +
              std::string(kMapDelimitatori) + "\" e \"" + std::string(kMapCampi) + "\".");
    }
    Note(*trial);
  }

  std::vector<Finding> Finish() {
    Unused(
        kMapRestr, "Nessuna delle pagine viene riconosciuta da ",
        "se il titolo è cambiato correggere il testo. La riga non va tolta: l'ordine delle righe "
        "è fisso.",
        [this](const MappingLine& line) { return kinds_.contains(line.right); });
    Unused(kMapCampi, "Nessuna delle pagine usa l'etichetta ",
           "se il portale non la usa più togliere la riga, altrimenti correggerla.",
           [this](const MappingLine& line) { return labels_.contains(Lower(Trim(line.right))); });
    Unused(kMapDelimitatori, "In nessuna delle pagine compare il testo di ",
           "se la dicitura è cambiata correggere il testo. La riga non va tolta: senza la chiave "
           "l'importazione si ferma.",
           [this](const MappingLine& line) { return texts_.find(line.left) != std::string::npos; });
    return std::move(findings_);
  }

 private:
  void Add(std::string file, std::size_t line, Severity severity, std::string text) {
    findings_.push_back({std::move(file), line, severity, std::move(text)});
  }

  // An agenda may be empty: what counts there is that the number of its entries was found.
  static bool YieldsNothing(const PageTrial& trial) {
    const Window& window = trial.window;
    return window.lstImport.rows.empty() && window.lstAgendaAvv.rows.empty() &&
           window.page.cDatiFasc.Count() == 0 &&
           std::none_of(trial.lines.begin(), trial.lines.end(),
                        [](const LineReport& line) { return line.rule == kNumberOfEntries; });
  }

  void Note(const PageTrial& trial) {
    const auto kind = static_cast<std::size_t>(trial.window.page.iOrdexPage);
    kinds_.insert(trial.window.mappings.cRestr.At(kind).key);
    const ReviewRows& rows = trial.window.lstImport.rows;
    for (std::size_t i = 0; i < rows.size(); ++i) labels_.insert(Lower(Trim(rows[i].sub[0])));
    for (const LineReport& line : trial.lines) {
      texts_.append(line.text).append("\n");
      // As the page's place in the history is read.
      texts_.append(ReplaceAll(line.text, " ", "")).append("\n");
    }
  }

  template <class IsUsed>
  void Unused(std::string_view file, std::string_view what, std::string_view advice,
              IsUsed isUsed) {
    for (const MappingLine& line : ReadMappingLines(programFolder_ / file)) {
      if (!line.hasEquals || isUsed(line)) continue;
      Add(std::string(file), line.number, Severity::kWarning,
          std::string(what) + "\"" + line.right + "\" (" + line.text + "): " + std::string(advice));
    }
  }

  fs::path programFolder_;
  std::vector<Finding> findings_;
  std::set<std::string> kinds_;   // keys of the recognition texts
  std::set<std::string> labels_;  // in lower case
  std::string texts_;
};

}  // namespace

std::vector<Finding> CheckPages(const fs::path& programFolder, const fs::path& pages) {
  const std::vector<fs::path> files = TextFiles(pages);
  if (files.empty()) {
    return {
        {TextOf(pages), 0, Severity::kWarning,
         "Nella cartella non c'è nessuna pagina: salvare qui il testo di ogni pagina, in un file "
         "che finisce per .txt."}};
  }
  PageCheck check(programFolder);
  for (const fs::path& file : files) check.Run(file);
  return check.Finish();
}

}  // namespace ordex
