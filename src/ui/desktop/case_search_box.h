// The search of the case header: a text box under which the hits drop down while one types. Arrow
// keys and Return choose without the mouse.
#pragma once

#include <wx/listbox.h>
#include <wx/popupwin.h>
#include <wx/textctrl.h>
#include <wx/timer.h>

#include <string>

#include "state/case_choice.h"
#include "ui/desktop/acts.h"

namespace ordex::desktop {

class CaseSearchBox : public wxTextCtrl {
 public:
  CaseSearchBox(wxWindow* parent, const CaseHeader& header, ActRunner run);

  // Takes the header's search text over where the program has changed it.
  void Draw();
  bool DropDownShown() const { return popup_ != nullptr && popup_->IsShown(); }
  void HideDropDown();
  // Takes out what was typed, searched for or not.
  void Empty();

 private:
  void Search();
  void MakeDropDown();
  void ShowHits();
  void ChooseHit(int place);
  void FocusOnDefaultButton();
  void OnKey(wxKeyEvent& event);

  const CaseHeader& header_;
  ActRunner run_;
  std::string drawn_;  // the header's search text as drawn last
  std::string asked_;  // what was searched for last
  wxTimer pause_;      // waits until the user stops typing
  // Made with the first search: most starts need none.
  wxPopupWindow* popup_ = nullptr;
  wxListBox* hits_ = nullptr;
};

}  // namespace ordex::desktop
