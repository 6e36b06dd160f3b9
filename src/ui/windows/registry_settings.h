// The settings in the user's registry, where the case application keeps its own.
#pragma once

#include <string>
#include <string_view>

#include "state/ports.h"

namespace ordex {

// One key of the registry for each section, below
// HKEY_CURRENT_USER\Software\VB and VBA Program Settings\APPLICATION; the values are texts.
class RegistrySettings : public Settings {
 public:
  explicit RegistrySettings(std::string_view application);

  // Errors: type mismatch, where the value is no text; file access.
  std::string Get(std::string_view section, std::string_view key) const override;
  // Makes the section where it is missing. Error: file access.
  void Save(std::string_view section, std::string_view key, std::string_view value) override;

 private:
  std::string PathOfSection(std::string_view section) const;

  std::string root_;
};

}  // namespace ordex
