// A world in which nobody answers: what the targets need of it.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "state/ports.h"

namespace ordex::fuzz {

class TextOnClipboard final : public Clipboard {
 public:
  explicit TextOnClipboard(std::string text) : text_(std::move(text)) {}
  std::string GetText() const override { return text_; }
  void Clear() override { text_.clear(); }

 private:
  std::string text_;
};

class DefaultAnswers final : public MessageBoxes {
 public:
  BoxAnswer Show(const BoxText& box) override {
    return box.buttons == BoxButtons::kOk ? BoxAnswer::kOk : BoxAnswer::kYes;
  }
};

}  // namespace ordex::fuzz
