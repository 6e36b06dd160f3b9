// A console on its way, that something may happen to meanwhile.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "child_process.h"
#include "workplace.h"

namespace ordex::abuse {

using Commands = std::vector<std::string>;

// With the workplace's page on the clipboard and a clock that stands still. `Prepare` of the
// workplace puts the page there.
class ConsoleTry {
 public:
  // The commands are all before it from the start on; more may follow.
  ConsoleTry(const sessions::Workplace& workplace, const Commands& commands,
             std::optional<std::size_t> largestFile = {});

  sessions::ChildProcess& console() { return console_; }
  const sessions::ChildProcess& console() const { return console_; }
  void Command(const std::string& command) { console_.Write(command + "\n"); }

  // Waits for a text in the output. False where the console ended without it.
  bool Prints(std::string_view text);
  bool Printed(std::string_view text) const {
    return console_.output().find(text) != std::string::npos;
  }
  // Whether a box with that title was shown.
  bool Told(const std::string& title) const { return Printed(R"("title":")" + title + "\""); }

 private:
  sessions::ChildProcess console_;
};

}  // namespace ordex::abuse
