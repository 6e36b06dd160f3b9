// The built program as a process of its own, on the tests' display.
#pragma once

#include <sys/types.h>

#include <optional>
#include <string>

#include "workplace.h"

namespace ordex::desktop_tests {

class ProgramRun {
 public:
  // Starts it on that office. Throws std::runtime_error where it cannot be started.
  explicit ProgramRun(const sessions::Workplace& office);
  // Ends it by force where it is still there.
  ~ProgramRun();
  ProgramRun(const ProgramRun&) = delete;
  ProgramRun(ProgramRun&&) = delete;
  ProgramRun& operator=(const ProgramRun&) = delete;
  ProgramRun& operator=(ProgramRun&&) = delete;

  pid_t id() const { return id_; }
  // Does not wait: nothing while it runs, then its exit code, or minus the signal that ended it.
  std::optional<int> Ended();
  // As a power cut would.
  void Kill();

 private:
  pid_t id_ = -1;
  std::optional<int> ended_;
};

}  // namespace ordex::desktop_tests
