// The delimiter keys that the page kinds ask "MapDelimitatori.txt" for.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "state/page.h"

namespace ordex {

struct DelimiterKey {
  std::int16_t kind;
  std::string_view key;
};

inline constexpr std::array kDelimiterKeys = {
    DelimiterKey{kPageProfile, "DELPF1"},
    DelimiterKey{kPageProfile, "DELPF2"},
    DelimiterKey{kPageProfile, "DELPF3"},
    DelimiterKey{kPageProfile, "DELPF4"},
    DelimiterKey{kPageProfile, "DELPF6"},
    DelimiterKey{kPageProfile, "DELPF7"},
    DelimiterKey{kPageProfile, "DELPF8"},
    DelimiterKey{kPageProfile, "TESTO1"},
    DelimiterKey{kPageProfile, "TESTO2"},
    DelimiterKey{kPageProfile, "TESTO3"},
    DelimiterKey{kPageProfile, "TESTO4"},
    DelimiterKey{kPageHistory, "DELSF1"},
    DelimiterKey{kPageHistory, "DELSF2"},
    DelimiterKey{kPageHistory, "DELSF3"},
    DelimiterKey{kPageHistory, "DELSF4"},
    DelimiterKey{kPageHistory, "DELSF5"},
    DelimiterKey{kPageHistory, "DELSF6"},
    DelimiterKey{kPageHistory, "DELSF7"},
    DelimiterKey{kPageHistory, "DELSF8"},
    DelimiterKey{kPageHistory, "DELSF9"},
    DelimiterKey{kPageHistory, "DELSF10"},
    DelimiterKey{kPageAgenda, "DELAV1"},
    DelimiterKey{kPageAgenda, "DELAV2"},
    DelimiterKey{kPageAgenda, "DELAV3"},
    DelimiterKey{kPageAgenda, "DELAV4"},
    DelimiterKey{kPageAgenda, "DELAV5"},
    DelimiterKey{kPageAgenda, "DELAV6"},
    DelimiterKey{kPageJusticeOfThePeace, "DELGDP1"},
    DelimiterKey{kPageJusticeOfThePeace, "DELGDP2"},
    DelimiterKey{kPageJusticeOfThePeace, "DELGDP3"},
    DelimiterKey{kPageJusticeOfThePeace, "DELGDP4"},
    DelimiterKey{kPageJusticeOfThePeace, "DELGDP5"},
    DelimiterKey{kPageJusticeOfThePeace, "DELGDP6"},
    DelimiterKey{kPageJusticeOfThePeace, "DELGDP8"},
    DelimiterKey{kPageJusticeOfThePeace, "DELGDP9"},
    DelimiterKey{kPageJusticeOfThePeace, "DELGDP10"},
    DelimiterKey{kPageJusticeOfThePeace, "DELGDP11"},
    DelimiterKey{kPageJusticeOfThePeace, "DELGDP12"},
    DelimiterKey{kPageJusticeOfThePeace, "DELGDP13"},
    DelimiterKey{kPageJusticeOfThePeace, "DELGDP14"},
    DelimiterKey{kPageJusticeOfThePeace, "DELGDP15"},
    // The events of its history are cut like those of a history page.
    DelimiterKey{kPageJusticeOfThePeace, "DELSF2"},
};

}  // namespace ordex
