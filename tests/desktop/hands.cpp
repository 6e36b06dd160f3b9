#include "hands.h"

#include <X11/Xlib.h>
#include <wx/uiaction.h>

#include <memory>
#include <stdexcept>

#include "eyes.h"
#include "on_main.h"
#include "ui/desktop/platform.h"

namespace ordex::desktop_tests {
namespace {

using Connection = std::unique_ptr<Display, int (*)(Display*)>;

Window ParentOf(Display* display, Window window) {
  Window root = None;
  Window parent = None;
  Window* children = nullptr;
  unsigned int count = 0;
  if (XQueryTree(display, window, &root, &parent, &children, &count) == 0) return None;
  if (children != nullptr) XFree(children);
  return parent;
}

// Whether the display hands the keys to that window or one inside of it.
bool TakesKeys(const wxWindow& window) {
  const Connection display(XOpenDisplay(nullptr), XCloseDisplay);
  if (display == nullptr) return false;
  const auto wanted = static_cast<Window>(desktop::HandleOf(window));
  Window focus = None;
  int revert = 0;
  XGetInputFocus(display.get(), &focus, &revert);
  while (focus != None && focus != PointerRoot && focus != wanted) {
    focus = ParentOf(display.get(), focus);
  }
  return focus == wanted;
}

// The window manager takes its time to hand the keys from one window to the next; what is pressed
// meanwhile would go nowhere.
void AwaitWindow() {
  const bool there = WaitFor([] {
    const wxWindow* front = FrontWindow();
    return front != nullptr && TakesKeys(*front);
  });
  if (!there) throw std::runtime_error("no window takes what is pressed");
}

}  // namespace

void Press(int key, int modifiers) {
  AwaitWindow();
  OnMain([=] { wxUIActionSimulator().Char(key, modifiers); });
  Settle();
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
