// What a user does at the keyboard and with the mouse. The program gets it as real input of the
// display, and does not know who acts.
#pragma once

#include <wx/gdicmn.h>
#include <wx/window.h>

#include <cstdint>
#include <string>

namespace ordex::desktop_tests {

// `key`: a WXK_ code or a letter; `modifiers`: wxMOD_ flags.
void Press(int key, int modifiers = wxMOD_NONE);
// The same in a window of another process, once the keys go there.
void PressIn(std::int64_t handle, int key, int modifiers = wxMOD_NONE);
// Letters without accents, digits, blanks and the signs of the plain keyboard.
void Type(const std::string& text);
void ClickAt(const wxPoint& screenPoint);
void DoubleClickAt(const wxPoint& screenPoint);
// Into the middle of a control; it must be seen on the screen.
void Click(const wxWindow* control);

}  // namespace ordex::desktop_tests
