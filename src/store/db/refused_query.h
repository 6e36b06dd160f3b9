// The error for a SQL text that is not handed to the engine.
#pragma once

#include <string>

#include "base/error.h"

namespace ordex {

inline RunTimeError RefusedQuery(const std::string& why) {
  return MakeError(ErrorNumber::kDatabase, "interrogazione rifiutata: " + why);
}

}  // namespace ordex
