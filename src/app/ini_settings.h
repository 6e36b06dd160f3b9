// The per-user settings in an INI file, for systems without a per-user registry.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "state/ports.h"

namespace ordex {

// A value is the text behind the first "=", to the end of the line, neither trimmed nor unquoted.
// Section and key names are compared without regard to letter case. The file is read at every look
// and replaced as a whole at every write, as other programs use it too; what else stands in it
// stays as it is.
class IniSettings : public Settings {
 public:
  // The file need not exist: it is made, with its folder, at the first write.
  explicit IniSettings(std::filesystem::path file) : file_(std::move(file)) {}

  // Error: file access, where the file is there but cannot be read.
  std::string Get(std::string_view section, std::string_view key) const override;
  // Error: file access.
  void Save(std::string_view section, std::string_view key, std::string_view value) override;

 private:
  std::string ReadFile() const;

  std::filesystem::path file_;
};

}  // namespace ordex
