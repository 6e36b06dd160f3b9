// A program folder for the targets that read files: one for the whole run, in memory where the
// system has such a place.
#pragma once

#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>

#include "support/input.h"

namespace ordex::fuzz {

class Folder {
 public:
  Folder() {
    const std::filesystem::path memory = "/dev/shm";
    const std::filesystem::path parent =
        std::filesystem::is_directory(memory) ? memory : std::filesystem::temp_directory_path();
    std::random_device random;
    do {
      path_ = parent / ("ordex-fuzz-" + std::to_string(random()));
    } while (!std::filesystem::create_directory(path_));
  }
  ~Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;

  const std::filesystem::path& path() const { return path_; }

  void Write(std::string_view name, std::string_view bytes) const {
    std::ofstream out(path_ / name, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    out.close();
    Require(!out.fail(), "the folder can be written to");
  }

 private:
  std::filesystem::path path_;
};

// The text of a file of the source tree.
inline std::string SourceText(const std::string& name) {
  std::ifstream in(std::filesystem::path(ORDEX_SOURCE_DIR) / name, std::ios::binary);
  Require(in.is_open(), "the source tree holds " + name);
  return {std::istreambuf_iterator<char>(in), {}};
}

}  // namespace ordex::fuzz
