#include "ui/console/json_events.h"

#include "ui/console/state_json.h"

namespace ordex::console {
namespace {

std::string_view Name(BoxIcon icon) {
  switch (icon) {
    case BoxIcon::kInformation:
      return "information";
    case BoxIcon::kWarning:
      return "warning";
    case BoxIcon::kQuestion:
      return "question";
    case BoxIcon::kStop:
      return "stop";
  }
  return "";
}

std::string_view Name(BoxAnswer answer) {
  switch (answer) {
    case BoxAnswer::kOk:
      return "ok";
    case BoxAnswer::kYes:
      return "yes";
    case BoxAnswer::kNo:
      return "no";
  }
  return "";
}

std::string_view Name(EndReason reason) {
  switch (reason) {
    case EndReason::kClosed:
      return "closed";
    case EndReason::kDone:
      return "done";
    case EndReason::kFailed:
      return "failed";
    case EndReason::kRefused:
      return "refused";
    case EndReason::kError:
      return "error";
  }
  return "";
}

}  // namespace

void JsonEvents::State(const Window& window) {
  Json event = {{"event", "state"}};
  event.update(StateJson(window));
  PrintJsonLine(out_, event);
}

void JsonEvents::Message(const BoxText& box, BoxAnswer answer) {
  PrintJsonLine(out_, {{"event", "message"},
                       {"text", box.text},
                       {"title", box.title},
                       {"icon", Name(box.icon)},
                       {"buttons", box.buttons == BoxButtons::kOk ? "ok" : "yesno"},
                       {"answer", Name(answer)}});
}

void JsonEvents::Dialog(std::string_view name, bool open, const ControlTexts& texts) {
  Json event = {{"event", "dialog"}, {"name", name}, {"open", open}};
  for (const auto& [control, text] : texts) event[control] = text;
  PrintJsonLine(out_, event);
}

void JsonEvents::Found(const std::vector<FoundCase>& cases) {
  Json list = Json::array();
  for (const FoundCase& found : cases) {
    list.push_back({{"idPra", found.idPra}, {"numeroRG", found.numeroRG}, {"title", found.title}});
  }
  PrintJsonLine(out_, {{"event", "found"}, {"cases", std::move(list)}});
}

void JsonEvents::Sql(std::string_view text) {
  PrintJsonLine(out_, {{"event", "sql"}, {"text", text}});
}

void JsonEvents::Trapped(std::string_view routine, std::string_view text) {
  PrintJsonLine(out_, {{"event", "trapped"}, {"where", routine}, {"text", text}});
}

void JsonEvents::Error(const RunTimeError& error, std::optional<std::size_t> line) {
  Json event = {{"event", "error"}, {"number", error.number()}, {"text", error.description()}};
  if (line) event["line"] = *line;
  PrintJsonLine(out_, event);
}

void JsonEvents::Beep() {
  PrintJsonLine(out_, {{"event", "beep"}});
}

void JsonEvents::Raise() {
  PrintJsonLine(out_, {{"event", "raise"}});
}

void JsonEvents::Focus(std::string_view control) {
  PrintJsonLine(out_, {{"event", "focus"}, {"name", control}});
}

// The state holds it.
void JsonEvents::ToolTip(std::string_view) {}

void JsonEvents::Open(std::string_view link) {
  PrintJsonLine(out_, {{"event", "open"}, {"text", link}});
}

void JsonEvents::Progress(std::size_t done, std::size_t total) {
  PrintJsonLine(out_, {{"event", "progress"}, {"done", done}, {"total", total}});
}

void JsonEvents::End(EndReason reason) {
  PrintJsonLine(out_, {{"event", "end"}, {"reason", Name(reason)}});
}

}  // namespace ordex::console
