// What a control does when the user acts on it: a call of the main window, after which everything
// is drawn anew.
#pragma once

#include <functional>

#include "app/main_window.h"

namespace ordex::desktop {

using Act = std::function<void(MainWindow&)>;
// Carries an act out, then draws the state that it left.
using ActRunner = std::function<void(const Act&)>;

}  // namespace ordex::desktop
