// The console is ended by force while it writes, as by a power cut of the program. The moments are
// seeded: ORDEX_KILLS is how many there are (20), ORDEX_SEED where they begin (1).
#include <gtest/gtest.h>

#include <chrono>
#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <iostream>
#include <map>
#include <random>
#include <string>
#include <string_view>
#include <system_error>
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
using Clock = std::chrono::steady_clock;

constexpr std::string_view kReady = R"({"event":"state")";
constexpr std::string_view kEnd = R"({"event":"end")";
constexpr std::size_t kPresses = 5;

std::size_t FromEnvironment(const char* name, std::size_t usual) {
  const char* text = std::getenv(name);
  return text == nullptr ? usual : std::stoul(text);
}

// One press of the action button that writes a lot.
struct Press {
  std::string name;
  std::string page;
  Commands commands;
  std::string told;      // the title of the box that says it is done
  std::string sql = {};  // what stands in the database beforehand, besides the office
  // What is to be done with the same page once the first try has left `file` as it is.
  std::function<Commands(const fs::path& file)> again = {};
};

Commands CreateAgain(const fs::path& file) {
  const auto there = [&](const std::string& table) {
    return sessions::QueryRows(file, "SELECT count(*) FROM " + table).front() != "0";
  };
  if (there("Pratica WHERE NumeroRegGenerale = '77/2030'")) return {"click cmdAzione", "ok"};
  Commands commands = {"click cmdAzione", "yes", "select cmbParti 0 0", "select cmbParti 1 1",
                       "click cmdAzione"};
  // The person was written ahead of the case: the card asks whether it is that one.
  if (there("Anagrafica WHERE Cognome = 'ZANONATI'")) commands.emplace_back("click cmdSi");
  commands.emplace_back("ok");
  return commands;
}

const std::vector<Press>& Presses() {
  static const std::vector<Press> presses = {
      {"update",
       ProfilePage("1842/2025", "ZANONATI PIERO", 150),
       {"click cmdAzione", "ok"},
       "Pratica Praxion aggiornata"},
      {"create",
       ProfilePage("77/2030", "ZANONATI PIERO", 150),
       {"click cmdAzione", "yes", "select cmbParti 0 0", "select cmbParti 1 1", "click cmdAzione",
        "ok"},
       "Pratica Praxion creata",
       {},
       CreateAgain},
      // More than the engine's page cache holds, so that pages of an open transaction are written
      // out.
      {"history",
       HistoryPage(1500, 3000),
       {"choose 6", "click cmdAzione", "ok"},
       "Pratica Praxion aggiornata"},
      {"agenda",
       AgendaPage("633/2025", 300),
       {"click cmdAzione", "ok", "close"},
       "Operazione effettuata"},
      {"justice",
       JusticePage("633/2025", 300),
       {"click cmdAzione", "ok"},
       "Pratica Praxion aggiornata",
       "INSERT INTO EventiPraOrdex (ID_PraRel, Progressivo, Data, Descrizione) "
       "VALUES (6, 1, '01/01/2020', 'Vecchio')"}};
  return presses;
}

std::string TablesThatDiffer(const Content& one, const Content& other) {
  std::string names;
  for (const auto& [name, rows] : one) {
    const auto found = other.find(name);
    if (found == other.end() || found->second != rows) names.append(name).append(" ");
  }
  return names;
}

// A history that replaces another one gives its rows new identities.
Content WithoutIdentitiesOfEvents(Content content) {
  content.erase("sqlite_sequence");
  for (std::string& row : content.at("EventiPraOrdex")) row.erase(0, row.find('|'));
  return content;
}

class Kills : public ::testing::TestWithParam<Press> {
 protected:
  Kills() {
    workplace_.SetPage(GetParam().page);
    workplace_.Prepare(false);
    if (!GetParam().sql.empty()) sessions::RunSql(workplace_.database(), GetParam().sql);
    before_ = sessions::ContentOf(workplace_.database());
    sessions::WriteFile(Original(), sessions::ReadFile(workplace_.database()));
    Measure();
  }

  fs::path Original() const { return workplace_.folder() / "original"; }

  // A power cut leaves whatever it leaves; each try begins with the same office.
  void Restore() {
    for (const std::string_view ending : {"", "-wal", "-shm"}) {
      fs::remove(fs::path(workplace_.database()).concat(ending));
    }
    sessions::WriteFile(workplace_.database(), sessions::ReadFile(Original()));
  }

