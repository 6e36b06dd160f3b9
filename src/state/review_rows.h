// The rows of the review list, packed.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace ordex {

struct ReviewRow {
  std::string_view text;                // ValueItem, column 1
  std::array<std::string_view, 3> sub;  // the sub-items, columns 2 to 4
  std::string_view tag;
};

// A sequence of rows that holds their texts one behind the other: a history of tens of thousands of
// events costs no more memory than its text and a few numbers a row. What it hands out are views,
// valid until the next row is added.
class ReviewRows {
 public:
  std::size_t size() const { return places_.size(); }
  bool empty() const { return places_.empty(); }

  void push_back(const ReviewRow& row) {
    Place place;
    place.begin = texts_.size();
    place.lengths = {Length(row.text), Length(row.sub[0]), Length(row.sub[1]), Length(row.sub[2]),
                     Length(row.tag)};
    for (const std::string_view text : {row.text, row.sub[0], row.sub[1], row.sub[2], row.tag}) {
      if (!text.empty()) texts_.append(text);
    }
    places_.push_back(place);
  }

  ReviewRow operator[](std::size_t index) const {
    const Place& place = places_[index];
    const char* next = texts_.data() + place.begin;
    const auto take = [&next, &place](std::size_t part) {
      const std::string_view text(next, place.lengths[part]);
      next += place.lengths[part];
      return text;
    };
    ReviewRow row;
    row.text = take(0);
    for (std::size_t i = 0; i < row.sub.size(); ++i) row.sub[i] = take(i + 1);
    row.tag = take(4);
    return row;
  }

  // Error: std::out_of_range.
  ReviewRow at(std::size_t index) const {
    if (index >= size()) throw std::out_of_range("ReviewRows::at");
    return (*this)[index];
  }

  void clear() {
    texts_.clear();
    places_.clear();
  }

 private:
  struct Place {
    std::size_t begin = 0;                   // in texts_
    std::array<std::uint32_t, 5> lengths{};  // bytes of each text in turn
  };

  static std::uint32_t Length(std::string_view text) {
    if (text.size() > UINT32_MAX) throw std::length_error("ReviewRows: a text is too long");
    return static_cast<std::uint32_t>(text.size());
  }

  std::string texts_;
  std::vector<Place> places_;
};

}  // namespace ordex
