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
  wxWindow* MakeFrameCliente(const ActRunner& run);
  wxWindow* MakeFrameUtenteCont(const ActRunner& run);

  const CaseChoice& choice_;
  wxWindow* frameCliente_;
  wxWindow* frameUtenteCont_;
  std::array<wxChoice*, 2> cmbParti_{};
  wxChoice* cmbUtenteCont_ = nullptr;
};

}  // namespace ordex::desktop
