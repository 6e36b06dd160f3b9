#include "differences.h"

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/gauge.h>
#include <wx/hyperlink.h>
#include <wx/listctrl.h>
#include <wx/stattext.h>
#include <wx/tglbtn.h>

#include <algorithm>
#include <sstream>

#include "eyes.h"

namespace ordex::desktop_tests {
namespace {

using desktop::MainFrame;

constexpr int kTwipsPerPixel = 15;

std::string WithoutMnemonic(const std::string& caption) {
  return wxControl::RemoveMnemonics(wxString::FromUTF8(caption)).utf8_string();
}

class Comparison {
 public:
  Comparison(const Window& state, const MainFrame& frame) : state_(state), frame_(frame) {}

  std::vector<std::string> Run() {
    Same("caption", frame_.GetTitle().utf8_string(), state_.frmMain.caption);
    Same("height", frame_.ToDIP(frame_.GetSize().GetHeight()),
         state_.frmMain.height / kTwipsPerPixel);
    CompareHeader();
    CompareChoice();
    CompareCommands();
    CompareStatus();
    CompareReviewList();
    CompareAgendaList();
    return differences_;
  }

 private:
  template <typename Value>
  void Same(const std::string& what, const Value& shown, const Value& meant) {
    if (shown == meant) return;
    std::ostringstream text;
    text << what << " shows \"" << shown << "\", the state says \"" << meant << "\"";
    differences_.push_back(text.str());
  }

  void CompareHeader() {
    const CaseHeader& header = state_.choice.ctlTestata1;
    const wxWindow* panel = Seen<wxWindow>(frame_, "Pratica");
    Same("the case header's being there", panel != nullptr, header.visible);
    if (panel == nullptr || !header.visible) return;
    const std::vector<std::string> texts = TextsOf(*panel);
    const auto holds = [&](const std::string& text) {
      return std::find(texts.begin(), texts.end(), text) != texts.end();
    };
    const auto told = [&](const std::string& what, const std::string& text) {
      Same(what, holds(text.empty() ? "–" : text), true);
    };
    Same("the mark of a penal case", holds(" PENALE "), header.penale);
    Same("no case", holds("Nessuna pratica selezionata"), header.idPra == 0);
    if (header.idPra != 0 && !header.numeroRG.empty()) {
      told("the register number", "N. R.G. " + header.numeroRG);
    }
    told("the subject", header.descriptions[0]);
    told("the section", header.descriptions[1]);
    told("the judge", header.istruttore);
    told("the position", header.posizione);
    for (const PersonLink* person : {&header.cliente, &header.controparte}) {
      if (person->idAna == 0) {
        told("a party without a link", person->name);
      } else {
        Same("the link of " + person->name, Seen<wxHyperlinkCtrl>(*panel, person->name) != nullptr,
             true);
      }
    }
  }

  void CompareChoice() {
    const CaseChoice& choice = state_.choice;
    const std::string user = choice.frameUtenteCont.caption;
    CompareBox("Cliente", choice.cmbParti[0], choice.frameCliente.visible);
    CompareBox("Controparte", choice.cmbParti[1], choice.frameCliente.visible);
    CompareBox(user, choice.cmbUtenteCont, choice.frameUtenteCont.visible);
    Same("the caption of the client box", HasText(" Cliente : "), choice.frameCliente.visible);
    Same("the caption of the counterpart box", HasText(" Controparte: "),
         choice.frameCliente.visible);
    Same("the caption of the user box", HasText(user), choice.frameUtenteCont.visible);
  }

  bool HasText(const std::string& text) {
    const std::vector<std::string> texts = TextsOf(frame_);
    return std::find(texts.begin(), texts.end(), text) != texts.end();
  }

  void CompareBox(const std::string& name, const ComboBox& box, bool visible) {
    const auto* shown = Seen<wxChoice>(frame_, name);
    Same("box " + name + " being there", shown != nullptr, visible);
    if (shown == nullptr) return;
    Same("box " + name + ": entries", static_cast<std::size_t>(shown->GetCount()),
         box.items.size());
    for (std::size_t i = 0; i < std::min<std::size_t>(box.items.size(), shown->GetCount()); ++i) {
      Same("box " + name, shown->GetString(static_cast<unsigned>(i)).utf8_string(),
           box.items[i].text);
    }
    Same("box " + name + ": choice", shown->GetSelection(), box.index);
    Same("box " + name + ": tool tip", shown->GetToolTipText().utf8_string(), box.toolTip);
  }

