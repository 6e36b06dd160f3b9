#include "ui/common/user_settings.h"

#include "app/ini_settings.h"

namespace ordex {

std::unique_ptr<Settings> UserSettings() {
  return std::make_unique<IniSettings>(UserSettingsFile());
}

}  // namespace ordex
