// What a call raises, as a value that a test compares whole.
#pragma once

#include <cstddef>
#include <ostream>
#include <string>

#include "base/error.h"

namespace ordex::testing {

struct Raised {
  int number = 0;  // 0 where nothing was raised
  std::string description;
  std::size_t line = 0;  // of the mapping file

  bool operator==(const Raised&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const Raised& raised) {
  return out << raised.number << " " << raised.description << " (line " << raised.line << ")";
}

template <class Call>
Raised RaisedBy(Call call) {
  try {
    call();
  } catch (const FileLineError& error) {
    return {error.number(), error.description(), error.line()};
  } catch (const RunTimeError& error) {
    return {error.number(), error.description(), 0};
  }
  return {};
}

}  // namespace ordex::testing
