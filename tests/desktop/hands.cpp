#include "hands.h"

#include <wx/uiaction.h>

#include <stdexcept>

#include "on_main.h"

namespace ordex::desktop_tests {

void Press(int key, int modifiers) {
  OnMain([=] { wxUIActionSimulator().Char(key, modifiers); });
  Settle();
}

void Type(const std::string& text) {
  OnMain([&] { wxUIActionSimulator().Text(text.c_str()); });
  Settle();
}

void ClickAt(const wxPoint& screenPoint) {
  OnMain([&] { wxUIActionSimulator().MouseMove(screenPoint); });
  Settle();
  OnMain([] { wxUIActionSimulator().MouseClick(); });
  Settle();
}

void DoubleClickAt(const wxPoint& screenPoint) {
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
