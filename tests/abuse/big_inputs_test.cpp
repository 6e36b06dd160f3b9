// Pages and mapping files of a size that nobody has: what the program says, and what memory it
// takes.
#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "abuse/console_try.h"
#include "console_program.h"
#include "console_run.h"
#include "database.h"
#include "text_files.h"
#include "workplace.h"

namespace ordex::abuse {
namespace {

namespace fs = std::filesystem;
using sessions::Json;
using sessions::RunOutcome;
using sessions::RunTask;
using sessions::Workplace;

constexpr std::size_t kMegabyte = 1'000'000;
constexpr std::size_t kPage = 100 * kMegabyte;

// The file is written piece by piece: what we hold ourselves would count as the console's own.
class PageOnDisk {
 public:
  explicit PageOnDisk(const fs::path& file) : out_(file, std::ios::binary | std::ios::trunc) {}

  PageOnDisk& Write(std::string_view text) {
    out_.write(text.data(), static_cast<std::streamsize>(text.size()));
    return *this;
  }
  PageOnDisk& Repeat(std::string_view text, std::size_t bytes) {
    std::string block;
    while (block.size() < kMegabyte) block.append(text);
    for (std::size_t written = 0; written < bytes; written += block.size()) Write(block);
    return *this;
  }

 private:
  std::ofstream out_;
};

struct Filler {
  std::string name;
  std::string heading;  // by which the page is known, and the lines ahead of the filler
  std::string filler;   // repeated up to the size; no rule takes it
  std::string behind;   // the lines behind it
  double growth = 1;    // of the filler, once it is UTF-8 with CRLF
};

constexpr const char* kProfile =
    "Profilo del fascicolo - Dati generali\r\nNumero di iscrizione a ruolo: 1842/2025\r\n";
constexpr const char* kPlain =
    "Questa riga non dice nulla a nessuno e nessuna regola la prende.\r\n";
constexpr const char* kSubject = "\r\nOggetto: Compravendita\r\nTorna in cima\r\n";

std::vector<Filler> Fillers() {
  std::vector<Filler> fillers = {
      {"profile", kProfile, kPlain, kSubject},
      {"history", "Storico del fascicolo - Elenco eventi\r\nElenco(0 righe) Pagina 1 di 1\r\n",
       kPlain, ""},
      {"agenda", "Agenda dell'avvocato - Impegni del periodo\r\n", kPlain, ""},
      {"justice", "Giudice di pace - Scheda del procedimento\r\n", kPlain, ""},
      {"lines_of_unix", kProfile, "Questa riga non dice nulla.\n", kSubject, 29.0 / 28},
      {"tabs", kProfile, "Questa\triga\tnon dice nulla.\r\n", kSubject},
      {"invalid_utf8", kProfile, "Questa riga \xE8 in un'altra codifica, \xFF\xFE\r\n", kSubject,
       43.0 / 40},
      {"one_line", kProfile, "Questa riga non finisce pi\u00F9, ", kSubject},
  };
  fillers.push_back({"nuls", kProfile, std::string("Riga\0 con lo zero\r\n", 19), kSubject});
  return fillers;
}

class BigPage : public ::testing::TestWithParam<Filler> {
 protected:
  // What the console prints of a page with so many bytes of filler, and the memory it took for it.
  struct Reading {
    Json state;
    std::size_t memory = 0;
    int exitCode = 0;
  };
  Reading Read(std::size_t bytes) const {
    PageOnDisk(workplace_.folder() / "page.txt")
        .Write(GetParam().heading)
        .Repeat(GetParam().filler, bytes)
        .Write(GetParam().behind);
    ConsoleTry run(workplace_, {});
    run.Prints("\n");
    Reading reading;
    reading.memory = run.console().PeakMemory();
    run.Command("close");
    run.console().Finish();
    reading.exitCode = run.console().exitCode();
    const std::string& output = run.console().output();
    reading.state = Json::parse(output.substr(0, output.find('\n')), nullptr, false);
    return reading;
  }

