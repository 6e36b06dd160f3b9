// Names in a message.
#pragma once

#include <string>
#include <string_view>

namespace ordex {

// `name` between double quotes.
inline std::string Quoted(std::string_view name) {
  return "\"" + std::string(name) + "\"";
}

}  // namespace ordex
