#include <cstring>
#include <stdexcept>

#include "hands.h"
#include "ui/windows/wide_text.h"
#include "waiting.h"

namespace ordex::window_tests {

HeldClipboard::HeldClipboard()
    : holder_(CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr,
                              nullptr)) {
  if (!WaitFor([this] { return OpenClipboard(holder_) != 0; })) {
    throw std::runtime_error("the clipboard cannot be opened");
  }
}

HeldClipboard::~HeldClipboard() {
  CloseClipboard();
  DestroyWindow(holder_);
}

void Copy(const std::string& text) {
  const std::wstring wide = Wide(text);
  const std::size_t bytes = (wide.size() + 1) * sizeof(wchar_t);
  HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
  std::memcpy(GlobalLock(memory), wide.c_str(), bytes);
  GlobalUnlock(memory);
  const HeldClipboard held;
  EmptyClipboard();
  if (SetClipboardData(CF_UNICODETEXT, memory) == nullptr) {
    throw std::runtime_error("nothing can be put on the clipboard");
  }
}

std::string Clipboard() {
  const HeldClipboard held;
  HANDLE memory = GetClipboardData(CF_UNICODETEXT);
  if (memory == nullptr) return {};
  const std::string text = Utf8(static_cast<const wchar_t*>(GlobalLock(memory)));
  GlobalUnlock(memory);
  return text;
}

}  // namespace ordex::window_tests
