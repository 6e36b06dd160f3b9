// Links that the user's other programs open.
#pragma once

#include <string>

namespace ordex {

// Has the shell open a link, such as "mailto:…"; false where it could not.
bool ShellOpen(const std::string& link);

}  // namespace ordex
