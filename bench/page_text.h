// Pages for the benchmarks.
#pragma once

#include <cstddef>
#include <string>

namespace ordex::bench {

// A profile page of so many mapped lines, as the page file holds it: the labels of the shipped
// mapping one after the other, with values as long as a portal's.
std::string ProfilePage(std::size_t mappedLines);

}  // namespace ordex::bench
