// The program: takes part in the test for a single instance, then opens the window or hands over.
#pragma once

#include <wx/app.h>

#include <memory>

#include "state/ports.h"
#include "ui/common/exit_code.h"
#include "ui/desktop/desk.h"
#include "ui/desktop/instance_link.h"
#include "ui/desktop/instance_lock.h"
#include "ui/desktop/options.h"

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
  void Finish(ExitCode exitCode);

  Options options_;
  ExitCode exitCode_ = ExitCode::kWell;
  bool over_ = false;
  InstanceLock lock_;
  std::unique_ptr<LinkServer> server_;
  std::unique_ptr<Settings> settings_;
  std::unique_ptr<Clock> clock_;
  std::unique_ptr<Desk> desk_;
};

}  // namespace ordex::desktop
