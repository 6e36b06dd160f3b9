// The window with the desktop around it, wired up: what the program opens, and what its tests act
// on.
#pragma once

#include <filesystem>
#include <functional>

#include "app/main_window.h"
#include "ui/desktop/desktop_ports.h"
#include "ui/desktop/main_frame.h"
#include "ui/desktop/system_clipboard.h"

namespace ordex::desktop {

class Desk {
 public:
  // Makes the frame, not yet shown. `onEnd` is called once the program is over. `settings` and
  // `clock` live longer than the desk, and the desk longer than the frame, which the toolkit
  // deletes some time after Close.
  Desk(const std::filesystem::path& programFolder, Settings& settings, Clock& clock,
       std::function<void(EndReason)> onEnd);
  ~Desk() = default;
  Desk(const Desk&) = delete;
  Desk& operator=(const Desk&) = delete;

  // Loads the page on the clipboard and shows the window, unless that ends the program.
  void Start();
  // Has the toolkit delete the frame.
  void Close();

  const MainWindow& window() const { return window_; }
  // Null once closed.
  MainFrame* frame() const { return frame_; }

 private:
  SystemClipboard clipboard_;
  DesktopPorts ports_;
  MainWindow window_;
  MainFrame* frame_;  // owned by the toolkit
};

}  // namespace ordex::desktop
