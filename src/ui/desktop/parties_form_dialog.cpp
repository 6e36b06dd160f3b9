#include "ui/desktop/parties_form_dialog.h"

#include <wx/button.h>
#include <wx/statbox.h>
#include <wx/stattext.h>

#include "ui/desktop/wx_text.h"

namespace ordex::desktop {
namespace {

constexpr int kWidth = 460;
constexpr int kMargin = 10;

}  // namespace

PartiesFormDialog::PartiesFormDialog(wxWindow* parent, const PartiesForm& form,
                                     PartiesDialog& logic)
    : wxDialog(parent, wxID_ANY, Wx(form.caption), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE, "dlgParti"),
      form_(form),
      logic_(logic) {
  auto* title = new wxStaticText(this, wxID_ANY, wxString());
  title->SetLabelText(Wx(form.lblTitolo));
  title->Wrap(FromDIP(kWidth));
  auto* ok = new wxButton(this, wxID_OK, Wx(form.cmdOk.caption));
  ok->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { PressOk(); });
  ok->SetDefault();

  auto* rows = new wxBoxSizer(wxVERTICAL);
  rows->Add(title, 0, wxEXPAND | wxALL, FromDIP(kMargin));
  const int sides = wxEXPAND | wxLEFT | wxRIGHT | wxBOTTOM;
  rows->Add(MakeSide(form.frameAttore, form.lblAttore, kPlaintiffBox, form.lblAttoreDifensore,
                     kPlaintiffCounselBox),
            0, sides, FromDIP(kMargin));
  rows->Add(MakeSide(form.frameConvenuto, form.lblConvenuto, kDefendantBox,
                     form.lblConvenutoDifensore, kDefendantCounselBox),
            0, sides, FromDIP(kMargin));
  rows->Add(ok, 0, wxALIGN_RIGHT | wxLEFT | wxRIGHT | wxBOTTOM, FromDIP(kMargin));
  SetSizerAndFit(rows);
  CentreOnParent();

  Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent&) {
    logic_.Close();
    EndModal(wxID_CANCEL);
  });
  Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) {
    if (event.GetKeyCode() == WXK_ESCAPE) {
      Close();
    } else {
      event.Skip();
    }
  });
}

wxSizer* PartiesFormDialog::MakeSide(const std::string& caption, const std::string& partyLabel,
                                     PartyBox party, const std::string& counselLabel,
                                     PartyBox counsel) {
  auto* side = new wxStaticBoxSizer(wxVERTICAL, this, Wx(caption));
  AddBox(*side, partyLabel, party);
  AddBox(*side, counselLabel, counsel);
  return side;
}

void PartiesFormDialog::AddBox(wxStaticBoxSizer& side, const std::string& label, PartyBox box) {
  wxWindow* frame = side.GetStaticBox();
  const std::string name(PartiesDialog::NameOf(box));
  side.Add(new wxStaticText(frame, wxID_ANY, Wx(label)), 0, wxLEFT | wxRIGHT | wxTOP,
           FromDIP(kMargin / 2));
  auto* text = new wxTextCtrl(frame, wxID_ANY, Wx(form_.boxes[box].text), wxDefaultPosition,
                              wxDefaultSize, 0, wxDefaultValidator, Wx(name));
  text->Bind(wxEVT_TEXT,
             [this, name, text](wxCommandEvent&) { logic_.Type(name, Utf8(text->GetValue())); });
  side.Add(text, 0, wxEXPAND | wxALL, FromDIP(kMargin / 2));
}

void PartiesFormDialog::PressOk() {
  logic_.cmdOk_Click();
  if (!form_.open) EndModal(wxID_OK);
}

void PartiesFormDialog::FocusOn(const wxString& name) {
  wxWindow* box = FindWindowByName(name, this);
  if (box != nullptr) box->SetFocus();
}

}  // namespace ordex::desktop
