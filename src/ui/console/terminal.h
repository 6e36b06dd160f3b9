// What a terminal can show and what it is fed with.
#pragma once

#include <cstddef>
#include <istream>
#include <memory>

namespace ordex::console {

// Makes the standard streams carry our UTF-8 texts and line ends as they stand, for as long as this
// object lives; to be made before anything is printed.
class StandardStreams {
 public:
  StandardStreams();
  ~StandardStreams();
  StandardStreams(const StandardStreams&) = delete;
  StandardStreams& operator=(const StandardStreams&) = delete;

  // Standard input as UTF-8, whatever the keyboard's encoding.
  std::istream& in();

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

// Whether a person sits at standard input.
bool PersonAtTerminal();
// The terminal's width in columns; 100 where there is no terminal.
std::size_t TerminalWidth();

}  // namespace ordex::console
