// A folder of its own for one test, gone with everything in it when the test is over.
#pragma once

#include <filesystem>
#include <random>
#include <string>
#include <system_error>

namespace ordex {

class DbTemporaryFolder {
 public:
  DbTemporaryFolder() {
    std::random_device random;
    do {
      path_ = std::filesystem::temp_directory_path() / ("ordex-db-" + std::to_string(random()));
    } while (!std::filesystem::create_directory(path_));
    // Tests about rights enter it as another user.
    std::filesystem::permissions(
        path_, std::filesystem::perms::owner_all | std::filesystem::perms::group_read |
                   std::filesystem::perms::group_exec | std::filesystem::perms::others_read |
                   std::filesystem::perms::others_exec);
  }
  ~DbTemporaryFolder() {
    std::error_code ignored;
    std::filesystem::permissions(path_, std::filesystem::perms::owner_all,
                                 std::filesystem::perm_options::add, ignored);
    std::filesystem::remove_all(path_, ignored);
  }
  DbTemporaryFolder(const DbTemporaryFolder&) = delete;
  DbTemporaryFolder& operator=(const DbTemporaryFolder&) = delete;
  DbTemporaryFolder(DbTemporaryFolder&&) = delete;
  DbTemporaryFolder& operator=(DbTemporaryFolder&&) = delete;

  const std::filesystem::path& path() const { return path_; }
  std::filesystem::path operator/(const std::filesystem::path& name) const { return path_ / name; }

 private:
  std::filesystem::path path_;
};

}  // namespace ordex
