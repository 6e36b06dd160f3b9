// How much memory a running process has taken.
#pragma once

#include <sys/types.h>

#include <cstddef>

namespace ordex::sessions {

// The most that it has held at a time so far, in bytes. 0 once it has ended.
std::size_t PeakMemoryOf(pid_t process);

}  // namespace ordex::sessions
