// What a user, or another program, does.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace ordex::window_tests {

// --- the clipboard ----------------------------------------------------------------------------

void Copy(const std::string& text);
// Empty where no text stands there.
std::string Clipboard();

// The clipboard is held by this program, for as long as this object lives.
class HeldClipboard {
 public:
  HeldClipboard();
  ~HeldClipboard();
  HeldClipboard(const HeldClipboard&) = delete;
  HeldClipboard& operator=(const HeldClipboard&) = delete;

 private:
  // Whoever holds the clipboard without a window of its own keeps nobody out.
  HWND holder_;
};

// --- keys and the mouse -----------------------------------------------------------------------

// A key, as VK_RETURN, once the window has the keyboard; false where it never gets it.
bool Press(HWND window, WORD key);
// Into the middle of the control of that text; false where there is none.
bool Click(HWND window, const std::string& control);

// --- the link between programs ----------------------------------------------------------------

enum class Told { kNoConversation, kRefused, kTaken };

struct Address {
  std::string_view service = "Ordex";
  std::string_view topic = "MAIN";
  std::string_view item = "lblLinkDDE";
};

// Pokes a text as `format`, CF_TEXT or CF_UNICODETEXT.
Told Poke(const Address& address, const std::string& text, UINT format);
// As a label with an automatic link does: asks to be told of changes, then pokes.
Told LinkAndPoke(const Address& address, const std::string& text);

}  // namespace ordex::window_tests
