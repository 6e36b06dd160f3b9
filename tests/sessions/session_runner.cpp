#include "session_runner.h"

#include <fnmatch.h>

#include <algorithm>
#include <map>
#include <optional>
#include <stdexcept>
#include <string_view>

#include "expectations.h"
#include "text_files.h"

namespace ordex::sessions {
namespace fs = std::filesystem;
namespace {

std::vector<std::string> Words(std::string_view text) {
  std::vector<std::string> words;
  while (!text.empty()) {
    const std::size_t blank = text.find(' ');
    if (blank != 0) words.emplace_back(text.substr(0, blank));
    text.remove_prefix(blank == std::string_view::npos ? text.size() : blank + 1);
  }
  return words;
}

std::string WithoutIndent(const std::string& line) {
  return line.substr(std::min(line.find_first_not_of(' '), line.size()));
}

// For texts whose accented letters are those of Western Europe: two bytes of UTF-8 become one.
std::string ToWindows1252(std::string_view text) {
  std::string bytes;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if (byte < 0x80) {
      bytes.push_back(text[i]);
    } else if ((byte == 0xC2 || byte == 0xC3) && i + 1 < text.size()) {
      const auto next = static_cast<unsigned char>(text[++i]);
      bytes.push_back(static_cast<char>(byte == 0xC3 ? next + 0x40 : next));
    } else {
      throw std::runtime_error("a character that this runner cannot write in Windows-1252");
    }
  }
  return bytes;
}

class Runner {
 public:
  Runner(const SessionSetup& setup, const FailureReport& report)
      : report_(report), workplace_(setup.source, setup.driver) {
    task_.program = setup.program;
    task_.timeLimit = setup.timeLimit;
  }

  Content Tables() const {
    if (!IsDatabase()) return {};
    return ContentOf(workplace_.database());
  }

  void Run(const std::vector<Step>& steps) {
    for (std::size_t i = 0; i < steps.size(); ++i) {
      const Step& step = steps[i];
      if (step.keyword == "query") {
        i = CheckQuery(steps, i);
      } else {
        (this->*HandlerOf(step))(step);
      }
    }
  }

 private:
  using Handler = void (Runner::*)(const Step&);

  static Handler HandlerOf(const Step& step) {
    static const std::map<std::string, Handler> kHandlers = {
        {"page", &Runner::Page},
        {"page-text", &Runner::PageText},
        {"page-replace", &Runner::PageReplace},
        {"page-cut-after", &Runner::PageCutAfter},
        {"page-crlf", &Runner::PageCrlf},
        {"work-file", &Runner::WorkFile},
        {"office-file", &Runner::OfficeFile},
        {"database", &Runner::Database},
        {"database-file", &Runner::DatabaseFile},
        {"sql", &Runner::Sql},
        {"settings", &Runner::Settings},
        {"mapping", &Runner::Mapping},
        {"mapping-line", &Runner::MappingLine},
        {"mapping-add", &Runner::MappingAdd},
        {"mapping-without", &Runner::MappingWithout},
        {"mapping-absent", &Runner::MappingAbsent},
        {"mapping-windows-1252", &Runner::MappingWindows1252},
        {"now", &Runner::Now},
        {"options", &Runner::Options},
        {"lock", &Runner::Lock},
        {"leaves", &Runner::Leaves},
        {"as-nobody", &Runner::AsNobody},
        {"read-only", &Runner::ReadOnly},
        {"run", &Runner::RunBlock},
        {"call", &Runner::Call},
        {"exit", &Runner::Exit},
        {"event", &Runner::Event},
        {"no-event", &Runner::NoEvent},
        {"count", &Runner::Count},
        {"last", &Runner::Last},
        {"sql-texts", &Runner::SqlTexts},
        {"types", &Runner::Types},
        {"setting", &Runner::Setting},
        {"prints", &Runner::Prints},
        {"says", &Runner::Says},
        {"present", &Runner::Present},
        {"absent", &Runner::Absent},
        {"database-unchanged", &Runner::DatabaseUnchanged},
        {"tables-unchanged", &Runner::TablesUnchanged},
    };
    return kHandlers.at(step.keyword);
  }

  void Fail(const Step& step, const std::string& text) const {
    report_(step.line, text + "\n--- run\n" + outcome_.transcript);
  }

  void Require(const Step& step, const std::optional<std::string>& fault) const {
    if (fault) Fail(step, *fault);
  }

  // --- what a run begins with -----------------------------------------------------------------

  void Page(const Step& step) { workplace_.TakePage(step.argument); }
  void PageText(const Step& step) { workplace_.SetPage(step.BlockText()); }

  std::string PageInWork(const Step& step) const {
    if (!workplace_.page()) throw SyntaxError(step.line, "there is no page yet");
    return *workplace_.page();
  }

