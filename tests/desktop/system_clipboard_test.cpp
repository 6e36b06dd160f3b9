// What is read of the texts that other programs put on the clipboard.
#include "ui/desktop/system_clipboard.h"

#include <gtest/gtest.h>
#include <wx/clipbrd.h>

#include <string>
#include <string_view>

#include "on_main.h"

namespace ordex::desktop_tests {
namespace {

// Those bytes as a program offers them that says they are UTF-8.
std::string ReadBack(std::string_view bytes) {
  return OnMain([bytes] {
    auto* text = new wxCustomDataObject(wxDataFormat(wxDF_UNICODETEXT));
    text->SetData(bytes.size(), bytes.data());
    wxTheClipboard->Open();
    wxTheClipboard->SetData(text);
    wxTheClipboard->Close();
    return desktop::SystemClipboard().GetText();
  });
}

TEST(SystemClipboardTest, LettersOfAnyAlphabetAreReadAsTheyAre) {
  EXPECT_EQ(ReadBack("È già l'udienza: € 5,00\r\nΩ"), "È già l'udienza: € 5,00\r\nΩ");
}

TEST(SystemClipboardTest, TheZeroAtTheEndThatSomeProgramsAddIsNoPartOfTheText) {
  using namespace std::string_view_literals;
  EXPECT_EQ(ReadBack("Oggetto: vendita\0"sv), "Oggetto: vendita");
}

TEST(SystemClipboardTest, BytesThatAreNoUtf8AreReadInTheOldCodePage) {
  EXPECT_EQ(ReadBack("citt\xE0 \x80"), "città €");
}

}  // namespace
}  // namespace ordex::desktop_tests
