// The controls of the windows as plain values. A front end draws them; it decides nothing.
// Sizes and positions are in twips, 1440 to the inch.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ordex {

// Built-in pictures of the flat buttons, by their numbers.
enum class Symbol { kNone = 0, kUpdate = 1, kCreate = 4 };

// Mouse pointers of a control, by their numbers. The hand is the custom one.
enum class Pointer { kDefault = 0, kArrow = 1, kHand = 99 };

struct Button {
  std::string caption;  // "&" stands before the mnemonic letter
  Symbol symbol = Symbol::kNone;
  bool enabled = true;
  bool visible = true;
  std::string toolTip;
};

struct ToggleButton {
  std::string caption;
  bool pressed = false;
  std::string picture;  // a key of the image list il_16
  std::string toolTip;
};

struct TextBox {
  std::string text;
};

struct Label {
  std::string caption;
};

struct Frame {
  std::string caption;
  bool visible = false;
};

// The one message line of the program: panel 1 of the status bar.
struct StatusBar {
  std::string picture;  // a key of the image list ImageList, empty for none
  std::string text;
};

// A drop-down list. `index` is the place of the chosen entry, counted from 0; kNoChoice for none.
struct ComboBox {
  static constexpr int kNoChoice = -1;

  struct Item {
    std::string text;
    std::int32_t itemData = 0;
  };

  std::vector<Item> items;
  int index = kNoChoice;
  std::string toolTip;

  // The text shown: that of the chosen entry, empty where none is chosen.
  std::string Text() const {
    return index == kNoChoice ? std::string{} : items[static_cast<std::size_t>(index)].text;
  }
};

// Pictures of a column header of the review list, by their numbers.
enum class ColumnIcon { kNone = 0, kAscending = 1, kDescending = 2 };

struct Column {
  std::string header;
  int width = 0;
  ColumnIcon icon = ColumnIcon::kNone;
};

}  // namespace ordex
