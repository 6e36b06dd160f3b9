// Pages of the portal that are larger than any that a lawyer copies.
#pragma once

#include <cstddef>
#include <string>

namespace ordex::abuse {

// A profile page with that many deadlines, "Termine 1" on 01/01/2027 and so on; `client` and its
// counterpart ALFA S.R.L. are the parties.
std::string ProfilePage(const std::string& number, const std::string& client,
                        std::size_t deadlines);
// The only page of a history, with that many events of `length` characters each.
std::string HistoryPage(std::size_t events, std::size_t length);
// An agenda page with that many deadlines of one case.
std::string AgendaPage(const std::string& number, std::size_t deadlines);
// A justice-of-the-peace page with that many events.
std::string JusticePage(const std::string& number, std::size_t events);

}  // namespace ordex::abuse
