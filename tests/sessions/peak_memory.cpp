#include "peak_memory.h"

#include <fstream>
#include <string>

namespace ordex::sessions {

std::size_t PeakMemoryOf(pid_t process) {
  constexpr std::size_t kKilobyte = 1024;
  std::ifstream status("/proc/" + std::to_string(process) + "/status");
  std::size_t kilobytes = 0;
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with("VmHWM:")) kilobytes = std::stoul(line.substr(line.find(':') + 1));
  }
  return kilobytes * kKilobyte;
}

}  // namespace ordex::sessions
