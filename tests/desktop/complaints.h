// What the toolkit has complained of: a warning on the terminal of whoever starts the program.
#pragma once

#include <string>
#include <vector>

namespace ordex::desktop_tests {

// From here on complaints are kept; they still go to standard error.
void KeepComplaints();
// Those since the last call.
std::vector<std::string> TakeComplaints();

}  // namespace ordex::desktop_tests
