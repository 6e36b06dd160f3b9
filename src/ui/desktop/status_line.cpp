#include "ui/desktop/status_line.h"

#include <array>

#include "ui/desktop/icons.h"
#include "ui/desktop/wx_text.h"

namespace ordex::desktop {
namespace {

enum Field { kPictureField, kTextField, kGaugeField, kFields };

constexpr int kPictureSide = 16;
constexpr int kPictureWidth = 26;
constexpr int kGaugeWidth = 140;
constexpr int kGaugeSteps = 1000;

}  // namespace

StatusLine::StatusLine(wxWindow* parent)
    : wxStatusBar(parent, wxID_ANY,
                  wxSTB_ELLIPSIZE_END | wxSTB_SHOW_TIPS | wxFULL_REPAINT_ON_RESIZE, "StatusBar") {
  SetFieldsCount(kFields);
  const std::array<int, kFields> styles = {wxSB_FLAT, wxSB_FLAT, wxSB_FLAT};
  SetStatusStyles(kFields, styles.data());
  image_ = new wxStaticBitmap(this, wxID_ANY, Icon("praxion", kPictureSide));
  image_->Hide();
  gauge_ = new wxGauge(this, wxID_ANY, kGaugeSteps);
  gauge_->SetName("Avanzamento");
  gauge_->Hide();
  Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
    Arrange();
    event.Skip();
  });
  Arrange();
}

void StatusLine::Draw(const StatusBar& status) {
  if (picture_ != status.picture) {
    picture_ = status.picture;
    if (!picture_.empty()) image_->SetBitmap(PictureOf(picture_, kPictureSide));
    image_->Show(!picture_.empty());
    Arrange();
  }
  const wxString text = Wx(status.text);
  if (GetStatusText(kTextField) != text) SetStatusText(text, kTextField);
}

void StatusLine::ShowProgress(std::size_t done, std::size_t total) {
  if (total == 0) return;
  gauge_->SetValue(static_cast<int>(done * kGaugeSteps / total));
  if (gauge_->IsShown()) return;
  gauge_->Show();
  Arrange();
}

void StatusLine::HideProgress() {
  if (!gauge_->IsShown()) return;
  gauge_->Hide();
  Arrange();
}

void StatusLine::Arrange() {
  const std::array<int, kFields> widths = {image_->IsShown() ? FromDIP(kPictureWidth) : FromDIP(4),
                                           -1,
                                           gauge_->IsShown() ? FromDIP(kGaugeWidth) : FromDIP(16)};
  SetStatusWidths(kFields, widths.data());
  wxRect place;
  if (GetFieldRect(kPictureField, place)) {
    const wxSize size = image_->GetSize();
    image_->Move(place.x + FromDIP(4), place.y + (place.height - size.GetHeight()) / 2);
  }
  if (GetFieldRect(kGaugeField, place)) gauge_->SetSize(place.Deflate(FromDIP(2)));
}

}  // namespace ordex::desktop
