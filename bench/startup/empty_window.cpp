// The least program of the toolkit: a window of the same size, which Escape closes. What Ordex
// needs beyond this to start is its own.
#include <wx/app.h>
#include <wx/frame.h>
#include <wx/panel.h>

namespace {

class EmptyApp : public wxApp {
 public:
  bool OnInit() override {
    auto* frame = new wxFrame(nullptr, wxID_ANY, "Vuota", wxDefaultPosition, wxSize(800, 288));
    frame->Bind(wxEVT_CHAR_HOOK, [frame](wxKeyEvent& event) {
      if (event.GetKeyCode() == WXK_ESCAPE) frame->Close();
    });
    // A window without anything on it gets no keys.
    auto* panel = new wxPanel(frame, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxWANTS_CHARS);
    frame->Show();
    panel->SetFocus();
    return true;
  }
};

}  // namespace

wxIMPLEMENT_APP(EmptyApp);
