// What the console prints for a person, next to transcripts that somebody has read. One that is
// missing is written, and the test fails.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "console_program.h"
#include "console_run.h"
#include "database.h"
#include "workplace.h"

namespace ordex::console_tests {
namespace {

namespace fs = std::filesystem;
using Words = std::vector<std::string>;
using sessions::RunConsole;
using sessions::RunOutcome;
using sessions::RunTask;

class Transcript : public ::testing::Test {
 protected:
  // A session in readable text.
  void Session(const std::string& sample, const Words& commands, int exitCode) {
    workplace_.TakePage("samples/" + sample);
    Run({"--dir", "office", "--settings", "settings.ini", "--clipboard", "page.txt", "--now",
         "20/02/2026 09:30:00", "--script", "script.txt"},
        commands, exitCode);
  }

  void Run(const Words& arguments, const Words& commands, int exitCode) {
    workplace_.Prepare(false);
    RunTask task;
    task.program = sessions::ConsoleProgram();
    task.arguments = arguments;
    task.commands = commands;
    const RunOutcome outcome = RunConsole(task, workplace_);
    EXPECT_EQ(outcome.exitCode, exitCode) << outcome.transcript;
    Compare(outcome.output + outcome.errors);
  }

  sessions::Workplace workplace_{ORDEX_SOURCE_DIR};

