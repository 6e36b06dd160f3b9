// The rows of the two lists.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string_view>
#include <vector>

#include "state/packed_texts.h"

namespace ordex {

struct ReviewRow {
  std::string_view text;                // ValueItem, column 1
  std::array<std::string_view, 3> sub;  // the sub-items, columns 2 to 4
  std::string_view tag;
};

// The text of the rows that hold an event of a justice-of-the-peace page's history.
inline constexpr std::string_view kHistoryRow = "Storico";

class ReviewRows {
 public:
  std::size_t size() const { return texts_.size(); }
  bool empty() const { return texts_.empty(); }

  void push_back(const ReviewRow& row) {
    texts_.push_back({row.text, row.sub[0], row.sub[1], row.sub[2], row.tag});
  }
  void clear() { texts_.clear(); }

  // Views, valid until the rows are cleared.
  ReviewRow operator[](std::size_t index) const {
    const auto texts = texts_[index];
    return {texts[0], {texts[1], texts[2], texts[3]}, texts[4]};
  }
  // Error: std::out_of_range.
  ReviewRow at(std::size_t index) const {
    if (index >= size()) throw std::out_of_range("ReviewRows::at");
    return (*this)[index];
  }

 private:
  PackedTexts<5> texts_;
};

// The fore colour of the entries under a case in the agenda list, a dark red (0xBBGGRR).
inline constexpr std::int32_t kDarkRed = 0xC0;

struct AgendaRow {
  std::string_view text;
  std::string_view sub;
  bool bold = false;
  std::optional<std::int32_t> color;  // the default colour where absent
};

class AgendaRows {
 public:
  std::size_t size() const { return texts_.size(); }
  bool empty() const { return texts_.empty(); }

  // A case's row is bold, those of its entries are in dark red.
  void push_back(std::string_view text, std::string_view sub, bool bold) {
    texts_.push_back({text, sub});
    bold_.push_back(bold);
  }

  // Views, valid as long as the rows.
  AgendaRow operator[](std::size_t index) const {
    const auto texts = texts_[index];
    AgendaRow row{texts[0], texts[1], bold_[index], std::nullopt};
    if (!row.bold) row.color = kDarkRed;
    return row;
  }
  // Error: std::out_of_range.
  AgendaRow at(std::size_t index) const {
    if (index >= size()) throw std::out_of_range("AgendaRows::at");
    return (*this)[index];
  }

 private:
  PackedTexts<2> texts_;
  std::vector<bool> bold_;
};

}  // namespace ordex
