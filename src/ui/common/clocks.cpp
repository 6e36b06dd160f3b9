#include "ui/common/clocks.h"

#include <ctime>

namespace ordex {

DateTime SystemClock::Now() const {
  const std::time_t now = std::time(nullptr);
  // A front end has one thread, so the shared result is not overwritten meanwhile.
  const std::tm* local = std::localtime(&now);  // NOLINT(concurrency-mt-unsafe)
  return {local->tm_year + 1900, local->tm_mon + 1, local->tm_mday,
          local->tm_hour,        local->tm_min,     local->tm_sec};
}

}  // namespace ordex
