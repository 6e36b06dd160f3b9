// A session file: a small text that says what to set up, what to run and what must be seen then.
//
// A line is a keyword and, behind a blank, its argument. Some keywords take a block instead: the
// lines that follow, as they stand, up to a line "end". Blank lines and lines that begin with "#"
// outside of a block are passed over. README.md lists the keywords.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace ordex::sessions {

struct Step {
  std::string keyword;
  std::string argument;
  std::vector<std::string> block;
  std::size_t line = 0;  // counted from 1

  // The block as one text: the lines with a line break between them, none behind the last.
  std::string BlockText() const;
};

// The session file itself is wrong.
class SyntaxError : public std::runtime_error {
 public:
  SyntaxError(std::size_t line, const std::string& text) : std::runtime_error(text), line_(line) {}

  std::size_t line() const { return line_; }

 private:
  std::size_t line_;
};

// Error: SyntaxError, for an unknown keyword, a missing or needless argument, a block without end,
// an expectation before the first run, a run without its exit code, a query without its rows.
std::vector<Step> ParseSession(std::string_view text);

// `text` with each "${repeat N PIECE}" replaced by N times PIECE; `line` is told in the error.
std::string Expanded(std::string_view text, std::size_t line);

// Error: SyntaxError.
long NumberOf(std::string_view text, std::size_t line);

// The two parts of an argument "OLD => NEW". Error: SyntaxError.
struct Replacement {
  std::string before;
  std::string after;
};
Replacement ReplacementOf(const Step& step);

// The blank-separated words of the argument, of which the last takes the rest. Error: SyntaxError,
// where there are fewer than `count`.
std::vector<std::string> WordsOf(const Step& step, std::size_t count);

}  // namespace ordex::sessions
