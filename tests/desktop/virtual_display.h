// A screen of the tests' own, with a window manager, that nobody else acts on: the tests of several
// processes run side by side, and never on the screen of whoever starts them.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

#include "temporary_folder.h"

namespace ordex::desktop_tests {

class VirtualDisplay {
 public:
  // Starts both and leads this process's environment there: DISPLAY, and a home and runtime folder
  // that are gone afterwards. Must be made before the toolkit and any thread starts. Throws
  // std::runtime_error.
  VirtualDisplay();
  ~VirtualDisplay();
  VirtualDisplay(const VirtualDisplay&) = delete;
  VirtualDisplay(VirtualDisplay&&) = delete;
  VirtualDisplay& operator=(const VirtualDisplay&) = delete;
  VirtualDisplay& operator=(VirtualDisplay&&) = delete;

  static constexpr int kWidth = 1280;  // pixels, 96 to the inch
  static constexpr int kHeight = 1024;

 private:
  void PrepareHome();
  void StartServer();
  void StartWindowManager();

  sessions::TemporaryFolder home_;
  pid_t server_ = -1;
  pid_t windowManager_ = -1;
};

}  // namespace ordex::desktop_tests
