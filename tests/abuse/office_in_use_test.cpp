// What other programs do to the database while the console works with it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "abuse/big_pages.h"
#include "abuse/console_try.h"
#include "database.h"
#include "text_files.h"
#include "workplace.h"

namespace ordex::abuse {
namespace {

namespace fs = std::filesystem;
using sessions::Content;
using sessions::Workplace;
using ::testing::HasSubstr;

constexpr std::string_view kReady = R"({"event":"state")";
constexpr const char* kCreated = "Pratica Praxion creata";
constexpr const char* kMoved = "il file del database è stato spostato, eliminato o sostituito";

// The press of each kind of page, and what it shows where the database fails. Boxes behind the last
// command are answered by the console itself.
struct Press {
  std::string name;
  std::string page;
  Commands commands;
  std::string told;  // the title of the box that says it is done
  int exitCode = 0;  // where the database fails in the middle
};

std::vector<Press> Presses() {
  const std::string profile = ProfilePage("1842/2025", "ZANONATI PIERO", 150);
  return {
      {"update", profile, {"click cmdAzione"}, "Pratica Praxion aggiornata", 5},
      {"create",
       ProfilePage("77/2030", "ZANONATI PIERO", 150),
       {"click cmdAzione", "yes", "select cmbParti 0 0", "select cmbParti 1 1", "click cmdAzione"},
       kCreated,
       0},
      {"history",
       HistoryPage(300, 300),
       {"choose 6", "click cmdAzione"},
       "Pratica Praxion aggiornata",
       5},
      {"agenda", AgendaPage("633/2025", 300), {"click cmdAzione"}, "Operazione effettuata", 4}};
}

class OfficeInUse : public ::testing::TestWithParam<Press> {
 protected:
  OfficeInUse() {
    workplace_.SetPage(GetParam().page);
    workplace_.Prepare(false);
    before_ = sessions::ContentOf(workplace_.database());
  }

  void RemoveDatabase() const {
    for (const std::string_view ending : {"", "-wal", "-shm"}) {
      fs::remove(fs::path(workplace_.database()).concat(ending));
    }
  }

  // The routine that writes a case is silent by rule; the search of the person and the agenda are
  // not.
  static void ExpectTold(const ConsoleTry& run, const std::string& text) {
    EXPECT_THAT(run.console().output(), HasSubstr(text));
  }