 private:
  static void Compare(const std::string& printed) {
    const fs::path file =
        fs::path(ORDEX_SOURCE_DIR) / "tests" / "console" / "transcripts" /
        (std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()) + ".txt");
    if (!fs::exists(file)) {
      std::ofstream(file, std::ios::binary) << printed;
      FAIL() << "written, to be read by somebody: " << file;
    }
    std::ifstream in(file, std::ios::binary);
    EXPECT_EQ(printed, std::string(std::istreambuf_iterator<char>(in), {}));
  }
};

TEST_F(Transcript, ProfileThatIsUpdated) {
  Session("profilo-contratto.txt", {"row 3", "click chkDettagli", "click cmdAzione", "ok"}, 0);
}

TEST_F(Transcript, ProfileThatBecomesACase) {
  Session("profilo-lavoro.txt",
          {"click cmdAzione", "yes", "select cmbParti 0 0", "select cmbParti 1 1",
           "click cmdAzione", "click cmdSi", "ok"},
          0);
}

TEST_F(Transcript, HistoryWhoseCaseIsLookedFor) {
  Session("storico-unica.txt",
          {"find nessuno", "find 907/2024", "choose 3", "click cmdAzione", "ok"}, 0);
}

TEST_F(Transcript, AgendaOfAWeek) {
  Session("agenda-settimana.txt", {"row 2", "click cmdAzione", "ok", "close"}, 0);
}

TEST_F(Transcript, JusticeOfThePeaceWithTheParties) {
  Session("giudice-di-pace-sinistro.txt",
          {"click cmdAzione", "yes", "type txtAttore ROSSI ANNA", "click cmdOk", "close"}, 0);
}

TEST_F(Transcript, PersonOfTheHeader) {
  Session("profilo-contratto.txt", {"person 2", "click lblInfo2", "close", "close"}, 0);
}

TEST_F(Transcript, PageOfNoKnownKind) {
  Session("not-a-page/accesso.txt", {"ok"}, 3);
}

TEST_F(Transcript, PageThatStops) {
  workplace_.SetPage("Profilo del fascicolo - Dati generali\r\nRito: Ordinario\r\nMateria\r\n");
  Run({"--dir", "office", "--settings", "settings.ini", "--clipboard", "page.txt", "--script",
       "script.txt"},
      {"ok", "close"}, 0);
}

// What the page holds of signs that a terminal obeys arrives there as blanks.
TEST_F(Transcript, PageThatCannotSteerTheTerminal) {
  workplace_.SetPage(
      "Profilo del fascicolo - Dati generali\r\nSezione: Prima\x1B[2J Civile\x7F\xC2\x9B\r\n"
      "Materia\x1B[31m\r\nMateria\r\n");
  Run({"--dir", "office", "--settings", "settings.ini", "--clipboard", "page.txt", "--script",
       "script.txt"},
      {"ok", "row 1", "close"}, 0);
}

TEST_F(Transcript, PageOfAnotherKindHandedOver) {
  workplace_.WriteWorkFile("altra.txt", "Agenda dell'avvocato - Impegni del periodo\n");
  Session("profilo-contratto.txt", {"clipboard altra.txt", "poke", "close"}, 0);
}

TEST_F(Transcript, SettingsWithoutAUser) {
  workplace_.WriteSettings("[startup]\nSecurity=;\nServer=Data Source=file:office.db\n");
  Session("profilo-contratto.txt", {}, 4);
}

TEST_F(Transcript, CommandThatDoesNotFit) {
  Session("profilo-contratto.txt", {"select cmbParti 0 0"}, 2);
}

TEST_F(Transcript, SqlTextsAsTheyAreBuilt) {
  workplace_.TakePage("samples/profilo-contratto.txt");
  Run({"--dir", "office", "--settings", "settings.ini", "--clipboard", "page.txt", "--now",
       "20/02/2026 09:30:00", "--script", "script.txt", "--sql"},
      {"click cmdAzione", "ok"}, 0);
}

// --- the other verbs ----------------------------------------------------------------------------

TEST_F(Transcript, PageExplained) {
  workplace_.TakePage("samples/storico-unica.txt");
  Run({"explain", "--dir", "office", "page.txt"}, {}, 0);
}

TEST_F(Transcript, AgendaExplained) {
  workplace_.TakePage("samples/agenda-settimana.txt");
  Run({"explain", "--dir", "office", "page.txt"}, {}, 0);
}

TEST_F(Transcript, AgendaWhoseNumberOfEntriesIsNoneExplained) {
  workplace_.SetPage(
      "Agenda dell'avvocato - Impegni del periodo\r\nTotale impegni: x nel periodo scelto\r\n");
  Run({"explain", "--dir", "office", "page.txt"}, {}, 4);
}

TEST_F(Transcript, JusticeOfThePeaceExplained) {
  workplace_.TakePage("samples/giudice-di-pace-opposizione.txt");
  Run({"explain", "--dir", "office", "page.txt"}, {}, 0);
}

TEST_F(Transcript, MappingFilesThatAreInOrder) {
  Run({"check", "--dir", "office"}, {}, 0);
}

TEST_F(Transcript, MappingFileWithALineThatCannotBeRead) {
  workplace_.WriteMapping("MapRestr.txt", "profilo\n");
  Run({"check", "--dir", "office"}, {}, 1);
}

TEST_F(Transcript, DatabaseThatIsComplete) {
  Run({"db", "test", "--dir", "office", "--settings", "settings.ini"}, {}, 0);
}

TEST_F(Transcript, DatabaseThatLacksATableAndAColumn) {
  sessions::RunSql(workplace_.database(), "DROP TABLE EventiPraOrdex");
  sessions::RunSql(workplace_.database(), "ALTER TABLE SCADENZE DROP COLUMN Parti");
  Run({"db", "test", "--dir", "office", "--settings", "settings.ini"}, {}, 1);
}

TEST_F(Transcript, DatabaseThatIsNotThere) {
  workplace_.MakeDatabase("none");
  Run({"db", "test", "--dir", "office", "--settings", "settings.ini"}, {}, 4);
}

TEST_F(Transcript, DatabaseThatIsThereAlready) {
  Run({"db", "create", "office/office.db"}, {}, 2);
}

TEST_F(Transcript, UnknownArgument) {
  Run({"--quale"}, {}, 2);
}

TEST_F(Transcript, ArgumentWithoutItsValue) {
  Run({"--dir"}, {}, 2);
}

TEST_F(Transcript, ExplainWithoutAPage) {
  Run({"explain"}, {}, 2);
}

TEST_F(Transcript, DatabaseVerbThatIsMissing) {
  Run({"db"}, {}, 2);
}

TEST_F(Transcript, Help) {
  Run({"--help"}, {}, 0);
}

TEST_F(Transcript, HelpOfAVerb) {
  Run({"explain", "--help"}, {}, 0);
}

}  // namespace
}  // namespace ordex::console_tests