  Workplace workplace_{ORDEX_SOURCE_DIR};
};

// What is read of a page beside its rows is never held more than three times. The page's size is
// what lies on the clipboard, or what it becomes in the page file where that is more.
TEST_P(BigPage, TakesThreeTimesItsSizeInMemoryAtMost) {
  const Reading small = Read(1);
  const Reading big = Read(kPage);
  ASSERT_EQ(big.exitCode, 0);
  ASSERT_TRUE(big.state.is_object());
  EXPECT_EQ(big.state["cDatiFasc"], small.state["cDatiFasc"]);
  EXPECT_EQ(big.state["lstImport"], small.state["lstImport"]);
  const auto size =
      static_cast<double>(fs::file_size(workplace_.folder() / "page.txt")) * GetParam().growth;
  const double times = static_cast<double>(big.memory - small.memory) / size;
  std::cout << GetParam().name << ": " << static_cast<std::size_t>(size) / kMegabyte
            << " MB, memory " << big.memory / kMegabyte << " MB, of a small page "
            << small.memory / kMegabyte << " MB; " << times << " times the page\n";
  EXPECT_LE(times, 3.0);
  EXPECT_TRUE(workplace_.Leftovers().empty());
}

INSTANTIATE_TEST_SUITE_P(Of, BigPage, ::testing::ValuesIn(Fillers()),
                         [](const auto& one) { return one.param.name; });

// --- values and mapping files -------------------------------------------------------------------

RunOutcome RunSession(const Workplace& workplace, const std::vector<std::string>& commands) {
  RunTask task;
  task.program = sessions::ConsoleProgram();
  task.commands = commands;
  return RunConsole(task, workplace);
}

TEST(BigValue, OfFiftyMegabytesInOneLineIsStoredWhole) {
  Workplace workplace(ORDEX_SOURCE_DIR);
  std::string page = kProfile;
  page.append("Oggetto: ").append(50 * kMegabyte, 'x').append("fine\r\nTorna in cima\r\n");
  workplace.SetPage(page);
  const RunOutcome outcome = RunSession(workplace, {"click cmdAzione", "ok"});
  EXPECT_EQ(outcome.exitCode, 0) << outcome.errors;
  EXPECT_EQ(outcome.fault, "");
  EXPECT_EQ(sessions::QueryRows(workplace.database(),
                                "SELECT length(Oggetto), substr(Oggetto, -5) FROM Pratica "
                                "WHERE ID_Pra = 2"),
            std::vector<std::string>{std::to_string(50 * kMegabyte + 4) + "|xfine"});
}

// Further fields, each with a label of its own.
std::string Fields(std::size_t bytes) {
  std::string text;
  for (std::size_t i = 0; text.size() < bytes; ++i) {
    const std::string number = std::to_string(i);
    text.append("Campo").append(number).append("=Etichetta ").append(number).append("\r\n");
  }
  return text;
}

TEST(BigMappingFile, OfTenMegabytesIsReadAndUsed) {
  Workplace workplace(ORDEX_SOURCE_DIR);
  workplace.TakePage("samples/profilo-contratto.txt");
  workplace.WriteMapping("MapCampi.txt",
                         workplace.Mapping("MapCampi.txt") + Fields(10 * kMegabyte));
  const RunOutcome outcome = RunSession(workplace, {"click cmdAzione", "ok"});
  EXPECT_EQ(outcome.exitCode, 0) << outcome.transcript;
  EXPECT_EQ(outcome.events.back()["reason"], "done");
}

struct BrokenMapping {
  std::string name;
  std::string file;
  std::string text;
};

std::vector<BrokenMapping> BrokenMappings() {
  const std::string line(10 * kMegabyte, 'x');
  std::vector<BrokenMapping> broken;
  for (const char* file : {"MapCampi", "MapDelimitatori", "MapRestr"}) {
    broken.push_back({std::string(file) + "OneLine", std::string(file) + ".txt", line});
    broken.push_back({std::string(file) + "Nuls", std::string(file) + ".txt",
                      std::string(10 * kMegabyte, '\0')});
  }
  return broken;
}

class BigBrokenMapping : public ::testing::TestWithParam<BrokenMapping> {};

// The message names the file and the line, and shows no more of it than can be read.
TEST_P(BigBrokenMapping, IsToldWithItsFileAndLine) {
  constexpr std::size_t kReadable = 2000;
  Workplace workplace(ORDEX_SOURCE_DIR);
  workplace.TakePage("samples/profilo-contratto.txt");
  workplace.WriteMapping(GetParam().file, GetParam().text);
  const RunOutcome outcome = RunSession(workplace, {"close"});
  ASSERT_EQ(outcome.fault, "") << outcome.transcript;
  bool told = false;
  for (const Json& event : outcome.events) {
    if (event["event"] != "message") continue;
    const std::string text = event["text"];
    EXPECT_LE(text.size(), kReadable);
    told = told || text.find(GetParam().file) != std::string::npos;
  }
  EXPECT_TRUE(told) << outcome.transcript;
}

INSTANTIATE_TEST_SUITE_P(Of, BigBrokenMapping, ::testing::ValuesIn(BrokenMappings()),
                         [](const auto& one) { return one.param.name; });

}  // namespace
}  // namespace ordex::abuse
