#include "ui/common/user_settings.h"

#include "ui/windows/registry_settings.h"

namespace ordex {

std::unique_ptr<Settings> UserSettings() {
  return std::make_unique<RegistrySettings>("Zelmo32");
}

}  // namespace ordex
