// What a user does with the rows and headers of a list.
#pragma once

#include <wx/listctrl.h>

#include "hands.h"
#include "on_main.h"

namespace ordex::desktop_tests {

// Clicks on a row that is in view; counted from 0.
inline void ClickRow(const wxListCtrl* list, long row) {
  ClickAt(OnMain([=] {
    wxRect place;
    if (!list->GetItemRect(row, place)) throw std::runtime_error("no such row");
    return list->ClientToScreen(wxPoint(place.x + 20, place.y + place.height / 2));
  }));
}

// Clicks on a column's header, which stands above the first row; both counted from 0. Two clicks at
// once on the same spot would be a double click: `aside` is in pixels.
inline void ClickHeader(const wxListCtrl* list, int column, int aside = 0) {
  ClickAt(OnMain([=] {
    int x = list->GetColumnWidth(column) / 2 + aside;
    for (int before = 0; before < column; ++before) x += list->GetColumnWidth(before);
    return list->GetScreenPosition() + wxPoint(x, list->GetCharHeight() / 2);
  }));
}

}  // namespace ordex::desktop_tests
