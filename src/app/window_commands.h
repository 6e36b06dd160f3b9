// The small commands of the main window: details, clear, cancel, and how it is laid out.
#pragma once

#include <cstdint>

#include "cases/case_header.h"
#include "state/ports.h"
#include "state/window.h"

namespace ordex {

// Names the page's kind in the title and the page file after it: both by the recognition text.
void SetCaption(Window& window);

// Centres the window on the screen.
void CentraForm(FrmMain& frmMain, const ScreenSize& screen);

// Shows or hides the details; the toggle has already changed its state.
void chkDettagli_Click(Window& window, const ScreenSize& screen);
// Clears the case header and, but for a history page, waits for another case to be chosen.
void cmdPulisci_Click(Window& window, CaseHeaderControl& ctlTestata1);
// Takes a pending create back.
void cmdAnnulla_Click(Window& window);

// Rearranges the window for an agenda page: the agenda list in the place of the review list.
void MostraAgenda(Window& window);

}  // namespace ordex
