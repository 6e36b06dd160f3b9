#include "session_file.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace ordex::sessions {
namespace {

constexpr std::string_view kArrow = " => ";
constexpr std::string_view kRepeat = "${repeat ";
constexpr long kMost = 1'000'000;

// What stands behind a keyword.
enum class Form { kNothing, kArgument, kBlock, kArgumentAndBlock, kArgumentOrBlock };

enum class Place { kAnywhere, kAfterRun };

struct Keyword {
  std::string_view name;
  Form form;
  Place place = Place::kAnywhere;
};

constexpr std::array kKeywords = {
    Keyword{"page", Form::kArgument},
    Keyword{"page-text", Form::kBlock},
    Keyword{"page-replace", Form::kArgument},
    Keyword{"page-cut-after", Form::kArgument},
    Keyword{"page-crlf", Form::kNothing},
    Keyword{"work-file", Form::kArgumentAndBlock},
    Keyword{"office-file", Form::kArgumentAndBlock},
    Keyword{"database", Form::kArgument},
    Keyword{"database-file", Form::kArgument},
    Keyword{"sql", Form::kArgumentOrBlock},
    Keyword{"settings", Form::kArgumentOrBlock},
    Keyword{"mapping", Form::kArgumentAndBlock},
    Keyword{"mapping-line", Form::kArgument},
    Keyword{"mapping-add", Form::kArgument},
    Keyword{"mapping-without", Form::kArgument},
    Keyword{"mapping-absent", Form::kArgument},
    Keyword{"mapping-windows-1252", Form::kArgument},
    Keyword{"now", Form::kArgument},
    Keyword{"options", Form::kArgument},
    Keyword{"lock", Form::kNothing},
    Keyword{"leaves", Form::kArgument},
    Keyword{"as-nobody", Form::kNothing},
    Keyword{"read-only", Form::kArgument},
    Keyword{"run", Form::kBlock},
    Keyword{"call", Form::kArgument},
    Keyword{"exit", Form::kArgument, Place::kAfterRun},
    Keyword{"event", Form::kArgumentOrBlock, Place::kAfterRun},
    Keyword{"no-event", Form::kArgumentOrBlock, Place::kAfterRun},
    Keyword{"count", Form::kArgument, Place::kAfterRun},
    Keyword{"last", Form::kArgumentOrBlock, Place::kAfterRun},
    Keyword{"sql-texts", Form::kBlock, Place::kAfterRun},
    Keyword{"types", Form::kArgumentAndBlock, Place::kAfterRun},
    Keyword{"setting", Form::kArgument, Place::kAfterRun},
    Keyword{"prints", Form::kArgument, Place::kAfterRun},
    Keyword{"says", Form::kArgument, Place::kAfterRun},
    Keyword{"present", Form::kArgument, Place::kAfterRun},
    Keyword{"absent", Form::kArgument, Place::kAfterRun},
    Keyword{"query", Form::kArgument, Place::kAfterRun},
    Keyword{"row", Form::kArgument, Place::kAfterRun},
    Keyword{"no-rows", Form::kNothing, Place::kAfterRun},
    Keyword{"database-unchanged", Form::kNothing, Place::kAfterRun},
    Keyword{"tables-unchanged", Form::kArgument, Place::kAfterRun},
};

std::vector<std::string> LinesOf(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    lines.emplace_back(text.substr(0, end));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  return lines;
}

std::string_view WithoutIndent(std::string_view line) {
  line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
  return line;
}

const Keyword& Known(const Step& step) {
  const auto known = std::find_if(kKeywords.begin(), kKeywords.end(), [&](const Keyword& keyword) {
    return keyword.name == step.keyword;
  });
  if (known == kKeywords.end()) {
    throw SyntaxError(step.line, "unknown keyword \"" + step.keyword + "\"");
  }
  return *known;
}

class Parser {
 public:
  explicit Parser(std::string_view text) : lines_(LinesOf(text)) {}

  std::vector<Step> Parse() {
    while (at_ < lines_.size()) {
      const std::string_view line = WithoutIndent(lines_[at_++]);
      if (!line.empty() && !line.starts_with('#')) steps_.push_back(TakeStep(line));
    }
    return std::move(steps_);
  }

 private:
  Step TakeStep(std::string_view line) {
    Step step;
    step.line = at_;
    const std::size_t blank = line.find(' ');
    step.keyword = line.substr(0, blank);
    if (blank != std::string_view::npos) step.argument = Expanded(line.substr(blank + 1), at_);
    const Form form = Known(step).form;
    const bool needs_argument = form == Form::kArgument || form == Form::kArgumentAndBlock;
    if (needs_argument && step.argument.empty()) {
      throw SyntaxError(step.line, "\"" + step.keyword + "\" needs an argument");
    }
    if ((form == Form::kNothing || form == Form::kBlock) && !step.argument.empty()) {
      throw SyntaxError(step.line, "\"" + step.keyword + "\" takes no argument");
    }
    const bool takes_block = form == Form::kBlock || form == Form::kArgumentAndBlock ||
                             (form == Form::kArgumentOrBlock && step.argument.empty());
    if (takes_block) TakeBlock(step);
    return step;
  }

