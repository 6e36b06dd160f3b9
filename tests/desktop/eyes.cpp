#include "eyes.h"

#include <gtk/gtk.h>
#include <wx/button.h>
#include <wx/frame.h>
#include <wx/richmsgdlg.h>
#include <wx/stattext.h>
#include <wx/toplevel.h>

namespace ordex::desktop_tests {
namespace {

// `texts` is a std::vector<std::string>.
void AddDrawnTexts(GtkWidget* widget, gpointer texts) {
  if (GTK_IS_LABEL(widget) && gtk_widget_get_mapped(widget) != FALSE) {
    static_cast<std::vector<std::string>*>(texts)->emplace_back(
        gtk_label_get_text(GTK_LABEL(widget)));
  }
  if (GTK_IS_CONTAINER(widget)) gtk_container_forall(GTK_CONTAINER(widget), AddDrawnTexts, texts);
}

}  // namespace

std::vector<wxWindow*> ControlsOf(const wxWindow& top) {
  std::vector<wxWindow*> controls;
  for (wxWindow* child : top.GetChildren()) {
    if (child->IsTopLevel()) continue;
    controls.push_back(child);
    const std::vector<wxWindow*> inner = ControlsOf(*child);
    controls.insert(controls.end(), inner.begin(), inner.end());
  }
  return controls;
}

std::string LabelOf(const wxWindow& control) {
  return wxControl::RemoveMnemonics(control.GetLabel()).utf8_string();
}

std::vector<std::string> TextsOf(const wxWindow& top) {
  std::vector<std::string> texts;
  for (wxWindow* control : ControlsOf(top)) {
    const auto* text = dynamic_cast<wxStaticText*>(control);
    if (text != nullptr && text->IsShownOnScreen()) {
      texts.push_back(text->GetLabelText().utf8_string());
    }
  }
  return texts;
}

std::vector<std::string> ButtonsOf(const wxWindow& top) {
  std::vector<std::string> texts;
  for (wxWindow* control : ControlsOf(top)) {
    const auto* button = dynamic_cast<wxButton*>(control);
    if (button != nullptr && button->IsShownOnScreen()) texts.push_back(LabelOf(*button));
  }
  return texts;
}

std::vector<std::string> DrawnTextsOf(const wxWindow& top) {
  std::vector<std::string> texts;
  AddDrawnTexts(top.GetHandle(), &texts);
  return texts;
}

wxDialog* FrontDialog() {
  wxDialog* front = nullptr;
  for (wxWindow* window : wxTopLevelWindows) {
    auto* dialog = dynamic_cast<wxDialog*>(window);
    if (dialog != nullptr && dialog->IsModal() && dialog->IsShown()) front = dialog;
  }
  return front;
}

wxTopLevelWindow* FrontWindow() {
  if (wxDialog* dialog = FrontDialog()) return dialog;
  for (wxWindow* window : wxTopLevelWindows) {
    auto* frame = dynamic_cast<wxFrame*>(window);
    if (frame != nullptr && frame->IsShown()) return frame;
  }
  return nullptr;
}

wxWindow* FocusedControl() {
  const wxTopLevelWindow* front = FrontWindow();
  if (front == nullptr) return nullptr;
  GtkWidget* focus = gtk_window_get_focus(GTK_WINDOW(front->GetHandle()));
  wxWindow* found = nullptr;
  for (wxWindow* control : ControlsOf(*front)) {
    GtkWidget* widget = control->GetHandle();
    const bool inside =
        focus != nullptr && (focus == widget || gtk_widget_is_ancestor(focus, widget) != FALSE);
    if (inside) found = control;  // what stands inside of others comes behind them
  }
  return found;
}

bool IsDroppedDown(const wxChoice& box) {
  gboolean shown = FALSE;
  g_object_get(box.GetHandle(), "popup-shown", &shown, nullptr);
  return shown != FALSE;
}

std::ostream& operator<<(std::ostream& out, const Box& box) {
  out << "[" << box.title << "] " << box.text << " (icon " << std::hex << box.icon << std::dec
      << ")";
  for (const std::string& button : box.buttons) out << " <" << button << ">";
  return out;
}

// What really stands in the box, not what it was asked to show.
std::optional<Box> FrontBox() {
  constexpr long kIcons = wxICON_INFORMATION | wxICON_EXCLAMATION | wxICON_QUESTION | wxICON_ERROR;
  auto* dialog = dynamic_cast<wxGenericMessageDialog*>(FrontDialog());
  if (dialog == nullptr) return std::nullopt;
  Box box;
  box.title = dialog->GetTitle().utf8_string();
  // A line without letters is drawn as a gap.
  int below = 0;
  for (wxWindow* control : ControlsOf(*dialog)) {
    const auto* text = dynamic_cast<wxStaticText*>(control);
    if (text == nullptr || !text->IsShownOnScreen()) continue;
    const wxRect place = text->GetRect();
    for (int gap = place.y - below; !box.text.empty() && gap >= text->GetCharHeight();
         gap -= text->GetCharHeight()) {
      box.text += "\n";
    }
    box.text += (box.text.empty() ? "" : "\n") + text->GetLabelText().utf8_string();
    below = place.GetBottom();
  }
  box.icon = dialog->GetMessageDialogStyle() & kIcons;
  box.buttons = ButtonsOf(*dialog);
  return box;
}

}  // namespace ordex::desktop_tests
