// The main window: owns the state of a run and carries out what the user does.
//
// A front end calls Start, then passes the user's acts on, one call each, and draws `state()` after
// each. A message box or dialog that comes up meanwhile is answered inside the call, through the
// ports. Once `ended()` has a value the program is over.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "cases/action.h"
#include "cases/case_header.h"
#include "parse/import.h"
#include "state/ports.h"
#include "state/window.h"
#include "store/db/db_record.h"
#include "store/parties_dialog.h"
#include "store/person_dialog.h"

namespace ordex {

enum class EndReason {
  kClosed,   // the window was closed
  kDone,     // a case was created or updated
  kFailed,   // an update failed without a word
  kRefused,  // the page is of no known kind
  kError,    // an error that nothing traps
};

// The world around the window.
struct World {
  MessageBoxes& boxes;
  Dialogs& dialogs;
  Desktop& desktop;
  Clipboard& clipboard;
  Clock& clock;
  Settings& settings;
  Diagnostics& diagnostics;
  Progress& progress;
  // Opens the database that an OLE DB connection string names.
  std::function<std::unique_ptr<Connection>(std::string_view connectionString)> openDatabase;
};

// The OLE DB connection string that the settings give.
std::string ConnectionStringOf(const Settings& settings);

class MainWindow {
 public:
  // The mapping files stand in `programFolder`, and the page file is written there.
  MainWindow(std::filesystem::path programFolder, const World& world);

  const Window& state() const { return window_; }
  const std::optional<EndReason>& ended() const { return ended_; }
  PersonDialog& frmInfoAnagrafica() { return frmInfoAnagrafica_; }
  PartiesDialog& dlgParti() { return dlgParti_; }

  // Creates and loads the window of the first instance. `handle` is what the desktop calls it.
  void Start(std::string_view handle);
  // A second start has signalled that a further page lies on the clipboard. Waits until no handler,
  // box or dialog is active.
  void Poke();
  void Close();

  void PressAzione();
  void PressAnnulla();
  void PressPulisci();
  void PressNo();
  void ToggleDettagli();

  // Entry `place`, counted from 0, or ComboBox::kNoChoice.
  void SelectParty(std::size_t box, int place);
  void SelectUtenteCont(int place);

  // The case-header control. ChooseCase returns false where there is no such case.
  void FindCases(std::string_view text);
  bool ChooseCase(std::int32_t idPra);
  // Returns false where there is no such person.
  bool ClickPerson(std::int32_t ID_Ana);

  // The list that is showing; columns and rows as shown, counted from 1.
  void ClickColumn(int column);
  void ClickRow(std::size_t place);
  // The mouse has moved over the review list.
  void MoveOverReviewList();

 private:
  void Run(const std::function<void()>& handler);
  void End(EndReason reason);
  void RunPendingPokes();

  void Form_Initialize(std::string_view handle);
  void Form_Load();
  void Form_Unload();
  void lblLinkDDE_Change();

  void SetDb();
  void GestUtente();
  void ImportPage();
  void PrepareForKind();
  void FindCaseOfPage();
  void TakeFurtherProfile();
  void TakeFurtherHistory();
  void cmdAzione_Click();
  bool ctlTestata1_Event10(std::int32_t ID_Ana);

  std::filesystem::path programFolder_;
  World world_;
  Window window_;
  CaseHeaderControl ctlTestata1_{window_.choice.ctlTestata1};
  PersonDialog frmInfoAnagrafica_;
  PartiesDialog dlgParti_;
  std::unique_ptr<Connection> connection_;
  std::optional<Database> database_;
  std::optional<EndReason> ended_;
  int running_ = 0;  // handlers on the way, one inside the other
  int pendingPokes_ = 0;
};

}  // namespace ordex
