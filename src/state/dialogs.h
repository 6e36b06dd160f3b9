// The two dialogs as plain values.
#pragma once

#include <array>
#include <string>

#include "state/controls.h"

namespace ordex {

// Pointers of a label: the arrow, or the hand of a link.
inline constexpr int kPointerArrow = 1;
inline constexpr int kPointerHand = 99;

// frmInfoAnagrafica: a person of the registry as a short card.
struct PersonCard {
  std::string caption = "  Info Anagrafica";
  int height = 0;
  std::string lblInfo;
  std::string Label1;
  std::string lblInfo2;
  int lblInfo2Pointer = kPointerArrow;
  std::string lblDomanda;
  bool questionVisible = true;
  Button cmdSi;
  Button cmdNo;
  bool open = false;
};

}  // namespace ordex
