#include "ui/desktop/command_bar.h"

#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/statbmp.h>
#include <wx/stattext.h>

#include "ui/desktop/icons.h"
#include "ui/desktop/platform.h"
#include "ui/desktop/wx_text.h"

namespace ordex::desktop {
namespace {

constexpr int kSymbolSide = 20;
constexpr int kBannerSide = 18;
constexpr int kGap = 4;
constexpr int kButtonWidth = 116;

wxColour BannerColour() {
  return wxSystemSettings::GetAppearance().IsDark() ? wxColour(0x5A, 0x45, 0x10)
                                                    : wxColour(0xFF, 0xF1, 0xC2);
}

wxColour BannerTextColour() {
  return wxSystemSettings::GetAppearance().IsDark() ? wxColour(0xFF, 0xF1, 0xC2)
                                                    : wxColour(0x4A, 0x36, 0x00);
}

}  // namespace

wxButton* MakeFlatButton(wxWindow* parent, const Button& button, const wxString& picture,
                         const ActRunner& run, const Act& act) {
  auto* made = new wxButton(parent, wxID_ANY, Wx(button.caption), wxDefaultPosition, wxDefaultSize,
                            wxBORDER_NONE | (button.caption.empty() ? wxBU_EXACTFIT : 0));
  if (!picture.empty()) made->SetBitmap(Icon(Utf8(picture), kSymbolSide));
  made->Bind(wxEVT_BUTTON, [run, act](wxCommandEvent&) { run(act); });
  DrawButton(*made, button);
  return made;
}

void DrawButton(wxAnyButton& shown, const Button& button) {
  if (shown.GetLabel() != Wx(button.caption)) shown.SetLabel(Wx(button.caption));
  if (shown.IsThisEnabled() != button.enabled) shown.Enable(button.enabled);
  if (shown.IsShown() != button.visible) shown.Show(button.visible);
  if (shown.GetToolTipText() != Wx(button.toolTip)) shown.SetToolTip(Wx(button.toolTip));
}

CommandBar::CommandBar(wxWindow* parent, const Commands& commands, const ActRunner& run)
    : wxPanel(parent), commands_(commands) {
  cmdAzione_ = MakeFlatButton(this, commands.cmdAzione, wxString(), run,
                              [](MainWindow& window) { window.PressAzione(); });
  cmdAzione_->SetFont(cmdAzione_->GetFont().Bold());
  cmdAnnulla_ = MakeFlatButton(this, commands.cmdAnnulla, "cancel", run,
                               [](MainWindow& window) { window.PressAnnulla(); });
  chkDettagli_ = new wxToggleButton(this, wxID_ANY, Wx(commands.chkDettagli.caption),
                                    wxDefaultPosition, wxDefaultSize, wxBORDER_NONE);
  MakeFlat(*chkDettagli_);
  chkDettagli_->Bind(wxEVT_TOGGLEBUTTON, [run](wxCommandEvent&) {
    run([](MainWindow& window) { window.ToggleDettagli(); });
  });
  cmdNo_ = MakeFlatButton(this, commands.cmdNo, "close", run,
                          [](MainWindow& window) { window.PressNo(); });

  auto* buttons = new wxBoxSizer(wxHORIZONTAL);
  for (wxAnyButton* button :
       {static_cast<wxAnyButton*>(cmdAzione_), static_cast<wxAnyButton*>(cmdAnnulla_)}) {
    button->SetMinSize(wxSize(FromDIP(kButtonWidth), -1));
    buttons->Add(button, 0, wxEXPAND | wxRIGHT, FromDIP(kGap));
  }
  buttons->AddStretchSpacer();
  for (wxAnyButton* button :
       {static_cast<wxAnyButton*>(chkDettagli_), static_cast<wxAnyButton*>(cmdNo_)}) {
    button->SetMinSize(wxSize(FromDIP(kButtonWidth), -1));
    buttons->Add(button, 0, wxEXPAND | wxLEFT, FromDIP(kGap));
  }
  auto* rows = new wxBoxSizer(wxVERTICAL);
  rows->Add(buttons, 0, wxEXPAND);
  rows->Add(MakeBanner(), 0, wxEXPAND | wxTOP, FromDIP(kGap));
  SetSizer(rows);
}

wxWindow* CommandBar::MakeBanner() {
  // A panel would be a stop of the tab key, with nothing on it to act on.
  auto* banner = new wxWindow(this, wxID_ANY);
  banner->SetName("HIWarning");
  banner->DisableFocusFromKeyboard();
  banner->SetBackgroundColour(BannerColour());
  auto* text = new wxStaticText(banner, wxID_ANY, Wx(commands_.HIWarning.caption));
  text->SetForegroundColour(BannerTextColour());
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(new wxStaticBitmap(banner, wxID_ANY, Icon("exclamation", kBannerSide)), 0,
           wxALIGN_CENTRE_VERTICAL | wxALL, FromDIP(3));
  row->Add(text, 1, wxALIGN_CENTRE_VERTICAL | wxLEFT, FromDIP(kGap));
  banner->SetSizer(row);
  return banner;
}

void CommandBar::Draw() {
  DrawButton(*cmdAzione_, commands_.cmdAzione);
  DrawButton(*cmdAnnulla_, commands_.cmdAnnulla);
  DrawButton(*cmdNo_, commands_.cmdNo);
  if (symbol_ != commands_.cmdAzione.symbol) {
    symbol_ = commands_.cmdAzione.symbol;
    cmdAzione_->SetBitmap(SymbolPicture(symbol_, kSymbolSide));
  }
  const ToggleButton& toggle = commands_.chkDettagli;
  if (picture_ != toggle.picture) {
    picture_ = toggle.picture;
    chkDettagli_->SetBitmap(PictureOf(picture_, kSymbolSide));
  }
  if (chkDettagli_->GetValue() != toggle.pressed) chkDettagli_->SetValue(toggle.pressed);
  if (chkDettagli_->GetToolTipText() != Wx(toggle.toolTip)) {
    chkDettagli_->SetToolTip(Wx(toggle.toolTip));
  }
  Layout();
}

}  // namespace ordex::desktop
