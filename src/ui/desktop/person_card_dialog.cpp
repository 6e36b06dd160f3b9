#include "ui/desktop/person_card_dialog.h"

#include <wx/button.h>
#include <wx/statbox.h>
#include <wx/stattext.h>

#include <algorithm>

#include "base/text.h"
#include "ui/desktop/link.h"
#include "ui/desktop/wx_text.h"

namespace ordex::desktop {
namespace {

constexpr int kWidth = 420;
constexpr int kMargin = 8;

}  // namespace

PersonCardDialog::PersonCardDialog(wxWindow* parent, const PersonCard& card, PersonDialog& logic)
    : wxDialog(parent, wxID_ANY, Wx(card.caption), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE, "frmInfoAnagrafica"),
      card_(card),
      logic_(logic) {
  auto* rows = new wxBoxSizer(wxVERTICAL);
  rows->Add(MakeCard(), 1, wxEXPAND | wxALL, FromDIP(kMargin));
  if (card.questionVisible) {
    auto* question = new wxStaticText(this, wxID_ANY, wxString());
    question->SetLabelText(Wx(ReplaceAll(card.lblDomanda, "\r\n", "\n")));
    question->Wrap(FromDIP(kWidth - 2 * kMargin));
    rows->Add(question, 0, wxEXPAND | wxLEFT | wxRIGHT | wxBOTTOM, FromDIP(kMargin));
  }
  rows->Add(MakeButtons(), 0, wxALIGN_RIGHT | wxLEFT | wxRIGHT | wxBOTTOM, FromDIP(kMargin));
  SetSizer(rows);
  // The height is the program's, but no text may be cut off where letters are large.
  const wxSize needed = ClientToWindowSize(rows->CalcMin());
  SetSize(std::max(needed.GetWidth(), FromDIP(kWidth)),
          std::max(needed.GetHeight(), Pixels(*this, card.height)));
  CentreOnParent();

  Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent&) { Do([this] { logic_.Close(); }); });
  Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) {
    if (event.GetKeyCode() == WXK_ESCAPE) {
      Close();
    } else {
      event.Skip();
    }
  });
}

wxSizer* PersonCardDialog::MakeCard() {
  auto* frame = new wxStaticBoxSizer(wxVERTICAL, this);
  auto* text = new wxStaticText(frame->GetStaticBox(), wxID_ANY, wxString());
  text->SetName("lblInfo");
  text->SetLabelText(Wx(ReplaceAll(card_.lblInfo, "\r\n", "\n")));
  frame->Add(text, 0, wxALL, FromDIP(kMargin / 2));
  if (!card_.lblInfo2.empty()) {
    frame->Add(MakeEmail(frame->GetStaticBox()), 0, wxALL, FromDIP(kMargin / 2));
  }
  return frame;
}

wxSizer* PersonCardDialog::MakeEmail(wxWindow* frame) {
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(new wxStaticText(frame, wxID_ANY, Wx(card_.Label1)), 0, wxALIGN_CENTRE_VERTICAL);
  wxHyperlinkCtrl* link = MakeLink(frame, card_.lblInfo2);
  link->Bind(wxEVT_HYPERLINK,
             [this](wxHyperlinkEvent&) { Do([this] { logic_.lblInfo2_Click(); }); });
  row->Add(link, 0, wxALIGN_CENTRE_VERTICAL);
  return row;
}

wxSizer* PersonCardDialog::MakeButtons() {
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  wxButton* yes = MakeButton(card_.cmdSi, &PersonDialog::cmdSi_Click);
  row->Add(yes, 0, wxRIGHT, FromDIP(kMargin));
  row->Add(MakeButton(card_.cmdNo, &PersonDialog::cmdNo_Click));
  yes->SetDefault();
  yes->SetFocus();
  return row;
}

wxButton* PersonCardDialog::MakeButton(const Button& button, void (PersonDialog::*click)()) {
  auto* made = new wxButton(this, wxID_ANY, Wx(button.caption));
  made->SetToolTip(Wx(button.toolTip));
  made->Bind(wxEVT_BUTTON, [this, click](wxCommandEvent&) { Do([&] { (logic_.*click)(); }); });
  return made;
}

void PersonCardDialog::Do(const std::function<void()>& handler) {
  handler();
  if (!card_.open && IsModal()) EndModal(wxID_OK);
}

}  // namespace ordex::desktop
