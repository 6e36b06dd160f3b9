#include "ui/common/process.h"

#include <cstdlib>
#include <system_error>

namespace ordex {
namespace fs = std::filesystem;

std::vector<std::string> Arguments(int argc, const char* const* argv) {
  return {argv + (argc > 0 ? 1 : 0), argv + argc};
}

std::string EnvironmentText(const std::string& name) {
  // Nothing in the program changes the environment.
  const char* value = std::getenv(name.c_str());  // NOLINT(concurrency-mt-unsafe)
  return value != nullptr ? value : "";
}

fs::path ExecutableFile(const char* called) {
  std::error_code failure;
  fs::path self = fs::read_symlink("/proc/self/exe", failure);
  if (failure) self = fs::absolute(called, failure);
  return self;
}

}  // namespace ordex
