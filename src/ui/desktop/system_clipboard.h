// The clipboard of the desktop.
#pragma once

#include "state/ports.h"

namespace ordex::desktop {

class SystemClipboard : public Clipboard {
 public:
  // Another program may hold the clipboard for a moment, as remote desktops do: it is tried for
  // half a second. Error: clipboard busy.
  std::string GetText() const override;
  void Clear() override;
};

}  // namespace ordex::desktop
