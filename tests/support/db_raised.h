// Looking at run-time errors in tests.
#pragma once

#include <functional>
#include <ostream>
#include <string>

#include "base/error.h"

namespace ordex {

struct DbRaised {
  int number = 0;  // 0: nothing was raised
  std::string description;
  bool operator==(const DbRaised&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const DbRaised& error) {
  return out << error.number << " " << error.description;
}

inline DbRaised DbRaisedBy(const std::function<void()>& body) {
  try {
    body();
  } catch (const RunTimeError& error) {
    return {error.number(), error.description()};
  }
  return {};
}

inline constexpr int kDatabaseNumber = -2147467259;

// The database layer's error with that text behind the standard wording.
inline DbRaised DbError(const std::string& detail) {
  return {kDatabaseNumber, "Errore del database: " + detail};
}

}  // namespace ordex
