// Events as JSON, one object a line.
#pragma once

#include <ostream>

#include "ui/console/events.h"

namespace ordex::console {

class JsonEvents : public Events {
 public:
  explicit JsonEvents(std::ostream& out) : out_(out) {}

  void Command(std::string_view) override {}
  void State(const Window& window) override;
  void Brief(const Window&) override {}
  void BoxUp(const BoxText&) override {}
  void Message(const BoxText& box, BoxAnswer answer) override;
  void Dialog(std::string_view name, bool open, const ControlTexts& texts) override;
  void Found(const std::vector<FoundCase>& cases) override;
  void Sql(std::string_view text) override;
  void Trapped(std::string_view routine, std::string_view text) override;
  void Error(const RunTimeError& error, std::optional<std::size_t> line) override;
  void Beep() override;
  void Raise() override;
  void Focus(std::string_view control) override;
  void ToolTip(std::string_view text) override;
  void Open(std::string_view link) override;
  void Progress(std::size_t done, std::size_t total) override;
  void End(EndReason reason) override;

 private:
  std::ostream& out_;
};

}  // namespace ordex::console
