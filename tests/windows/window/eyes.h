// What a user sees of another program's windows.
#pragma once

#include <windows.h>

#include <ostream>
#include <string>
#include <vector>

namespace ordex::window_tests {

// Of a window or control, as it is asked for with a message.
std::string CaptionOf(HWND window);

// A window of that title that is seen and takes the user's acts; waits for it. Null where none
// comes.
HWND Window(const std::string& title);
// Those that are there now.
std::vector<HWND> WindowsOf(const std::string& title);

// The control that is seen and has that text; null where there is none.
HWND Control(HWND window, const std::string& text);
// True once the control is there.
bool Shows(HWND window, const std::string& text);

// The texts of the status bar behind its picture.
std::string StatusText(HWND window);
bool ShowsStatus(HWND window, const std::string& text);

// True once that window has the keyboard.
bool IsInFront(HWND window);

struct Box {
  std::string title;
  std::string text;
  std::vector<std::string> buttons;  // without their mnemonics

  bool operator==(const Box&) const = default;
};
std::ostream& operator<<(std::ostream& out, const Box& box);

// The box of that title; waits for it.
Box BoxOf(const std::string& title);

}  // namespace ordex::window_tests
