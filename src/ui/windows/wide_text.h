// Between our UTF-8 texts and the UTF-16 ones of the system's calls. What is not well formed
// becomes the replacement character, on either way.
#pragma once

#include <string>
#include <string_view>

namespace ordex {

std::wstring Wide(std::string_view utf8);
std::string Utf8(std::wstring_view wide);

}  // namespace ordex
