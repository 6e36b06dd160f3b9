#include "ui/desktop/case_search_box.h"

#include <wx/toplevel.h>

#include <algorithm>
#include <utility>

#include "base/text.h"
#include "ui/desktop/wx_text.h"

namespace ordex::desktop {
namespace {

constexpr int kTypingPause = 250;  // milliseconds
constexpr int kMostRowsShown = 10;
constexpr int kDropDownWidth = 560;

}  // namespace

CaseSearchBox::CaseSearchBox(wxWindow* parent, const CaseHeader& header, ActRunner run)
    : wxTextCtrl(parent, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize, wxTE_PROCESS_ENTER,
                 wxDefaultValidator, "ctlTestata1"),
      header_(header),
      run_(std::move(run)),
      pause_(this) {
  SetHint("numero, cognome, oggetto");
  Bind(wxEVT_TEXT, [this](wxCommandEvent&) { pause_.StartOnce(kTypingPause); });
  Bind(wxEVT_TIMER, [this](wxTimerEvent&) { Search(); });
  Bind(wxEVT_KEY_DOWN, &CaseSearchBox::OnKey, this);
  Bind(wxEVT_KILL_FOCUS, [this](wxFocusEvent& event) {
    HideDropDown();
    event.Skip();
  });
}

void CaseSearchBox::MakeDropDown() {
  popup_ = new wxPopupWindow(this, wxBORDER_SIMPLE);
  hits_ = new wxListBox(popup_, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, nullptr,
                        wxLB_SINGLE | wxBORDER_NONE);
  hits_->SetName("Pratiche trovate");
  // The mouse alone chooses at once; the keyboard moves first, and chooses with Return.
  hits_->Bind(wxEVT_LEFT_UP, [this](wxMouseEvent& event) {
    const int place = hits_->HitTest(event.GetPosition());
    CallAfter([this, place] { ChooseHit(place); });
  });
}

void CaseSearchBox::Draw() {
  if (drawn_ == header_.searchText) return;
  drawn_ = header_.searchText;
  if (Utf8(GetValue()) != drawn_) ChangeValue(Wx(drawn_));
}

void CaseSearchBox::Empty() {
  HideDropDown();
  ChangeValue(wxString());
}

void CaseSearchBox::HideDropDown() {
  pause_.Stop();
  if (popup_ != nullptr) popup_->Hide();
}

void CaseSearchBox::Search() {
  asked_ = std::string(Trim(Utf8(GetValue())));
  if (asked_.empty()) {
    HideDropDown();
    return;
  }
  // What is searched for stands in the box already, perhaps with a blank behind it that the user is
  // about to go on from.
  drawn_ = asked_;
  const wxBusyCursor busy;
  run_([this](MainWindow& window) { window.FindCases(asked_); });
  ShowHits();
}

void CaseSearchBox::ShowHits() {
  if (!HasFocus()) return;
  if (popup_ == nullptr) MakeDropDown();
  wxArrayString texts;
  for (const FoundCase& hit : header_.found) texts.Add(Wx(hit.title));
  hits_->Enable(!texts.empty());
  if (texts.empty()) texts.Add("Nessuna pratica trovata");
  hits_->Set(texts);
  const int rows = std::min(static_cast<int>(texts.size()), kMostRowsShown);
  const int rowHeight = GetCharHeight() + FromDIP(8);
  hits_->SetSize(FromDIP(kDropDownWidth), rows * rowHeight + FromDIP(4));
  popup_->SetClientSize(hits_->GetSize());
  popup_->Move(GetScreenPosition() +
               wxPoint(GetSize().GetWidth() - popup_->GetSize().GetWidth(), GetSize().GetHeight()));
  popup_->Show();
}

void CaseSearchBox::ChooseHit(int place) {
  if (place < 0 || place >= static_cast<int>(header_.found.size())) return;
  HideDropDown();
  const std::int32_t idPra = header_.found[static_cast<std::size_t>(place)].idPra;
  // The program's own text box is emptied with the header; so is this one.
  drawn_.clear();
  Empty();
  run_([idPra](MainWindow& window) { window.ChooseCase(idPra); });
  FocusOnDefaultButton();
}

// With the case chosen, the Return key does what the window is there for.
void CaseSearchBox::FocusOnDefaultButton() {
  const auto* top = wxDynamicCast(wxGetTopLevelParent(this), wxTopLevelWindow);
  wxWindow* button = top == nullptr ? nullptr : top->GetDefaultItem();
  if (button != nullptr && button->IsEnabled()) button->SetFocus();
}

void CaseSearchBox::OnKey(wxKeyEvent& event) {
  const int count = static_cast<int>(header_.found.size());
  const int chosen = hits_ == nullptr ? wxNOT_FOUND : hits_->GetSelection();
  const bool shown = DropDownShown();
  switch (event.GetKeyCode()) {
    case WXK_DOWN:
      if (!shown) {
        Search();
      } else if (count > 0) {
        hits_->SetSelection(std::min(chosen + 1, count - 1));
      }
      return;
    case WXK_UP:
      if (shown && chosen > 0) hits_->SetSelection(chosen - 1);
      return;
    case WXK_RETURN:
    case WXK_NUMPAD_ENTER:
      if (shown && chosen != wxNOT_FOUND) {
        ChooseHit(chosen);
      } else {
        Search();
        if (DropDownShown() && count > 0) hits_->SetSelection(0);
      }
      return;
    case WXK_ESCAPE:
      HideDropDown();
      return;
    default:
      event.Skip();
  }
}

}  // namespace ordex::desktop