  void PageReplace(const Step& step) {
    const Replacement replacement = ReplacementOf(step);
    workplace_.SetPage(Replaced(step, PageInWork(step), replacement.before, replacement.after));
  }

  void PageCutAfter(const Step& step) {
    const std::string page = PageInWork(step);
    const std::size_t at = page.find(step.argument);
    if (at == std::string::npos) throw SyntaxError(step.line, "the page does not hold this text");
    workplace_.SetPage(page.substr(0, at + step.argument.size()));
  }

  void PageCrlf(const Step& step) {
    workplace_.SetPage(Replaced(step, PageInWork(step), "\n", "\r\n"));
  }

  static std::string Replaced(const Step& step, std::string text, std::string_view before,
                              std::string_view after) {
    std::size_t at = text.find(before);
    if (at == std::string::npos) throw SyntaxError(step.line, "this text is not there");
    for (; at != std::string::npos; at = text.find(before, at + after.size())) {
      text.replace(at, before.size(), after);
    }
    return text;
  }

  void WorkFile(const Step& step) { workplace_.WriteWorkFile(step.argument, step.BlockText()); }
  void OfficeFile(const Step& step) { workplace_.WriteOfficeFile(step.argument, step.BlockText()); }
  void Database(const Step& step) { workplace_.MakeDatabase(step.argument); }
  void DatabaseFile(const Step& step) { workplace_.NameDatabase(step.argument); }

  void Sql(const Step& step) {
    RunSql(workplace_.database(), step.argument.empty() ? step.BlockText() : step.argument);
  }

  void Settings(const Step& step) {
    if (step.argument.empty()) {
      workplace_.WriteSettings(step.BlockText() + "\n");
    } else if (step.argument == "none") {
      workplace_.RemoveSettings();
    } else {
      throw SyntaxError(step.line, R"("settings" takes a block or "none")");
    }
  }

  void Mapping(const Step& step) {
    workplace_.WriteMapping(step.argument, step.BlockText() + "\n");
  }

  void MappingLine(const Step& step) {
    const std::vector<std::string> words = WordsOf(step, 3);
    const std::string text = workplace_.Mapping(words[0]);
    std::size_t start = 0;
    for (long line = NumberOf(words[1], step.line); line > 1; --line) {
      start = text.find('\n', start) + 1;
      if (start == 0) throw SyntaxError(step.line, "the file has no such line");
    }
    const std::size_t end = text.find('\n', start);
    workplace_.WriteMapping(words[0], std::string(text).replace(start, end - start, words[2]));
  }

  void MappingAdd(const Step& step) {
    const std::vector<std::string> words = WordsOf(step, 2);
    workplace_.WriteMapping(words[0], workplace_.Mapping(words[0]) + words[1] + "\n");
  }

  void MappingWithout(const Step& step) {
    const std::vector<std::string> words = WordsOf(step, 2);
    const std::string text = "\n" + workplace_.Mapping(words[0]);
    workplace_.WriteMapping(words[0], Replaced(step, text, "\n" + words[1] + "\n", "\n").substr(1));
  }

  void MappingAbsent(const Step& step) { workplace_.RemoveMapping(step.argument); }

  void MappingWindows1252(const Step& step) {
    workplace_.WriteMapping(step.argument, ToWindows1252(workplace_.Mapping(step.argument)));
  }

  void Now(const Step& step) { task_.now = step.argument; }
  void Options(const Step& step) { task_.options = Words(step.argument); }

  void Lock(const Step&) { task_.locked = true; }
  void Leaves(const Step& step) { workplace_.ExpectFile(step.argument); }

  void AsNobody(const Step&) { task_.asNobody = true; }
  void ReadOnly(const Step& step) { workplace_.MakeReadOnly(step.argument); }

  // --- the run --------------------------------------------------------------------------------

  void RunBlock(const Step& step) {
    task_.commands.clear();
    for (const std::string& line : step.block) task_.commands.push_back(WithoutIndent(line));
    task_.arguments.clear();
    Start(step);
    task_.locked = false;
  }

  void Call(const Step& step) {
    task_.commands.clear();
    task_.arguments = Words(step.argument);
    Start(step);
  }

  void Start(const Step& step) {
    before_ = Tables();
    nextEvent_ = 0;
    outcome_ = RunConsole(task_, workplace_);
    if (!outcome_.fault.empty()) Fail(step, outcome_.fault);
    for (const std::string& name : workplace_.Leftovers()) {
      Fail(step, "the run left \"" + name + "\" in the program folder");
    }
  }

  // Also a session about a file that is none has to say what it expects of it.
  bool IsDatabase() const {
    return fs::is_regular_file(workplace_.database()) &&
           ReadFile(workplace_.database()).starts_with("SQLite format 3");
  }

