// The password of the settings is shown nowhere, whatever is wrong with the connection.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "console_program.h"
#include "console_run.h"
#include "workplace.h"

namespace ordex::security {
namespace {

using sessions::RunOutcome;
using sessions::RunTask;
using sessions::Workplace;

constexpr const char* kSecret = "Segr3to-Zan!42";

struct Settings {
  std::string name;
  std::string security;
  std::string server;
};

// Nobody listens on port 1.
std::vector<Settings> FailingSettings() {
  const std::string secret = kSecret;
  return {
      {"Usual", ";User ID=sa;Password=" + secret + ";", "Data Source=127.0.0.1,1"},
      {"ShortNames", ";UID=sa;PWD=" + secret + ";", "Data Source=127.0.0.1,1"},
      {"Braces", ";UID=sa;PWD={" + secret + "};", "Data Source=127.0.0.1,1"},
      {"Apostrophes", ";UID=sa;Password='" + secret + "';", "Data Source=127.0.0.1,1"},
      {"OpenApostrophe", ";UID=sa;Password='" + secret + ";", "Data Source=127.0.0.1,1"},
      {"OpenBrace", ";UID=sa;PWD={" + secret + ";", "Data Source=127.0.0.1,1"},
      {"NoSemicolonBehind", ";UID=sa;Password=" + secret, "Data Source=127.0.0.1,1"},
      {"NoSemicolonInFront", "UID=sa;Password=" + secret + ";", "Data Source=127.0.0.1,1"},
      {"BehindTheServer", ";UID=sa;", "Data Source=127.0.0.1,1 Password=" + secret},
      {"BehindTheServerAndASemicolon", ";UID=sa;", "Data Source=127.0.0.1,1;Password=" + secret},
      {"Twice", ";UID=sa;Password=" + secret + ";",
       "Password=" + secret + "2;Data Source=127.0.0.1,1"},
      {"NoServer", ";UID=sa;Password=" + secret + ";", ""},
      {"MissingFile", ";UID=sa;Password=" + secret + ";", "Data Source=file:manca.db"},
      {"NameThatIsMisspelt", ";UID=sa;Pasword=" + secret + ";", "Data Source=127.0.0.1,1"},
      {"UnknownDriver", ";UID=sa;PWD=" + secret + ";", "Driver={Manca};Server=127.0.0.1"},
      {"DriverOfFiles", ";PWD=" + secret + ";", "Driver={SQLite3};Database=manca.db"},
  };
}

class FailingConnection : public ::testing::TestWithParam<Settings> {
 protected:
  FailingConnection() {
    workplace_.WriteSettings("[startup]\nSecurity=" + GetParam().security +
                             "\nServer=" + GetParam().server + "\n[Shared]\nId_Utente=7\n");
    workplace_.TakePage("samples/profilo-contratto.txt");
  }

  RunOutcome Run(const std::vector<std::string>& arguments) const {
    RunTask task;
    task.program = sessions::ConsoleProgram();
    task.arguments = arguments;
    return RunConsole(task, workplace_);
  }
  static void ExpectNoSecret(const RunOutcome& outcome) {
    for (const std::string* text : {&outcome.output, &outcome.errors}) {
      EXPECT_EQ(text->find(kSecret), std::string::npos) << *text;
    }
  }

  Workplace workplace_{ORDEX_SOURCE_DIR};
};

TEST_P(FailingConnection, IsToldWithoutThePassword) {
  const std::vector<std::string> usual = {"--dir",        "office",      "--settings",
                                          "settings.ini", "--clipboard", "page.txt"};
  for (const bool json : {true, false}) {
    std::vector<std::string> arguments = usual;
    if (json) arguments.insert(arguments.end(), {"--json", "--sql"});
    const RunOutcome outcome = Run(arguments);
    EXPECT_EQ(outcome.exitCode, 4) << outcome.output << outcome.errors;
    EXPECT_FALSE(outcome.output.empty());
    ExpectNoSecret(outcome);
  }
}

TEST_P(FailingConnection, IsTriedByTheOtherVerbsWithoutThePasswordToo) {
  const std::vector<std::string> test = {"db",     "test",       "--dir",
                                         "office", "--settings", "settings.ini"};
  const std::vector<std::string> check = {"check", "--dir", "office", "--settings", "settings.ini"};
  for (const auto& verb : {test, check}) {
    const RunOutcome outcome = Run(verb);
    EXPECT_NE(outcome.exitCode, 0);
    EXPECT_FALSE(outcome.output.empty() && outcome.errors.empty());
    ExpectNoSecret(outcome);
  }
}

INSTANTIATE_TEST_SUITE_P(Of, FailingConnection, ::testing::ValuesIn(FailingSettings()),
                         [](const auto& one) { return one.param.name; });

}  // namespace
}  // namespace ordex::security