  Workplace workplace_{ORDEX_SOURCE_DIR};
  Content before_;
};

class DatabaseRemoved : public OfficeInUse {};

// Else the engine would write into a file that is gone, and the user be told that all is done.
TEST_P(DatabaseRemoved, InTheMiddleIsNeverToldAsDone) {
  ConsoleTry run(workplace_, {});
  ASSERT_TRUE(run.Prints(kReady));
  RemoveDatabase();
  for (const std::string& command : GetParam().commands) run.Command(command);
  run.console().Finish();
  EXPECT_FALSE(run.Told(GetParam().told)) << run.console().output();
  if (GetParam().exitCode != 5) ExpectTold(run, kMoved);
  EXPECT_EQ(run.console().exitCode(), GetParam().exitCode)
      << run.console().output() << run.console().errors();
  EXPECT_FALSE(fs::exists(workplace_.database()));
}

// A copy is put back in the place of the file: what was read of the old one must not go into it.
TEST_P(DatabaseRemoved, AndReplacedByACopyLeavesTheCopyAsItIs) {
  const std::string copy = sessions::ReadFile(workplace_.database());
  ConsoleTry run(workplace_, {});
  ASSERT_TRUE(run.Prints(kReady));
  RemoveDatabase();
  sessions::WriteFile(workplace_.database(), copy);
  for (const std::string& command : GetParam().commands) run.Command(command);
  run.console().Finish();
  EXPECT_FALSE(run.Told(GetParam().told)) << run.console().output();
  if (GetParam().exitCode != 5) ExpectTold(run, kMoved);
  EXPECT_EQ(sessions::ContentOf(workplace_.database()), before_);
}

class NoRoomForTheLog : public OfficeInUse {};

// A limit on the size of files stands in for the full disk: the pages that the press adds do not
// fit.
TEST_P(NoRoomForTheLog, LeavesTheOfficeAsItWasAndIsMadeGoodLater) {
  // The engine needs 32 KiB for its shared memory, and the page file must fit.
  const std::size_t room = std::max<std::size_t>(34'000, GetParam().page.size() + 4096);
  {
    ConsoleTry run(workplace_, GetParam().commands, room);
    run.console().Finish();
    EXPECT_FALSE(run.Told(GetParam().told)) << run.console().output();
    if (GetParam().name == "agenda") ExpectTold(run, "controllare il disco");
    EXPECT_EQ(run.console().exitCode(), GetParam().exitCode)
        << run.console().output() << run.console().errors();
  }
  EXPECT_EQ(sessions::QueryRows(workplace_.database(), "PRAGMA integrity_check"),
            std::vector<std::string>{"ok"});
  Content after = sessions::ContentOf(workplace_.database());
  // The person of a new case is written ahead of it.
  const std::size_t persons = after["Anagrafica"].size() - before_["Anagrafica"].size();
  EXPECT_LE(persons, GetParam().name == "create" ? 1U : 0U);
  for (const char* table : {"Pratica", "PraOrdex", "SCADENZE", "EventiPraOrdex"}) {
    EXPECT_EQ(after[table], before_[table]) << table;
  }
  Commands again = GetParam().commands;
  if (persons == 1) again.emplace_back("click cmdSi");
  ConsoleTry run(workplace_, again);
  run.console().Finish();
  EXPECT_TRUE(run.Told(GetParam().told)) << run.console().output();
}

constexpr auto kName = [](const auto& one) { return one.param.name; };
INSTANTIATE_TEST_SUITE_P(Of, DatabaseRemoved, ::testing::ValuesIn(Presses()), kName);
INSTANTIATE_TEST_SUITE_P(Of, NoRoomForTheLog, ::testing::ValuesIn(Presses()), kName);

// --- many at once -------------------------------------------------------------------------------

// Each has a program folder and a clipboard of its own; the database is one.
struct Desk {
  Workplace workplace{ORDEX_SOURCE_DIR};
  std::optional<ConsoleTry> run;
};

std::string NumberOf(std::size_t desk) {
  return std::to_string(1000 + desk) + "/2030";
}

// "ZANONATI ABB", "ZANONATI ACC": names of letters only.
std::string ClientOf(std::size_t desk) {
  const char letter = static_cast<char>('B' + desk);
  return std::string("ZANONATI A") + letter + letter;
}

TEST(TwentyConsoles, CreateTwentyCasesAtOnceInOneDatabase) {
  constexpr std::size_t kDesks = 20;
  const Workplace office(ORDEX_SOURCE_DIR);
  std::vector<std::unique_ptr<Desk>> desks;
  for (std::size_t i = 0; i < kDesks; ++i) {
    auto desk = std::make_unique<Desk>();
    desk->workplace.WriteSettings("[startup]\nSecurity=;\nServer=Data Source=file:" +
                                  office.database().string() + "\n[Shared]\nId_Utente=7\n");
    desk->workplace.SetPage(ProfilePage(NumberOf(i), ClientOf(i), 20));
    desk->workplace.Prepare(false);
    desk->run.emplace(desk->workplace, Commands{});
    desks.push_back(std::move(desk));
  }
  for (const auto& desk : desks) ASSERT_TRUE(desk->run->Prints(kReady));
  for (const auto& desk : desks) {
    for (const char* command : {"click cmdAzione", "yes", "select cmbParti 0 0",
                                "select cmbParti 1 1", "click cmdAzione"}) {
      desk->run->Command(command);
    }
  }
  std::size_t created = 0;
  for (std::size_t i = 0; i < kDesks; ++i) {
    ConsoleTry& run = *desks[i]->run;
    run.console().Finish();
    const std::string rows = sessions::QueryRows(
        office.database(),
        "SELECT count(*) FROM Pratica WHERE NumeroRegGenerale = '" + NumberOf(i) + "'")[0];
    if (run.Told(kCreated)) {
      ++created;
      EXPECT_EQ(rows, "1") << NumberOf(i);
    } else {
      EXPECT_EQ(rows, "0") << NumberOf(i);
      EXPECT_THAT(run.console().output(),
                  HasSubstr("il database è bloccato da un altro programma"));
    }
  }
  // The office has positions up to 10; each new case takes the next one.
  const std::string cases = std::to_string(created);
  EXPECT_EQ(
      sessions::QueryRows(office.database(),
                          "SELECT count(*), count(DISTINCT NumeroRegGenerale), "
                          "count(DISTINCT NumPos), min(NumPos), max(NumPos), "
                          "sum(Posizione = NumPos) FROM Pratica WHERE ID_Pra > 10")[0],
      cases + "|" + cases + "|" + cases + "|11|" + std::to_string(10 + created) + "|" + cases);
  // Each with its deadlines and its hearing, and no person twice.
  EXPECT_EQ(sessions::QueryRows(office.database(),
                                "SELECT count(*), count(DISTINCT Codice_Pra) FROM SCADENZE")[0],
            std::to_string(created * 21) + "|" + cases);
  EXPECT_EQ(sessions::QueryRows(office.database(),
                                "SELECT count(*) FROM (SELECT 1 FROM Anagrafica WHERE Cognome = "
                                "'ZANONATI' GROUP BY Nome HAVING count(*) > 1)")[0],
            "0");
  EXPECT_GT(created, 0U);
  std::cout << created << " of " << kDesks << " cases created\n";
}

}  // namespace
}  // namespace ordex::abuse