  // --- what must be seen then -----------------------------------------------------------------

  void Exit(const Step& step) {
    const long expected = NumberOf(step.argument, step.line);
    if (expected != outcome_.exitCode) {
      Fail(step, "expected exit code " + std::to_string(expected) + ", found " +
                     std::to_string(outcome_.exitCode));
    }
  }

  void Event(const Step& step) {
    Require(step, FindNext(outcome_.events, JsonOf(step), nextEvent_));
  }

  void NoEvent(const Step& step) {
    Require(step, CountDifference(outcome_.events, JsonOf(step), 0));
  }

  void Count(const Step& step) {
    const std::vector<std::string> words = WordsOf(step, 2);
    const auto count = static_cast<std::size_t>(NumberOf(words[0], step.line));
    Require(step, CountDifference(outcome_.events, ParsedJson(words[1], step.line), count));
  }

  void Last(const Step& step) {
    if (outcome_.events.empty()) {
      Fail(step, "no event was printed");
    } else {
      Require(step, Difference(JsonOf(step), outcome_.events.back()));
    }
  }

  void SqlTexts(const Step& step) {
    Require(step, ListDifference(step.block, SqlTextsOf(outcome_.events)));
  }

  void Types(const Step& step) {
    const auto event = std::find_if(
        outcome_.events.begin(), outcome_.events.end(),
        [&](const Json& one) { return one["event"].get<std::string>() == step.argument; });
    if (event == outcome_.events.end()) {
      Fail(step, "no such event was printed");
    } else {
      Require(step, TypeDifference(ParsedJson(step.BlockText(), step.line), *event));
    }
  }

  void Setting(const Step& step) {
    const std::vector<std::string> words = WordsOf(step, 3);
    const std::optional<std::string> found = workplace_.Setting(words[0], words[1]);
    if (found == words[2] || (!found && words[2] == "absent")) return;
    Fail(step, "the setting is " + (found ? "\"" + *found + "\"" : std::string("absent")));
  }

  static bool HasLineWith(std::string_view text, std::string_view piece) {
    while (!text.empty()) {
      const std::size_t end = text.find('\n');
      if (text.substr(0, end).find(piece) != std::string_view::npos) return true;
      text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return false;
  }

  void Prints(const Step& step) {
    if (!HasLineWith(outcome_.output, step.argument)) Fail(step, "no line of the output holds it");
  }

  void Says(const Step& step) {
    if (!HasLineWith(outcome_.errors, step.argument)) {
      Fail(step, "no line of the error output holds it");
    }
  }

  bool IsInOffice(const std::string& pattern) const {
    const auto entries = fs::recursive_directory_iterator(workplace_.office());
    return std::any_of(begin(entries), end(entries), [&](const fs::directory_entry& entry) {
      const std::string name = entry.path().lexically_relative(workplace_.office()).string();
      return fnmatch(pattern.c_str(), name.c_str(), FNM_PATHNAME) == 0;
    });
  }

  void Present(const Step& step) {
    if (!IsInOffice(step.argument)) Fail(step, "no such file is in the program folder");
  }

  void Absent(const Step& step) {
    if (IsInOffice(step.argument)) Fail(step, "such a file is in the program folder");
  }

  // Returns the place of the last step that belongs to the query.
  std::size_t CheckQuery(const std::vector<Step>& steps, std::size_t at) {
    const Step& query = steps[at];
    std::vector<std::string> expected;
    for (; at + 1 < steps.size() && steps[at + 1].keyword == "row"; ++at) {
      expected.push_back(steps[at + 1].argument);
    }
    if (expected.empty()) ++at;  // "no-rows"
    Require(query, ListDifference(expected, QueryRows(workplace_.database(), query.argument)));
    return at;
  }

  void DatabaseUnchanged(const Step& step) {
    Require(step, ContentDifference(before_, ContentOf(workplace_.database())));
  }

  void TablesUnchanged(const Step& step) {
    const Content after = ContentOf(workplace_.database());
    for (const std::string& table : Words(step.argument)) {
      if (!before_.contains(table)) throw SyntaxError(step.line, "no table \"" + table + "\"");
      Require(step, ContentDifference({{table, before_.at(table)}}, {{table, after.at(table)}}));
    }
  }

  const FailureReport& report_;
  Workplace workplace_;
  RunTask task_;
  RunOutcome outcome_;
  Content before_;
  std::size_t nextEvent_ = 0;  // where the search for the next "event" begins
};

}  // namespace

Content RunSession(const std::vector<Step>& steps, const SessionSetup& setup,
                   const FailureReport& report) {
  Runner runner(setup, report);
  runner.Run(steps);
  return runner.Tables();
}

}  // namespace ordex::sessions
