// The settings file: any bytes in it, then values written and read.
//
// The input: a line with the key to write, a line with its value, then the file.
#include <array>
#include <string>

#include "app/ini_settings.h"
#include "app/main_window.h"
#include "base/error.h"
#include "base/text.h"
#include "support/folder.h"

namespace ordex::fuzz {
namespace {

struct Key {
  const char* section;
  const char* name;
};

constexpr std::array kKeys = {Key{"startup", "Security"}, Key{"startup", "Server"},
                              Key{"Shared", "Id_Utente"}, Key{"Shared", "OrdexHandle"}};

void WriteAndRead(const Folder& folder, const Key& written, std::string_view value) {
  IniSettings settings(folder.path() / "settings.ini");
  std::array<std::string, kKeys.size()> before;
  for (std::size_t i = 0; i < kKeys.size(); ++i) {
    before[i] = settings.Get(kKeys[i].section, kKeys[i].name);
  }
  settings.Save(written.section, written.name, value);
  for (std::size_t i = 0; i < kKeys.size(); ++i) {
    const bool same = &kKeys[i] == &written;
    Require(settings.Get(kKeys[i].section, kKeys[i].name) == (same ? value : before[i]),
            same ? "what was written is read" : "the other values survive");
  }
  ConnectionStringOf(settings);
}

}  // namespace
}  // namespace ordex::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace ordex::fuzz;
  static const Folder folder;
  Input input(data, size);
  const Key& key = kKeys[input.Choice(kKeys.size())];
  input.Line();
  // The program writes numbers and nothing else.
  const std::string value(ordex::Left(input.Line(), 9));
  const bool number = value.find_first_not_of("-0123456789") == std::string::npos;
  folder.Write("settings.ini", input.Rest());
  try {
    WriteAndRead(folder, key, number ? value : "7");
  } catch (const ordex::RunTimeError& error) {
    Require(!error.description().empty(), "an error says what is wrong");
  }
  return 0;
}
