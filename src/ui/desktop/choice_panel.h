// frameCliente and frameUtenteCont: who is client and counterpart of the case to be created, and
// who keeps its accounts.
#pragma once

#include <wx/choice.h>
#include <wx/panel.h>

#include <array>

#include "state/case_choice.h"
#include "ui/desktop/acts.h"

namespace ordex::desktop {

class ChoicePanel : public wxPanel {
 public:
  ChoicePanel(wxWindow* parent, const CaseChoice& choice, const ActRunner& run);
  void Draw();

 private:
  wxWindow* MakeFrameCliente();
  wxWindow* MakeFrameUtenteCont(const ActRunner& run);
  void Choose(std::size_t box, int place);
  void OnArrow(std::size_t box, wxKeyEvent& event);

  const CaseChoice& choice_;
  ActRunner run_;
  wxWindow* frameCliente_;
  wxWindow* frameUtenteCont_;
  std::array<wxChoice*, 2> cmbParti_{};
  std::array<int, 2> reached_{};  // the entry that was chosen last, kept or not
  wxChoice* cmbUtenteCont_ = nullptr;
};

}  // namespace ordex::desktop
