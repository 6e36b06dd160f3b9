// A session: the main window driven by commands.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "app/main_window.h"
#include "state/ports.h"
#include "ui/console/command_source.h"
#include "ui/console/events.h"

namespace ordex::console {

// The clipboard of a session: a text that commands put there.
class SessionClipboard : public Clipboard {
 public:
  std::string GetText() const override { return text_; }
  void Clear() override { text_.clear(); }
  void SetText(std::string text) { text_ = std::move(text); }

 private:
  std::string text_;
};

struct SessionSetup {
  std::filesystem::path programFolder;
  Settings& settings;
  Clock& clock;
  SessionClipboard& clipboard;
  bool tellSql = false;  // also the SQL texts and the errors absorbed in silence
};

// How a session ended: the process's exit code follows from it.
struct SessionEnd {
  EndReason reason;
  bool scriptError = false;  // a command did not fit, and nothing more was run
};

// Stands in for the desktop: answers boxes and dialogs from the commands that come next.
class Session : private MessageBoxes,
                private Dialogs,
                private Desktop,
                private Diagnostics,
                private Progress {
 public:
  Session(const SessionSetup& setup, CommandSource& commands, Events& events);

  SessionEnd Run();

 private:
  // Thrown through the handlers on the way when a command of a script does not fit.
  struct Misfit {
    std::size_t line;
    std::string text;
  };

  BoxAnswer Show(const BoxText& box) override;
  void ShowPersonCard() override;
  void ShowParties() override;
  void Beep() override { events_.Beep(); }
  void SetFocus(std::string_view control) override { events_.Focus(control); }
  void SetMousePointer(MousePointer) override {}
  bool Open(const std::string& link) override;
  ScreenSize Screen() const override;
  void DebugszSql(std::string_view szSql) override;
  void Trapped(std::string_view routine, const RunTimeError& error) override;
  void Failed(const RunTimeError& error, std::optional<std::size_t> line) override;
  void Advance(std::size_t done, std::size_t total) override;

  void RunCommands();
  // Carries a command out through `act`, which returns whether it fits. One that does not ends a
  // script; a person is told, and asked again.
  void Carry(const Command& command, const std::function<bool(const Command&)>& act);
  // The commands that fit at any time, also while a box or dialog is up.
  bool ActAnywhere(const Command& command);
  bool ActOnWindow(const Command& command);
  bool ActOnPersonCard(const Command& command);
  bool ActOnParties(const Command& command);
  bool AnswerBox(const Command& command, const BoxText& box, std::optional<BoxAnswer>& answer);

  bool Click(std::string_view name);
  bool Select(std::string_view rest);
  bool SelectParty(std::string_view box, std::string_view place);
  bool ChooseCase(std::string_view id);
  bool ClickPerson(std::string_view id);
  bool ClickColumn(std::string_view number);
  bool ClickRow(std::string_view number);
  bool PutOnClipboard(const std::string& file);
  void Poke();

  const Window& State() const { return window_.state(); }

  CommandSource& commands_;
  Events& events_;
  SessionClipboard& clipboard_;
  bool tellSql_;
  bool dying_ = false;  // an error is ending the program
  MainWindow window_;
};

}  // namespace ordex::console
