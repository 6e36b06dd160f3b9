// Many short texts, packed.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string_view>
#include <vector>

namespace ordex {

// A sequence of rows of kTexts texts each. The texts stand one behind the other, in blocks that
// never move: tens of thousands of rows cost no more memory than their text and a few numbers a
// row. What it hands out are views, valid until the rows are cleared.
template <std::size_t kTexts>
class PackedTexts {
 public:
  using Row = std::array<std::string_view, kTexts>;

  PackedTexts() = default;
  ~PackedTexts() = default;
  PackedTexts(PackedTexts&&) noexcept = default;
  PackedTexts& operator=(PackedTexts&&) noexcept = default;
  PackedTexts(const PackedTexts& other) { CopyRows(other); }
  PackedTexts& operator=(const PackedTexts& other) {
    if (this != &other) {
      clear();
      CopyRows(other);
    }
    return *this;
  }

  std::size_t size() const { return places_.size(); }
  bool empty() const { return places_.empty(); }

  // Error: std::length_error, for a text of 4 GB and more.
  void push_back(const Row& row) {
    Place place;
    std::size_t bytes = 0;
    for (std::size_t i = 0; i < kTexts; ++i) {
      place.lengths[i] = Length(row[i]);
      bytes += row[i].size();
    }
    place.begin = RoomFor(bytes);
    char* next = place.begin;
    for (const std::string_view text : row) next = std::copy(text.begin(), text.end(), next);
    places_.push_back(place);
  }

  Row operator[](std::size_t index) const {
    const Place& place = places_[index];
    Row row;
    const char* next = place.begin;
    for (std::size_t i = 0; i < kTexts; ++i) {
      row[i] = {next, place.lengths[i]};
      next += place.lengths[i];
    }
    return row;
  }

  void clear() {
    places_.clear();
    blocks_.clear();
  }

 private:
  static constexpr std::size_t kBlockBytes = 65536;

  struct Place {
    char* begin = nullptr;
    std::array<std::uint32_t, kTexts> lengths{};  // bytes of each text in turn
  };

  static std::uint32_t Length(std::string_view text) {
    if (text.size() > UINT32_MAX) throw std::length_error("PackedTexts: a text is too long");
    return static_cast<std::uint32_t>(text.size());
  }

  // Of any size, and not filled with zeroes first.
  using Bytes = std::unique_ptr<char[]>;  // NOLINT(modernize-avoid-c-arrays)

  struct Block {
    // NOLINTNEXTLINE(modernize-avoid-c-arrays)
    explicit Block(std::size_t size) : bytes(new char[size]), free(bytes.get()), left(size) {}

    Bytes bytes;
    char* free;        // the first byte that is not taken
    std::size_t left;  // so many are not
  };

  // In the last block, or in a new one where the last has no room left. A row that is larger than a
  // block gets one of its own.
  char* RoomFor(std::size_t bytes) {
    if (blocks_.empty() || blocks_.back().left < bytes) {
      blocks_.emplace_back(std::max(kBlockBytes, bytes));
    }
    Block& block = blocks_.back();
    char* room = block.free;
    block.free += bytes;
    block.left -= bytes;
    return room;
  }

  void CopyRows(const PackedTexts& other) {
    for (std::size_t i = 0; i < other.size(); ++i) push_back(other[i]);
  }

  std::vector<Place> places_;
  std::vector<Block> blocks_;
};

}  // namespace ordex
