#include "ui/desktop/system_clipboard.h"

#include <wx/clipbrd.h>

#include <string>
#include <string_view>
#include <utility>

#include "base/text.h"
#include "ui/desktop/clipboard_patience.h"
#include "ui/desktop/wx_text.h"

namespace ordex::desktop {
namespace {

// The clipboard, open for as long as this object lives.
class OpenClipboard {
 public:
  OpenClipboard() {
    OpenPatiently([] { return wxTheClipboard->Open(); });
  }
  ~OpenClipboard() { wxTheClipboard->Close(); }
  OpenClipboard(const OpenClipboard&) = delete;
  OpenClipboard& operator=(const OpenClipboard&) = delete;
};

// Takes a text as the bytes that it comes in. The toolkit's own object spends four bytes on each
// letter and copies them all on the way: a large page would take ten times its size.
class TextBytes : public wxTextDataObject {
 public:
  bool SetData(const wxDataFormat& format, std::size_t size, const void* bytes) override {
    if (format == wxDataFormat(wxDF_UNICODETEXT)) {
      std::string_view text(static_cast<const char*>(bytes), size);
      // Some programs count the zero at its end as a part of it.
      while (text.ends_with('\0')) text.remove_suffix(1);
      text_ = DecodeText(std::string(text));
      return true;
    }
    // A text of an old program, in the encoding of its desktop.
    if (!wxTextDataObject::SetData(format, size, bytes)) return false;
    text_ = Utf8(GetText());
    return true;
  }

  std::string Take() { return std::move(text_); }

 private:
  std::string text_;
};

}  // namespace

std::string SystemClipboard::GetText() const {
  const OpenClipboard open;
  TextBytes text;
  // Without a text there, as with a picture, the page is as unknown as an empty one.
  if (!wxTheClipboard->GetData(text)) return {};
  return text.Take();
}

// What another program put there can only be replaced; our own is then taken away.
void SystemClipboard::Clear() {
  const OpenClipboard open;
  wxTheClipboard->SetData(new wxTextDataObject(wxString()));
  wxTheClipboard->Clear();
}

}  // namespace ordex::desktop
