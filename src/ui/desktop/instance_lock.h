// One instance for each user: whoever holds the lock is the first. The system takes it away from a
// process that ends, however it ends, so that none is left behind.
#pragma once

#include <cstdint>
#include <string>

namespace ordex::desktop {

class InstanceLock {
 public:
  InstanceLock() = default;
  ~InstanceLock();
  InstanceLock(const InstanceLock&) = delete;
  InstanceLock& operator=(const InstanceLock&) = delete;

  // False where another process of this user holds it. Error: file access, where the place of the
  // lock cannot be used.
  bool Acquire();

 private:
  static constexpr std::intptr_t kNone = -1;

  std::intptr_t handle_ = kNone;  // the system's
};

// Where the first instance listens for a second start: a DDE service, or the path of a socket that
// only this user may open. Error: file access.
std::string LinkService();

}  // namespace ordex::desktop
