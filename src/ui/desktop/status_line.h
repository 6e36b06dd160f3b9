// The status bar: the picture and the text of the program's one message line, and a gauge while
// long work is on its way.
#pragma once

#include <wx/gauge.h>
#include <wx/statbmp.h>
#include <wx/statusbr.h>

#include <cstddef>
#include <string>

#include "state/controls.h"

namespace ordex::desktop {

class StatusLine : public wxStatusBar {
 public:
  explicit StatusLine(wxWindow* parent);

  void Draw(const StatusBar& status);
  void ShowProgress(std::size_t done, std::size_t total);
  void HideProgress();

  const std::string& Picture() const { return picture_; }

 private:
  void Arrange();

  std::string picture_;
  wxStaticBitmap* image_;
  wxGauge* gauge_;
};

}  // namespace ordex::desktop
