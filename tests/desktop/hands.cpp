#include "hands.h"

#include <wx/uiaction.h>

#include <stdexcept>

#include "eyes.h"
#include "on_main.h"
#include "screen.h"
#include "ui/desktop/platform.h"

namespace ordex::desktop_tests {
namespace {

// The window manager takes its time to hand the keys from one window to the next; what is pressed
// meanwhile would go nowhere.
void AwaitWindow() {
  const bool there = WaitFor([] {
    const wxWindow* front = FrontWindow();
    return front != nullptr && TakesKeys(desktop::HandleOf(*front));
  });
  if (!there) throw std::runtime_error("no window takes what is pressed");
}

}  // namespace

void Press(int key, int modifiers) {
  AwaitWindow();
  OnMain([=] { wxUIActionSimulator().Char(key, modifiers); });
  Settle();
}

void PressIn(std::int64_t handle, int key, int modifiers) {
  if (!WaitFor([=] { return TakesKeys(handle); })) {
    throw std::runtime_error("the window does not take keys");
  }
  OnMain([=] { wxUIActionSimulator().Char(key, modifiers); });
}

void Type(const std::string& text) {
  AwaitWindow();
  OnMain([&] { wxUIActionSimulator().Text(text.c_str()); });
  Settle();
}

void ClickAt(const wxPoint& screenPoint) {
  AwaitWindow();
  OnMain([&] { wxUIActionSimulator().MouseMove(screenPoint); });
  Settle();
  OnMain([] { wxUIActionSimulator().MouseClick(); });
  Settle();
}

void DoubleClickAt(const wxPoint& screenPoint) {
  AwaitWindow();
  OnMain([&] { wxUIActionSimulator().MouseMove(screenPoint); });
  Settle();
  OnMain([] { wxUIActionSimulator().MouseDblClick(); });
  Settle();
}

void Click(const wxWindow* control) {
  ClickAt(OnMain([=] {
    if (control == nullptr || !control->IsShownOnScreen()) {
      throw std::runtime_error("the control to be clicked is not seen");
    }
    const wxRect place = control->GetScreenRect();
    return wxPoint(place.x + place.width / 2, place.y + place.height / 2);
  }));
}

}  // namespace ordex::desktop_tests
