// Counts what is on the way.
#pragma once

namespace ordex {

// Counts one more for as long as it lives, however its scope is left.
class OnTheWay {
 public:
  explicit OnTheWay(int& count) : count_(count) { ++count_; }
  ~OnTheWay() { --count_; }
  OnTheWay(const OnTheWay&) = delete;
  OnTheWay& operator=(const OnTheWay&) = delete;

 private:
  int& count_;
};

}  // namespace ordex
