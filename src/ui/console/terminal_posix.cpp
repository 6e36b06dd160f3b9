// The terminal of a Unix system, which carries UTF-8 as it stands.
#include <sys/ioctl.h>
#include <unistd.h>

#include <iostream>

#include "ui/console/terminal.h"

namespace ordex::console {

// Here they do so anyway.
struct StandardStreams::Parts {};

StandardStreams::StandardStreams() = default;

StandardStreams::~StandardStreams() = default;

std::istream& StandardStreams::in() {
  return std::cin;
}

bool PersonAtTerminal() {
  return isatty(STDIN_FILENO) == 1;
}

std::size_t TerminalWidth() {
  constexpr std::size_t kUsualWidth = 100;
  winsize size{};
  if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) != 0 || size.ws_col == 0) return kUsualWidth;
  return size.ws_col;
}

}  // namespace ordex::console
