// What the program needs of the world around it. Each port is small, so that a routine takes only
// those that it uses and a test can stand in for each.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/date.h"
#include "base/error.h"

namespace ordex {

// --- message boxes ----------------------------------------------------------------------------

enum class BoxIcon { kInformation, kWarning, kQuestion, kStop };
enum class BoxButtons { kOk, kYesNo };  // Yes is the default of a question
enum class BoxAnswer { kOk, kYes, kNo };

inline constexpr std::string_view kBoxTitle = "Praxion";

struct BoxText {
  std::string text;
  std::string title = std::string(kBoxTitle);
  BoxIcon icon = BoxIcon::kInformation;
  BoxButtons buttons = BoxButtons::kOk;
};

class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;
  // Waits for the user's answer.
  virtual BoxAnswer Show(const BoxText& box) = 0;
};

// --- the desktop ------------------------------------------------------------------------------

enum class MousePointer { kDefault, kHourglass };

struct ScreenSize {
  int width = 0;  // twips
  int height = 0;
};

class Desktop {
 public:
  virtual ~Desktop() = default;
  virtual void Beep() = 0;
  // Hands the input focus to the control of that name.
  virtual void SetFocus(std::string_view control) = 0;
  virtual void SetMousePointer(MousePointer pointer) = 0;
  // Asks the shell to open a link; false where it could not.
  virtual bool Open(const std::string& link) = 0;
  virtual ScreenSize Screen() const = 0;
};

class Clipboard {
 public:
  virtual ~Clipboard() = default;
  virtual std::string GetText() const = 0;  // UTF-8, line ends as the desktop gave them
  virtual void Clear() = 0;
};

class Clock {
 public:
  virtual ~Clock() = default;
  virtual DateTime Now() const = 0;  // local time
};

// --- settings ---------------------------------------------------------------------------------

// The per-user store that is shared with the case application (application "Zelmo32").
class Settings {
 public:
  virtual ~Settings() = default;
  // An absent key reads as empty text.
  virtual std::string Get(std::string_view section, std::string_view key) const = 0;
  virtual void Save(std::string_view section, std::string_view key, std::string_view value) = 0;
};

// --- the system -------------------------------------------------------------------------------

struct SystemVersion {
  int platform = 0;  // 2 for every Windows of today
  int minor = 0;
};

class Processes {
 public:
  virtual ~Processes() = default;
  // nullopt where the system does not tell.
  virtual std::optional<SystemVersion> Version() const = 0;
  // The names of the executables that are running now; nullopt where the system gives no list.
  virtual std::optional<std::vector<std::string>> Snapshot() const = 0;
};

// --- what goes on inside ----------------------------------------------------------------------

// Told of what the user is not, or not in these words. Must not change behaviour.
class Diagnostics {
 public:
  virtual ~Diagnostics() = default;
  // A routine is about to run this SQL text.
  virtual void DebugszSql(std::string_view szSql) = 0;
  // A routine's handler has absorbed this error in silence.
  virtual void Trapped(std::string_view routine, const RunTimeError& error) = 0;
  // This error ends the program, or, with the line at fault, has stopped an import.
  virtual void Failed(const RunTimeError& error, std::optional<std::size_t> line) = 0;
};

// Shows a dialog and returns once it is closed. What it shows is its state; what its controls do
// are the handlers of the dialog's logic.
class Dialogs {
 public:
  virtual ~Dialogs() = default;
  virtual void ShowPersonCard() = 0;
  virtual void ShowParties() = 0;
};

// Told how far a long piece of work has come.
class Progress {
 public:
  virtual ~Progress() = default;
  virtual void Advance(std::size_t done, std::size_t total) = 0;
};

}  // namespace ordex
