// frmInfoAnagrafica on the desktop: the card of a person, and the question whether to link it.
#pragma once

#include <wx/dialog.h>
#include <wx/sizer.h>

#include <functional>

#include "store/person_dialog.h"

namespace ordex::desktop {

class PersonCardDialog : public wxDialog {
 public:
  // Draws `card`; `logic` is what its controls call.
  PersonCardDialog(wxWindow* parent, const PersonCard& card, PersonDialog& logic);

 private:
  wxSizer* MakeCard();
  wxSizer* MakeEmail(wxWindow* frame);
  wxSizer* MakeButtons();
  wxButton* MakeButton(const Button& button, void (PersonDialog::*click)());
  void Do(const std::function<void()>& handler);

  const PersonCard& card_;
  PersonDialog& logic_;
};

}  // namespace ordex::desktop
