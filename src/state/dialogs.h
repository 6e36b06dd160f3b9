// The two dialogs as plain values.
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "state/controls.h"

namespace ordex {

// frmInfoAnagrafica: a person of the registry as a short card.
struct PersonCard {
  std::string caption = "  Info Anagrafica";
  int height = 0;
  std::string lblInfo;
  std::string Label1;
  std::string lblInfo2;
  Pointer lblInfo2Pointer = Pointer::kArrow;
  std::string lblDomanda;
  bool questionVisible = true;
  Button cmdSi{"&Sì", Symbol::kNone, true, true, ""};
  Button cmdNo{"&No", Symbol::kNone, true, true, ""};
  bool open = false;
};

// The text boxes of dlgParti, in the order in which they are checked and stored.
enum PartyBox : std::size_t {
  kPlaintiffBox,
  kPlaintiffCounselBox,
  kDefendantBox,
  kDefendantCounselBox,
  kPartyBoxes,
};

// dlgParti: the user types the names that the page masks.
struct PartiesForm {
  std::string caption = "Parti";
  std::string lblTitolo =
      "Nella pagina web le informazioni riguardanti le parti sono cifrate. E' possibile modificare "
      "queste informazioni per una corretta importazione della pratica in Praxion.";
  std::string frameAttore = "Attore";
  std::string lblAttore = "Cognome e nome dell'Attore";
  std::string lblAttoreDifensore = "Cognome e nome del Difensore";
  std::string frameConvenuto = "Convenuto";
  std::string lblConvenuto = "Cognome e nome del Convenuto";
  std::string lblConvenutoDifensore = "Cognome e nome del Difensore";
  Button cmdOk{"&OK", Symbol::kNone, true, true, ""};
  std::array<TextBox, kPartyBoxes> boxes;
  // Those that the page filled, and so must not be left blank.
  std::array<bool, kPartyBoxes> filledByPage{};
  bool open = false;
};

}  // namespace ordex
