// The parts that a text was cut into.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

namespace ordex {

// A sequence of views. Few of them, as a line of a page has, cost no memory of their own.
class Parts {
 public:
  using value_type = std::string_view;
  using const_iterator = const std::string_view*;

  void push_back(std::string_view part) {
    if (size_ < kFew) {
      few_[size_] = part;
    } else {
      if (size_ == kFew) many_.assign(few_.begin(), few_.end());
      many_.push_back(part);
    }
    ++size_;
  }

  std::size_t size() const { return size_; }
  const_iterator begin() const { return size_ > kFew ? many_.data() : few_.data(); }
  const_iterator end() const { return begin() + size_; }
  std::string_view operator[](std::size_t index) const { return begin()[index]; }

 private:
  static constexpr std::size_t kFew = 4;

  std::array<std::string_view, kFew> few_;
  std::vector<std::string_view> many_;  // all of them, where they are more
  std::size_t size_ = 0;
};

}  // namespace ordex
