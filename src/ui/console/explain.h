// "ordex-console explain": shows which rule took each line of a page, and what it became.
#pragma once

#include <filesystem>
#include <string>

#include "ui/common/exit_code.h"

namespace ordex::console {

// Well when the page was read to its end, error when one stopped it, refused when it is of no known
// kind. Errors: of the page's file and of the mapping files.
ExitCode Explain(const std::filesystem::path& programFolder, const std::filesystem::path& pageFile,
                 bool json);

}  // namespace ordex::console
