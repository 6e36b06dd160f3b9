// ordex-console: the main window on a terminal.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <exception>
#include <fstream>
#include <iostream>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <vector>

#include "base/date.h"
#include "base/path_text.h"
#include "base/text.h"
#include "base/text_file.h"
#include "store/db/sqlite_connection.h"
#include "ui/common/clocks.h"
#include "ui/common/exit_code.h"
#include "ui/common/process.h"
#include "ui/common/program_folder.h"
#include "ui/common/settings_store.h"
#include "ui/console/check.h"
#include "ui/console/command_source.h"
#include "ui/console/database_verbs.h"
#include "ui/console/explain.h"
#include "ui/console/italian_words.h"
#include "ui/console/json_events.h"
#include "ui/console/session.h"
#include "ui/console/terminal.h"
#include "ui/console/text_events.h"

namespace ordex::console {
namespace fs = std::filesystem;
namespace {

struct Options {
  std::string dir;
  std::string settings;
  std::string clipboard;
  std::string now;
  std::string script;
  bool json = false;
  bool sql = false;
  std::string newDatabase;
  bool sample = false;
  std::string pages;
  std::string pageFile;
};

// A call that cannot be carried out, said in Italian.
struct WrongCall {
  std::string text;
};

ExitCode ExitCodeOf(const SessionEnd& end) {
  return end.scriptError ? ExitCode::kWrongCall : ordex::ExitCodeOf(end.reason);
}

std::unique_ptr<Clock> MakeClock(const Options& options) {
  if (options.now.empty()) return std::make_unique<SystemClock>();
  const auto now = ParseDayFirst(options.now);
  if (!now) throw WrongCall{"--now vuole una data nella forma \"GG/MM/AAAA HH:MM:SS\""};
  return std::make_unique<FixedClock>(*now);
}

std::unique_ptr<Events> MakeEvents(const Options& options) {
  if (options.json) return std::make_unique<JsonEvents>(std::cout);
  return std::make_unique<TextEvents>(std::cout);
}

void PutOnClipboard(const Options& options, SessionClipboard& clipboard) {
  if (options.clipboard.empty()) return;
  try {
    clipboard.SetText(ReadTextFile(PathOf(options.clipboard)));
  } catch (const RunTimeError& error) {
    throw WrongCall{"--clipboard: " + error.description()};
  }
}

void Prompt() {
  std::cout << "ordex> " << std::flush;
}

ExitCode RunSession(const Options& options, const fs::path& executable, std::istream& typed) {
  const auto clock = MakeClock(options);
  SessionClipboard clipboard;
  PutOnClipboard(options, clipboard);
  std::ifstream script;
  if (!options.script.empty()) {
    script.open(PathOf(options.script), std::ios::binary);
    if (!script) throw WrongCall{"--script: impossibile leggere \"" + options.script + "\""};
  }
  const bool person = options.script.empty() && !options.json && PersonAtTerminal();
  CommandSource commands(options.script.empty() ? typed : script,
                         person ? Prompt : std::function<void()>{});
  const auto settings = OpenSettings(options.settings);
  const auto events = MakeEvents(options);
  Session session(
      {ProgramFolder(options.dir, executable), *settings, *clock, clipboard, options.sql}, commands,
      *events);
  try {
    return ExitCodeOf(session.Run());
  } catch (const std::exception&) {
    // Whoever reads along waits for the end.
    events->End(EndReason::kError);
    throw;
  }
}

// The verbs that report on files: what keeps them from it is a wrong call.
template <class Work>
ExitCode OrWrongCall(Work work) {
  try {
    return work();
  } catch (const RunTimeError& error) {
    throw WrongCall{error.description()};
  } catch (const fs::filesystem_error& error) {
    throw WrongCall{"impossibile leggere \"" + TextOf(error.path1()) + "\""};
  }
}

ExitCode CreateDatabase(const Options& options) {
  return OrWrongCall([&] {
    CreateSqliteDatabase(PathOf(options.newDatabase), options.sample);
    return ExitCode::kWell;
  });
}

ExitCode PrintScript() {
  PrintDatabaseScript();
  return ExitCode::kWell;
}

ExitCode RunDatabaseTest(const Options& options, const fs::path& executable) {
  return OrWrongCall([&] {
    return TestDatabase({ProgramFolder(options.dir, executable), options.settings, options.json});
  });
}

ExitCode RunCheck(const Options& options, const fs::path& executable) {
  return OrWrongCall([&] {
    return CheckMappingFiles({ProgramFolder(options.dir, executable), PathOf(options.settings),
                              PathOf(options.pages), options.json});
  });
}

ExitCode RunExplain(const Options& options, const fs::path& executable) {
  return OrWrongCall([&] {
    return Explain(ProgramFolder(options.dir, executable), PathOf(options.pageFile), options.json);
  });
}

void Declare(CLI::App& app, Options& options) {
  app.set_help_flag("-h,--help", "mostra questo aiuto");
  app.add_option("--dir", options.dir, "cartella del programma (file di mappatura)");
  app.add_option("--settings", options.settings, "file delle impostazioni dell'utente");
  app.add_option("--clipboard", options.clipboard, "testo che sta negli appunti all'avvio");
  app.add_option("--now", options.now, "orologio fermo, \"GG/MM/AAAA HH:MM:SS\"");
  app.add_option("--script", options.script, "comandi, uno per riga (altrimenti da tastiera)");
  app.add_flag("--json", options.json, "un evento JSON per riga");
  app.add_flag("--sql", options.sql, "anche i testi SQL");
}

// What nothing has caught on its way. No memory is asked for: it may be all gone.
ExitCode TellUnexpected(const std::exception& error) {
  if (dynamic_cast<const std::bad_alloc*>(&error) != nullptr) {
    std::cerr << "Memoria insufficiente. Chiudere altri programmi oppure usare una pagina più "
                 "piccola, poi riprovare.\n";
  } else {
    std::cerr << "Errore imprevisto: " << error.what()
              << ". Riprovare; se si ripete, riferire questo testo all'assistenza.\n";
  }
  return ExitCode::kError;
}

// `arguments` stand behind the program's name, `executable` is the program's file.
ExitCode Main(std::vector<std::string> arguments, const fs::path& executable) {
  StandardStreams streams;
  Options options;
  CLI::App app("Ordex: importa in Praxion le pagine di OrdexWeb", "ordex-console");
  // The same call means the same everywhere; the subcommands take this over.
  app.allow_windows_style_options(false);
  Declare(app, options);
  CLI::App* db = app.add_subcommand("db", "il database");
  db->require_subcommand(1);
  CLI::App* create = db->add_subcommand("create", "crea un nuovo database incorporato, vuoto");
  create->add_option("FILE", options.newDatabase, "il file da creare")->required();
  create->add_flag("--sample", options.sample, "con le pratiche e le persone di esempio");
  CLI::App* script = db->add_subcommand(
      "script", "mostra le tabelle di un database di prova per SQL Server, in T-SQL");
  CLI::App* test = db->add_subcommand("test", "prova il collegamento e cerca ciò che manca");
  test->add_option("--dir", options.dir, "cartella del programma");
  test->add_option("--settings", options.settings, "file delle impostazioni dell'utente");
  test->add_flag("--json", options.json, "un oggetto JSON per riga");
  CLI::App* check = app.add_subcommand("check", "controlla i file di mappatura");
  check->add_option("--dir", options.dir, "cartella del programma");
  check->add_option("--pages", options.pages, "cartella di pagine da provare");
  check->add_option("--settings", options.settings, "confronta i campi con questo database");
  check->add_flag("--json", options.json, "un oggetto JSON per riga");
  CLI::App* explain = app.add_subcommand("explain", "mostra che cosa diventa ogni riga");
  explain->add_option("--dir", options.dir, "cartella del programma");
  explain->add_flag("--json", options.json, "un oggetto JSON per riga");
  explain->add_option("PAGEFILE", options.pageFile, "il testo di una pagina")->required();
  SpeakItalian(app);
  try {
    // Taken from the back.
    std::reverse(arguments.begin(), arguments.end());
    app.parse(arguments);
    if (create->parsed()) return CreateDatabase(options);
    if (script->parsed()) return PrintScript();
    if (test->parsed()) return RunDatabaseTest(options, executable);
    if (check->parsed()) return RunCheck(options, executable);
    if (explain->parsed()) return RunExplain(options, executable);
    return RunSession(options, executable, streams.in());
  } catch (const CLI::CallForHelp&) {
    std::cout << app.help();
    return ExitCode::kWell;
  } catch (const CLI::ParseError& error) {
    std::cerr << "Chiamata non valida (" << CauseOf(error)
              << "). \"ordex-console --help\" mostra come si usa.\n";
  } catch (const WrongCall& wrong) {
    std::cerr << wrong.text << "\n";
  } catch (const std::exception& error) {
    return TellUnexpected(error);
  }
  return ExitCode::kWrongCall;
}

}  // namespace
}  // namespace ordex::console

int main(int argc, char** argv) {
  return static_cast<int>(ordex::console::Main(ordex::Arguments(argc, argv),
                                               ordex::ExecutableFile(argc > 0 ? argv[0] : "")));
}
