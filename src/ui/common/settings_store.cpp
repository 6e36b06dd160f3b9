#include "ui/common/settings_store.h"

#include "app/ini_settings.h"
#include "base/path_text.h"
#include "ui/common/user_settings.h"

namespace ordex {

std::unique_ptr<Settings> OpenSettings(const std::string& file) {
  if (file.empty()) return UserSettings();
  return std::make_unique<IniSettings>(PathOf(file));
}

}  // namespace ordex
