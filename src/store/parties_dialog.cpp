#include "store/parties_dialog.h"

#include <array>
#include <string>
#include <utility>

#include "base/text.h"

namespace ordex {
namespace {

struct BoxRole {
  std::string_view name;
  std::string_view key;      // in the page's values
  std::string_view missing;  // what is said where a name is missing
};

constexpr std::array<BoxRole, kPartyBoxes> kRoles = {{
    {"txtAttore", kPlaintiffKey, "Specificare il nome ed il cognome dell'attore."},
    {"txtAttoreDifensore", kPlaintiffCounselKey,
     "Specificare il nome ed il cognome del difensore dell'attore."},
    {"txtConvenuto", kDefendantKey, "Specificare il nome ed il cognome del convenuto."},
    {"txtConvenutoDifensore", kDefendantCounselKey,
     "Specificare il nome ed il cognome del difensore del convenuto."},
}};

// Stores a text under a key, in the place of what stands there.
void Replace(KeyedTable& table, std::string_view key, const std::string& text) {
  if (ItemExists(table, key)) table.Remove(key);
  table.Add(text, key);
}

}  // namespace

PartiesDialog::PartiesDialog(PartiesForm& form, Page& page, const Mappings& mappings,
                             LoadParty LoadcmbParti, Dialogs& dialogs, Desktop& desktop,
                             MessageBoxes& boxes)
    : form_(form),
      page_(page),
      mappings_(mappings),
      LoadcmbParti_(std::move(LoadcmbParti)),
      dialogs_(dialogs),
      desktop_(desktop),
      boxes_(boxes) {}

std::string_view PartiesDialog::NameOf(PartyBox box) {
  return kRoles[box].name;
}

void PartiesDialog::ShowModal() {
  Form_Load();
  form_.open = true;
  Form_Activate();
  dialogs_.ShowParties();
  form_.open = false;
}

void PartiesDialog::Form_Load() {
  form_ = PartiesForm{};
  for (std::size_t i = 0; i < kPartyBoxes; ++i) {
    const std::string* value = page_.cDatiFasc.Lookup(kRoles[i].key);
    form_.boxes[i].text = value == nullptr ? std::string{} : *value;
    form_.filledByPage[i] = !Trim(form_.boxes[i].text).empty();
  }
}

void PartiesDialog::Form_Activate() {
  desktop_.SetFocus(NameOf(kPlaintiffBox));
}

bool PartiesDialog::Type(std::string_view box, std::string_view text) {
  for (std::size_t i = 0; i < kPartyBoxes; ++i) {
    if (kRoles[i].name != box) continue;
    form_.boxes[i].text = text;
    return true;
  }
  return false;
}

void PartiesDialog::Close() {
  form_.open = false;
}

// Only a party that the page shows must be named.
bool PartiesDialog::VerificaCampi() {
  for (std::size_t i = 0; i < kPartyBoxes; ++i) {
    if (!form_.filledByPage[i] || !Trim(form_.boxes[i].text).empty()) continue;
    boxes_.Show(
        {std::string(kRoles[i].missing), "Verifica campi", BoxIcon::kWarning, BoxButtons::kOk});
    desktop_.SetFocus(kRoles[i].name);
    return false;
  }
  return true;
}

void PartiesDialog::cmdOk_Click() {
  if (!VerificaCampi()) return;
  StoreNames();
  OfferParties();
  StorePartyText("DELGDP8", kPlaintiffBox, kPlaintiffCounselBox);
  StorePartyText("DELGDP9", kDefendantBox, kDefendantCounselBox);
  Close();
}

// As typed, not trimmed.
void PartiesDialog::StoreNames() {
  for (std::size_t i = 0; i < kPartyBoxes; ++i) {
    Replace(page_.cDatiFasc, kRoles[i].key, form_.boxes[i].text);
  }
}

void PartiesDialog::OfferParties() {
  LoadcmbParti_(form_.boxes[kPlaintiffBox].text, form_.boxes[kPlaintiffCounselBox].text);
  LoadcmbParti_(form_.boxes[kDefendantBox].text, form_.boxes[kDefendantCounselBox].text);
}

// The party and its counsel as one text, under the field that the office maps the page's own
// delimiter text to; where it maps none the text is not stored.
void PartiesDialog::StorePartyText(std::string_view code, PartyBox party, PartyBox counsel) {
  const std::string* delimiter = mappings_.cDelimitatori.Lookup(code);
  const std::string* field =
      delimiter == nullptr ? nullptr : mappings_.cOrdexMap.Lookup(*delimiter);
  if (field == nullptr) return;
  std::string text(Trim(form_.boxes[party].text));
  const std::string_view counselName = Trim(form_.boxes[counsel].text);
  if (!form_.boxes[party].text.empty() && !counselName.empty()) {
    text.append(kRepresentedBy).append(counselName);
  }
  Replace(page_.cDatiFasc, *field, text);
}

}  // namespace ordex
