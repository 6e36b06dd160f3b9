// Hands out the lines of a page, to the import's loop and to the rules that read on by themselves.
#pragma once

#include <optional>
#include <string_view>

#include "parse/import.h"
#include "parse/lines.h"

namespace ordex {

class PageReader {
 public:
  // The lines are views into `text`. `trace` may be null.
  PageReader(std::string_view text, ImportTrace* trace)
      : text_(text), lines_(text), trace_(trace) {}

  // The whole page.
  std::string_view text() const { return text_; }

  bool AtEnd() const { return !handedBack_ && lines_.AtEnd(); }

  // The next line, which becomes the one in work. Error: past the end of the file.
  PageLine Next();
  // Gives a line back: it is the next one again.
  void HandBack(const PageLine& line) { handedBack_ = line; }

  // Says which rule took a line.
  void Taken(const PageLine& line, std::string_view rule) const {
    if (trace_ != nullptr) trace_->Taken(line, rule);
  }
  // Returns to a line that was read before: the rows and errors to come are of that line.
  void WorkOn(const PageLine& line) {
    inWork_ = line;
    if (trace_ != nullptr) trace_->WorkOn(line);
  }
  const PageLine& InWork() const { return inWork_; }

 private:
  std::string_view text_;
  Lines lines_;
  ImportTrace* trace_;
  std::optional<PageLine> handedBack_;
  PageLine inWork_;
  std::size_t count_ = 0;
};

}  // namespace ordex