  void TakeBlock(Step& step) {
    while (at_ < lines_.size()) {
      const std::string& line = lines_[at_++];
      if (line == "end") return;
      step.block.push_back(Expanded(line, at_));
    }
    throw SyntaxError(step.line, "the block of \"" + step.keyword + R"(" has no line "end")");
  }

  std::vector<std::string> lines_;
  std::size_t at_ = 0;  // lines read so far, so the number of the line in work
  std::vector<Step> steps_;
};

bool IsRun(const Step& step) {
  return step.keyword == "run" || step.keyword == "call";
}

bool IsRows(const Step& step) {
  return step.keyword == "row" || step.keyword == "no-rows";
}

// A query without an expectation would prove nothing, and neither would a run.
void RequireOrder(const std::vector<Step>& steps) {
  bool has_run = false;
  std::string_view before;
  for (std::size_t i = 0; i < steps.size(); ++i) {
    const Step& step = steps[i];
    const bool last = i + 1 == steps.size();
    has_run = has_run || IsRun(step);
    if (Known(step).place == Place::kAfterRun && !has_run) {
      throw SyntaxError(step.line, "\"" + step.keyword + "\" stands before the first run");
    }
    const bool follows = before == "query" || (before == "row" && step.keyword == "row");
    if (IsRows(step) && !follows) {
      throw SyntaxError(step.line, "\"" + step.keyword + "\" does not follow a query");
    }
    if (step.keyword == "query" && (last || !IsRows(steps[i + 1]))) {
      throw SyntaxError(step.line, R"(neither "row" nor "no-rows" follows the query)");
    }
    if (IsRun(step) && (last || steps[i + 1].keyword != "exit")) {
      throw SyntaxError(step.line, "\"exit N\" must follow the run");
    }
    before = step.keyword;
  }
  if (!has_run) throw SyntaxError(steps.empty() ? 1 : steps.back().line, "nothing is run");
}

}  // namespace

std::string Step::BlockText() const {
  std::string text;
  for (const std::string& one : block) {
    if (&one != &block.front()) text.push_back('\n');
    text.append(one);
  }
  return text;
}

std::vector<Step> ParseSession(std::string_view text) {
  std::vector<Step> steps = Parser(text).Parse();
  RequireOrder(steps);
  return steps;
}

std::string Expanded(std::string_view text, std::size_t line) {
  std::string out;
  for (;;) {
    const std::size_t at = text.find(kRepeat);
    out.append(text.substr(0, at));
    if (at == std::string_view::npos) return out;
    text.remove_prefix(at + kRepeat.size());
    const std::size_t blank = text.find(' ');
    const std::size_t close = text.find('}');
    if (close == std::string_view::npos || blank >= close || blank + 1 == close) {
      throw SyntaxError(line, "\"${repeat N PIECE}\" expected");
    }
    const std::string_view piece = text.substr(blank + 1, close - blank - 1);
    for (long times = NumberOf(text.substr(0, blank), line); times > 0; --times) out.append(piece);
    text.remove_prefix(close + 1);
  }
}

long NumberOf(std::string_view text, std::size_t line) {
  long number = 0;
  const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (failure != std::errc{} || end != text.data() + text.size() || number > kMost) {
    throw SyntaxError(line, "\"" + std::string(text) + "\" is no number");
  }
  return number;
}

Replacement ReplacementOf(const Step& step) {
  const std::size_t arrow = step.argument.find(kArrow);
  if (arrow == std::string::npos || arrow == 0) {
    throw SyntaxError(step.line, "\"" + step.keyword + " OLD => NEW\" expected");
  }
  return {step.argument.substr(0, arrow), step.argument.substr(arrow + kArrow.size())};
}

std::vector<std::string> WordsOf(const Step& step, std::size_t count) {
  std::vector<std::string> words;
  std::string_view rest = step.argument;
  while (words.size() + 1 < count) {
    const std::size_t blank = rest.find(' ');
    if (blank == std::string_view::npos) break;
    words.emplace_back(rest.substr(0, blank));
    rest.remove_prefix(blank + 1);
  }
  words.emplace_back(rest);
  if (words.size() < count) {
    throw SyntaxError(step.line, "\"" + step.keyword + "\" needs " + std::to_string(count) +
                                     " arguments, apart by a blank");
  }
  return words;
}

}  // namespace ordex::sessions
