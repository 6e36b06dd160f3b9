// The main window as a value: the parts that its handlers work on.
#pragma once

#include <string>

#include "state/case_choice.h"
#include "state/commands.h"
#include "state/controls.h"
#include "state/dialogs.h"
#include "state/mappings.h"
#include "state/page.h"
#include "state/review_list.h"

namespace ordex {

inline constexpr int kDesignHeight = 6555;
inline constexpr int kClosedHeight = 4320;  // the details are hidden

// The window itself; sizes and positions in twips.
struct FrmMain {
  std::string caption = "Ordex";
  int left = 0;
  int top = 0;
  int width = 12000;
  int height = kDesignHeight;
  int frameButtonsTop = 2900;
};

struct Window {
  FrmMain frmMain;
  Mappings mappings;
  Page page;
  HistoryPaging paging;
  ReviewList lstImport;
  AgendaList lstAgendaAvv;
  CaseChoice choice;
  Commands commands;
  StatusBar status;
  PersonCard personCard;
  PartiesForm partiesForm;
};

}  // namespace ordex
