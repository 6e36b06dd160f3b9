// The connection strings that the settings give, and the opening of the database that they name.
#include <string>

#include "base/error.h"
#include "base/text.h"
#include "store/db/connection_string.h"
#include "store/db/open_connection.h"
#include "support/folder.h"

namespace ordex::fuzz {
namespace {

constexpr const char* kSecret = "Segreto!Segreto";

// A value between quotes or braces is read back whole, whatever stands in it.
void CheckQuoted(std::string_view value) {
  for (const std::string_view quotes : {"''", "\"\"", "{}"}) {
    const std::string close(quotes.substr(1));
    std::string text = "A=" + std::string(quotes.substr(0, 1));
    text.append(ReplaceAll(value, close, close + close)).append(close).append(";B=1");
    const ConnectionString parsed(text);
    Require(parsed.Value("a") == value, "a quoted value is read back");
    Require(parsed.Value("B") == "1", "and what follows it");
  }
}

}  // namespace
}  // namespace ordex::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace ordex;
  using namespace ordex::fuzz;
  static const Folder folder;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const ConnectionString parsed(text);
  for (const ConnectionKey& key : parsed.keys()) {
    Require(!key.name.empty() && key.name == Trim(key.name), "a name is trimmed");
    parsed.Value(key.name);
  }
  CheckQuoted(text);
  // No database stands in the folder, so every way leads to an error; none shows a password.
  std::string all = "Provider=SQLNCLI.1;User ID=sa;Password=";
  all.append(kSecret).append(";Initial Catalog=Zelmo32;").append(text);
  try {
    OpenConnection(all, folder.path());
  } catch (const RunTimeError& error) {
    // The fuzzer learns the password and writes it into the name of the source itself.
    Require(!Contains(error.description(), kSecret) || Contains(text, kSecret),
            "a password is never shown");
  }
  return 0;
}
