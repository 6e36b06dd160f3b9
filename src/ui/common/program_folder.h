// The folder in which the mapping files stand.
#pragma once

#include <filesystem>
#include <string>

namespace ordex {

// `option`, where it is given, else the folder that ORDEX_DIR names, else that of the executable.
std::filesystem::path ProgramFolder(const std::string& option,
                                    const std::filesystem::path& executable);

}  // namespace ordex
