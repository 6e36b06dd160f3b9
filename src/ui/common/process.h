// What the system gives a process when it starts it, as UTF-8.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace ordex {

// The arguments behind the program's own name.
std::vector<std::string> Arguments(int argc, const char* const* argv);

// The value of an environment variable; empty where it is not set.
std::string EnvironmentText(const std::string& name);

// The file that is running. `called` is the name that the program was called by, for a system that
// does not tell.
std::filesystem::path ExecutableFile(const char* called);

}  // namespace ordex