  void CompareCommands() {
    const Commands& commands = state_.commands;
    CompareButton("cmdAzione", WithoutMnemonic(commands.cmdAzione.caption), commands.cmdAzione);
    CompareButton("cmdAnnulla", "Annulla", commands.cmdAnnulla);
    CompareButton("cmdNo", "Chiudi", commands.cmdNo);
    if (state_.choice.ctlTestata1.visible) {
      CompareButton("cmdPulisci", "Pulisci campi", commands.cmdPulisci);
    }
    const ToggleButton& toggle = commands.chkDettagli;
    const auto* shown = Seen<wxToggleButton>(frame_, WithoutMnemonic(toggle.caption));
    Same("chkDettagli being there", shown != nullptr, true);
    if (shown != nullptr) {
      Same("chkDettagli: pressed", shown->GetValue(), toggle.pressed);
      Same("chkDettagli: tool tip", shown->GetToolTipText().utf8_string(), toggle.toolTip);
    }
    Same("the banner", HasText(commands.HIWarning.caption), true);
  }

  void CompareButton(const std::string& name, const std::string& label, const Button& button) {
    const auto* shown = Seen<wxButton>(frame_, label);
    Same(name + " being there", shown != nullptr, button.visible);
    if (shown == nullptr) return;
    Same(name + ": enabled", shown->IsEnabled(), button.enabled);
    Same(name + ": tool tip", shown->GetToolTipText().utf8_string(), button.toolTip);
    // The drawn symbols themselves are compared where the test says which it must be.
    if (button.symbol != Symbol::kNone) {
      Same(name + ": picture", shown->GetBitmap().IsOk(), true);
    }
  }

  void CompareStatus() {
    const auto* status = dynamic_cast<desktop::StatusLine*>(frame_.GetStatusBar());
    Same("the status bar being there", status != nullptr, true);
    if (status == nullptr) return;
    Same("status text", status->GetStatusText(1).utf8_string(), state_.status.text);
    Same("status picture", status->Picture(), state_.status.picture);
  }

  void CompareColumn(const wxListCtrl& list, int place, const Column& column) {
    wxListItem shown;
    shown.SetMask(wxLIST_MASK_TEXT | wxLIST_MASK_IMAGE);
    list.GetColumn(place, shown);
    const std::string name = "column " + std::to_string(place + 1);
    Same(name, shown.GetText().utf8_string(), column.header);
    Same(name + ": picture", std::max(shown.GetImage(), -1) + 1, static_cast<int>(column.icon));
  }

  void CompareReviewList() {
    const ReviewList& list = state_.lstImport;
    const auto* shown = dynamic_cast<wxListCtrl*>(wxWindow::FindWindowByName("lstImport", &frame_));
    Same("rows of lstImport", static_cast<std::size_t>(shown->GetItemCount()), list.rows.size());
    for (int place = 0; place < 4; ++place) {
      CompareColumn(*shown, place, list.columns[static_cast<std::size_t>(place)]);
    }
    // A page has tens of rows; of a hundred thousand the first tell as much.
    constexpr std::size_t kEnough = 500;
    const std::size_t count = std::min(kEnough, list.rows.size());
    for (std::size_t i = 0; i < count; ++i) {
      const ReviewRow row = list.rows[list.order[i]];
      for (int column = 0; column < 4; ++column) {
        const std::string_view meant =
            column == 0 ? row.text : row.sub[static_cast<std::size_t>(column - 1)];
        Same("row " + std::to_string(i + 1),
             shown->GetItemText(static_cast<long>(i), column).utf8_string(), std::string(meant));
      }
    }
    Same("tool tip of lstImport", shown->GetToolTipText().utf8_string(), list.toolTip);
  }

  void CompareAgendaList() {
    const AgendaList& list = state_.lstAgendaAvv;
    const auto* shown =
        dynamic_cast<wxListCtrl*>(wxWindow::FindWindowByName("lstAgendaAvv", &frame_));
    Same("rows of lstAgendaAvv", static_cast<std::size_t>(shown->GetItemCount()), list.rows.size());
    for (int place = 0; place < 2; ++place) {
      CompareColumn(*shown, place, list.columns[static_cast<std::size_t>(place)]);
    }
    for (std::size_t i = 0; i < list.rows.size(); ++i) {
      const auto row = static_cast<long>(i);
      Same("agenda row", shown->GetItemText(row, 0).utf8_string(), std::string(list.rows[i].text));
      Same("agenda row", shown->GetItemText(row, 1).utf8_string(), std::string(list.rows[i].sub));
    }
    Same("tool tip of lstAgendaAvv", shown->GetToolTipText().utf8_string(), list.toolTip);
  }

  const Window& state_;
  const MainFrame& frame_;
  std::vector<std::string> differences_;
};

}  // namespace

std::vector<std::string> Differences(const Window& state, const desktop::MainFrame& frame) {
  return Comparison(state, frame).Run();
}

}  // namespace ordex::desktop_tests
