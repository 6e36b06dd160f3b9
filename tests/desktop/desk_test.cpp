#include "desk_test.h"

#include <wx/button.h>
#include <wx/clipbrd.h>
#include <wx/evtloop.h>
#include <wx/listctrl.h>
#include <wx/statbmp.h>

#include <cstring>
#include <sstream>
#include <stdexcept>

#include "complaints.h"
#include "database.h"
#include "differences.h"
#include "text_files.h"
#include "ui/desktop/icons.h"

namespace ordex::desktop_tests {
namespace {

const std::filesystem::path kSource = ORDEX_SOURCE_DIR;

bool SamePicture(const wxBitmap& first, const wxBitmap& second) {
  if (!first.IsOk() || !second.IsOk() || first.GetSize() != second.GetSize()) return false;
  const wxImage a = first.ConvertToImage();
  const wxImage b = second.ConvertToImage();
  const auto bytes =
      static_cast<std::size_t>(a.GetWidth()) * static_cast<std::size_t>(a.GetHeight());
  if (std::memcmp(a.GetData(), b.GetData(), 3 * bytes) != 0 || a.HasAlpha() != b.HasAlpha()) {
    return false;
  }
  return !a.HasAlpha() || std::memcmp(a.GetAlpha(), b.GetAlpha(), bytes) == 0;
}

wxListCtrl* ListOf(const std::string& name) {
  auto* list = dynamic_cast<wxListCtrl*>(wxWindow::FindWindowByName(name));
  if (list == nullptr) throw std::runtime_error("no list " + name);
  return list;
}

std::string RowText(const wxListCtrl& list, long row) {
  std::string text;
  for (int column = 0; column < list.GetColumnCount(); ++column) {
    text += (column == 0 ? "" : " | ") + list.GetItemText(row, column).utf8_string();
  }
  return text;
}

// Ends the boxes and dialogs that a test leaves up. True once the act that showed them is over too:
// it still works on the window.
bool CloseBoxes() {
  if (wxDialog* dialog = FrontDialog()) dialog->EndModal(wxID_CANCEL);
  return wxEventLoopBase::GetActive() == wxTheApp->GetMainLoop();
}

std::string WhatIsUp() {
  const wxDialog* dialog = FrontDialog();
  if (dialog == nullptr) return "no box is up";
  const std::optional<Box> box = FrontBox();
  std::ostringstream text;
  if (box) {
    text << *box;
  } else {
    text << dialog->GetName().utf8_string() << " is up";
  }
  return text.str();
}

}  // namespace

DeskTest::DeskTest()
    : office_(kSource), settings_(office_.settings()), clock_({2026, 2, 20, 10, 30, 0}) {}

void DeskTest::TearDown() {
  if (desk_ == nullptr) return;
  EXPECT_TRUE(WaitFor([] { return CloseBoxes(); }));
  OnMain([this] { desk_->Close(); });
  EXPECT_TRUE(WaitFor([this] { return frameGone_; }));
  OnMain([this] { desk_.reset(); });
  for (const std::string& complaint : TakeComplaints()) ADD_FAILURE() << complaint;
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
  OpenText(Sample(sample));
}

void DeskTest::OpenText(const std::string& page) {
  PutOnClipboard(page);
  OnMain([this] {
    desk_ = std::make_unique<desktop::Desk>(office_.office(), settings_, clock_,
                                            [this](EndReason) { desk_->Close(); });
    frameGone_ = false;
    const wxObject* made = desk_->frame();
    desk_->frame()->Bind(wxEVT_DESTROY, [this, made](wxWindowDestroyEvent& event) {
      event.Skip();
      if (event.GetEventObject() == made) frameGone_ = true;
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
  PutOnClipboard(Sample(sample));
  LeaveOnMain([this] { desk_->frame()->Poke(); });
  Settle();
}

std::optional<EndReason> DeskTest::Ended() {
  return OnMain([this] { return desk_->window().ended(); });
}

::testing::AssertionResult DeskTest::EndsAs(EndReason reason) {
  if (!WaitFor([this] { return desk_->window().ended().has_value(); })) {
    return ::testing::AssertionFailure()
           << "it has not ended; " << OnMain([] { return WhatIsUp(); });
  }
  if (Ended() == reason) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << "it has ended as " << static_cast<int>(*Ended());
}

::testing::AssertionResult DeskTest::HasFocus(const wxWindow* control) {
  const auto there = [control] {
    wxWindow* focus = FocusedControl();
    return focus != nullptr && (focus == control || control->IsDescendant(focus));
  };
  if (control != nullptr && WaitFor(there)) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << "the keys go to " << OnMain([] {
           const wxWindow* focus = FocusedControl();
           return focus == nullptr ? "nothing"
                                   : (focus->GetName() + " " + focus->GetLabel()).utf8_string();
         });
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

::testing::AssertionResult DeskTest::NoBox() {
  if (WaitFor([] { return FrontDialog() == nullptr; })) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << OnMain([] { return WhatIsUp(); });
}

std::string DeskTest::Title() {
  return Frame([](auto& frame) { return frame.GetTitle().utf8_string(); });
}

wxRect DeskTest::Place() {
  return Frame([](auto& frame) { return frame.GetScreenRect(); });
}

int DeskTest::Height() {
  return Place().GetHeight();
}

std::string DeskTest::StatusText() {
  return Frame([](auto& frame) { return frame.Status().GetStatusText(1).utf8_string(); });
}

std::string DeskTest::StatusPicture() {
  return Frame([](desktop::MainFrame& frame) -> std::string {
    for (wxWindow* child : frame.Status().GetChildren()) {
      const auto* shown = dynamic_cast<wxStaticBitmap*>(child);
      if (shown == nullptr || !shown->IsShown()) continue;
      for (const char* key :
           {"Exclamation", "Praxion", "Pratiche", "NoPratiche", "Stop", "Stop2"}) {
        const wxBitmap picture = desktop::PictureOf(key, 16).GetBitmapFor(shown);
        if (SamePicture(shown->GetBitmap(), picture)) return key;
      }
      return "some other picture";
    }
    return {};
  });
}

std::string DeskTest::Action() {
  return Frame([](auto& frame) { return LabelOf(*frame.GetDefaultItem()); });
}

Symbol DeskTest::ActionSymbol() {
  return Frame([](desktop::MainFrame& frame) {
    const auto* button = dynamic_cast<wxButton*>(frame.GetDefaultItem());
    for (const Symbol symbol : {Symbol::kUpdate, Symbol::kCreate}) {
      const wxBitmap picture = desktop::SymbolPicture(symbol, 20).GetBitmapFor(button);
      if (SamePicture(button->GetBitmap(), picture)) return symbol;
    }
    return Symbol::kNone;
  });
}

std::string DeskTest::Row(const std::string& list, long row) {
  return OnMain([&] { return RowText(*ListOf(list), row); });
}

std::vector<std::string> DeskTest::RowsOf(const std::string& list) {
  return OnMain([&] {
    const wxListCtrl* shown = ListOf(list);
    std::vector<std::string> rows;
    for (long row = 0; row < shown->GetItemCount(); ++row) rows.push_back(RowText(*shown, row));
    return rows;
  });
}

std::vector<std::string> DeskTest::NotAsState() {
  Settle();
  return Frame(
      [this](desktop::MainFrame& frame) { return Differences(desk_->window().state(), frame); });
}

std::vector<std::string> DeskTest::Rows(const std::string& select) const {
  return sessions::QueryRows(office_.database(), select);
}

std::string SourceText(const std::string& name) {
  return sessions::ReadFile(kSource / name);
}

std::string Sample(const std::string& name) {
  return SourceText("samples/" + name);
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
          {"No", "Sì"}};
}

Box PenalBox() {
  return {"Pratica Penale",
          "La pratica è penale e non può essere aggiornata con i dati di OrdexWeb.",
          wxICON_EXCLAMATION,
          {"OK"}};
}

Box RefusedBox() {
  return {
      "Praxion", "La pagina corrente non può essere importata in Praxion.", wxICON_ERROR, {"OK"}};
}

}  // namespace ordex::desktop_tests
