#include "program_run.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <stdexcept>
#include <vector>

namespace ordex::desktop_tests {

ProgramRun::ProgramRun(const sessions::Workplace& office) {
  std::vector<std::string> command = {ORDEX_PROGRAM,
                                      "--dir",
                                      office.office().string(),
                                      "--settings",
                                      office.settings().string(),
                                      "--now",
                                      "20/02/2026 10:30:00"};
  std::vector<char*> arguments;
  arguments.reserve(command.size() + 1);
  for (std::string& argument : command) arguments.push_back(argument.data());
  arguments.push_back(nullptr);
  if (posix_spawn(&id_, arguments[0], nullptr, nullptr, arguments.data(), environ) != 0) {
    throw std::runtime_error("the program cannot be started");
  }
}

ProgramRun::~ProgramRun() {
  Kill();
}

std::optional<int> ProgramRun::Ended() {
  int status = 0;
  if (!ended_ && waitpid(id_, &status, WNOHANG) == id_) {
    ended_ = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
  }
  return ended_;
}

void ProgramRun::Kill() {
  if (ended_) return;
  kill(id_, SIGKILL);
  waitpid(id_, nullptr, 0);
  ended_ = -SIGKILL;
}

}  // namespace ordex::desktop_tests
