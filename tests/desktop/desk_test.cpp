#include "desk_test.h"

#include <wx/clipbrd.h>

#include "database.h"
#include "differences.h"
#include "text_files.h"

namespace ordex::desktop_tests {
namespace {

const std::filesystem::path kSource = ORDEX_SOURCE_DIR;

}  // namespace

DeskTest::DeskTest()
    : office_(kSource), settings_(office_.settings()), clock_({2026, 2, 20, 10, 30, 0}) {}

void DeskTest::TearDown() {
  if (desk_ == nullptr) return;
  OnMain([] {
    while (wxDialog* dialog = FrontDialog()) {
      dialog->EndModal(wxID_CANCEL);
      break;
    }
  });
  OnMain([this] { desk_->Close(); });
  EXPECT_TRUE(WaitFor([this] { return frameGone_; }));
  OnMain([this] { desk_.reset(); });
}

void DeskTest::PutOnClipboard(const std::string& text) {
  OnMain([&] {
    wxTheClipboard->Open();
    wxTheClipboard->SetData(new wxTextDataObject(wxString::FromUTF8(text)));
    wxTheClipboard->Close();
  });
}

std::string DeskTest::Clipboard() {
  return OnMain([] {
    wxTextDataObject text;
    wxTheClipboard->Open();
    const bool there = wxTheClipboard->GetData(text);
    wxTheClipboard->Close();
    return there ? text.GetText().utf8_string() : std::string();
  });
}

void DeskTest::Open(const std::string& sample) {
  OpenText(sessions::ReadFile(kSource / "samples" / sample));
}

void DeskTest::OpenText(const std::string& page) {
  PutOnClipboard(page);
  OnMain([this] {
    desk_ = std::make_unique<desktop::Desk>(office_.office(), settings_, clock_,
                                            [this](EndReason) { desk_->Close(); });
    frameGone_ = false;
    desk_->frame()->Bind(wxEVT_DESTROY, [this](wxWindowDestroyEvent& event) {
      event.Skip();
      if (event.GetEventObject() == desk_->frame() || dynamic_cast<wxFrame*>(event.GetWindow())) {
        frameGone_ = true;
      }
    });
  });
  LeaveOnMain([this] { desk_->Start(); });
  ASSERT_TRUE(WaitFor([this] {
    return FrontDialog() != nullptr || desk_->window().ended() ||
           (desk_->frame()->IsShown() && desk_->frame()->IsActive());
  }));
  Settle();
}

void DeskTest::HandOver(const std::string& sample) {
  PutOnClipboard(sessions::ReadFile(kSource / "samples" / sample));
  LeaveOnMain([this] { desk_->frame()->Poke(); });
  Settle();
}

std::optional<EndReason> DeskTest::Ended() {
  return OnMain([this] { return desk_->window().ended(); });
}

bool DeskTest::EndsAs(EndReason reason) {
  return WaitFor([this] { return desk_->window().ended().has_value(); }) && Ended() == reason;
}

bool DeskTest::HasFocus(const wxWindow* control) {
  return WaitFor([control] { return wxWindow::FindFocus() == control; });
}

Box DeskTest::NextBox() {
  EXPECT_TRUE(WaitFor([] { return FrontBox().has_value(); }));
  Settle();
  return OnMain([] { return FrontBox(); }).value_or(Box{});
}

wxDialog* DeskTest::NextDialog(const std::string& name) {
  const auto there = [&] {
    wxDialog* front = FrontDialog();
    return front != nullptr && front->GetName() == name && front->IsActive();
  };
  EXPECT_TRUE(WaitFor(there)) << name;
  Settle();
  return OnMain([&] { return there() ? FrontDialog() : nullptr; });
}

bool DeskTest::NoBox() {
  return WaitFor([] { return FrontDialog() == nullptr; });
}

std::vector<std::string> DeskTest::NotAsState() {
  Settle();
  return Frame([this](desktop::MainFrame& frame) { return Differences(desk_->window().state(), frame); });
}

std::vector<std::string> DeskTest::Rows(const std::string& select) const {
  return sessions::QueryRows(office_.database(), select);
}

Box UpdatedBox() {
  return {"Pratica Praxion aggiornata",
          "La pratica di Praxion è stata aggiornata con i dati di OrdexWeb.",
          wxICON_INFORMATION,
          {"OK"}};
}

Box CreatedBox() {
  return {"Pratica Praxion creata", "La pratica è stata creata.", wxICON_INFORMATION, {"OK"}};
}

Box NoCaseBox() {
  return {"Pratica Praxion non selezionata",
          "Non è stata selezionata una pratica.\n"
          "Procedere con la creazione di una nuova pratica con i dati di OrdexWeb ?\n\n"
          "(N.B.: Verranno chieste altre informazioni!)",
          wxICON_QUESTION,
          {"Sì", "No"}};
}

}  // namespace ordex::desktop_tests
