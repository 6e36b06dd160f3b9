// Whether the window shows its state: each control is compared with the value it is drawn from.
#pragma once

#include <string>
#include <vector>

#include "state/window.h"
#include "ui/desktop/main_frame.h"

namespace ordex::desktop_tests {

// What the controls show differently, in words; nothing where all is well. To be asked on the
// toolkit's thread.
std::vector<std::string> Differences(const Window& state, const desktop::MainFrame& frame);

}  // namespace ordex::desktop_tests
