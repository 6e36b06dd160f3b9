#include "ui/console/italian_words.h"

#include <string_view>

namespace ordex::console {
namespace {

void NameGroups(CLI::App& app) {
  for (CLI::Option* option : app.get_options()) option->group("Opzioni");
  for (CLI::App* verb : app.get_subcommands({})) {
    verb->group("Comandi");
    NameGroups(*verb);
  }
}

// The library tells what it is about in its message alone.
std::string_view BehindLast(std::string_view text, std::string_view mark) {
  const std::size_t at = text.rfind(mark);
  return at == std::string_view::npos ? text : text.substr(at + mark.size());
}

std::string_view BeforeFirst(std::string_view text, std::string_view mark) {
  return text.substr(0, text.find(mark));
}

}  // namespace

void SpeakItalian(CLI::App& app) {
  NameGroups(app);
  const auto words = app.get_formatter();
  words->label("Usage", "Uso");
  words->label("OPTIONS", "OPZIONI");
  words->label("SUBCOMMAND", "COMANDO");
  words->label("SUBCOMMANDS", "COMANDI");
  words->label("Positionals", "Argomenti");
  words->label("REQUIRED", "obbligatorio");
  words->label("TEXT", "TESTO");
}

std::string CauseOf(const CLI::ParseError& error) {
  const std::string_view message = error.what();
  if (dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr) {
    return "argomento sconosciuto: " + std::string(BehindLast(message, ": "));
  }
  if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr) {
    return "manca il valore di " + std::string(BeforeFirst(message, ":"));
  }
  if (dynamic_cast<const CLI::RequiredError*>(&error) != nullptr) {
    const std::string_view what = BeforeFirst(message, " is required");
    return what == "A subcommand" ? "manca il comando" : "manca " + std::string(what);
  }
  return "argomenti errati";
}

}  // namespace ordex::console
