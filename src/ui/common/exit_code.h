// How a run ended, as the process tells it.
#pragma once

#include "app/main_window.h"

namespace ordex {

enum class ExitCode {
  kWell = 0,
  kFindings = 1,   // something is wrong in what was checked
  kWrongCall = 2,  // or a command that does not fit
  kRefused = 3,    // a page of no known kind
  kError = 4,
  kFailed = 5,  // an update failed without a word
};

inline ExitCode ExitCodeOf(EndReason reason) {
  switch (reason) {
    case EndReason::kClosed:
    case EndReason::kDone:
      return ExitCode::kWell;
    case EndReason::kRefused:
      return ExitCode::kRefused;
    case EndReason::kError:
      return ExitCode::kError;
    case EndReason::kFailed:
      return ExitCode::kFailed;
  }
  return ExitCode::kWell;
}

}  // namespace ordex
