// Italian words for what the command line's library says in English.
#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace ordex::console {

// For the help of `app`, to which everything has been added.
void SpeakItalian(CLI::App& app);

// What is wrong with a call.
std::string CauseOf(const CLI::ParseError& error);

}  // namespace ordex::console
