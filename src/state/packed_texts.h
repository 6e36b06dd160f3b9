// Many short texts, packed.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
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

  std::size_t size() const { return rows_.size(); }
  bool empty() const { return rows_.empty(); }

  // Error: std::length_error, for a text of 4 GB and more.
  void push_back(const Row& row) {
    Lengths lengths;
    std::size_t bytes = sizeof(Lengths);
    for (std::size_t i = 0; i < kTexts; ++i) {
      lengths[i] = Length(row[i]);
      bytes += row[i].size();
    }
    char* next = RoomFor(bytes);
    rows_.push_back(next);
    std::memcpy(next, lengths.data(), sizeof(Lengths));
    next += sizeof(Lengths);
    for (const std::string_view text : row) next = std::copy(text.begin(), text.end(), next);
  }

  Row operator[](std::size_t index) const {
    const char* next = rows_[index];
    Lengths lengths;
    std::memcpy(lengths.data(), next, sizeof(Lengths));
    next += sizeof(Lengths);
    Row row;
    for (std::size_t i = 0; i < kTexts; ++i) {
      row[i] = {next, lengths[i]};
      next += lengths[i];
    }
    return row;
  }

  void clear() {
    rows_.clear();
    blocks_.clear();
  }

 private:
  static constexpr std::size_t kBlockBytes = 65536;

  // Of a row's texts in turn, in bytes; they stand in front of them.
  using Lengths = std::array<std::uint32_t, kTexts>;

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

  std::vector<const char*> rows_;  // where each begins
  std::vector<Block> blocks_;
};

}  // namespace ordex
