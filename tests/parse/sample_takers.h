// Which rule takes which line of the sample pages, worked out by hand from the pages.
#pragma once

#include <cstddef>
#include <map>
#include <string>

namespace ordex::testing {

// The rule by line number, for the lines that are taken at all.
using Takers = std::map<std::size_t, std::string>;

// By the sample's name. A new sample needs its lines here.
const std::map<std::string, Takers>& ExpectedTakers();

}  // namespace ordex::testing
