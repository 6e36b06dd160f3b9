// The command line of ordex-console.
#pragma once

#include <string>
#include <vector>

namespace ordex::console {

enum class Verb { kSession, kHelp, kCreateDatabase, kPrintScript, kTestDatabase, kCheck, kExplain };

struct Options {
  Verb verb = Verb::kSession;
  std::string help;  // what to show, where the verb is that
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

// `arguments` stand behind the program's name. Throws WrongCall.
Options ReadCommandLine(std::vector<std::string> arguments);

}  // namespace ordex::console