  // How long an import takes that nothing disturbs, and what it leaves.
  void Measure() {
    const auto start = Clock::now();
    ConsoleTry run(workplace_, GetParam().commands);
    ASSERT_TRUE(run.Prints(kReady));
    ready_ = Clock::now() - start;
    ASSERT_TRUE(run.Prints(kEnd));
    whole_ = Clock::now() - start;
    run.console().Finish();
    ASSERT_EQ(run.console().exitCode(), 0) << run.console().output();
    ASSERT_TRUE(run.Told(GetParam().told));
    after_ = sessions::ContentOf(workplace_.database());
    ASSERT_NE(TablesThatDiffer(before_, after_), "");
  }

  // What may be written ahead of the transaction: the person, and nothing else.
  bool IsPersonAhead(const Content& now) const {
    return GetParam().name == "create" && now.at("Anagrafica") == after_.at("Anagrafica") &&
           TablesThatDiffer(before_, now) == "Anagrafica sqlite_sequence ";
  }

  void KillOnce(std::mt19937_64& random) {
    Restore();
    // The half of them strike while the button's work is done, the others from the start on.
    const bool behind_start = random() % 2 == 0;
    const auto length = behind_start ? whole_ - ready_ : whole_;
    const Clock::duration wait(
        static_cast<Clock::rep>(std::uniform_real_distribution<double>(0, 1.05)(random) *
                                static_cast<double>(length.count())));
    SCOPED_TRACE((behind_start ? "behind the state, after " : "after ") +
                 std::to_string(wait / std::chrono::microseconds(1)) + " us");
    ConsoleTry run(workplace_, GetParam().commands);
    if (behind_start) run.Prints(kReady);
    run.console().ReadFor(wait);
    run.console().Kill();
    run.console().Finish();
    std::error_code ignored;
    const fs::path log = fs::path(workplace_.database()).concat("-wal");
    logged_ = fs::exists(log) && fs::file_size(log, ignored) > 0;
    Judge(run);
    ImportAgain();
  }

  void Judge(const ConsoleTry& run) {
    EXPECT_EQ(sessions::QueryRows(workplace_.database(), "PRAGMA integrity_check"),
              std::vector<std::string>{"ok"});
    const Content now = sessions::ContentOf(workplace_.database());
    const bool whole = now == after_;
    EXPECT_TRUE(whole || now == before_ || IsPersonAhead(now))
        << "half written: " << TablesThatDiffer(before_, now);
    if (run.Told(GetParam().told)) {
      EXPECT_TRUE(whole) << "told as done, but not there: " << TablesThatDiffer(now, after_);
    }
    ++counts_[Outcome(run, now)];
  }

  const char* Outcome(const ConsoleTry& run, const Content& now) const {
    if (run.Told(GetParam().told)) return "told and there";
    if (now == after_) return "there, not told";
    if (IsPersonAhead(now)) return "only the person";
    // Pages of a transaction that was never committed.
    return logged_ ? "half in the log" : "nothing written";
  }

  // Whatever was lost is then there, and nothing stands there twice.
  void ImportAgain() {
    const Commands commands =
        GetParam().again ? GetParam().again(workplace_.database()) : GetParam().commands;
    ConsoleTry run(workplace_, commands);
    run.console().Finish();
    EXPECT_EQ(run.console().exitCode(), 0) << run.console().output();
    const Content now = sessions::ContentOf(workplace_.database());
    EXPECT_EQ(TablesThatDiffer(WithoutIdentitiesOfEvents(after_), WithoutIdentitiesOfEvents(now)),
              "");
    EXPECT_TRUE(workplace_.Leftovers().empty()) << *workplace_.Leftovers().begin();
  }

  Workplace workplace_{ORDEX_SOURCE_DIR};
  Content before_;
  Content after_;
  Clock::duration ready_{};
  Clock::duration whole_{};
  bool logged_ = false;
  std::map<std::string, std::size_t> counts_;
};

TEST_P(Kills, LeaveAllOrNothingAndALaterImportMakesThemGood) {
  if (HasFatalFailure()) return;
  const std::size_t kills = FromEnvironment("ORDEX_KILLS", 20) / kPresses;
  ASSERT_GT(kills, 0U);
  std::mt19937_64 random(FromEnvironment("ORDEX_SEED", 1));
  for (std::size_t i = 0; i < kills; ++i) {
    SCOPED_TRACE("kill " + std::to_string(i + 1));
    KillOnce(random);
  }
  std::cout << GetParam().name << ": " << kills << " kills";
  for (const auto& [what, count] : counts_) std::cout << "; " << what << " " << count;
  std::cout << "\n";
}

INSTANTIATE_TEST_SUITE_P(Of, Kills, ::testing::ValuesIn(Presses()),
                         [](const auto& one) { return one.param.name; });

}  // namespace
}  // namespace ordex::abuse
