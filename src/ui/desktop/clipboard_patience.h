// Opening the clipboard, which another program may hold for a moment: remote desktops do so
// whenever it changes.
#pragma once

#include <wx/utils.h>

#include <functional>

#include "base/error.h"

namespace ordex::desktop {

// Tries for half a second. Error: the clipboard stays busy.
inline void OpenPatiently(const std::function<bool()>& open) {
  constexpr int kTries = 11;
  constexpr int kPause = 50;  // milliseconds
  for (int tried = 1; !open(); ++tried) {
    if (tried == kTries) {
      throw MakeError(ErrorNumber::kClipboardBusy,
                      "un altro programma tiene occupati gli appunti. Copiare di nuovo la pagina "
                      "e riavviare Ordex.");
    }
    wxMilliSleep(kPause);
  }
}

}  // namespace ordex::desktop
