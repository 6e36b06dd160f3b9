// A text that is clicked on like a link; what the click does its user binds to wxEVT_HYPERLINK.
#pragma once

#include <wx/hyperlink.h>

#include <string_view>

namespace ordex::desktop {

wxHyperlinkCtrl* MakeLink(wxWindow* parent, std::string_view text);
// Shows the text letter for letter, and as the tool tip too, where it may be too long for the link.
void SetLinkText(wxHyperlinkCtrl& link, std::string_view text);

}  // namespace ordex::desktop
