// A folder of its own for one session, gone with everything in it when the session is over.
#pragma once

#include <stdlib.h>  // NOLINT(modernize-deprecated-headers): mkdtemp stands in no C++ header

#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>

namespace ordex::sessions {

class TemporaryFolder {
 public:
  TemporaryFolder() {
    const auto temporary = std::filesystem::canonical(std::filesystem::temp_directory_path());
    std::string name = (temporary / "ordex-session-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder: " + name);
    path_ = name;
  }
  ~TemporaryFolder() {
    namespace fs = std::filesystem;
    std::error_code ignored;
    // What was made read-only could not be removed else.
    for (fs::recursive_directory_iterator at(path_, ignored), end; at != end;
         at.increment(ignored)) {
      if (at->is_directory(ignored) && !at->is_symlink(ignored)) {
        fs::permissions(at->path(), fs::perms::owner_all, fs::perm_options::add, ignored);
      }
    }
    fs::remove_all(path_, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder(TemporaryFolder&&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(TemporaryFolder&&) = delete;

  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace ordex::sessions
