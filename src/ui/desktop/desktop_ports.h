// Boxes, dialogs and the rest of the desktop, as the main window asks for them.
#pragma once

#include <wx/utils.h>

#include <chrono>
#include <memory>
#include <optional>
#include <string>

#include "app/main_window.h"
#include "ui/desktop/main_frame.h"
#include "ui/desktop/parties_form_dialog.h"

namespace ordex::desktop {

class DesktopPorts : public MessageBoxes,
                     public Dialogs,
                     public Desktop,
                     public Diagnostics,
                     public Progress {
 public:
  // The window and its frame, once they are there: they are made with these ports.
  void Attach(MainWindow& window, MainFrame& frame);

  BoxAnswer Show(const BoxText& box) override;
  void ShowPersonCard() override;
  void ShowParties() override;

  void Beep() override { wxBell(); }
  void SetFocus(std::string_view control) override;
  void SetMousePointer(MousePointer pointer) override;
  bool Open(const std::string& link) override;
  ScreenSize Screen() const override;

  // Nobody listens on the desktop: an error that ends the program comes as a box of its own.
  void DebugszSql(std::string_view) override {}
  void Trapped(std::string_view, const RunTimeError&) override {}
  void Failed(const RunTimeError&, std::optional<std::size_t>) override {}

  void Advance(std::size_t done, std::size_t total) override;

 private:
  wxWindow* Parent() const;
  void BeforeWaiting();

  MainWindow* window_ = nullptr;
  MainFrame* frame_ = nullptr;
  PartiesFormDialog* parties_ = nullptr;
  std::string focus_;  // asked for while no window was there to take it
  std::unique_ptr<wxBusyCursor> busy_;
  std::chrono::steady_clock::time_point lastAdvance_;
};

}  // namespace ordex::desktop
