#include "ui/desktop/link.h"

#include "ui/desktop/platform.h"
#include "ui/desktop/wx_text.h"

namespace ordex::desktop {

wxHyperlinkCtrl* MakeLink(wxWindow* parent, std::string_view text) {
  // The toolkit makes no link without a text.
  auto* link = new wxHyperlinkCtrl(parent, wxID_ANY, "-", wxString(), wxDefaultPosition,
                                   wxDefaultSize, wxHL_ALIGN_LEFT | wxBORDER_NONE);
  if (!text.empty()) SetLinkText(*link, text);
  return link;
}

void SetLinkText(wxHyperlinkCtrl& link, std::string_view text) {
  const wxString label = Wx(text);
  if (link.GetToolTipText() == label) return;
  SetLinkLabel(link, label);
  link.SetToolTip(label);
}

}  // namespace ordex::desktop
