// What differs from desktop to desktop; one source file for each.
#pragma once

#include <wx/hyperlink.h>
#include <wx/string.h>
#include <wx/window.h>

#include <cstdint>

namespace ordex::desktop {

// Before the toolkit starts.
void PrepareDesktop();
// Once the toolkit has started: controls as small as this program's compact window wants them.
void UseCompactControls();

// Draws a button flat where the toolkit does not by itself.
void MakeFlat(wxWindow& button);

// Has a link show the text letter for letter: an ampersand or an underscore announces a mnemonic to
// some toolkits, and not all of them say how to write the sign itself.
void SetLinkLabel(wxHyperlinkCtrl& link, const wxString& text);

// After controls inside `window` were shown, hidden or changed: has the toolkit give each its size.
void SettleLayout(wxWindow& window);

// What the desktop calls the window, as other programs know it; 0 where it has no such name.
std::int64_t HandleOf(const wxWindow& window);
// Raises a window of any program. A handle that names none does nothing.
void RaiseWindow(std::int64_t handle);

// Asks the desktop to open a link; false where it could not.
bool OpenLink(const wxString& link);

}  // namespace ordex::desktop
