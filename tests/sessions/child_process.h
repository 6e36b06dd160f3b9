// A program run as a process of its own, its output caught.
#pragma once

#include <sys/types.h>

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ordex::sessions {

struct ProcessTask {
  std::vector<std::string> command;                              // the program and its arguments
  std::filesystem::path folder;                                  // where it runs
  std::vector<std::pair<std::string, std::string>> environment;  // besides our own
  bool asNobody = false;  // as an unprivileged user, where we are root
  std::optional<std::size_t> largestFile =
      {};  // bytes; no file of its grows beyond, as on a full disk
};

class ChildProcess {
 public:
  using Clock = std::chrono::steady_clock;

  // The process is ended where it has not ended by itself at `deadline`.
  ChildProcess(const ProcessTask& task, Clock::time_point deadline);
  ~ChildProcess();
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess(ChildProcess&&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;
  ChildProcess& operator=(ChildProcess&&) = delete;

  // To its standard input.
  void Write(std::string_view text) const;
  // Reads its output until `enough` is content with it or the process has closed it. False at the
  // deadline.
  bool ReadUntil(const std::function<bool(const std::string& output)>& enough);
  // Takes its output for so long, so that it never waits for us.
  void ReadFor(Clock::duration duration);
  // Ends it by force, as a power cut would.
  void Kill() const;
  // Closes its standard input and waits for its end.
  void Finish();

  const std::string& output() const { return output_; }
  const std::string& errors() const { return errors_; }
  bool timedOut() const { return timedOut_; }
  // Once finished: the exit code, or minus the number of the signal that ended it.
  int exitCode() const { return exitCode_; }
  // The most memory that it has held at a time so far, in bytes. 0 once it has ended.
  std::size_t PeakMemory() const;

 private:
  bool ReadSome(Clock::time_point until);
  void CloseInput();
  void Reap();

  Clock::time_point deadline_;
  pid_t id_ = -1;
  int input_ = -1;
  int outputPipe_ = -1;
  int errorPipe_ = -1;
  std::string output_;
  std::string errors_;
  bool timedOut_ = false;
  int exitCode_ = -1;
};

}  // namespace ordex::sessions
