#include "app/review_lists.h"

#include <algorithm>
#include <string>
#include <vector>

#include "base/number.h"
#include "base/text.h"
#include "state/page.h"

namespace ordex {
namespace {

// Rows as their sort key sees them: column 1 is the row's text, the others its sub-items.
std::string_view CellText(const ReviewRow& row, int sortKey) {
  return sortKey == 0 ? row.text : row.sub[static_cast<std::size_t>(sortKey - 1)];
}

// By text, letter case ignored; rows with equal texts keep their order.
void SortRows(ReviewList& list) {
  std::vector<std::string> keys(list.rows.size());
  for (std::size_t i = 0; i < keys.size(); ++i) {
    keys[i] = Lower(CellText(list.rows[i], list.sortKey));
  }
  const bool descending = list.sortOrder == SortOrder::kDescending;
  std::stable_sort(list.order.begin(), list.order.end(), [&](std::uint32_t a, std::uint32_t b) {
    return descending ? keys[b] < keys[a] : keys[a] < keys[b];
  });
}

Column& ColumnAt(ReviewList& list, int column) {
  return list.columns.at(static_cast<std::size_t>(column - 1));
}

}  // namespace

void WriteListView(ReviewList& lstImport, std::string_view ValueItem, std::string_view FirstSubItem,
                   std::string_view SecondSubItem, std::string_view ThirdSubItem,
                   std::string_view szTag) {
  lstImport.order.push_back(static_cast<std::uint32_t>(lstImport.rows.size()));
  lstImport.rows.push_back({ValueItem, {FirstSubItem, SecondSubItem, ThirdSubItem}, szTag});
  if (szTag.empty()) return;
  lstImport.taggedRows.push_back(lstImport.rows.size());
  lstImport.hasTaggedRows = true;
}

void ClearRows(ReviewList& lstImport) {
  lstImport.rows.clear();
  lstImport.order.clear();
}

void SetWidthlstImport(ReviewList& lstImport, int kind) {
  auto& columns = lstImport.columns;
  if (kind == kPageProfile || kind == kPageJusticeOfThePeace) {
    columns[1].width = 5000;
    columns[2].width = kListWidth - columns[0].width - columns[1].width - 350;
    columns[3].width = 0;
  } else if (kind == kPageHistory) {
    columns[1].header = "Data";
    columns[1].width = 1500;
    columns[2].header = "Descrizione";
    columns[2].width = 7300;
    columns[3].width = 1100;
  }
}

void OrdinaColonna(ReviewList& lstImport, int column) {
  const int sortedLast = ToInt32(lstImport.tag);
  lstImport.sortKey = column - 1;
  Column& clicked = ColumnAt(lstImport, column);
  if (sortedLast == column) {
    const bool ascending = lstImport.sortOrder == SortOrder::kAscending;
    lstImport.sortOrder = ascending ? SortOrder::kDescending : SortOrder::kAscending;
    clicked.icon = ascending ? ColumnIcon::kDescending : ColumnIcon::kAscending;
  } else {
    ColumnAt(lstImport, sortedLast).icon = ColumnIcon::kNone;
    clicked.icon = ColumnIcon::kAscending;
    lstImport.tag = std::to_string(column);
    lstImport.sortOrder = SortOrder::kAscending;
  }
  SortRows(lstImport);
}

void lstImport_ItemClick(ReviewList& lstImport, std::size_t place) {
  lstImport.toolTip = lstImport.rows.at(lstImport.order.at(place - 1)).sub[1];
}

void lstImport_MouseMove(ReviewList& lstImport) {
  lstImport.mousePointer = Pointer::kHand;
}

void SetWidthlstAgenda(AgendaList& lstAgendaAvv) {
  lstAgendaAvv.columns[1].width = kListWidth - lstAgendaAvv.columns[0].width - 300;
}

void AggiungiRigaAgenda(AgendaList& lstAgendaAvv, std::string_view ValueItem,
                        std::string_view FirstSubItem, bool bold) {
  lstAgendaAvv.rows.push_back(ValueItem, FirstSubItem, bold);
}

void lstAgendaAvv_ItemClick(AgendaList& lstAgendaAvv, std::size_t place) {
  const AgendaRow row = lstAgendaAvv.rows.at(place - 1);
  lstAgendaAvv.toolTip = std::string(row.text).append(" - ").append(row.sub);
}

}  // namespace ordex
