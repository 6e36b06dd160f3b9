// The clocks of a front end.
#pragma once

#include "state/ports.h"

namespace ordex {

class FixedClock : public Clock {
 public:
  explicit FixedClock(const DateTime& now) : now_(now) {}
  DateTime Now() const override { return now_; }

 private:
  DateTime now_;
};

class SystemClock : public Clock {
 public:
  DateTime Now() const override;
};

}  // namespace ordex
