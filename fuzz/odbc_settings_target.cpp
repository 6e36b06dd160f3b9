// The settings in a driver's own words: read back as the driver reads them, each key has just the
// value that the settings gave it, so that no value ends early and goes on as another key.
#include <algorithm>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>

#include "base/text.h"
#include "store/db/odbc_settings.h"
#include "store/db/server_settings.h"
#include "support/input.h"

namespace ordex::fuzz {
namespace {

using Keys = std::multimap<std::string, std::string>;

// A value in braces goes to its closing brace, two of which stand for one; any other to the
// semicolon.
std::string TakeValue(std::string_view& text) {
  std::string value;
  if (!text.starts_with('{')) {
    const std::size_t end = std::min(text.find(';'), text.size());
    value = text.substr(0, end);
    text.remove_prefix(end);
    return value;
  }
  text.remove_prefix(1);
  for (;;) {
    const std::size_t end = text.find('}');
    Require(end != std::string_view::npos, "a brace is closed");
    value.append(text.substr(0, end));
    text.remove_prefix(end + 1);
    if (!text.starts_with('}')) return value;
    value.push_back('}');
    text.remove_prefix(1);
  }
}

Keys KeysOf(std::string_view text) {
  Keys keys;
  while (!text.empty()) {
    const auto halves = SplitOnce(text, "=");
    Require(halves.has_value(), "each key has a value");
    const std::string name(halves->left);
    text = halves->right;
    const std::string value = TakeValue(text);
    Require(text.starts_with(';'), "a semicolon follows each value");
    text.remove_prefix(1);
    keys.emplace(name, value);
  }
  return keys;
}

void CheckKey(const Keys& keys, const std::string& name, const std::string& value) {
  const auto found = keys.find(name);
  if (value.empty()) {
    Require(found == keys.end(), "what the settings do not say is not added");
  } else {
    Require(found != keys.end() && found->second == value, "a value arrives as it was given");
  }
}

}  // namespace
}  // namespace ordex::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace ordex;
  using namespace ordex::fuzz;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  ServerSettings settings = ReadServerSettings(text);
  const ServerSettings others = settings;
  // Whoever names the driver adds keys of his own, which may have any name.
  settings.driver.clear();
  for (const char* driver : {"ODBC Driver 17 for SQL Server", "ODBC Driver 18 for SQL Server"}) {
    const OdbcTarget target = TranslateToOdbc(settings, driver, ".");
    const Keys keys = KeysOf(target.connectionString);
    CheckKey(keys, "Driver", driver);
    CheckKey(keys, "Database", settings.database);
    CheckKey(keys, "UID", settings.integrated ? "" : settings.user);
    CheckKey(keys, "PWD", settings.integrated ? "" : settings.password);
    CheckKey(keys, "APP", settings.application);
    CheckKey(keys, "WSID", settings.workstation);
    CheckKey(keys, "Language", settings.language);
    CheckKey(keys, "AttachDBFileName", settings.attachFile);
    Require(keys.count("Server") <= 1, "there is one server");
  }
  const OdbcTarget file = TranslateToOdbc(settings, "SQLite3", ".");
  CheckKey(KeysOf(file.connectionString), "Database", file.shown);
  TranslateToOdbc(settings, "FreeTDS", ".");
  TranslateToOdbc(others, {}, ".");
  Require(!Contains(TranslateToOdbc(settings, "FreeTDS", ".").shown, "="),
          "what is shown ends before a key");
  return 0;
}
