// dlgParti on the desktop: the names that the page masks, to be typed in.
#pragma once

#include <wx/dialog.h>
#include <wx/sizer.h>
#include <wx/textctrl.h>

#include <array>
#include <string>

#include "store/parties_dialog.h"

namespace ordex::desktop {

class PartiesFormDialog : public wxDialog {
 public:
  // Draws `form`; `logic` is what its controls call.
  PartiesFormDialog(wxWindow* parent, const PartiesForm& form, PartiesDialog& logic);

  // Hands the focus to the text box of that name.
  void FocusOn(const wxString& name);

 private:
  wxSizer* MakeSide(const std::string& caption, const std::string& partyLabel, PartyBox party,
                    const std::string& counselLabel, PartyBox counsel);
  void AddBox(wxStaticBoxSizer& side, const std::string& label, PartyBox box);
  void PressOk();

  const PartiesForm& form_;
  PartiesDialog& logic_;
};

}  // namespace ordex::desktop
