#include "ui/desktop/choice_panel.h"

#include <wx/sizer.h>
#include <wx/stattext.h>

#include <algorithm>

#include "ui/desktop/wx_text.h"

namespace ordex::desktop {
namespace {

constexpr int kGap = 4;
constexpr int kUserWidth = 220;

// Where entries have only been added the others stay: a choice that is emptied on the way loses the
// focus.
void DrawEntries(wxChoice& shown, const wxArrayString& texts) {
  const wxArrayString there = shown.GetStrings();
  if (there.size() > texts.size() || !std::equal(there.begin(), there.end(), texts.begin())) {
    shown.Set(texts);
    return;
  }
  for (std::size_t i = there.size(); i < texts.size(); ++i) shown.Append(texts[i]);
}

void DrawBox(wxChoice& shown, const ComboBox& box) {
  wxArrayString texts;
  for (const ComboBox::Item& item : box.items) texts.Add(Wx(item.text));
  DrawEntries(shown, texts);
  if (shown.GetSelection() != box.index) shown.SetSelection(box.index);
  if (shown.GetToolTipText() != Wx(box.toolTip)) shown.SetToolTip(Wx(box.toolTip));
}

wxChoice* MakeBox(wxWindow* parent, const wxString& name) {
  auto* box = new wxChoice(parent, wxID_ANY);
  box->SetName(name);
  return box;
}

}  // namespace

ChoicePanel::ChoicePanel(wxWindow* parent, const CaseChoice& choice, const ActRunner& run)
    : wxPanel(parent), choice_(choice), run_(run) {
  frameCliente_ = MakeFrameCliente();
  frameUtenteCont_ = MakeFrameUtenteCont(run);
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(frameCliente_, 1, wxEXPAND | wxRIGHT, FromDIP(3 * kGap));
  row->Add(frameUtenteCont_, 0, wxEXPAND);
  SetSizer(row);
}

wxWindow* ChoicePanel::MakeFrameCliente() {
  const std::array<wxString, 2> captions = {" Cliente : ", " Controparte: "};
  const std::array<wxString, 2> names = {"Cliente", "Controparte"};
  auto* frame = new wxPanel(this);
  auto* grid = new wxFlexGridSizer(2, FromDIP(kGap), FromDIP(kGap));
  grid->AddGrowableCol(1);
  for (std::size_t i = 0; i < cmbParti_.size(); ++i) {
    auto* label = new wxStaticText(frame, wxID_ANY, captions[i]);
    cmbParti_[i] = MakeBox(frame, names[i]);
    cmbParti_[i]->Bind(wxEVT_CHOICE,
                       [this, i](wxCommandEvent& event) { Choose(i, event.GetSelection()); });
    cmbParti_[i]->Bind(wxEVT_CHAR_HOOK, [this, i](wxKeyEvent& event) { OnArrow(i, event); });
    grid->Add(label, 0, wxALIGN_CENTRE_VERTICAL);
    grid->Add(cmbParti_[i], 1, wxEXPAND);
  }
  frame->SetSizer(grid);
  return frame;
}

void ChoicePanel::Choose(std::size_t box, int place) {
  reached_[box] = place;
  run_([box, place](MainWindow& window) { window.SelectParty(box, place); });
}

// A party that the other box shows is cleared as soon as it is chosen. The arrow keys go on from
// the entry that they had reached, or they would never get past it.
void ChoicePanel::OnArrow(std::size_t box, wxKeyEvent& event) {
  const int step = event.GetKeyCode() == WXK_DOWN ? 1 : event.GetKeyCode() == WXK_UP ? -1 : 0;
  if (step == 0 || event.HasModifiers()) {
    event.Skip();
    return;
  }
  const int place = reached_[box] + step;
  if (place >= 0 && place < static_cast<int>(cmbParti_[box]->GetCount())) Choose(box, place);
}

wxWindow* ChoicePanel::MakeFrameUtenteCont(const ActRunner& run) {
  auto* frame = new wxPanel(this);
  auto* label = new wxStaticText(frame, wxID_ANY, Wx(choice_.frameUtenteCont.caption));
  cmbUtenteCont_ = MakeBox(frame, label->GetLabelText());
  cmbUtenteCont_->SetMinSize(wxSize(FromDIP(kUserWidth), -1));
  cmbUtenteCont_->Bind(wxEVT_CHOICE, [run](wxCommandEvent& event) {
    const int place = event.GetSelection();
    run([place](MainWindow& window) { window.SelectUtenteCont(place); });
  });
  auto* rows = new wxBoxSizer(wxVERTICAL);
  rows->Add(label, 1, wxALIGN_LEFT | wxTOP, FromDIP(kGap));
  rows->Add(cmbUtenteCont_, 0, wxEXPAND);
  frame->SetSizer(rows);
  return frame;
}

void ChoicePanel::Draw() {
  for (std::size_t i = 0; i < cmbParti_.size(); ++i) DrawBox(*cmbParti_[i], choice_.cmbParti[i]);
  DrawBox(*cmbUtenteCont_, choice_.cmbUtenteCont);
  const bool wanted = choice_.frameCliente.visible || choice_.frameUtenteCont.visible;
  const bool appears = wanted && !IsShown();
  frameCliente_->Show(choice_.frameCliente.visible);
  frameUtenteCont_->Show(choice_.frameUtenteCont.visible);
  Show(wanted);
  Layout();
  // What the user has to choose next.
  if (appears) reached_.fill(ComboBox::kNoChoice);
  if (appears) cmbParti_[kBoxClient]->SetFocus();
}

}  // namespace ordex::desktop
