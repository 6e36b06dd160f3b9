// The office's connection string is joined from two fragments of the settings and two texts of the
// program's own.
#pragma once

#include <string>
#include <string_view>

namespace ordex {

// Adds no separator: the fragments bring their own semicolons and keys.
std::string JoinConnectionFragments(std::string_view security, std::string_view server);

// A joined string with the semicolons put back that the fragments lack at their ends.
std::string WithSemicolonsAtJoints(std::string_view joined);

}  // namespace ordex
