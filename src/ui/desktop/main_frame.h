// frmMain on the desktop: draws the main window's state and passes the user's acts on. It decides
// nothing.
#pragma once

#include <wx/frame.h>

#include <functional>

#include "app/main_window.h"
#include "ui/desktop/acts.h"
#include "ui/desktop/case_header_panel.h"
#include "ui/desktop/choice_panel.h"
#include "ui/desktop/command_bar.h"
#include "ui/desktop/list_ctrls.h"
#include "ui/desktop/status_line.h"

namespace ordex::desktop {

class MainFrame : public wxFrame {
 public:
  // `window` lives longer than the frame. `onEnd` is called once the program is over.
  MainFrame(MainWindow& window, std::function<void()> onEnd);

  // Carries an act out and draws what it left; acts that come while it is on its way are dropped,
  // as its boxes and dialogs are modal.
  void Run(const Act& act);
  void Draw();
  // Shows the window, ready for the Return key.
  void Open();
  // Hands the focus to the control of that name, where there is one.
  void FocusOn(const wxString& name);
  StatusLine& Status() { return *status_; }
  // A second start has signalled a further page.
  void Poke();

 private:
  void Arrange();
  void DrawSize();
  void ShowDetailsWhereTheyFit();
  void OnActivate(wxActivateEvent& event);
  void OnKey(wxKeyEvent& event);

  MainWindow& window_;
  std::function<void()> onEnd_;
  int running_ = 0;  // acts on the way
  bool sizeSettled_ = false;
  FrmMain drawn_;  // the window's sizes as drawn last
  CaseHeaderPanel* header_;
  wxButton* cmdPulisci_;
  ChoicePanel* choice_;
  CommandBar* commands_;
  wxPanel* details_;
  ReviewListCtrl* lstImport_;
  AgendaListCtrl* lstAgendaAvv_;
  StatusLine* status_;
};

}  // namespace ordex::desktop
