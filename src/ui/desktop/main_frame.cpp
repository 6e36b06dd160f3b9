#include "ui/desktop/main_frame.h"

#include <wx/display.h>
#include <wx/sizer.h>

#include <utility>

#include "base/on_the_way.h"
#include "ui/desktop/icons.h"
#include "ui/desktop/platform.h"
#include "ui/desktop/wx_text.h"

namespace ordex::desktop {
namespace {

constexpr int kMargin = 8;
constexpr int kGap = 5;
// A list of fewer pixels than this shows no row worth reading.
constexpr int kLeastListHeight = 100;

}  // namespace

MainFrame::MainFrame(MainWindow& window, std::function<void()> onEnd)
    : wxFrame(nullptr, wxID_ANY, "Ordex", wxDefaultPosition, wxDefaultSize, wxDEFAULT_FRAME_STYLE,
              "frmMain"),
      window_(window),
      onEnd_(std::move(onEnd)) {
  SetIcons(ProgramIcon());
  const Window& state = window_.state();
  const ActRunner run = [this](const Act& act) { Run(act); };
  auto* body = new wxPanel(this);
  header_ = new CaseHeaderPanel(body, state.choice.ctlTestata1, run);
  cmdPulisci_ =
      MakeFlatButton(header_, state.commands.cmdPulisci, "clear", run, [this](MainWindow& main) {
        // What was typed and not searched for yet goes too.
        header_->SearchBox().Empty();
        main.PressPulisci();
      });
  cmdPulisci_->SetName("Pulisci campi");
  cmdPulisci_->MoveAfterInTabOrder(&header_->SearchBox());
  header_->SearchRow().Add(cmdPulisci_, 0, wxALIGN_CENTRE_VERTICAL | wxLEFT, FromDIP(kGap));
  choice_ = new ChoicePanel(body, state.choice, run);
  commands_ = new CommandBar(body, state.commands, run);
  details_ = new wxPanel(body);
  // Until there is room: a list without any would have to place its scroll bar outside of itself.
  details_->Hide();
  lstImport_ = new ReviewListCtrl(details_, state.lstImport, run);
  lstAgendaAvv_ = new AgendaListCtrl(details_, state.lstAgendaAvv, run);
  status_ = new StatusLine(this);
  SetStatusBar(status_);
  Arrange();
  commands_->DefaultButton().SetDefault();

  Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent&) { Run([](MainWindow& main) { main.Close(); }); });
  Bind(wxEVT_CHAR_HOOK, &MainFrame::OnKey, this);
  Bind(wxEVT_ACTIVATE, &MainFrame::OnActivate, this);
  body->Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
    event.Skip();
    // Not from within: a control shown or hidden while sizes are handed out gets none.
    CallAfter(&MainFrame::ShowDetailsWhereTheyFit);
  });
}

void MainFrame::Arrange() {
  auto* lists = new wxBoxSizer(wxVERTICAL);
  lists->Add(lstImport_, 1, wxEXPAND);
  lists->Add(lstAgendaAvv_, 1, wxEXPAND);
  details_->SetSizer(lists);

  wxWindow* body = details_->GetParent();
  auto* rows = new wxBoxSizer(wxVERTICAL);
  const int sides = wxLEFT | wxRIGHT;
  rows->Add(header_, 0, wxEXPAND | sides | wxTOP, FromDIP(kMargin));
  rows->AddSpacer(FromDIP(kGap));
  rows->Add(choice_, 0, wxEXPAND | sides, FromDIP(kMargin));
  rows->AddSpacer(FromDIP(kGap));
  rows->Add(commands_, 0, wxEXPAND | sides, FromDIP(kMargin));
  rows->AddSpacer(FromDIP(kGap));
  rows->Add(details_, 1, wxEXPAND | sides | wxBOTTOM, FromDIP(kMargin));
  body->SetSizer(rows);
}

void MainFrame::Run(const Act& act) {
  if (running_ > 0 || window_.ended()) return;
  {
    const OnTheWay onTheWay(running_);
    act(window_);
  }
  status_->HideProgress();
  if (window_.ended()) {
    Hide();
    onEnd_();
  } else {
    Draw();
  }
}

