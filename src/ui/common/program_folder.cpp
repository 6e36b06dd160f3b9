#include "ui/common/program_folder.h"

#include "base/path_text.h"
#include "ui/common/process.h"

namespace ordex {

std::filesystem::path ProgramFolder(const std::string& option,
                                    const std::filesystem::path& executable) {
  if (!option.empty()) return PathOf(option);
  const std::string folder = EnvironmentText("ORDEX_DIR");
  if (!folder.empty()) return PathOf(folder);
  return executable.parent_path();
}

}  // namespace ordex
