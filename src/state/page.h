// What was read from a page of the portal.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/keyed_table.h"

namespace ordex {

// The page kinds are the lines of "MapRestr.txt", counted from 1.
enum PageKind : std::int16_t {
  kPageUnknown = 0,
  kPageProfile = 1,
  kPageHistory = 2,
  kPageAgenda = 3,
  kPageJusticeOfThePeace = 4,
};

// The parties of a page and their counsel, by name, among its values.
inline constexpr std::string_view kPlaintiffKey = "Attore";
inline constexpr std::string_view kPlaintiffCounselKey = "DifAttore";
inline constexpr std::string_view kDefendantKey = "Convenuto";
inline constexpr std::string_view kDefendantCounselKey = "DifConvenuto";
// Stands between a party and its counsel where both are one text.
inline constexpr std::string_view kRepresentedBy = " rappresentato/a da ";

struct Page {
  std::int16_t iOrdexPage = kPageUnknown;
  // The kind with which the window was prepared; set once, at the end of its load.
  std::int16_t pageAtOpening = kPageUnknown;
  std::string szNameTxt;  // stem of the page file's name
  std::string szNumeroRG;
  // The page's values by database column name, and the parties under their keys. Rebuilt by every
  // import.
  KeyedTable cDatiFasc;
  std::int16_t iNrEventiAgenda = 0;
};

// Where the portal's history pages of this run stand.
struct HistoryPaging {
  std::int16_t iPaginaStorico = 0;
  std::int16_t iTotPagineStorico = 0;
  std::int16_t iTotEventiStorico = 0;
  KeyedTable cPagineStorico;  // the pages taken in this run, by number
  bool bPaginaNuova = true;
  // The last recognition entered its page in `cPagineStorico`. A page that does not tell its place
  // leaves `bPaginaNuova` as it was, but enters nothing.
  bool bPaginaAggiunta = false;
  bool bStoricoVuoto = true;
};

}  // namespace ordex
