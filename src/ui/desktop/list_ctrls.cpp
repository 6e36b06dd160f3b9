#include "ui/desktop/list_ctrls.h"

#include <wx/clipbrd.h>
#include <wx/settings.h>

#include <algorithm>

#include "ui/desktop/icons.h"
#include "ui/desktop/wx_text.h"

namespace ordex::desktop {
namespace {

constexpr int kHeaderIconSide = 12;
constexpr int kCtrlC = 3;

// The lists' entry colour is made for a light background; on a dark one it could not be read.
wxColour EntryColour(std::int32_t bgr) {
  if (wxSystemSettings::GetAppearance().IsDark()) return {0xFF, 0x8A, 0x80};
  wxColour colour;
  colour.SetRGB(static_cast<wxUint32>(bgr));
  return colour;
}

// A cell is one line, whatever the text holds.
wxString OneLine(std::string_view text) {
  wxString line = Wx(text);
  line.Replace("\r\n", " ");
  line.Replace("\n", " ");
  line.Replace("\r", " ");
  return line;
}

}  // namespace

VirtualList::VirtualList(wxWindow* parent, const wxString& name, const ActRunner& run)
    : wxListCtrl(parent, wxID_ANY, wxDefaultPosition, wxSize(200, 200), wxLC_REPORT | wxLC_VIRTUAL,
                 wxDefaultValidator, name) {
  Bind(wxEVT_LIST_COL_CLICK, [run](wxListEvent& event) {
    const int column = event.GetColumn() + 1;
    if (column > 0) run([column](MainWindow& window) { window.ClickColumn(column); });
  });
  Bind(wxEVT_LIST_ITEM_SELECTED, [run](wxListEvent& event) {
    const auto place = static_cast<std::size_t>(event.GetIndex()) + 1;
    run([place](MainWindow& window) { window.ClickRow(place); });
  });
  Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
    event.Skip();
    FitColumn();
  });
  Bind(wxEVT_CHAR, [this](wxKeyEvent& event) {
    if (event.GetKeyCode() == kCtrlC) {
      CopySelection();
    } else {
      event.Skip();
    }
  });
}

void VirtualList::Deselect() {
  for (long row = GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED); row >= 0;
       row = GetNextItem(row, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED)) {
    SetItemState(row, 0, wxLIST_STATE_SELECTED);
  }
}

void VirtualList::ShowRows(std::size_t count) {
  FitColumn();
  if (static_cast<std::size_t>(GetItemCount()) != count) {
    Deselect();
    SetItemCount(static_cast<long>(count));
  }
  Refresh();
}

void VirtualList::ShowColumn(int place, const Column& column, Width kind) {
  wxListItem shown;
  shown.SetMask(wxLIST_MASK_TEXT);
  GetColumn(place, shown);
  if (shown.GetText() != Wx(column.header)) {
    shown.SetMask(wxLIST_MASK_TEXT);
    shown.SetText(Wx(column.header));
    SetColumn(place, shown);
  }
  const int width = Pixels(*this, column.width);
  if (kind == Width::kFixed) {
    DrawWidth(place, width);
  } else {
    fittingColumn_ = place;
    designedWidth_ = width;
    DrawWidth(place, FittingWidth());
  }
}

void VirtualList::DrawWidth(int place, int width) {
  int& drawn = drawnWidths_.try_emplace(place, -1).first->second;
  if (drawn == width) return;
  drawn = width;
  SetColumnWidth(place, width);
}

// As much wider or narrower than designed as the list is, and within it: beside a vertical scroll
// bar and the list's border there may be a pixel or two less than designed. Never so narrow that
// nothing could be read: then the list scrolls sideways.
int VirtualList::FittingWidth() const {
  const int width = GetSize().GetWidth();
  int room =
      width - GetWindowBorderSize().GetWidth() - wxSystemSettings::GetMetric(wxSYS_VSCROLL_X, this);
  for (const auto& [place, drawn] : drawnWidths_) {
    if (place != fittingColumn_) room -= drawn;
  }
  const int asDesigned = designedWidth_ + width - Pixels(*this, kListWidth);
  return std::max(std::min(asDesigned, room), designedWidth_ / 2);
}

void VirtualList::FitColumn() {
  const auto drawn = drawnWidths_.find(fittingColumn_);
  if (drawn == drawnWidths_.end() || GetColumnWidth(fittingColumn_) != drawn->second) return;
  DrawWidth(fittingColumn_, FittingWidth());
}

