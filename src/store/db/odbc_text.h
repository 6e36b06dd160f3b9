// Text between UTF-8 and the wide characters (UTF-16) of ODBC. Characters beyond the basic plane
// travel as surrogate pairs.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "store/db/odbc_api.h"

namespace ordex {

using WideText = std::vector<SQLWCHAR>;

// Without a closing null. Bytes that are no UTF-8 become U+FFFD, one for each byte.
WideText ToWide(std::string_view text);
// An unpaired surrogate becomes U+FFFD.
std::string FromWide(const SQLWCHAR* text, std::size_t length);

// True when every character stands in code page 1252, that of the servers of Western Europe.
bool FitsWindows1252(std::string_view text);

}  // namespace ordex
