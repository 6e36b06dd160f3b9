#include "ui/console/command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>

#include "ui/console/italian_words.h"

namespace ordex::console {
namespace {

// What an option's value is.
constexpr const char* kFile = "FILE";
constexpr const char* kFolder = "CARTELLA";

struct Verbs {
  CLI::App* create;
  CLI::App* script;
  CLI::App* test;
  CLI::App* check;
  CLI::App* explain;
};

void AddSessionOptions(CLI::App& app, Options& options) {
  app.set_help_flag("-h,--help", "mostra questo aiuto");
  app.add_option("--dir", options.dir, "cartella del programma (file di mappatura)")
      ->type_name(kFolder);
  app.add_option("--settings", options.settings, "file delle impostazioni dell'utente")
      ->type_name(kFile);
  app.add_option("--clipboard", options.clipboard,
                 "file con il testo che sta negli appunti all'avvio")
      ->type_name(kFile);
  app.add_option("--now", options.now, "orologio fermo, \"GG/MM/AAAA HH:MM:SS\"");
  app.add_option("--script", options.script,
                 "file di comandi, uno per riga (altrimenti da tastiera)")
      ->type_name(kFile);
  app.add_flag("--json", options.json, "un evento JSON per riga");
  app.add_flag("--sql", options.sql, "anche i testi SQL");
}

void AddDatabaseVerbs(CLI::App& app, Options& options, Verbs& verbs) {
  CLI::App* db = app.add_subcommand("db", "il database");
  db->require_subcommand(1);
  verbs.create = db->add_subcommand("create", "crea un nuovo database incorporato, vuoto");
  verbs.create->add_option("FILE", options.newDatabase, "il file da creare")->required();
  verbs.create->add_flag("--sample", options.sample, "con le pratiche e le persone di esempio");
  verbs.script = db->add_subcommand(
      "script", "mostra le tabelle di un database di prova per SQL Server, in T-SQL");
  verbs.test = db->add_subcommand("test", "prova il collegamento e cerca ciò che manca");
  verbs.test->add_option("--dir", options.dir, "cartella del programma")->type_name(kFolder);
  verbs.test->add_option("--settings", options.settings, "file delle impostazioni dell'utente")
      ->type_name(kFile);
  verbs.test->add_flag("--json", options.json, "un oggetto JSON per riga");
}

void AddCheck(CLI::App& app, Options& options, Verbs& verbs) {
  verbs.check = app.add_subcommand("check", "controlla i file di mappatura");
  verbs.check->add_option("--dir", options.dir, "cartella del programma")->type_name(kFolder);
  verbs.check->add_option("--pages", options.pages, "cartella di pagine da provare")
      ->type_name(kFolder);
  verbs.check
      ->add_option("--settings", options.settings,
                   "confronta i campi con il database di queste impostazioni")
      ->type_name(kFile);
  verbs.check->add_flag("--json", options.json, "un oggetto JSON per riga");
}

void AddExplain(CLI::App& app, Options& options, Verbs& verbs) {
  verbs.explain = app.add_subcommand("explain", "mostra che cosa diventa ogni riga di una pagina");
  verbs.explain->add_option("--dir", options.dir, "cartella del programma")->type_name(kFolder);
  verbs.explain->add_flag("--json", options.json, "un oggetto JSON per riga");
  verbs.explain->add_option("PAGEFILE", options.pageFile, "il testo di una pagina")->required();
}

Verb VerbOf(const Verbs& verbs) {
  if (verbs.create->parsed()) return Verb::kCreateDatabase;
  if (verbs.script->parsed()) return Verb::kPrintScript;
  if (verbs.test->parsed()) return Verb::kTestDatabase;
  if (verbs.check->parsed()) return Verb::kCheck;
  if (verbs.explain->parsed()) return Verb::kExplain;
  return Verb::kSession;
}

}  // namespace

Options ReadCommandLine(std::vector<std::string> arguments) {
  Options options;
  Verbs verbs{};
  CLI::App app("Ordex: importa in Praxion le pagine di OrdexWeb", "ordex-console");
  // The same call means the same everywhere; the subcommands take this over.
  app.allow_windows_style_options(false);
  AddSessionOptions(app, options);
  AddDatabaseVerbs(app, options, verbs);
  AddCheck(app, options, verbs);
  AddExplain(app, options, verbs);
  SpeakItalian(app);
  try {
    // Taken from the back.
    std::reverse(arguments.begin(), arguments.end());
    app.parse(arguments);
    options.verb = VerbOf(verbs);
  } catch (const CLI::CallForHelp&) {
    options.verb = Verb::kHelp;
    options.help = app.help();
  } catch (const CLI::ParseError& error) {
    throw WrongCall{"Chiamata non valida (" + CauseOf(error) +
                    "). \"ordex-console --help\" mostra come si usa."};
  }
  return options;
}

}  // namespace ordex::console
