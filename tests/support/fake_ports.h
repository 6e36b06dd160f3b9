// Stand-ins for the world around the program: each does what the test says and remembers what was
// asked of it.
#pragma once

#include <array>
#include <cstddef>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/date.h"
#include "base/error.h"
#include "state/ports.h"

namespace ordex {

// Boxes are compared and printed whole. In the namespace of BoxText, where a test finds them.
inline bool operator==(const BoxText& a, const BoxText& b) {
  return a.text == b.text && a.title == b.title && a.icon == b.icon && a.buttons == b.buttons;
}

inline std::ostream& operator<<(std::ostream& out, const BoxText& box) {
  constexpr std::array<std::string_view, 4> kIcons = {"information", "warning", "question", "stop"};
  return out << "[" << box.title << " | " << kIcons.at(static_cast<std::size_t>(box.icon)) << " | "
             << (box.buttons == BoxButtons::kYesNo ? "yes/no" : "ok") << "] " << box.text;
}

}  // namespace ordex

namespace ordex::testing {

// Answers each box with the next scripted answer; once there is none left, with the default
// button: Yes to a question, OK to all others.
class FakeMessageBoxes final : public MessageBoxes {
 public:
  BoxAnswer Show(const BoxText& box) override {
    shown.push_back(box);
    if (onShow) onShow(box);
    if (answers.empty()) {
      return box.buttons == BoxButtons::kYesNo ? BoxAnswer::kYes : BoxAnswer::kOk;
    }
    const BoxAnswer answer = answers.front();
    answers.pop_front();
    return answer;
  }

  // The texts of the boxes shown, for tests that look at nothing else of them.
  std::vector<std::string> Texts() const {
    std::vector<std::string> texts;
    for (const BoxText& box : shown) texts.push_back(box.text);
    return texts;
  }

  std::deque<BoxAnswer> answers;
  std::vector<BoxText> shown;
  // Runs while the box is open; may look at the state of the program at that moment.
  std::function<void(const BoxText&)> onShow;
};

// A dialog that is closed as soon as what the test does in it is done.
class FakeDialogs final : public Dialogs {
 public:
  void ShowPersonCard() override {
    shown.emplace_back("ShowPersonCard");
    if (onPersonCard) onPersonCard();
  }

  void ShowParties() override {
    shown.emplace_back("ShowParties");
    if (onParties) onParties();
  }

  std::vector<std::string> shown;
  // What the user does while the person card is open.
  std::function<void()> onPersonCard;
  // What the user does while the parties dialog is open.
  std::function<void()> onParties;
};

class FakeDesktop final : public Desktop {
 public:
  void Beep() override { events.emplace_back("Beep"); }
  void SetFocus(std::string_view control) override {
    events.push_back("SetFocus " + std::string(control));
  }
  void SetMousePointer(MousePointer pointer) override {
    events.emplace_back(pointer == MousePointer::kHourglass ? "Hourglass" : "DefaultPointer");
  }
  bool Open(const std::string& link) override {
    events.push_back("Open " + link);
    return openSucceeds;
  }
  ScreenSize Screen() const override { return screen; }

  // How often an event of exactly that text took place.
  std::size_t Count(std::string_view event) const {
    std::size_t count = 0;
    for (const std::string& entry : events) count += entry == event ? 1 : 0;
    return count;
  }

  // "Beep", "SetFocus <control>", "Hourglass", "DefaultPointer", "Open <link>", in order.
  std::vector<std::string> events;
  bool openSucceeds = true;
  ScreenSize screen{28800, 16200};  // 1920 by 1080 pixels of 15 twips
};

class FakeClipboard final : public Clipboard {
 public:
  FakeClipboard() = default;
  explicit FakeClipboard(std::string content) : text(std::move(content)) {}

  std::string GetText() const override {
    ++reads;
    if (reads <= emptyReads) return {};
    return text;
  }
  void Clear() override {
    text.clear();
    ++clears;
  }

  std::string text;
  std::size_t clears = 0;
  // A slow clipboard: so many reads find it empty before the text is there.
  std::size_t emptyReads = 0;
  mutable std::size_t reads = 0;
};

// Stands still until the test moves it.
class FakeClock final : public Clock {
 public:
  FakeClock() = default;
  explicit FakeClock(const DateTime& start) : now(start) {}

  DateTime Now() const override { return now; }

  DateTime now{2026, 2, 20, 9, 15, 30};
};

class FakeSettings final : public Settings {
 public:
  std::string Get(std::string_view section, std::string_view key) const override {
    const auto found = values.find({std::string(section), std::string(key)});
    return found == values.end() ? std::string{} : found->second;
  }
  void Save(std::string_view section, std::string_view key, std::string_view value) override {
    saved.push_back(std::string(section) + "/" + std::string(key) + "=" + std::string(value));
    values[{std::string(section), std::string(key)}] = value;
  }

  // By section and key.
  std::map<std::pair<std::string, std::string>, std::string> values;
  // "section/key=value", in the order in which they were saved.
  std::vector<std::string> saved;
};

// An error that a port was told of, as a value that a test compares whole.
struct NotedError {
  std::string routine;  // empty where the error ended the program or stopped an import
  int number = 0;
  std::string description;
  std::optional<std::size_t> line;

  bool operator==(const NotedError&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const NotedError& error) {
  out << error.routine << " " << error.number << " " << error.description;
  if (error.line) out << " (line " << *error.line << ")";
  return out;
}

class RecordingDiagnostics final : public Diagnostics {
 public:
  void DebugszSql(std::string_view szSql) override { sql.emplace_back(szSql); }
  void Trapped(std::string_view routine, const RunTimeError& error) override {
    trapped.push_back({std::string(routine), error.number(), error.description(), std::nullopt});
  }
  void Failed(const RunTimeError& error, std::optional<std::size_t> line) override {
    failed.push_back({{}, error.number(), error.description(), line});
  }

  std::vector<std::string> sql;
  std::vector<NotedError> trapped;
  std::vector<NotedError> failed;
};

class RecordingProgress final : public Progress {
 public:
  struct Step {
    std::size_t done = 0;
    std::size_t total = 0;

    bool operator==(const Step&) const = default;
  };

  void Advance(std::size_t done, std::size_t total) override { steps.push_back({done, total}); }

  std::vector<Step> steps;
};

}  // namespace ordex::testing
