// A whole import through the main window, from the page on the clipboard to the last box, over a
// database whose statements can be made to fail.
#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "app/main_window.h"
#include "support/office_fixture.h"

namespace ordex::testing {

// The rows of each table, by the table's name.
using Tables = std::map<std::string, std::vector<std::string>>;

inline Tables TablesOf(Office& office) {
  Tables tables;
  for (const char* name :
       {"Pratica", "Utenti", "Anagrafica", "PraOrdex", "EventiPraOrdex", "SCADENZE"}) {
    tables[name] = office.Rows(std::string("SELECT * FROM ") + name + " ORDER BY 1");
  }
  return tables;
}

// How a statement fails, and what the connection is good for afterwards.
enum class Failing {
  kOnce,             // that statement alone
  kEndsTransaction,  // and the engine has taken the open transaction back
  kFromThereOn,      // and all that follow, as on a dead line
};

// What the user and the office saw of one import.
struct Course {
  std::vector<std::string> boxes;    // the titles of those that were shown, in order
  std::vector<std::string> reports;  // the texts of the stop boxes among them
  std::optional<EndReason> ended;
  bool transactionLeftOpen = false;
  std::vector<std::string> statements;  // what the database was asked, in order
};

struct ImportScript {
  std::string page;
  // What the user does with the window once it stands. Acts behind the end of the program do
  // nothing.
  std::function<void(MainWindow&, FakeClipboard&)> acts;
  std::deque<BoxAnswer> answers;  // then the default button
  std::function<void(MainWindow&)> onPersonCard = {};
  std::function<void(MainWindow&)> onParties = {};
  std::function<void(Connection&)> onDatabase = {};  // once it is open
};

// Runs the import in the office; `number` is the statement that fails, 0 for none.
inline Course RunImport(Office& office, const ImportScript& script, std::size_t number = 0,
                        Failing failing = Failing::kOnce) {
  TempProgramFolder folder;
  FakeMessageBoxes boxes;
  boxes.answers = script.answers;
  FakeDialogs dialogs;
  FakeDesktop desktop;
  FakeClipboard clipboard(script.page);
  FakeClock clock;
  FakeSettings settings;
  settings.values[{"Shared", "Id_Utente"}] = "7";
  RecordingProgress progress;
  RecordingDiagnostics diagnostics;
  FakeConnection* connection = nullptr;
  MainWindow window(folder.path(),
                    {boxes, dialogs, desktop, clipboard, clock, settings, diagnostics, progress,
                     [&](std::string_view) {
                       auto opened = std::make_unique<FakeConnection>(OpenSqlite(office.file()));
                       connection = opened.get();
                       if (script.onDatabase) script.onDatabase(*opened);
                       if (number != 0 && failing == Failing::kFromThereOn) {
                         opened->FailFrom(number);
                       } else if (number != 0) {
                         FakeFailure failure;
                         failure.endsTransaction = failing == Failing::kEndsTransaction;
                         opened->FailAt(number, failure);
                       }
                       return opened;
                     }});
  // Between two acts of the user no transaction may hold the office's database.
  bool left_open = false;
  const auto look = [&] {
    left_open = left_open || (failing != Failing::kFromThereOn && connection->InTransaction());
  };
  boxes.onShow = [&](const BoxText&) { look(); };
  dialogs.onPersonCard = [&] {
    look();
    if (script.onPersonCard) script.onPersonCard(window);
  };
  dialogs.onParties = [&] {
    if (script.onParties) script.onParties(window);
  };
  window.Start("4711");
  if (script.acts) script.acts(window, clipboard);
  look();

  Course course;
  for (const BoxText& box : boxes.shown) {
    course.boxes.push_back(box.title);
    if (box.icon == BoxIcon::kStop) course.reports.push_back(box.text);
  }
  course.ended = window.ended();
  course.transactionLeftOpen = left_open;
  course.statements = connection->statements();
  return course;
}

}  // namespace ordex::testing
