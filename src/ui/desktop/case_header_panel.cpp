#include "ui/desktop/case_header_panel.h"

#include <wx/settings.h>

#include "ui/desktop/link.h"
#include "ui/desktop/wx_text.h"

namespace ordex::desktop {
namespace {

constexpr int kSearchWidth = 230;
constexpr int kGap = 6;
constexpr std::string_view kNothing = "–";

wxColour Faint() {
  return wxSystemSettings::GetColour(wxSYS_COLOUR_GRAYTEXT);
}

void SetText(wxStaticText& label, std::string_view text) {
  const wxString shown = Wx(text.empty() ? kNothing : text);
  if (label.GetLabelText() == shown) return;
  label.SetLabelText(shown);
  label.SetToolTip(Wx(text));
}

}  // namespace

CaseHeaderPanel::CaseHeaderPanel(wxWindow* parent, const CaseHeader& header, const ActRunner& run)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxTAB_TRAVERSAL | wxBORDER_THEME,
              "Pratica"),
      header_(header) {
  auto* rows = new wxBoxSizer(wxVERTICAL);
  const auto addRow = [rows, this] {
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    rows->AddStretchSpacer();
    rows->Add(row, 0, wxEXPAND | wxLEFT | wxRIGHT, FromDIP(kGap));
    return row;
  };

  searchRow_ = addRow();
  number_ = new wxStaticText(this, wxID_ANY, wxString());
  number_->SetFont(GetFont().Bold().Scaled(1.2F));
  penale_ = new wxStaticText(this, wxID_ANY, " PENALE ");
  penale_->SetFont(GetFont().Bold());
  penale_->SetForegroundColour(*wxWHITE);
  penale_->SetBackgroundColour(wxColour(0xC0, 0x28, 0x20));
  auto* searchLabel = new wxStaticText(this, wxID_ANY, "Cerca pratica");
  searchLabel->SetForegroundColour(Faint());
  search_ = new CaseSearchBox(this, header, run);
  search_->SetMinSize(wxSize(FromDIP(kSearchWidth), -1));
  searchRow_->Add(number_, 0, wxALIGN_CENTRE_VERTICAL);
  searchRow_->Add(penale_, 0, wxALIGN_CENTRE_VERTICAL | wxLEFT, FromDIP(2 * kGap));
  searchRow_->AddStretchSpacer();
  searchRow_->Add(searchLabel, 0, wxALIGN_CENTRE_VERTICAL | wxRIGHT, FromDIP(kGap));
  searchRow_->Add(search_, 0, wxALIGN_CENTRE_VERTICAL);

  auto* parties = addRow();
  cliente_ = AddParty(*parties, "Cliente", header.cliente, run);
  controparte_ = AddParty(*parties, "Controparte", header.controparte, run);
  oggetto_ = AddValue(*addRow(), "Oggetto", 1);
  auto* court = addRow();
  sezione_ = AddValue(*court, "Sezione", 4);
  istruttore_ = AddValue(*court, "Giudice", 4);
  posizione_ = AddValue(*court, "Posizione", 2);
  rows->AddStretchSpacer();
  SetSizer(rows);
}

wxStaticText* CaseHeaderPanel::AddValue(wxSizer& row, const wxString& caption, int proportion) {
  auto* label = new wxStaticText(this, wxID_ANY, caption);
  label->SetForegroundColour(Faint());
  auto* value = new wxStaticText(this, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize,
                                 wxST_ELLIPSIZE_END | wxST_NO_AUTORESIZE);
  value->SetMinSize(wxSize(FromDIP(40), -1));
  row.Add(label, 0, wxALIGN_CENTRE_VERTICAL | wxRIGHT, FromDIP(kGap));
  row.Add(value, proportion, wxALIGN_CENTRE_VERTICAL | wxRIGHT, FromDIP(kGap));
  return value;
}

CaseHeaderPanel::Party CaseHeaderPanel::AddParty(wxSizer& row, const wxString& caption,
                                                 const PersonLink& person, const ActRunner& run) {
  Party party;
  party.name = AddValue(row, caption, 1);
  party.link = MakeLink(this, {});
  party.link->SetVisitedColour(party.link->GetNormalColour());
  party.link->SetMinSize(wxSize(FromDIP(40), -1));
  party.link->Bind(wxEVT_HYPERLINK, [&person, run](wxHyperlinkEvent&) {
    run([&person](MainWindow& window) { window.ClickPerson(person.idAna); });
  });
  row.Add(party.link, 1, wxALIGN_CENTRE_VERTICAL | wxRIGHT, FromDIP(kGap));
  return party;
}

void CaseHeaderPanel::DrawParty(const Party& party, const PersonLink& person) {
  const bool registered = person.idAna != 0;
  party.link->Show(registered);
  party.name->Show(!registered);
  if (registered) {
    SetLinkText(*party.link, person.name);
  } else {
    SetText(*party.name, person.name);
  }
}

void CaseHeaderPanel::Draw() {
  const bool shown = header_.idPra != 0;
  number_->SetLabelText(Wx(!shown                     ? std::string("Nessuna pratica selezionata")
                           : header_.numeroRG.empty() ? std::string("Senza numero di registro")
                                                      : "N. R.G. " + header_.numeroRG));
  number_->SetForegroundColour(shown ? GetForegroundColour() : Faint());
  penale_->Show(header_.penale);
  DrawParty(cliente_, header_.cliente);
  DrawParty(controparte_, header_.controparte);
  SetText(*oggetto_, header_.descriptions[0]);
  SetText(*sezione_, header_.descriptions[1]);
  SetText(*istruttore_, header_.istruttore);
  SetText(*posizione_, header_.posizione);
  search_->Draw();
  Layout();
}

}  // namespace ordex::desktop
