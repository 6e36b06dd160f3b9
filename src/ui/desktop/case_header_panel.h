// ctlTestata1: the case shown, its parties as links, and the search for another.
#pragma once

#include <wx/hyperlink.h>
#include <wx/panel.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include <string_view>

#include "state/case_choice.h"
#include "ui/desktop/acts.h"
#include "ui/desktop/case_search_box.h"

namespace ordex::desktop {

class CaseHeaderPanel : public wxPanel {
 public:
  CaseHeaderPanel(wxWindow* parent, const CaseHeader& header, const ActRunner& run);

  void Draw();
  CaseSearchBox& SearchBox() { return *search_; }
  // The place to the right of the search box, for the button that clears the case.
  wxSizer& SearchRow() { return *searchRow_; }

 private:
  struct Party {
    wxHyperlinkCtrl* link = nullptr;  // a person of the registry
    wxStaticText* name = nullptr;     // a mere name
  };

  wxStaticText* AddValue(wxSizer& row, const wxString& caption, int proportion);
  Party AddParty(wxSizer& row, const wxString& caption, const PersonLink& person,
                 const ActRunner& run);
  void DrawParty(const Party& party, const PersonLink& person);

  const CaseHeader& header_;
  CaseSearchBox* search_;
  wxSizer* searchRow_;
  wxStaticText* number_;
  wxStaticText* penale_;
  Party cliente_;
  Party controparte_;
  wxStaticText* oggetto_;
  wxStaticText* sezione_;
  wxStaticText* istruttore_;
  wxStaticText* posizione_;
};

}  // namespace ordex::desktop
