// With the system's own calls: the toolkit's way to the clipboard does not tell one that another
// program holds from one without a text, and the page on it would be refused.
#include <windows.h>

#include <string_view>

#include "ui/desktop/clipboard_patience.h"
#include "ui/desktop/system_clipboard.h"
#include "ui/windows/wide_text.h"

namespace ordex::desktop {
namespace {

// The clipboard, open for as long as this object lives.
class HeldClipboard {
 public:
  HeldClipboard() {
    OpenPatiently([] { return OpenClipboard(nullptr) != 0; });
  }
  ~HeldClipboard() { CloseClipboard(); }
  HeldClipboard(const HeldClipboard&) = delete;
  HeldClipboard& operator=(const HeldClipboard&) = delete;
};

// The memory of a text, locked for as long as this object lives.
class LockedText {
 public:
  explicit LockedText(HANDLE memory) : memory_(memory), text_(GlobalLock(memory)) {}
  ~LockedText() { GlobalUnlock(memory_); }
  LockedText(const LockedText&) = delete;
  LockedText& operator=(const LockedText&) = delete;

  // Up to the zero at its end, where there is one.
  std::wstring_view text() const {
    if (text_ == nullptr) return {};
    const std::wstring_view whole(static_cast<const wchar_t*>(text_),
                                  GlobalSize(memory_) / sizeof(wchar_t));
    return whole.substr(0, whole.find(L'\0'));
  }

 private:
  HANDLE memory_;
  const void* text_;
};

}  // namespace

std::string SystemClipboard::GetText() const {
  const HeldClipboard held;
  // Without a text there, as with a picture, the page is as unknown as an empty one.
  HANDLE memory = GetClipboardData(CF_UNICODETEXT);
  return memory == nullptr ? std::string() : Utf8(LockedText(memory).text());
}

void SystemClipboard::Clear() {
  const HeldClipboard held;
  EmptyClipboard();
}

}  // namespace ordex::desktop