wxString VirtualList::SelectedText() const {
  wxString text;
  for (long row = GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED); row >= 0;
       row = GetNextItem(row, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED)) {
    for (int column = 0; column < GetColumnCount(); ++column) {
      if (column > 0) text += '\t';
      text += OnGetItemText(row, column);
    }
    text += "\r\n";
  }
  return text;
}

void VirtualList::CopySelection() {
  const wxString text = SelectedText();
  if (text.empty() || !wxTheClipboard->Open()) return;
  wxTheClipboard->SetData(new wxTextDataObject(text));
  wxTheClipboard->Close();
}

ReviewListCtrl::ReviewListCtrl(wxWindow* parent, const ReviewList& list, const ActRunner& run)
    : VirtualList(parent, "lstImport", run), list_(list), sorted_(list.sortKey, list.sortOrder) {
  wxVector<wxBitmapBundle> icons;
  icons.push_back(Icon("sort-ascending", kHeaderIconSide));
  icons.push_back(Icon("sort-descending", kHeaderIconSide));
  SetSmallImages(icons);
  for (int place = 0; place < static_cast<int>(list_.columns.size()); ++place) {
    InsertColumn(place, wxString());
  }
  Bind(wxEVT_MOTION, [this, run](wxMouseEvent& event) {
    event.Skip();
    // Every further move would change nothing, and have all drawn anew.
    if (list_.mousePointer == Pointer::kHand) return;
    run([](MainWindow& window) { window.MoveOverReviewList(); });
  });
}

void ReviewListCtrl::Draw() {
  constexpr int kValueColumn = 2;
  for (int place = 0; place < static_cast<int>(list_.columns.size()); ++place) {
    const Column& column = list_.columns[static_cast<std::size_t>(place)];
    ShowColumn(place, column, place == kValueColumn ? Width::kFits : Width::kFixed);
    DrawIcon(place, static_cast<int>(column.icon));
  }
  const std::pair sorted(list_.sortKey, list_.sortOrder);
  if (sorted_ != sorted) {
    sorted_ = sorted;
    Deselect();
  }
  ShowRows(list_.rows.size());
  if (GetToolTipText() != Wx(list_.toolTip)) SetToolTip(Wx(list_.toolTip));
  if (list_.mousePointer == Pointer::kHand) SetCursor(wxCursor(wxCURSOR_HAND));
}

void ReviewListCtrl::DrawIcon(int place, int icon) {
  int& shown = icons_[static_cast<std::size_t>(place)];
  if (shown == icon) return;
  shown = icon;
  // The state counts the pictures from 1, 0 for none; the toolkit from 0, -1 for none.
  wxListItem item;
  item.SetMask(wxLIST_MASK_IMAGE);
  item.SetImage(icon - 1);
  SetColumn(place, item);
}

wxString ReviewListCtrl::OnGetItemText(long row, long column) const {
  const ReviewRow item = list_.rows[list_.order[static_cast<std::size_t>(row)]];
  return OneLine(column == 0 ? item.text : item.sub[static_cast<std::size_t>(column) - 1]);
}

AgendaListCtrl::AgendaListCtrl(wxWindow* parent, const AgendaList& list, const ActRunner& run)
    : VirtualList(parent, "lstAgendaAvv", run), list_(list) {
  for (int place = 0; place < static_cast<int>(list_.columns.size()); ++place) {
    InsertColumn(place, wxString());
  }
}

void AgendaListCtrl::Draw() {
  for (int place = 0; place < static_cast<int>(list_.columns.size()); ++place) {
    ShowColumn(place, list_.columns[static_cast<std::size_t>(place)],
               place == 1 ? Width::kFits : Width::kFixed);
  }
  caseRow_.SetFont(GetFont().Bold());
  entryRow_.SetTextColour(EntryColour(kDarkRed));
  ShowRows(list_.rows.size());
  if (GetToolTipText() != Wx(list_.toolTip)) SetToolTip(Wx(list_.toolTip));
}

wxString AgendaListCtrl::OnGetItemText(long row, long column) const {
  const AgendaRow item = list_.rows[static_cast<std::size_t>(row)];
  return OneLine(column == 0 ? item.text : item.sub);
}

wxListItemAttr* AgendaListCtrl::OnGetItemAttr(long row) const {
  const AgendaRow item = list_.rows[static_cast<std::size_t>(row)];
  if (item.bold) return &caseRow_;
  return item.color ? &entryRow_ : nullptr;
}

}  // namespace ordex::desktop
