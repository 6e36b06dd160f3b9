// Ordex.exe on an office in a temporary folder, with the settings in the registry.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "eyes.h"
#include "hands.h"
#include "support/temp_folder.h"
#include "ui/windows/registry_settings.h"
#include "waiting.h"

namespace ordex::window_tests {

// A start of the program; ended by force where it still runs.
class Program {
 public:
  explicit Program(const std::string& commandLine);
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  // Waits for its end; nothing where it does not come.
  std::optional<int> ExitCode() const;
  bool IsRunning() const;
  void Kill() const;

 private:
  PROCESS_INFORMATION process_{};
};

class OrdexTest : public ::testing::Test {
 protected:
  // The settings are the user's own, so there must be none before.
  void SetUp() override;
  void TearDown() override;

  // Starts the program; its file is named in ORDEX_EXE.
  Program& Start();
  // With that sample page on the clipboard, up to the window that it opens.
  HWND Open(const std::string& sample);

  std::string Setting(const std::string& key) const { return settings_.Get("Shared", key); }
  // The rows of a SELECT, with "|" between the values.
  std::vector<std::string> Rows(const std::string& select) const;

  testing::TempProgramFolder office_;
  RegistrySettings settings_{"Zelmo32"};

 private:
  std::vector<std::unique_ptr<Program>> programs_;
  bool ours_ = false;
};

std::string Sample(const std::string& name);

inline const std::string kProfileTitle = "Ordex - profilo del fascicolo - dati generali";
// The boxes of an update and of a create.
inline const std::string kUpdatedTitle = "Pratica Praxion aggiornata";
inline const std::string kQuestionTitle = "Pratica Praxion non selezionata";

}  // namespace ordex::window_tests
