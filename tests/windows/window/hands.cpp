#include "hands.h"

#include <array>

#include "eyes.h"

namespace ordex::window_tests {
namespace {

INPUT KeyInput(WORD key, DWORD flags) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key;
  input.ki.dwFlags = flags;
  return input;
}

INPUT MouseInput(DWORD flags) {
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = flags;
  return input;
}

bool Send(std::array<INPUT, 2> inputs) {
  return SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT)) == inputs.size();
}

}  // namespace

bool Press(HWND window, WORD key) {
  return IsInFront(window) && Send({KeyInput(key, 0), KeyInput(key, KEYEVENTF_KEYUP)});
}

bool Click(HWND window, const std::string& control) {
  HWND found = Control(window, control);
  RECT place{};
  if (found == nullptr || GetWindowRect(found, &place) == 0) return false;
  SetCursorPos((place.left + place.right) / 2, (place.top + place.bottom) / 2);
  return Send({MouseInput(MOUSEEVENTF_LEFTDOWN), MouseInput(MOUSEEVENTF_LEFTUP)});
}

}  // namespace ordex::window_tests
