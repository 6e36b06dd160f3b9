// The runner itself, over a stand-in for the console: a shell script.
#include "session_runner.h"

#include <gtest/gtest.h>

#include "database.h"
#include "session_file.h"
#include "temporary_folder.h"
#include "text_files.h"

namespace ordex::sessions {
namespace {

using namespace std::chrono_literals;

struct Failure {
  std::size_t line = 0;
  std::string text;
};

class SessionRunner : public ::testing::Test {
 protected:
  // Runs a session over a console that is this shell script.
  std::vector<Failure> Run(const std::string& console, const std::string& session,
                           std::chrono::seconds timeLimit = 20s) {
    WriteFile(folder_.path() / "console.sh", console);
    std::vector<Failure> failures;
    RunSession(ParseSession(session),
               {ORDEX_SOURCE_DIR, {"/bin/sh", (folder_.path() / "console.sh").string()}, timeLimit},
               [&](std::size_t line, const std::string& text) {
                 failures.push_back({line, text});
               });
    return failures;
  }

  TemporaryFolder folder_;
};

constexpr const char* kPlain =
    "echo '{\"event\":\"state\",\"frmMain\":{\"height\":4320}}'\n"
    "echo '{\"event\":\"end\",\"reason\":\"closed\"}'\n";

bool Begins(const std::vector<Failure>& failures, std::size_t line, const std::string& text) {
  return failures.size() == 1 && failures[0].line == line && failures[0].text.starts_with(text);
}

TEST_F(SessionRunner, ASessionThatIsAsExpectedReportsNothing) {
  const auto failures =
      Run(kPlain,
          "run\nend\nexit 0\n"
          "event {\"event\":\"state\",\"frmMain\":{\"height\":4320}}\n"
          "last {\"event\":\"end\",\"reason\":\"closed\"}\n"
          "no-event {\"event\":\"message\"}\n"
          "count 1 {\"event\":\"end\"}\n"
          "types state\n{\"frmMain\":{\"height\":\"number\"}}\nend\n"
          "query SELECT ID_Pra, ControCognome, IsPenale FROM Pratica WHERE ID_Pra < 3\n"
          "row 1|NULL|0\nrow 2||0\n"
          "setting Shared Id_Utente 7\nsetting Shared OrdexHandle absent\n"
          "present MapCampi.txt\nabsent *.html\n"
          "database-unchanged\ntables-unchanged Pratica Anagrafica\n");
  EXPECT_TRUE(failures.empty()) << failures.front().text;
}

TEST_F(SessionRunner, EachExpectationThatFailsIsToldWithItsLineAndTheTranscript) {
  const auto failures = Run(kPlain,
                            "run\n  click cmdAzione\nend\nexit 4\n"
                            "event {\"event\":\"end\"}\nevent {\"event\":\"state\"}\n"
                            "no-event {\"event\":\"end\"}\n"
                            "last {\"event\":\"state\"}\n"
                            "count 2 {\"event\":\"end\"}\n"
                            "types state\n{\"frmMain\":{\"height\":\"string\"}}\nend\n"
                            "query SELECT 1\nno-rows\n"
                            "setting Shared Id_Utente -1\n"
                            "present page.txt\nabsent MapRestr.txt\n"
                            "sql-texts\nSELECT 1\nend\n");
  std::vector<std::size_t> lines;
  for (const Failure& failure : failures) {
    lines.push_back(failure.line);
    EXPECT_NE(failure.text.find("click cmdAzione"), std::string::npos);
    EXPECT_NE(failure.text.find("\"reason\":\"closed\""), std::string::npos);
  }
  EXPECT_EQ(lines, (std::vector<std::size_t>{4, 6, 7, 8, 9, 10, 13, 15, 16, 17, 18}));
}

TEST_F(SessionRunner, EventsAreLookedForInTheirOrder) {
  const auto failures =
      Run("echo '{\"event\":\"beep\"}'\necho '{\"event\":\"raise\"}'\n"
          "echo '{\"event\":\"end\",\"reason\":\"closed\"}'\n",
          "run\nend\nexit 0\nevent {\"event\":\"raise\"}\nevent {\"event\":\"beep\"}\n");
  EXPECT_TRUE(Begins(failures, 5, "no such event from event 3 on"));
}

TEST_F(SessionRunner, ARunThatOutlivesItsTimeLimitIsEndedAndTold) {
  const auto failures = Run("exec sleep 30\n", "run\nend\nexit -9\n", 1s);
  EXPECT_TRUE(Begins(failures, 1, "the time limit of 1 s is over"));
}

TEST_F(SessionRunner, AnOutputThatIsNoEventIsTold) {
  const auto failures = Run("echo ciao\n", "run\nend\nexit 0\n");
  EXPECT_TRUE(Begins(failures, 1, "a line of the output is no event: ciao"));
}

TEST_F(SessionRunner, TheLastEventAndTheExitCodeMustFitEachOther) {
  const std::string session = "run\nend\nexit ";
  EXPECT_TRUE(
      Begins(Run("echo '{\"event\":\"end\",\"reason\":\"done\"}'\nexit 4\n", session + "4\n"), 1,
             "exit code 4 does not fit \"done\""));
  EXPECT_TRUE(Begins(Run("echo '{\"event\":\"beep\"}'\n", session + "0\n"), 1,
                     "the last event is not \"end\""));
  EXPECT_TRUE(Begins(Run("true\n", session + "0\n"), 1, "no event was printed"));
  EXPECT_TRUE(Begins(Run(std::string(kPlain) + kPlain, session + "0\n"), 1,
                     "\"end\" is not the last event"));
}

TEST_F(SessionRunner, AFileLeftInTheProgramFolderIsTold) {
  const auto failures =
      Run(std::string("touch office/pagina.txt\n") + kPlain, "run\nend\nexit 0\n");
  EXPECT_TRUE(Begins(failures, 1, "the run left \"pagina.txt\" in the program folder"));
}

TEST_F(SessionRunner, TheConsoleIsGivenItsArgumentsAndFiles) {
  const auto failures =
      Run("echo \"$*\" | cat - page.txt script.txt > found\n"
          "cmp found expected || exit 7\n" +
              std::string(kPlain),
          "page-text\nuno\ndue\nend\nnow 01/02/2026\noptions --sql --x\n"
          "work-file expected\n"
          "--dir office --settings settings.ini --json --clipboard page.txt "
          "--now 01/02/2026 --script script.txt --sql --x\n"
          "uno\ndue"
          "a\nb c\n\nend\n"
          "run\n  a\n  b c\nend\nexit 0\n");
  EXPECT_TRUE(failures.empty()) << failures.front().text;
}

TEST_F(SessionRunner, AChangeOfTheDatabaseIsTold) {
  const std::string session =
      "run\n  state\n  !sql DELETE FROM Utenti WHERE ID_Utente = 3\nend\nexit 0\n";
  const std::string console =
      "echo '{\"event\":\"state\"}'\nread a\necho '{\"event\":\"state\"}'\n"
      "read b\necho '{\"event\":\"state\"}'\nread c\n"
      "echo '{\"event\":\"end\",\"reason\":\"closed\"}'\n";
  EXPECT_TRUE(Begins(Run(console, session + "database-unchanged\n"), 6,
                     "the database has changed\ntable Utenti differs from line 2 on"));
  EXPECT_TRUE(Run(console, session + "tables-unchanged Pratica\n").empty());
  EXPECT_TRUE(
      Begins(Run(console, session + "tables-unchanged Utenti\n"), 6, "the database has changed"));
}

TEST_F(SessionRunner, WhatCannotBeSetUpIsAnError) {
  const std::string run = "run\nend\nexit 0\n";
  EXPECT_THROW(Run(kPlain, "page-text\na\nend\npage-replace b => c\n" + run), SyntaxError);
  EXPECT_THROW(Run(kPlain, "page-cut-after b\n" + run), SyntaxError);
  EXPECT_THROW(Run(kPlain, "mapping-line MapRestr.txt 999 x\n" + run), SyntaxError);
  EXPECT_THROW(Run(kPlain, "mapping-without MapRestr.txt x=y\n" + run), SyntaxError);
  EXPECT_THROW(Run(kPlain, "mapping Altro.txt\nend\n" + run), std::runtime_error);
  EXPECT_THROW(Run(kPlain, "page samples/manca.txt\n" + run), std::runtime_error);
  EXPECT_THROW(Run(kPlain, "database big\n" + run), std::runtime_error);
  EXPECT_THROW(Run(kPlain, "sql DROP TABLE Nessuna\n" + run), std::runtime_error);
  EXPECT_THROW(Run(kPlain, run + "event {\"event\"\n"), SyntaxError);
  EXPECT_THROW(Run(kPlain, run + "exit zero\n"), SyntaxError);
}

TEST_F(SessionRunner, MappingFilesAreChangedLineByLine) {
  const auto failures =
      Run("cmp office/MapRestr.txt expected || exit 7\n" + std::string(kPlain),
          "mapping MapRestr.txt\nuno=A\ndue=B\ntre=C\nend\n"
          "mapping-line MapRestr.txt 2 DUE=b\nmapping-without MapRestr.txt uno=A\n"
          "mapping-add MapRestr.txt quattro=D E\n"
          "work-file expected\nDUE=b\ntre=C\nquattro=D E\n\nend\n"
          "run\nend\nexit 0\n");
  EXPECT_TRUE(failures.empty()) << failures.front().text;
}

TEST(QueryRows, ValuesAreWrittenOnOneLineEach) {
  const TemporaryFolder folder;
  const auto file = folder.path() / "a.db";
  MakeDatabase(file, {});
  EXPECT_EQ(QueryRows(file,
                      "SELECT 'a|b' || char(13, 10, 9) || '\\', NULL, 1936.27, '' UNION ALL "
                      "SELECT 2, 3, 4, 5"),
            (std::vector<std::string>{"a\\|b\\r\\n\\t\\\\|NULL|1936.27|", "2|3|4|5"}));
}

// Whether a writer that does not wait gets its turn.
bool CanWrite(const std::filesystem::path& file) {
  sqlite3* database = nullptr;
  sqlite3_open(file.c_str(), &database);
  const int code = sqlite3_exec(database, "INSERT INTO T VALUES (1)", nullptr, nullptr, nullptr);
  sqlite3_close(database);
  return code == SQLITE_OK;
}

TEST(WriteLock, KeepsOtherWritersOutWhileItStandsAndLetsReadersIn) {
  const TemporaryFolder folder;
  const auto file = folder.path() / "a.db";
  MakeDatabase(file, {});
  RunSql(file, "CREATE TABLE T (A)");
  {
    const WriteLock lock(file);
    EXPECT_FALSE(CanWrite(file));
    EXPECT_EQ(QueryRows(file, "SELECT count(*) FROM T"), std::vector<std::string>{"0"});
    EXPECT_FALSE(CanWrite(file));
  }
  EXPECT_TRUE(CanWrite(file));
}

// Another writer would wait in vain while the lock stands.
TEST_F(SessionRunner, TheLockGoesOnceTheAwaitedTextIsPrintedOrWithTheRun) {
  const auto failures =
      Run("echo '{\"event\":\"sql\",\"text\":\"SELECT 7\"}'\nread a\n"
          "echo '{\"event\":\"state\"}'\necho '{\"event\":\"state\"}'\n"
          "echo '{\"event\":\"end\",\"reason\":\"closed\"}'\n",
          "lock\nrun\n  !unlock SELECT 7\n"
          "  !sql DELETE FROM Utenti WHERE ID_Utente = 4\nend\nexit 0\n"
          "query SELECT count(*) FROM Utenti WHERE ID_Utente = 4\nrow 0\n"
          "lock\nrun\nend\nexit 0\n"
          "run\n  !sql DELETE FROM Utenti WHERE ID_Utente = 3\nend\nexit 0\n"
          "query SELECT count(*) FROM Utenti WHERE ID_Utente = 3\nrow 0\n");
  EXPECT_TRUE(failures.empty()) << failures.front().text;
}

TEST_F(SessionRunner, AFileThatMayBeLeftIsNoFault) {
  const auto failures = Run(std::string("touch office/pagina.txt\n") + kPlain,
                            "leaves pagina.txt\nrun\nend\nexit 0\npresent pagina.txt\n");
  EXPECT_TRUE(failures.empty()) << failures.front().text;
}

TEST_F(SessionRunner, AVerbsEventsAndLinesAreLookedAt) {
  const std::string console =
      "echo \"$*\"\necho '{\"event\":\"finding\",\"line\":3}'\necho guasto >&2\nexit 1\n";
  const auto failures = Run(console,
                            "call check --dir office\nexit 1\nprints check --dir\n"
                            "says guasto\nprints guasto\nsays finding\n");
  ASSERT_EQ(failures.size(), 2U);
  EXPECT_EQ(failures[0].line, 5U);
  EXPECT_EQ(failures[1].line, 6U);
  EXPECT_TRUE(Begins(Run(console, "call check --json\nexit 1\n"), 1,
                     "a line of the output is no event: check --json"));
  const auto events = Run("echo '{\"event\":\"finding\",\"line\":3}'\nexit 1\n",
                          "call check --json\nexit 1\ncount 1 {\"event\":\"finding\"}\n"
                          "last {\"line\":3}\n");
  EXPECT_TRUE(events.empty()) << events.front().text;
}

}  // namespace
}  // namespace ordex::sessions
