// Pages for the benchmarks.
#pragma once

#include <cstddef>
#include <string>

namespace ordex::bench {

// A profile page of so many mapped lines, as the page file holds it: the labels of the shipped
// mapping one after the other, with values as long as a portal's.
std::string ProfilePage(std::size_t mappedLines);

// The same of the other kinds: so many events, so many agenda entries, so many mapped lines.
std::string HistoryPage(std::size_t events);
std::string AgendaPage(std::size_t entries);
std::string JusticeOfThePeacePage(std::size_t mappedLines);

}  // namespace ordex::bench
