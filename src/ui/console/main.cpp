// ordex-console: the main window on a terminal.
#include <exception>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <memory>
#include <new>
#include <string>
#include <utility>
#include <vector>

#include "base/date.h"
#include "base/path_text.h"
#include "base/text.h"
#include "base/text_file.h"
#include "store/db/sqlite_create.h"
#include "ui/common/clocks.h"
#include "ui/common/exit_code.h"
#include "ui/common/process.h"
#include "ui/common/program_folder.h"
#include "ui/common/settings_store.h"
#include "ui/console/check.h"
#include "ui/console/command_line.h"
#include "ui/console/command_source.h"
#include "ui/console/database_verbs.h"
#include "ui/console/explain.h"
#include "ui/console/json_events.h"
#include "ui/console/session.h"
#include "ui/console/terminal.h"
#include "ui/console/text_events.h"

namespace ordex::console {
namespace fs = std::filesystem;
namespace {

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

ExitCode Run(const Options& options, const fs::path& executable, std::istream& typed) {
  switch (options.verb) {
    case Verb::kHelp:
      std::cout << options.help;
      return ExitCode::kWell;
    case Verb::kCreateDatabase:
      return CreateDatabase(options);
    case Verb::kPrintScript:
      return PrintScript();
    case Verb::kTestDatabase:
      return RunDatabaseTest(options, executable);
    case Verb::kCheck:
      return RunCheck(options, executable);
    case Verb::kExplain:
      return RunExplain(options, executable);
    case Verb::kSession:
      break;
  }
  return RunSession(options, executable, typed);
}

// `arguments` stand behind the program's name, `executable` is the program's file.
ExitCode Main(std::vector<std::string> arguments, const fs::path& executable) {
  StandardStreams streams;
  try {
    return Run(ReadCommandLine(std::move(arguments)), executable, streams.in());
  } catch (const WrongCall& wrong) {
    std::cerr << wrong.text << "\n";
    return ExitCode::kWrongCall;
  } catch (const std::exception& error) {
    return TellUnexpected(error);
  }
}

}  // namespace
}  // namespace ordex::console

int main(int argc, char** argv) {
  return static_cast<int>(ordex::console::Main(ordex::Arguments(argc, argv),
                                               ordex::ExecutableFile(argc > 0 ? argv[0] : "")));
}