// The main window keeps a poke back for as long as a handler is on its way, and takes it in then.
void MainFrame::Poke() {
  if (running_ > 0) {
    window_.Poke();
    return;
  }
  Run([](MainWindow& main) { main.Poke(); });
}

void MainFrame::Draw() {
  const Window& state = window_.state();
  if (GetTitle() != Wx(state.frmMain.caption)) SetTitle(Wx(state.frmMain.caption));
  header_->Show(state.choice.ctlTestata1.visible);
  header_->Draw();
  DrawButton(*cmdPulisci_, state.commands.cmdPulisci);
  choice_->Draw();
  commands_->Draw();
  status_->Draw(state.status);
  lstImport_->Show(state.lstImport.visible);
  lstAgendaAvv_->Show(state.lstAgendaAvv.visible);
  lstImport_->Draw();
  lstAgendaAvv_->Draw();
  DrawSize();
  ShowDetailsWhereTheyFit();
}

// Only what the program changes is set: the user may have moved or stretched the window meanwhile.
void MainFrame::DrawSize() {
  const FrmMain& form = window_.state().frmMain;
  if (drawn_.height != form.height || !IsShown()) {
    const int width = IsShown() ? GetSize().GetWidth() : Pixels(*this, form.width);
    SetSize(width, Pixels(*this, form.height));
  }
  if (drawn_.top != form.top || drawn_.left != form.left) {
    // The program places it within the work area, which need not begin where the screen does.
    const wxPoint corner = wxDisplay(static_cast<unsigned>(0)).GetClientArea().GetTopLeft();
    Move(corner + wxPoint(Pixels(*this, form.left), Pixels(*this, form.top)));
  }
  drawn_ = form;
}

// With the details hidden the window ends above them; the case header takes what room is left.
void MainFrame::ShowDetailsWhereTheyFit() {
  wxWindow* body = details_->GetParent();
  wxSizer* rows = body->GetSizer();
  rows->SetItemMinSize(details_, 0, 0);
  // Room is kept for the choice of the parties, so that the list stays when it comes and goes.
  const int kept = choice_->IsShown() ? 0 : choice_->GetBestSize().GetHeight();
  const int above = rows->CalcMin().GetHeight() + kept;
  const bool fit = body->GetClientSize().GetHeight() - above >= FromDIP(kLeastListHeight);
  if (details_->IsShown() != fit) details_->Show(fit);
  rows->GetItem(header_)->SetProportion(fit ? 0 : 1);
  const wxRect before = commands_->GetRect();
  body->Layout();
  SettleLayout(*this);
  // What moves takes along what was drawn, even where that waits to be drawn anew.
  if (commands_->GetRect() != before) Refresh();
}

void MainFrame::Open() {
  Draw();
  Show();
  if (window_.state().commands.cmdAzione.enabled) {
    commands_->DefaultButton().SetFocus();
  } else {
    header_->SearchBox().SetFocus();
  }
}

// The height counts the title bar, which some desktops tell only once the window is there.
void MainFrame::OnActivate(wxActivateEvent& event) {
  event.Skip();
  if (sizeSettled_ || !IsShown()) return;
  sizeSettled_ = true;
  drawn_.height = 0;
  CallAfter(&MainFrame::DrawSize);
}

void MainFrame::FocusOn(const wxString& name) {
  wxWindow* control = FindWindowByName(name, this);
  if (control != nullptr) control->SetFocus();
}

void MainFrame::OnKey(wxKeyEvent& event) {
  const bool searching = header_->SearchBox().DropDownShown();
  const bool inList = lstImport_->HasFocus() || lstAgendaAvv_->HasFocus();
  const Button& cmdAzione = window_.state().commands.cmdAzione;
  if (event.GetKeyCode() == WXK_ESCAPE && !searching) {
    Run([](MainWindow& main) { main.PressNo(); });
  } else if (event.GetKeyCode() == WXK_RETURN && inList && cmdAzione.enabled) {
    // A list keeps the Return key from the default button.
    Run([](MainWindow& main) { main.PressAzione(); });
  } else {
    event.Skip();
  }
}

}  // namespace ordex::desktop
