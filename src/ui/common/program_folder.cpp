#include "ui/common/program_folder.h"

#include <cstdlib>
#include <system_error>

namespace ordex {
namespace fs = std::filesystem;

fs::path ProgramFolder(const std::string& option, const char* executable) {
  if (!option.empty()) return option;
  const char* folder = std::getenv("ORDEX_DIR");
  if (folder != nullptr && *folder != '\0') return folder;
  std::error_code failure;
  fs::path self = fs::read_symlink("/proc/self/exe", failure);
  if (failure) self = fs::absolute(executable, failure);
  return self.parent_path();
}

}  // namespace ordex
