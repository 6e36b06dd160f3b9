// The windows on the display, whoever they belong to, as its window manager lists them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace ordex::desktop_tests {

struct ScreenWindow {
  std::int64_t handle = 0;
  std::string title;  // UTF-8
  long process = 0;
};

// Those that are seen, in the order in which they came.
std::vector<ScreenWindow> WindowsOnScreen();
// Whether the keys go to that window or one inside of it.
bool TakesKeys(std::int64_t handle);

}  // namespace ordex::desktop_tests
