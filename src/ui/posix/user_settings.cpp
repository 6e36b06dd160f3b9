#include "ui/common/user_settings.h"

#include <filesystem>
#include <string>

#include "app/ini_settings.h"
#include "base/path_text.h"
#include "ui/common/process.h"

namespace ordex {
namespace fs = std::filesystem;
namespace {

fs::path ConfigurationFolder() {
  const std::string folder = EnvironmentText("XDG_CONFIG_HOME");
  if (!folder.empty()) return PathOf(folder);
  const std::string home = EnvironmentText("HOME");
  return (home.empty() ? fs::path(".") : PathOf(home)) / ".config";
}

}  // namespace

std::unique_ptr<Settings> UserSettings() {
  return std::make_unique<IniSettings>(ConfigurationFolder() / "Zelmo32" / "settings.ini");
}

}  // namespace ordex
