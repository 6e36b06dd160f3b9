#include "ui/desktop/desktop_ports.h"

#include <wx/app.h>
#include <wx/display.h>
#include <wx/richmsgdlg.h>

#include "base/text.h"
#include "ui/desktop/person_card_dialog.h"
#include "ui/desktop/platform.h"
#include "ui/desktop/wx_text.h"

namespace ordex::desktop {
namespace {

constexpr std::chrono::milliseconds kAdvanceStep{50};

// The toolkit would draw a carriage return as a line of its own.
wxString BoxLines(const std::string& text) {
  return Wx(ReplaceAll(text, "\r\n", "\n"));
}

long StyleOf(const BoxText& box) {
  const long buttons = box.buttons == BoxButtons::kOk ? wxOK : wxYES_NO | wxYES_DEFAULT;
  switch (box.icon) {
    case BoxIcon::kInformation:
      return buttons | wxICON_INFORMATION;
    case BoxIcon::kWarning:
      return buttons | wxICON_EXCLAMATION;
    case BoxIcon::kQuestion:
      return buttons | wxICON_QUESTION;
    case BoxIcon::kStop:
      return buttons | wxICON_ERROR;
  }
  return buttons;
}

}  // namespace

void DesktopPorts::Attach(MainWindow& window, MainFrame& frame) {
  window_ = &window;
  frame_ = &frame;
}

wxWindow* DesktopPorts::Parent() const {
  return frame_ != nullptr && frame_->IsShown() ? frame_ : nullptr;
}

// What a handler has done so far is seen behind the box that it shows; and a box is no time for an
// hourglass.
void DesktopPorts::BeforeWaiting() {
  busy_.reset();
  if (Parent() == nullptr) return;
  frame_->Status().HideProgress();
  frame_->Draw();
}

BoxAnswer DesktopPorts::Show(const BoxText& box) {
  BeforeWaiting();
  wxRichMessageDialog dialog(parties_ != nullptr ? parties_ : Parent(), BoxLines(box.text),
                             Wx(box.title), StyleOf(box));
  if (box.buttons == BoxButtons::kOk) {
    dialog.SetOKLabel("OK");
    dialog.ShowModal();
    return BoxAnswer::kOk;
  }
  dialog.SetYesNoLabels(Wx("&Sì"), "&No");
  return dialog.ShowModal() == wxID_YES ? BoxAnswer::kYes : BoxAnswer::kNo;
}

void DesktopPorts::ShowPersonCard() {
  BeforeWaiting();
  PersonCardDialog(Parent(), window_->state().personCard, window_->frmInfoAnagrafica()).ShowModal();
}

void DesktopPorts::ShowParties() {
  BeforeWaiting();
  PartiesFormDialog dialog(Parent(), window_->state().partiesForm, window_->dlgParti());
  parties_ = &dialog;
  SetFocus(focus_);
  dialog.ShowModal();
  parties_ = nullptr;
}

void DesktopPorts::SetFocus(std::string_view control) {
  focus_ = control;
  if (parties_ != nullptr) {
    parties_->FocusOn(Wx(control));
  } else if (frame_ != nullptr) {
    frame_->FocusOn(Wx(control));
  }
}

void DesktopPorts::SetMousePointer(MousePointer pointer) {
  busy_.reset();
  if (pointer == MousePointer::kHourglass) busy_ = std::make_unique<wxBusyCursor>();
}

bool DesktopPorts::Open(const std::string& link) {
  return OpenLink(Wx(link));
}

ScreenSize DesktopPorts::Screen() const {
  const wxRect screen = wxDisplay(static_cast<unsigned>(0)).GetClientArea();
  if (frame_ == nullptr) return {};
  return {Twips(*frame_, screen.GetWidth()), Twips(*frame_, screen.GetHeight())};
}

// Long work goes on on the thread that also draws: at each step what waits to be drawn is drawn,
// while the controls take no act.
void DesktopPorts::Advance(std::size_t done, std::size_t total) {
  const auto now = std::chrono::steady_clock::now();
  if (Parent() == nullptr || now - lastAdvance_ < kAdvanceStep) return;
  lastAdvance_ = now;
  if (busy_ == nullptr) busy_ = std::make_unique<wxBusyCursor>();
  frame_->Status().ShowProgress(done, total);
  wxSafeYield(nullptr, true);
}

}  // namespace ordex::desktop
