// "ordex-console explain": shows which rule took each line of a page, and what it became.
#pragma once

#include <filesystem>
#include <string>

namespace ordex::console {

// Returns the exit code: 0 when the page was read to its end, 4 when an error stopped it, 3 when it
// is of no known kind. Errors: of the page's file and of the mapping files.
int Explain(const std::filesystem::path& programFolder, const std::filesystem::path& pageFile,
            bool json);

}  // namespace ordex::console
