#include "child_process.h"

#include <fcntl.h>
#include <grp.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <ctime>
#include <stdexcept>
#include <thread>

#include "peak_memory.h"

namespace ordex::sessions {
namespace {

constexpr uid_t kNobody = 65534;
constexpr int kCannotRun = 127;

struct Pipe {
  int reading = -1;
  int writing = -1;
};

// Ours alone: a further process must not hold an end open.
Pipe MakePipe() {
  std::array<int, 2> ends{};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
  return {ends[0], ends[1]};
}

std::vector<char*> Pointers(std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  pointers.reserve(texts.size() + 1);
  for (std::string& text : texts) pointers.push_back(text.data());
  pointers.push_back(nullptr);
  return pointers;
}

std::string Entry(std::string entry, std::string_view value) {
  return entry.append("=").append(value);
}

// Our environment, with the task's entries in place of ours.
std::vector<std::string> EnvironmentOf(const ProcessTask& task) {
  std::vector<std::string> entries;
  for (char** entry = environ; *entry != nullptr; ++entry) {
    const std::string_view text = *entry;
    const bool replaced =
        std::any_of(task.environment.begin(), task.environment.end(),
                    [&](const auto& ours) { return text.starts_with(ours.first + "="); });
    if (!replaced) entries.emplace_back(text);
  }
  for (const auto& [name, value] : task.environment) entries.push_back(Entry(name, value));
  return entries;
}

// For root no right is ever missing.
bool BecomeNobody() {
  if (geteuid() != 0) return true;
  return setgroups(0, nullptr) == 0 && setgid(kNobody) == 0 && setuid(kNobody) == 0;
}

// With the signal passed over a write beyond the limit fails as on a full disk.
bool LimitFiles(const std::optional<std::size_t>& largest) {
  if (!largest) return true;
  const rlimit limit{*largest, *largest};
  return std::signal(SIGXFSZ, SIG_IGN) != SIG_ERR && setrlimit(RLIMIT_FSIZE, &limit) == 0;
}

}  // namespace

ChildProcess::ChildProcess(const ProcessTask& task, Clock::time_point deadline)
    : deadline_(deadline) {
  std::vector<std::string> command = task.command;
  std::vector<std::string> environment = EnvironmentOf(task);
  const std::vector<char*> arguments = Pointers(command);
  const std::vector<char*> variables = Pointers(environment);
  const Pipe in = MakePipe();
  const Pipe out = MakePipe();
  const Pipe err = MakePipe();
  id_ = fork();
  if (id_ == 0) {
    // Between fork and exec only what is safe beside other threads.
    const bool ready = chdir(task.folder.c_str()) == 0 && dup2(in.reading, STDIN_FILENO) >= 0 &&
                       dup2(out.writing, STDOUT_FILENO) >= 0 &&
                       dup2(err.writing, STDERR_FILENO) >= 0 && LimitFiles(task.largestFile) &&
                       (!task.asNobody || BecomeNobody());
    if (ready) execvpe(arguments[0], arguments.data(), variables.data());
    _exit(kCannotRun);
  }
  for (const int end : {in.reading, out.writing, err.writing}) close(end);
  input_ = in.writing;
  outputPipe_ = out.reading;
  errorPipe_ = err.reading;
  if (id_ < 0) throw std::runtime_error("no process");
}

ChildProcess::~ChildProcess() {
  CloseInput();
  if (id_ > 0) {
    Kill();
    Reap();
  }
  for (const int end : {outputPipe_, errorPipe_}) {
    if (end >= 0) close(end);
  }
}

void ChildProcess::CloseInput() {
  if (input_ >= 0) close(input_);
  input_ = -1;
}

void ChildProcess::Write(std::string_view text) const {
  while (!text.empty()) {
    const ssize_t count = write(input_, text.data(), text.size());
    if (count <= 0) return;  // it has ended already, and its output tells why
    text.remove_prefix(static_cast<std::size_t>(count));
  }
}

// False where there is nothing more to read, or the time is over.
bool ChildProcess::ReadSome(Clock::time_point until) {
  std::array<pollfd, 2> ends = {pollfd{outputPipe_, POLLIN, 0}, pollfd{errorPipe_, POLLIN, 0}};
  if (outputPipe_ < 0 && errorPipe_ < 0) return false;
  const auto left = std::chrono::ceil<std::chrono::nanoseconds>(until - Clock::now()).count();
  constexpr auto kSecond = 1'000'000'000;
  const timespec wait{left / kSecond, left % kSecond};
  if (left <= 0 || ppoll(ends.data(), ends.size(), &wait, nullptr) <= 0) return false;
  const auto take = [](const pollfd& end, int& pipe, std::string& text) {
    if (pipe < 0 || end.revents == 0) return;
    std::array<char, 65536> buffer{};
    const ssize_t count = read(pipe, buffer.data(), buffer.size());
    if (count > 0) {
      text.append(buffer.data(), static_cast<std::size_t>(count));
    } else {
      close(pipe);
      pipe = -1;
    }
  };
  take(ends[0], outputPipe_, output_);
  take(ends[1], errorPipe_, errors_);
  return true;
}

bool ChildProcess::ReadUntil(const std::function<bool(const std::string& output)>& enough) {
  while (!enough(output_)) {
    if (!ReadSome(deadline_)) {
      timedOut_ = timedOut_ || Clock::now() >= deadline_;
      return !timedOut_;
    }
  }
  return true;
}

void ChildProcess::ReadFor(Clock::duration duration) {
  const Clock::time_point until = Clock::now() + duration;
  while (ReadSome(until)) {
  }
  // It may have closed its output earlier.
  std::this_thread::sleep_until(until);
}

void ChildProcess::Kill() const {
  // A negative number would mean more than this one process.
  if (id_ > 0) kill(id_, SIGKILL);
}

// What the system accounts for an ended process counts what we held ourselves when it was started.
std::size_t ChildProcess::PeakMemory() const {
  return PeakMemoryOf(id_);
}

void ChildProcess::Finish() {
  CloseInput();
  while (ReadSome(deadline_)) {
  }
  timedOut_ = timedOut_ || Clock::now() >= deadline_;
  if (timedOut_) Kill();
  Reap();
}

void ChildProcess::Reap() {
  int status = 0;
  waitpid(id_, &status, 0);
  id_ = -1;
  exitCode_ = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

}  // namespace ordex::sessions
