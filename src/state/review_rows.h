// The rows of the review list, packed.
#pragma once

#include <algorithm>
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

// A sequence of rows that holds their texts one behind the other, in blocks that never move: a
// history of tens of thousands of events costs no more memory than its text and a few numbers a
// row. What it hands out are views, valid until the rows are cleared.
class ReviewRows {
 public:
  std::size_t size() const { return places_.size(); }
  bool empty() const { return places_.empty(); }

  void push_back(const ReviewRow& row) {
    const std::array<std::string_view, kTexts> texts = {row.text, row.sub[0], row.sub[1],
                                                        row.sub[2], row.tag};
    Place place;
    std::size_t bytes = 0;
    for (std::size_t i = 0; i < kTexts; ++i) {
      place.lengths[i] = Length(texts[i]);
      bytes += texts[i].size();
    }
    std::string& block = BlockFor(bytes);
    place.block = static_cast<std::uint32_t>(blocks_.size() - 1);
    place.begin = static_cast<std::uint32_t>(block.size());
    for (const std::string_view text : texts) {
      if (!text.empty()) block.append(text);
    }
    places_.push_back(place);
  }

  ReviewRow operator[](std::size_t index) const {
    const Place& place = places_[index];
    const char* next = blocks_[place.block].data() + place.begin;
    const auto take = [&next, &place](std::size_t part) {
      const std::string_view text(next, place.lengths[part]);
      next += place.lengths[part];
      return text;
    };
    ReviewRow row;
    row.text = take(0);
    for (std::size_t i = 0; i < row.sub.size(); ++i) row.sub[i] = take(i + 1);
    row.tag = take(kTexts - 1);
    return row;
  }

  // Error: std::out_of_range.
  ReviewRow at(std::size_t index) const {
    if (index >= size()) throw std::out_of_range("ReviewRows::at");
    return (*this)[index];
  }

  void clear() {
    blocks_.clear();
    places_.clear();
  }

 private:
  static constexpr std::size_t kTexts = 5;
  static constexpr std::size_t kBlockBytes = 65536;

  struct Place {
    std::uint32_t block = 0;                      // in blocks_
    std::uint32_t begin = 0;                      // in the block, in bytes
    std::array<std::uint32_t, kTexts> lengths{};  // bytes of each text in turn
  };

  static std::uint32_t Length(std::string_view text) {
    if (text.size() > UINT32_MAX) throw std::length_error("ReviewRows: a text is too long");
    return static_cast<std::uint32_t>(text.size());
  }

  // The last block, or a new one where the last has no room left. A block never grows beyond what
  // was set aside for it; a row that is larger than a block gets one of its own.
  std::string& BlockFor(std::size_t bytes) {
    if (blocks_.empty() || blocks_.back().capacity() - blocks_.back().size() < bytes) {
      blocks_.emplace_back().reserve(std::max(kBlockBytes, bytes));
    }
    return blocks_.back();
  }

  std::vector<std::string> blocks_;
  std::vector<Place> places_;
};

}  // namespace ordex
