// The two lists of the main window: the review list and the agenda list.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "state/controls.h"
#include "state/review_rows.h"

namespace ordex {

inline constexpr int kListWidth = 11760;

enum class SortOrder { kAscending, kDescending };

// lstImport. A row's index is its place when it was added, counted from 1; sorting changes only
// `order`, so that an index kept elsewhere still names its row.
struct ReviewList {
  bool visible = true;
  std::array<Column, 4> columns = {Column{"NomeDb", 1500}, Column{"Descrizione", 5000},
                                   Column{"Valore", kListWidth - 1500 - 5000 - 350},
                                   Column{"Pagina", 0}};
  ReviewRows rows;
  std::vector<std::uint32_t> order;  // places in `rows`, in the order shown
  std::string toolTip;
  std::string tag = "1";  // the column sorted last, as decimal text; must start as a number
  int sortKey = 0;
  SortOrder sortOrder = SortOrder::kAscending;
  Pointer mousePointer = Pointer::kDefault;

  // The rows whose tag is not empty, by index, in the order they were added. The collection only
  // grows, also when the rows are cleared.
  std::vector<std::size_t> taggedRows;
  bool hasTaggedRows = false;
};

// lstAgendaAvv.
struct AgendaList {
  bool visible = false;
  int top = 0;
  std::array<Column, 2> columns = {Column{"Registro Generale\\Data", 2400},
                                   Column{"Descrizione\\Descrizione", 0}};
  AgendaRows rows;
  std::string toolTip;
};

}  // namespace ordex
