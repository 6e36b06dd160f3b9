// Whole text files: read at once, replaced at once.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace ordex {

// The file's text as UTF-8 (see DecodeText). Errors: file not found, file access; both name the
// file.
std::string ReadTextFile(const std::filesystem::path& path);

// Writes `text` beside `path` and then puts it in its place, so that a reader sees the old
// content or the new and never a half of it. The permissions of a file that is there already are
// kept; where `path` is a symbolic link, the file that it names is the one that is replaced. Error:
// file access, naming the file; the old content then stands and nothing is left beside it.
void ReplaceTextFile(const std::filesystem::path& path, std::string_view text);

}  // namespace ordex
