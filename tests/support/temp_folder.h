// A folder of its own for one test, gone with everything in it when the test is over; and a program
// folder that holds the three mapping files.
#pragma once

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

#include "parse/mapping_files.h"

namespace ordex::testing {

class TempFolder {
 public:
  TempFolder() {
    const std::filesystem::path parent =
        std::filesystem::canonical(std::filesystem::temp_directory_path());
    std::random_device random;
    do {
      path_ = parent / ("ordex-" + std::to_string(random()));
    } while (!std::filesystem::create_directory(path_));
  }
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::permissions(path_, std::filesystem::perms::owner_all,
                                 std::filesystem::perm_options::add, ignored);
    std::filesystem::remove_all(path_, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  TempFolder(TempFolder&&) = delete;
  TempFolder& operator=(TempFolder&&) = delete;

  const std::filesystem::path& path() const { return path_; }
  std::filesystem::path operator/(const std::filesystem::path& name) const { return path_ / name; }

  // Writes the bytes as they are: no line end is changed.
  void Write(const std::filesystem::path& name, std::string_view bytes) const {
    std::ofstream out(path_ / name, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    out.close();
    if (!out) throw std::runtime_error("cannot write " + (path_ / name).string());
  }
  std::string Read(const std::filesystem::path& name) const {
    std::ifstream in(path_ / name, std::ios::binary);
    if (!in) throw std::runtime_error("cannot read " + (path_ / name).string());
    return {std::istreambuf_iterator<char>(in), {}};
  }
  bool Holds(const std::filesystem::path& name) const {
    return std::filesystem::exists(path_ / name);
  }
  void Remove(const std::filesystem::path& name) const { std::filesystem::remove(path_ / name); }
  std::size_t FileCount() const {
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(path_), {}));
  }

 private:
  std::filesystem::path path_;
};

// The bytes of a file of the source tree, e.g. SourceFile("samples/profilo-lavoro.txt").
inline std::string SourceFile(const std::filesystem::path& name) {
  const std::filesystem::path path = std::filesystem::path(ORDEX_SOURCE_DIR) / name;
  std::ifstream in(path, std::ios::binary);
  if (!in) throw std::runtime_error("cannot read " + path.string());
  return {std::istreambuf_iterator<char>(in), {}};
}

// A program folder with the mapping files that are shipped; a test may overwrite or remove them.
class TempProgramFolder : public TempFolder {
 public:
  TempProgramFolder() {
    for (const std::string_view name : {kMapCampi, kMapRestr, kMapDelimitatori}) {
      Write(name, SourceFile(std::filesystem::path("mapping") / name));
    }
  }
};

}  // namespace ordex::testing
