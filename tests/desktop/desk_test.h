// The real window on an office in a temporary folder, with the sample database and settings, and a
// page on the clipboard.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/ini_settings.h"
#include "eyes.h"
#include "hands.h"
#include "on_main.h"
#include "ui/common/clocks.h"
#include "ui/desktop/desk.h"
#include "workplace.h"

namespace ordex::desktop_tests {

class DeskTest : public ::testing::Test {
 protected:
  DeskTest();
  void TearDown() override;

  // Puts a sample page on the clipboard and starts the program; returns once its window is there
  // and takes keys, or once a box is up or the program over.
  void Open(const std::string& sample);
  void OpenText(const std::string& page);
  // What a second start does, with that sample page on the clipboard.
  void HandOver(const std::string& sample);

  void PutOnClipboard(const std::string& text);
  std::string Clipboard();

  // Asks the state of the window.
  template <typename Ask>
  auto State(Ask ask) {
    return OnMain([this, ask] { return ask(desk_->window().state()); });
  }
  // Asks the window itself.
  template <typename Ask>
  auto Frame(Ask ask) {
    return OnMain([this, ask] { return ask(*desk_->frame()); });
  }
  std::optional<EndReason> Ended();
  // True once the program has ended so.
  ::testing::AssertionResult EndsAs(EndReason reason);

  // A control that is seen in the window, by name or label; null where there is none.
  template <typename Control>
  Control* Find(const std::string& nameOrLabel) {
    return OnMain([this, nameOrLabel]() -> Control* {
      return desk_->frame() == nullptr ? nullptr : Seen<Control>(*desk_->frame(), nameOrLabel);
    });
  }
  // True once the keys go to that control.
  ::testing::AssertionResult HasFocus(const wxWindow* control);

  // The message box that comes up; fails the test where none does.
  Box NextBox();
  // The dialog of that name that comes up; null, and fails the test, where none does.
  wxDialog* NextDialog(const std::string& name);
  // True once no box or dialog is up.
  ::testing::AssertionResult NoBox();

  std::string Title();
  wxRect Place();  // of the window on the screen, in pixels of which 96 make an inch
  int Height();
  std::string StatusText();
  // The key of the picture that is seen in the status bar, as its pixels tell; empty for none.
  std::string StatusPicture();
  // The caption of the action button, and of its picture: 0 none, 1 update, 4 create.
  std::string Action();
  Symbol ActionSymbol();
  // A row of the list of that name: its cells with " | " between them; counted from 0.
  std::string Row(const std::string& list, long row);
  std::vector<std::string> RowsOf(const std::string& list);

  // What the controls show differently from the state; nothing where all is well.
  std::vector<std::string> NotAsState();

  std::vector<std::string> Rows(const std::string& select) const;

  sessions::Workplace office_;

 private:
  IniSettings settings_;
  FixedClock clock_;
  std::unique_ptr<desktop::Desk> desk_;
  bool frameGone_ = true;
};

// A page of samples/, and the text of any file of the source tree.
std::string Sample(const std::string& name);
std::string SourceText(const std::string& name);

// The boxes of the program, as the user must see them.
Box UpdatedBox();
Box CreatedBox();
Box NoCaseBox();
Box PenalBox();
Box RefusedBox();

}  // namespace ordex::desktop_tests
