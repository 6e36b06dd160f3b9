// The import of one page kind (ORDEX_PAGE_KIND) with mapping files that are changed at random.
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "app/intake.h"
#include "app/review_lists.h"
#include "app/window_sink.h"
#include "base/error.h"
#include "base/text.h"
#include "base/text_file.h"
#include "cases/case_choice_rules.h"
#include "parse/history_paging.h"
#include "parse/import.h"
#include "parse/recognition.h"
#include "support/page_input.h"
#include "support/world.h"

namespace ordex::fuzz {
namespace {

constexpr std::int16_t kKind = ORDEX_PAGE_KIND;
constexpr const char* kStem = "pagina";

// Follows the import, and the rows back to the lines that they come from.
class Follower final : public WindowSink, public ImportTrace {
 public:
  explicit Follower(Window& window) : WindowSink(window) {}

  void Read(const PageLine& line) override {
    lines.emplace_back(line.text);
    Require(line.number == lines.size(), "lines are counted one by one");
    inWork_ = line.number;
  }
  void Taken(const PageLine& line, std::string_view rule) override {
    Require(line.number >= 1 && line.number <= lines.size(), "only a line that was read is taken");
    takers[line.number].emplace_back(rule);
  }
  void WorkOn(const PageLine& line) override {
    Require(line.number >= 1 && line.number <= lines.size(),
            "only a line that was read is in work");
    inWork_ = line.number;
  }
  void WriteListView(std::string_view ValueItem, std::string_view FirstSubItem,
                     std::string_view SecondSubItem, std::string_view ThirdSubItem,
                     std::string_view szTag) override {
    givers.insert(inWork_);
    WindowSink::WriteListView(ValueItem, FirstSubItem, SecondSubItem, ThirdSubItem, szTag);
  }
  void AggiungiRigaAgenda(std::string_view ValueItem, std::string_view FirstSubItem,
                          bool bold) override {
    givers.insert(inWork_);
    WindowSink::AggiungiRigaAgenda(ValueItem, FirstSubItem, bold);
  }

  std::vector<std::string> lines;
  std::map<std::size_t, std::vector<std::string>> takers;
  std::set<std::size_t> givers;  // the lines that gave rows

 private:
  std::size_t inWork_ = 0;
};

// The head of a profile's deadlines is the one line that the rules go on with behind its block.
bool MayBeTakenAgain(const std::vector<std::string>& rules) {
  return kKind == kPageProfile && rules.front() == "scadenze";
}

void CheckTakers(const Follower& followed) {
  for (const auto& [line, rules] : followed.takers) {
    Require(rules.size() == 1 || MayBeTakenAgain(rules), "a line is taken by exactly one rule");
  }
  for (const std::size_t line : followed.givers) {
    Require(followed.takers.contains(line), "a line that gives a row is taken by a rule");
  }
}

// Lines as any tool would cut them.
std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) {
    if (!in.eof() && line.ends_with('\r')) line.pop_back();
    lines.push_back(line);
  }
  return lines;
}

void CheckLines(const Follower& followed, const std::vector<std::string>& lines) {
  Require(followed.lines.size() <= lines.size(), "no line is made up");
  for (std::size_t i = 0; i < followed.lines.size(); ++i) {
    Require(followed.lines[i] == lines[i], "each line is read as it stands");
  }
}

void CheckStop(const Follower& followed, const ImportStop& stop) {
  Require(!stop.error.description().empty(), "an error says what is wrong");
  Require(!ImportStopBox(stop).text.empty(), "the user is told");
  if (!stop.inPage || stop.line == 0) return;
  Require(stop.line <= followed.lines.size(), "an import stops at a line that was read");
  Require(Trim(followed.lines[stop.line - 1]).find(Trim(stop.lineText)) != std::string_view::npos,
          "the line that is shown is the one that is named");
}

// What the user may do with the rows.
void UseRows(Window& window) {
  ReviewList& list = window.lstImport;
  for (const int column : {1, 3, 3}) OrdinaColonna(list, column);
  for (std::size_t place = 1; place <= list.rows.size(); ++place) {
    lstImport_ItemClick(list, place);
  }
  for (std::size_t place = 1; place <= window.lstAgendaAvv.rows.size(); ++place) {
    lstAgendaAvv_ItemClick(window.lstAgendaAvv, place);
  }
  for (int place = 0; place < std::ssize(window.choice.cmbParti[0].items); ++place) {
    SelectParty(window.choice, kBoxClient, place);
    SelectParty(window.choice, kBoxCounterpart, place);
    Require(window.choice.cmbParti[kBoxCounterpart].index == ComboBox::kNoChoice,
            "one party is never on both sides");
  }
  GestCountAgenda(window.page.iNrEventiAgenda, window.status);
}

void ImportPage(const Folder& folder, const PageInput& input) {
  const TextOnClipboard clipboard(input.page());
  TxtfromClipboard(folder.path(), kStem, clipboard);
  const std::string text = ReadTextFile(PageFile(folder.path(), kStem));

  Window window;
  LocateMappings(window.mappings, folder.path());
  LoadOrdexMap(window.mappings);
  if (kKind == kPageHistory) {
    LoadDelimitatori(window.mappings);
    ReadHistoryPlace(window.mappings.cDelimitatori, ClipboardText(clipboard), window.paging);
  }
  Follower followed(window);
  const auto stop =
      Import({folder.path(), window.mappings, window.page, window.paging, followed, &followed},
             kStem, kKind);
  const std::vector<std::string> lines = LinesOf(text);
  CheckLines(followed, lines);
  CheckTakers(followed);
  if (stop) {
    CheckStop(followed, *stop);
  } else {
    Require(followed.lines.size() == lines.size(), "every line is read");
  }
  UseRows(window);
}

}  // namespace
}  // namespace ordex::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace ordex::fuzz;
  static const Folder folder;
  Input input(data, size);
  const PageInput page(input, kKind);
  page.WriteMappings(folder);
  try {
    ImportPage(folder, page);
  } catch (const ordex::RunTimeError& error) {
    Require(!error.description().empty(), "an error says what is wrong");
  }
  return 0;
}
