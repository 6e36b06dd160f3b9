#include "eyes.h"

#include <commctrl.h>

#include <algorithm>
#include <memory>

#include "ui/windows/wide_text.h"
#include "waiting.h"

namespace ordex::window_tests {
namespace {

constexpr UINT kAnswerTime = 5000;  // milliseconds
constexpr WPARAM kStatusField = 1;

BOOL CALLBACK Collect(HWND window, LPARAM into) {
  reinterpret_cast<std::vector<HWND>*>(into)->push_back(window);
  return TRUE;
}

std::vector<HWND> TopWindows() {
  std::vector<HWND> windows;
  EnumWindows(Collect, reinterpret_cast<LPARAM>(&windows));
  return windows;
}

std::vector<HWND> SeenControls(HWND window) {
  std::vector<HWND> controls;
  EnumChildWindows(window, Collect, reinterpret_cast<LPARAM>(&controls));
  std::erase_if(controls, [](HWND control) { return IsWindowVisible(control) == 0; });
  return controls;
}

std::string ClassOf(HWND window) {
  std::wstring name(256, L'\0');
  const int length = GetClassNameW(window, name.data(), static_cast<int>(name.size()));
  return Utf8(std::wstring_view(name).substr(0, static_cast<std::size_t>(std::max(length, 0))));
}

// A "&" stands before the letter of the mnemonic, and is doubled to be seen.
std::string WithoutMnemonic(const std::string& text) {
  std::string plain;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] == '&' && at + 1 < text.size()) ++at;
    plain += text[at];
  }
  return plain;
}

// Room inside of another program, which fills it where a message hands over a pointer.
class RoomInside {
 public:
  RoomInside(HWND window, std::size_t bytes) : bytes_(bytes) {
    DWORD id = 0;
    GetWindowThreadProcessId(window, &id);
    process_ = OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, id);
    room_ = VirtualAllocEx(process_, nullptr, bytes, MEM_COMMIT, PAGE_READWRITE);
  }
  ~RoomInside() {
    VirtualFreeEx(process_, room_, 0, MEM_RELEASE);
    CloseHandle(process_);
  }
  RoomInside(const RoomInside&) = delete;
  RoomInside& operator=(const RoomInside&) = delete;

  LPARAM address() const { return reinterpret_cast<LPARAM>(room_); }
  std::wstring Text() const {
    std::wstring text(bytes_ / sizeof(wchar_t), L'\0');
    ReadProcessMemory(process_, room_, text.data(), bytes_, nullptr);
    return text.substr(0, text.find(L'\0'));
  }

 private:
  HANDLE process_ = nullptr;
  void* room_ = nullptr;
  std::size_t bytes_;
};

}  // namespace

std::string CaptionOf(HWND window) {
  std::wstring text(4096, L'\0');
  DWORD_PTR length = 0;
  SendMessageTimeoutW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()),
                      SMTO_ABORTIFHUNG, kAnswerTime, &length);
  return Utf8(std::wstring_view(text).substr(0, length));
}

std::vector<HWND> WindowsOf(const std::string& title) {
  std::vector<HWND> windows = TopWindows();
  std::erase_if(windows, [&](HWND window) {
    return IsWindowVisible(window) == 0 || IsWindowEnabled(window) == 0 ||
           CaptionOf(window) != title;
  });
  return windows;
}

HWND Window(const std::string& title) {
  HWND found = nullptr;
  WaitFor([&] {
    const std::vector<HWND> windows = WindowsOf(title);
    if (!windows.empty()) found = windows.front();
    return found != nullptr;
  });
  return found;
}

HWND Control(HWND window, const std::string& text) {
  for (HWND control : SeenControls(window)) {
    if (WithoutMnemonic(CaptionOf(control)) == text) return control;
  }
  return nullptr;
}

bool Shows(HWND window, const std::string& text) {
  return WaitFor([&] { return Control(window, text) != nullptr; });
}

std::string StatusText(HWND window) {
  HWND bar = FindWindowExW(window, nullptr, STATUSCLASSNAMEW, nullptr);
  if (bar == nullptr) return "no status bar";
  const RoomInside room(bar, 1024 * sizeof(wchar_t));
  DWORD_PTR ignored = 0;
  SendMessageTimeoutW(bar, SB_GETTEXTW, kStatusField, room.address(), SMTO_ABORTIFHUNG, kAnswerTime,
                      &ignored);
  return Utf8(room.Text());
}

bool ShowsStatus(HWND window, const std::string& text) {
  return WaitFor([&] { return StatusText(window) == text; });
}

bool IsInFront(HWND window) {
  return window != nullptr && WaitFor([&] { return GetForegroundWindow() == window; });
}

std::ostream& operator<<(std::ostream& out, const Box& box) {
  out << '"' << box.title << "\": \"" << box.text << '"';
  for (const std::string& button : box.buttons) out << " [" << button << ']';
  return out;
}

Box BoxOf(const std::string& title) {
  HWND window = Window(title);
  if (window == nullptr) return {"no box " + title, "", {}};
  Box box{title, "", {}};
  for (HWND control : SeenControls(window)) {
    const std::string text = CaptionOf(control);
    if (ClassOf(control) == "Button") {
      box.buttons.push_back(WithoutMnemonic(text));
    } else if (!text.empty()) {
      box.text += (box.text.empty() ? "" : " | ") + text;
    }
  }
  return box;
}

}  // namespace ordex::window_tests
