// The names of parties as the portal gives them: company or person, surname and first name.
//
// The tokens, their order and the position rules decide which persons of the registry are found;
// they are kept exactly, odd ones included.
#pragma once

#include <string>
#include <string_view>

namespace ordex {

// True when the name is to be stored as a company or body.
bool IsSocieta(std::string_view name);

// Returns the surname and writes the first name into `nome`, which is left as it was when the text
// cannot be split. Letter case is kept.
// Error (both): overflow, for a text of more than 32,767 characters.
std::string EstraiCognomi(std::string_view name, std::string& nome);

}  // namespace ordex
