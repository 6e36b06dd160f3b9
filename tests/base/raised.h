// What a call raises, as a value that a test compares whole.
#pragma once

#include <ostream>
#include <string>

#include "base/error.h"

namespace ordex {

struct Raised {
  int number = 0;  // 0 where nothing was raised
  std::string description;

  bool operator==(const Raised&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const Raised& raised) {
  return out << raised.number << " " << raised.description;
}

template <class Call>
Raised RaisedBy(Call call) {
  try {
    call();
  } catch (const RunTimeError& error) {
    return {error.number(), error.description()};
  }
  return {};
}

}  // namespace ordex
