// The store of the settings that a start works with.
#pragma once

#include <memory>
#include <string>

#include "state/ports.h"

namespace ordex {

// The settings in `file`, where one is named, else the user's own.
std::unique_ptr<Settings> OpenSettings(const std::string& file);

}  // namespace ordex
