// Integers as the program reads them from texts: decimal digits with an optional sign, blanks
// around them allowed.
#pragma once

#include <cstdint>
#include <string_view>

namespace ordex {

// Errors: type mismatch where the text is no integer, overflow where it does not fit.
std::int16_t ToInt16(std::string_view text);
std::int32_t ToInt32(std::string_view text);

}  // namespace ordex
