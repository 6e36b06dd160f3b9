// The operations of the two lists.
#pragma once

#include <cstddef>
#include <string_view>

#include "state/review_list.h"

namespace ordex {

// Adds one row. A tagged row's index goes to the collection of tagged rows.
void WriteListView(ReviewList& lstImport, std::string_view ValueItem, std::string_view FirstSubItem,
                   std::string_view SecondSubItem, std::string_view ThirdSubItem,
                   std::string_view szTag);
// Removes the rows; the collection of tagged rows and the sort state stay.
void ClearRows(ReviewList& lstImport);
// Headers and widths for a page kind.
void SetWidthlstImport(ReviewList& lstImport, int kind);
// Sorts by a column, counted from 1; the same column again flips the order. Rows added later are
// appended unsorted. Error: type mismatch, where the list's tag is no number.
void OrdinaColonna(ReviewList& lstImport, int column);
// A click on the row at `place` in the order shown, counted from 1: its value, which may be too
// long for the column, becomes the tool tip.
void lstImport_ItemClick(ReviewList& lstImport, std::size_t place);
void lstImport_MouseMove(ReviewList& lstImport);

void SetWidthlstAgenda(AgendaList& lstAgendaAvv);
// A case row is bold; an entry row is plain and dark red.
void AggiungiRigaAgenda(AgendaList& lstAgendaAvv, std::string_view ValueItem,
                        std::string_view FirstSubItem, bool bold);
void lstAgendaAvv_ItemClick(AgendaList& lstAgendaAvv, std::size_t place);

}  // namespace ordex
