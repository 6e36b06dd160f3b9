#include "console_program.h"

#include <cstdlib>

namespace ordex::sessions {

std::vector<std::string> ConsoleProgram() {
  const char* named = std::getenv("ORDEX_CONSOLE");
  std::string text = named != nullptr && *named != '\0' ? named : ORDEX_CONSOLE_FILE;
  std::vector<std::string> words;
  while (!text.empty()) {
    const std::size_t blank = text.find(' ');
    if (blank != 0) words.push_back(text.substr(0, blank));
    text.erase(0, blank == std::string::npos ? text.size() : blank + 1);
  }
  return words;
}

}  // namespace ordex::sessions
