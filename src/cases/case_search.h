// Finds cases by what a user remembers of them.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "state/case_choice.h"
#include "store/db/connection.h"

namespace ordex {

inline constexpr std::size_t kMostHits = 50;

// The first kMostHits cases, letter case ignored, best first: those whose register number is or
// begins with `text`; where there is none, those with a party whose name begins with it, then those
// that hold it in a party's name or in the subject. A case's title finds the case. An empty text
// finds nothing.
// Errors: of the database.
std::vector<FoundCase> SearchCases(Connection& connection, std::string_view text);

}  // namespace ordex
