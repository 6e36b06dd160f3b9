// The settings of the user who runs the program.
#pragma once

#include <memory>

#include "state/ports.h"

namespace ordex {

// The store that is shared with the case application: the user's registry, or a file in the user's
// configuration folder where the system has none.
std::unique_ptr<Settings> UserSettings();

}  // namespace ordex
