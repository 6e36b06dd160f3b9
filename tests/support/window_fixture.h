// The main window over a program folder with the shipped mapping files, the sample office and a
// world that remembers.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/main_window.h"
#include "support/office_fixture.h"

namespace ordex::testing {

inline constexpr const char* kProfilePhrase = "profilo del fascicolo - dati generali";
inline constexpr const char* kProfileFile = "profilo del fascicolo - dati generali.txt";

struct WindowFixture {
  explicit WindowFixture(std::string page = SourceFile("samples/profilo-contratto.txt"))
      : clipboard(std::move(page)) {
    settings.values[{"startup", "Security"}] = ";Integrated Security=SSPI;";
    settings.values[{"startup", "Server"}] = "Data Source=SRV";
    settings.values[{"Shared", "Id_Utente"}] = "7";
  }

  const Window& state() const { return window.state(); }
  void Start() { window.Start("4711"); }
  // A second start with that page on the clipboard.
  void Poke(std::string page) {
    clipboard.text = std::move(page);
    window.Poke();
  }
  void Sample(const std::string& name) { Poke(SourceFile("samples/" + name)); }

  TempProgramFolder folder;
  Office office{Office::Data::kSample};
  FakeMessageBoxes boxes;
  FakeDialogs dialogs;
  FakeDesktop desktop;
  FakeClipboard clipboard;
  FakeClock clock;
  FakeSettings settings;
  RecordingProgress progress;
  std::vector<std::string> opened;         // connection strings
  std::optional<RunTimeError> cannotOpen;  // what opening the database ends with
  MainWindow window{folder.path(),
                    {boxes, dialogs, desktop, clipboard, clock, settings, office.diagnostics,
                     progress, [this](std::string_view connectionString) {
                       opened.emplace_back(connectionString);
                       if (cannotOpen) throw RunTimeError(*cannotOpen);
                       return OpenSqlite(office.file());
                     }}};
};

// A profile page with that register number, and whatever lines follow it.
inline std::string ProfilePage(const std::string& number, const std::string& lines = {}) {
  return "Profilo del fascicolo - Dati generali\nNumero di iscrizione a ruolo: " + number + "\n" +
         lines;
}

inline BoxText RefusedPageBox() {
  return {"La pagina corrente non può essere importata in Praxion.", "Praxion", BoxIcon::kStop,
          BoxButtons::kOk};
}

}  // namespace ordex::testing
