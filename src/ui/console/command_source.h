// Where a session's commands come from: a script, or a person at a terminal.
#pragma once

#include <cstddef>
#include <functional>
#include <istream>
#include <optional>
#include <string>
#include <string_view>

namespace ordex::console {

// A command: its first word, and the rest of its line as it stands behind one blank.
struct Command {
  std::string verb;
  std::string rest;
  std::size_t line = 0;  // counted from 1
};

class CommandSource {
 public:
  // `prompt`, where given, is called before each line is read: there is a person at a terminal.
  explicit CommandSource(std::istream& in, std::function<void()> prompt = {})
      : in_(in), prompt_(std::move(prompt)) {}

  bool Interactive() const { return static_cast<bool>(prompt_); }

  // The next command; nullopt when there are no more. Lines that begin with "#" are passed over,
  // and so are blank ones, but for a person, to whom the Return key alone is an answer.
  std::optional<Command> Next();

 private:
  std::istream& in_;
  std::function<void()> prompt_;
  std::size_t line_ = 0;
};

}  // namespace ordex::console
