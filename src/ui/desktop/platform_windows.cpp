#include <windows.h>

#include "ui/desktop/platform.h"
#include "ui/desktop/wx_text.h"
#include "ui/windows/shell_open.h"

namespace ordex::desktop {
namespace {

// A window's handle has 32 bits that count, so that programs of either kind can exchange it.
HWND WindowOf(std::int64_t handle) {
  return reinterpret_cast<HWND>(static_cast<INT_PTR>(static_cast<LONG>(handle)));
}

}  // namespace

// The manifest says what there is to say.
void PrepareDesktop() {}

// They are so here.
void UseCompactControls() {}

// Buttons without a border are flat by themselves.
void MakeFlat(wxWindow&) {}

// The toolkit writes the ampersands of a link so that they are shown.
void SetLinkLabel(wxHyperlinkCtrl& link, const wxString& text) {
  link.SetLabel(text);
}

// A control has its size as soon as it is laid out.
void SettleLayout(wxWindow&) {}

std::int64_t HandleOf(const wxWindow& window) {
  return static_cast<LONG>(reinterpret_cast<INT_PTR>(window.GetHandle()));
}

// The user has just started this process, which therefore may put a window of another one in front,
// and may pass that right on: the boxes of the other one are to come up in front too.
void RaiseWindow(std::int64_t handle) {
  HWND window = WindowOf(handle);
  if (IsWindow(window) == 0) return;
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  AllowSetForegroundWindow(process);
  if (IsIconic(window) != 0) ShowWindowAsync(window, SW_RESTORE);
  SetForegroundWindow(GetLastActivePopup(window));
}

bool OpenLink(const wxString& link) {
  return ShellOpen(Utf8(link));
}

}  // namespace ordex::desktop
