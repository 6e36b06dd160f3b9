#include "ui/desktop/options.h"

#include <stdexcept>

namespace ordex::desktop {
namespace {

DateTime ReadNow(const std::string& text) {
  const auto now = ParseDayFirst(text);
  if (!now) {
    throw std::invalid_argument(R"(--now vuole una data nella forma "GG/MM/AAAA HH:MM:SS", non ")" +
                                text + "\".");
  }
  return *now;
}

}  // namespace

Options ReadOptions(const std::vector<std::string>& arguments) {
  Options options;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& name = arguments[i];
    if (name == "-h" || name == "--help") {
      options.help = true;
      continue;
    }
    if (name != "--dir" && name != "--settings" && name != "--now") {
      throw std::invalid_argument("Opzione sconosciuta: \"" + name + "\".\n\n" + OptionsHelp());
    }
    if (++i == arguments.size()) throw std::invalid_argument(name + " vuole un valore.");
    if (name == "--dir") options.dir = arguments[i];
    if (name == "--settings") options.settings = arguments[i];
    if (name == "--now") options.now = ReadNow(arguments[i]);
  }
  return options;
}

std::string OptionsHelp() {
  return "ordex [--dir CARTELLA] [--settings FILE] [--now \"GG/MM/AAAA HH:MM:SS\"]\n\n"
         "--dir\tcartella del programma, con i file di mappatura\n"
         "--settings\tfile delle impostazioni dell'utente\n"
         "--now\torologio fermo a questa data";
}

}  // namespace ordex::desktop
