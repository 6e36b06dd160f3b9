// Paths as texts. Inside the program every text is UTF-8; what a path is made of is the system's
// affair, and a path that is made from a plain text, or asked for one, goes through its old code
// page.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace ordex {

// Error: file access, where the system's paths are no bytes and `utf8` is not well formed.
std::filesystem::path PathOf(std::string_view utf8);

// As shown to the user, with the system's own separators.
std::string TextOf(const std::filesystem::path& path);

// With "/" between the parts on every system.
std::string GenericTextOf(const std::filesystem::path& path);

}  // namespace ordex
