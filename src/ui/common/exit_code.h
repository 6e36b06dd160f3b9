// How a run ended, as the process tells it.
#pragma once

#include "app/main_window.h"

namespace ordex {

inline int ExitCodeOf(EndReason reason) {
  switch (reason) {
    case EndReason::kClosed:
    case EndReason::kDone:
      return 0;
    case EndReason::kRefused:
      return 3;
    case EndReason::kError:
      return 4;
    case EndReason::kFailed:
      return 5;
  }
  return 0;
}

}  // namespace ordex
