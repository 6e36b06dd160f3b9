// Which case of the office the page belongs to, and who takes part in it.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "base/keyed_table.h"
#include "state/controls.h"

namespace ordex {

// A person shown in the case header as a link.
struct PersonLink {
  std::int32_t idAna = 0;
  std::string name;
};

// A case found by the case header's search.
struct FoundCase {
  std::int32_t idPra = 0;
  std::string numeroRG;
  std::string title;
};

// ctlTestata1: shows one case of the office and lets the user look for another.
struct CaseHeader {
  bool visible = true;
  std::int32_t idUtente = 0;

  std::int32_t idPra = 0;  // 0 where no case is shown
  std::string numeroRG;
  std::string title;                        // client, counterpart and register number
  std::array<std::string, 2> descriptions;  // subject and section
  bool penale = false;
  PersonLink cliente;      // idAna 0 where the case names no registered person
  PersonLink controparte;  // idAna 0 where there is only a name, or nobody
  std::string istruttore;
  std::string posizione;

  std::string searchText;
  std::vector<FoundCase> found;
};

inline constexpr std::size_t kBoxClient = 0;
inline constexpr std::size_t kBoxCounterpart = 1;

struct CaseChoice {
  std::int16_t iCountPra = 0;
  std::int32_t lIdPratica = 0;
  std::int32_t lIdContab = 0;
  CaseHeader ctlTestata1;
  std::array<ComboBox, 2> cmbParti;  // client, counterpart
  ComboBox cmbUtenteCont;
  // Each party's counsel, under "CL" or "CO" and the index of its entry in the box.
  KeyedTable difensori;
  Frame frameCliente;
  Frame frameUtenteCont{"Titolare Contabilità :"};
};

}  // namespace ordex
