// frameButtons: the flat buttons and the warning banner.
#pragma once

#include <wx/button.h>
#include <wx/panel.h>
#include <wx/tglbtn.h>

#include "state/commands.h"
#include "ui/desktop/acts.h"

namespace ordex::desktop {

// A flat button drawn from a state of the program; its caption may carry a mnemonic.
wxButton* MakeFlatButton(wxWindow* parent, const Button& button, const wxString& picture,
                         const ActRunner& run, const Act& act);
void DrawButton(wxAnyButton& shown, const Button& button);

class CommandBar : public wxPanel {
 public:
  CommandBar(wxWindow* parent, const Commands& commands, const ActRunner& run);
  void Draw();
  wxButton& DefaultButton() { return *cmdAzione_; }

 private:
  wxWindow* MakeBanner();

  const Commands& commands_;
  Symbol symbol_ = Symbol::kNone;
  std::string picture_;
  wxButton* cmdAzione_;
  wxButton* cmdAnnulla_;
  wxToggleButton* chkDettagli_;
  wxButton* cmdNo_;
};

}  // namespace ordex::desktop
