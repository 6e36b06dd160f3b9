// Texts and sizes between the program, UTF-8 and twips, and the toolkit.
#pragma once

#include <wx/string.h>
#include <wx/window.h>

#include <string>
#include <string_view>

namespace ordex::desktop {

// A text that is no valid UTF-8, as a foreign tool may have left one in the database, is read byte
// by byte rather than shown as nothing.
inline wxString Wx(std::string_view text) {
  wxString converted = wxString::FromUTF8(text.data(), text.size());
  if (converted.empty() && !text.empty()) {
    converted = wxString(text.data(), wxConvISO8859_1, text.size());
  }
  return converted;
}

inline std::string Utf8(const wxString& text) {
  return text.utf8_string();
}

// A pixel at 96 dots per inch; the toolkit scales from there.
inline constexpr int kTwipsPerPixel = 15;

inline int Pixels(const wxWindow& window, int twips) {
  return window.FromDIP(twips / kTwipsPerPixel);
}

inline int Twips(const wxWindow& window, int pixels) {
  return window.ToDIP(pixels) * kTwipsPerPixel;
}

}  // namespace ordex::desktop
