#include "ui/desktop/system_clipboard.h"

#include <wx/clipbrd.h>

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

}  // namespace

std::string SystemClipboard::GetText() const {
  const OpenClipboard open;
  wxTextDataObject text;
  // Without a text there, as with a picture, the page is as unknown as an empty one.
  if (!wxTheClipboard->GetData(text)) return {};
  return Utf8(text.GetText());
}

// What another program put there can only be replaced; our own is then taken away.
void SystemClipboard::Clear() {
  const OpenClipboard open;
  wxTheClipboard->SetData(new wxTextDataObject(wxString()));
  wxTheClipboard->Clear();
}

}  // namespace ordex::desktop
