// What happens in a session, told one event at a time; printed as JSON or as Italian text.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "app/main_window.h"
#include "state/case_choice.h"
#include "state/ports.h"
#include "state/window.h"

namespace ordex::console {

// The texts of a dialog's controls, by control name.
using ControlTexts = std::vector<std::pair<std::string, std::string>>;

class Events {
 public:
  virtual ~Events() = default;

  // A command was read from a script.
  virtual void Command(std::string_view text) = 0;
  virtual void State(const Window& window) = 0;
  // A person's command has been carried out; the lists are as they were.
  virtual void Brief(const Window& window) = 0;
  // A box has come up; its answer is not known yet.
  virtual void BoxUp(const BoxText& box) = 0;
  virtual void Message(const BoxText& box, BoxAnswer answer) = 0;
  virtual void Dialog(std::string_view name, bool open, const ControlTexts& texts) = 0;
  virtual void Found(const std::vector<FoundCase>& cases) = 0;
  virtual void Sql(std::string_view text) = 0;
  virtual void Trapped(std::string_view routine, std::string_view text) = 0;
  virtual void Error(const RunTimeError& error, std::optional<std::size_t> line) = 0;
  virtual void Beep() = 0;
  virtual void Raise() = 0;
  virtual void Focus(std::string_view control) = 0;
  // A row was clicked: the list's tool tip, which holds a long value whole.
  virtual void ToolTip(std::string_view text) = 0;
  virtual void Open(std::string_view link) = 0;
  virtual void Progress(std::size_t done, std::size_t total) = 0;
  virtual void End(EndReason reason) = 0;
};

}  // namespace ordex::console
