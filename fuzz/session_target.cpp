// Whole sessions of the console over the sample office: any commands, any page.
//
// The input: a character that chooses the page on the clipboard; the rest of the line is passed
// over. Then the commands, a line each, up to a line "--"; behind it the page that choice 0 means,
// with bytes that stand for the portal's own texts as in page_input.h. What the command "clipboard"
// names is a choice among the same pages.
#include <array>
#include <sstream>
#include <streambuf>
#include <string>
#include <system_error>
#include <vector>

#include "base/text_file.h"
#include "store/db/sqlite_connection.h"
#include "store/db/sqlite_create.h"
#include "support/page_input.h"
#include "ui/common/clocks.h"
#include "ui/console/json_events.h"
#include "ui/console/session.h"

namespace ordex::fuzz {
namespace {

constexpr std::array<const char*, 12> kSamples = {"profilo-contratto.txt",
                                                  "profilo-lavoro.txt",
                                                  "profilo-condominio.txt",
                                                  "storico-pagina-1.txt",
                                                  "storico-pagina-2.txt",
                                                  "storico-pagina-3.txt",
                                                  "storico-unica.txt",
                                                  "agenda-settimana.txt",
                                                  "agenda-vuota.txt",
                                                  "giudice-di-pace-opposizione.txt",
                                                  "giudice-di-pace-sinistro.txt",
                                                  "not-a-page/ricerca-fascicoli.txt"};

class FuzzSettings final : public Settings {
 public:
  std::string Get(std::string_view section, std::string_view key) const override {
    if (section == "startup") return key == "Server" ? "Data Source=file:office.db" : ";";
    return key == "Id_Utente" ? user_ : "";
  }
  void Save(std::string_view, std::string_view key, std::string_view value) override {
    if (key == "Id_Utente") user_ = value;
  }

 private:
  std::string user_ = "7";
};

class NoOutput final : public std::streambuf {
 protected:
  int_type overflow(int_type byte) override { return traits_type::not_eof(byte); }
  std::streamsize xsputn(const char*, std::streamsize count) override { return count; }
};

class Place {
 public:
  Place() {
    CreateSqliteDatabase(folder_.path() / "original.db", true);
    for (const std::string_view name : {kMapRestr, kMapCampi, kMapDelimitatori}) {
      folder_.Write(name, SourceText("mapping/" + std::string(name)));
    }
    for (std::size_t i = 0; i < kSamples.size(); ++i) {
      folder_.Write(NameOf(i + 1), SourceText(std::string("samples/") + kSamples[i]));
    }
  }

  const Folder& folder() const { return folder_; }
  static std::string NameOf(std::size_t page) { return "page-" + std::to_string(page); }
  std::string PathOf(std::size_t page) const { return (folder_.path() / NameOf(page)).string(); }

  void Renew() const {
    for (const char* name : {"office.db-wal", "office.db-shm", "office.db"}) {
      std::filesystem::remove(folder_.path() / name);
    }
    // The alarm that the fuzzer sets for itself may come in between.
    std::error_code failure;
    do {
      std::filesystem::copy_file(folder_.path() / "original.db", folder_.path() / "office.db",
                                 std::filesystem::copy_options::overwrite_existing, failure);
    } while (failure == std::errc::interrupted);
    Require(!failure, "the office is there anew");
  }

 private:
  Folder folder_;
};

// Whatever was done, the office's own rows are there, and nothing stands there twice.
void CheckOffice(const std::filesystem::path& file) {
  const auto connection = OpenSqlite(file);
  const auto number = [&](const char* select) {
    const auto rows = connection->PrepareNative(select, {})->FetchAll();
    return std::get<std::int64_t>(rows.at(0).at(0));
  };
  Require(number("SELECT count(*) FROM Utenti WHERE ID_Utente IN (2, 3, 4)") == 3, "users stay");
  Require(number("SELECT count(*) FROM Utenti") == 3, "no user is added");
  Require(number("SELECT count(*) FROM Anagrafica WHERE ID_Ana <= 11") == 11, "persons stay");
  Require(number("SELECT count(*) FROM Pratica WHERE ID_Pra <= 10") == 10, "cases stay");
  Require(number("SELECT count(*) FROM Pratica WHERE ID_Pra > 10") <= 1, "a run makes one case");
  Require(number("SELECT count(*) FROM (SELECT 1 FROM PraOrdex GROUP BY ID_PraRel "
                 "HAVING count(*) > 1)") == 0,
          "a case has one profile");
  Require(number("SELECT count(*) FROM (SELECT 1 FROM EventiPraOrdex GROUP BY ID_PraRel, "
                 "Progressivo HAVING count(*) > 1)") == 0,
          "an event stands once");
  Require(
      number("SELECT count(*) FROM Pratica WHERE ID_Pra = 5 AND Oggetto = 'Danneggiamento'") == 1,
      "a penal case is never changed");
}

void RunSession(const Place& place, Input& input) {
  const std::string first(input.Line());
  const std::size_t page =
      first.empty() ? 0 : static_cast<unsigned char>(first[0] - 0x20) % (kSamples.size() + 1);
  std::string script;
  for (std::string_view line = input.Line(); line != "--" && !input.AtEnd(); line = input.Line()) {
    std::string command(line);
    // Any other file of this machine is none of a session's business.
    if (const std::size_t at = command.find("clipboard"); at != std::string::npos) {
      const std::size_t chosen = command.size() % (kSamples.size() + 1);
      command = "clipboard " + place.PathOf(chosen);
    }
    script.append(command).append("\n");
  }
  place.folder().Write(Place::NameOf(0), PageInput::Expanded(input.Rest(), kPageProfile));

  console::SessionClipboard clipboard;
  clipboard.SetText(ReadTextFile(place.PathOf(page)));
  FixedClock clock({2026, 2, 20, 9, 15, 30});
  FuzzSettings settings;
  std::istringstream commands(script);
  console::CommandSource source(commands);
  NoOutput buffer;
  std::ostream out(&buffer);
  console::JsonEvents events(out);
  console::Session session({place.folder().path(), settings, clock, clipboard, true}, source,
                           events);
  const console::SessionEnd end = session.Run();
  Require(end.reason != EndReason::kError || !end.scriptError, "one end, not two");
}

}  // namespace
}  // namespace ordex::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace ordex::fuzz;
  static const Place place;
  place.Renew();
  Input input(data, size);
  RunSession(place, input);
  CheckOffice(place.folder().path() / "office.db");
  return 0;
}
