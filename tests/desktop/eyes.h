// What a user sees: the controls of a window by what stands on them or by their name. All of this
// is to be asked on the toolkit's thread.
#pragma once

#include <wx/choice.h>
#include <wx/control.h>
#include <wx/dialog.h>
#include <wx/window.h>

#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace ordex::desktop_tests {

// Everything inside of `top`, hidden controls too, in the order of the tab key.
std::vector<wxWindow*> ControlsOf(const wxWindow& top);

// What stands on a control, without its mnemonic.
std::string LabelOf(const wxWindow& control);

// The control of that type that has that name or label and is seen on the screen; null where there
// is none.
template <typename Control>
Control* Seen(const wxWindow& top, const std::string& nameOrLabel) {
  for (wxWindow* window : ControlsOf(top)) {
    auto* control = dynamic_cast<Control*>(window);
    if (control == nullptr || !control->IsShownOnScreen()) continue;
    if (control->GetName().utf8_string() == nameOrLabel || LabelOf(*control) == nameOrLabel) {
      return control;
    }
  }
  return nullptr;
}

// The texts that are seen, in order; and those on the buttons.
std::vector<std::string> TextsOf(const wxWindow& top);
std::vector<std::string> ButtonsOf(const wxWindow& top);

// What the desktop draws on the labels, links and buttons that are seen, letter for letter.
std::vector<std::string> DrawnTextsOf(const wxWindow& top);

// The modal window in front; null where there is none.
wxDialog* FrontDialog();
// That, or else the main window; null where neither is seen.
wxTopLevelWindow* FrontWindow();

// The control that the keys go to; null where there is none. The toolkit's own answer leaves out a
// choice that was reached with the tab key.
wxWindow* FocusedControl();

// Whether the entries of a drop-down list are seen.
bool IsDroppedDown(const wxChoice& box);

struct Box {
  std::string title;
  std::string text;
  long icon = 0;                     // a wxICON_ flag
  std::vector<std::string> buttons;  // without their mnemonics

  bool operator==(const Box&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Box& box);

// The message box in front; nothing where there is none.
std::optional<Box> FrontBox();

}  // namespace ordex::desktop_tests
