// Imports a sample page as the program would: recognised from the clipboard, saved as the page
// file, read with the shipped mapping files.
#pragma once

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "base/text.h"
#include "import_bench.h"
#include "parse/recognition.h"
#include "support/fake_ports.h"
#include "support/temp_folder.h"

namespace ordex::testing {

// The page as it lies in the page file: a text between double quotes; the tabs of a history page
// are blanks there, those of the other pages are gone.
inline std::string PageFileText(const std::string& clipboardText, std::int16_t kind) {
  const std::string page = ReplaceAll(ToCrLf(clipboardText), "\t", kind == kPageHistory ? " " : "");
  return "\"" + page + "\"\r\n";
}

// One run of the program, with the shipped mapping files, to which pages can be copied.
class SampleRun {
 public:
  SampleRun() {
    LocateMappings(mappings_, folder_.path());
    LoadRestr(mappings_);
    LoadOrdexMap(mappings_);
  }

  // Copies a page of samples/, e.g. "agenda-vuota".
  Stop Copy(const std::string& name) {
    FakeClipboard clipboard(SourceFile("samples/" + name + ".txt"));
    FakeMessageBoxes boxes;
    RiconosciPagina(mappings_, page, paging, clipboard, boxes);
    text = PageFileText(clipboard.text, page.iOrdexPage);
    folder_.Write("pagina.txt", text);
    return StopOf(
        Import({folder_.path(), mappings_, page, paging, sink, &trace}, "pagina", page.iOrdexPage));
  }

  std::string text;  // of the page file
  Page page;
  HistoryPaging paging;
  RecordingSink sink;
  RecordingTrace trace;

 private:
  TempProgramFolder folder_;
  Mappings mappings_;
};

// A single page copied in a run of its own.
class SampleImport : public SampleRun {
 public:
  explicit SampleImport(const std::string& name) : stop(Copy(name)) {}

  Stop stop;
};

// The pages in samples/ whose names begin so, whatever their number.
inline std::vector<std::string> SamplesNamed(const std::string& prefix) {
  std::vector<std::string> names;
  const std::filesystem::path folder = std::filesystem::path(ORDEX_SOURCE_DIR) / "samples";
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    const std::string name = entry.path().stem().string();
    if (entry.path().extension() == ".txt" && name.starts_with(prefix)) names.push_back(name);
  }
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace ordex::testing
