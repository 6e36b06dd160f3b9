// The two lists of the main window, drawn from their rows when a row comes into view: a hundred
// thousand rows open as fast as ten.
#pragma once

#include <wx/listctrl.h>

#include <array>
#include <cstddef>
#include <map>
#include <utility>

#include "state/review_list.h"
#include "ui/desktop/acts.h"

namespace ordex::desktop {

class VirtualList : public wxListCtrl {
 public:
  VirtualList(wxWindow* parent, const wxString& name, const ActRunner& run);

  // The selected rows, cells separated by tabs, for other programs to paste.
  wxString SelectedText() const;

 protected:
  // Takes the number of rows over and paints those in view again.
  void ShowRows(std::size_t count);
  // Sets a column's header and width, in twips at the design width; where the list is wider or
  // narrower than designed, the column that fits takes or gives the difference. A width that the
  // user has changed stays until the program's own changes.
  enum class Width { kFixed, kFits };
  void ShowColumn(int place, const Column& column, Width kind);
  // The toolkit remembers places: once other rows stand there, a click on one must count as new.
  void Deselect();

 private:
  int OnGetItemImage(long) const override { return -1; }
  void CopySelection();
  void DrawWidth(int place, int width);
  int FittingWidth() const;
  void FitColumn();

  std::map<int, int> drawnWidths_;  // by column, in pixels
  int fittingColumn_ = -1;
  int designedWidth_ = 0;  // of that column, in pixels
};

// lstImport.
class ReviewListCtrl : public VirtualList {
 public:
  ReviewListCtrl(wxWindow* parent, const ReviewList& list, const ActRunner& run);
  void Draw();

 protected:
  wxString OnGetItemText(long row, long column) const override;

 private:
  void DrawIcon(int place, int icon);

  const ReviewList& list_;
  std::array<int, 4> icons_{};
  std::pair<int, SortOrder> sorted_;  // as drawn last
};

// lstAgendaAvv.
class AgendaListCtrl : public VirtualList {
 public:
  AgendaListCtrl(wxWindow* parent, const AgendaList& list, const ActRunner& run);
  void Draw();

 private:
  wxString OnGetItemText(long row, long column) const override;
  wxListItemAttr* OnGetItemAttr(long row) const override;

  const AgendaList& list_;
  mutable wxListItemAttr caseRow_;  // handed out by a const call of the toolkit
  mutable wxListItemAttr entryRow_;
};

}  // namespace ordex::desktop
