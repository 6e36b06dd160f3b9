// The program: takes part in the test for a single instance, then opens the window or hands over.
#pragma once

#include <wx/app.h>

#include <memory>
#include <optional>

#include "app/main_window.h"
#include "ui/desktop/desktop_ports.h"
#include "ui/desktop/instance_link.h"
#include "ui/desktop/instance_lock.h"
#include "ui/desktop/main_frame.h"
#include "ui/desktop/options.h"
#include "ui/desktop/system_clipboard.h"

namespace ordex::desktop {

class OrdexApp : public wxApp {
 public:
  bool Initialize(int& argumentCount, wxChar** arguments) override;
  bool OnInit() override;
  int OnRun() override;
  int OnExit() override;
  bool OnExceptionInMainLoop() override;

 private:
  bool TakeOptions();
  void OpenWindow();
  // True where this is the first instance; a second start has signalled and raised the first.
  bool ClaimOrHandOver();
  void ShowOrdex() const;
  void Finish(int exitCode);

  Options options_;
  int exitCode_ = 0;
  bool over_ = false;
  InstanceLock lock_;
  std::unique_ptr<LinkServer> server_;
  std::unique_ptr<Settings> settings_;
  std::unique_ptr<Clock> clock_;
  SystemClipboard clipboard_;
  DesktopPorts ports_;
  std::unique_ptr<MainWindow> window_;
  MainFrame* frame_ = nullptr;  // owned by the toolkit
};

}  // namespace ordex::desktop
