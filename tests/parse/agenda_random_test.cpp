// Random agendas: those built from known values yield exactly these; those of random bytes may
// stop the import and do nothing worse.
#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "import_bench.h"
#include "page_benches.h"
#include "random_pages.h"

namespace ordex::testing {
namespace {

constexpr std::array kWords = {"alfa", "È vero", "12/03/2026", "€ 5,00", "l'atto", "\"C\"", "a#b",
                               "=",    "°",      "Causa",      "Causa#", "🙂",   "%s\\n"};

// Writes a page line by line and, beside it, what the rules must make of it.
class KnownAgenda {
 public:
  explicit KnownAgenda(std::uint32_t seed) : dice_(seed) {
    for (std::size_t pieces = 5 + dice_.Below(20); pieces > 0; --pieces) AddPiece();
    if (inEntries_) EndEntries();
  }

  std::string text;
  AgendaEntries entries;
  std::vector<std::string> takers;
  int count = 0;

 private:
  void AddPiece() {
    // A case may follow the entries of another at once.
    if (inEntries_ && dice_.Half()) return AddCase();
    if (inEntries_) EndEntries();
    switch (dice_.Below(5)) {
      case 0:
        return AddCount();
      case 1:
        return AddIdleLine();
      case 2:
        return AddEntries();
      default:
        return AddCase();
    }
  }

  void Line(const std::string& line, const char* taker) {
    text.append(line).append(dice_.Half() ? "\r\n" : "\n");
    takers.emplace_back(taker);
  }

  std::string Value() { return SomeOf(dice_, kWords); }

  void AddCount() {
    count = static_cast<int>(dice_.Below(32768));
    const std::string number = Padded(dice_, std::to_string(count));
    Line(Padded(dice_, "Impegni in tutto:" + number + "dal giorno " + Value()), "numero impegni");
  }

  // Neither column is trimmed.
  void AddCase() {
    const std::string parties = Padded(dice_, Value());
    const std::string number = Padded(dice_, Value());
    const std::string line = "Causa # " + parties + " # " + number + " davanti a " + Value();
    // Blanks before a case would make it an entry of the case before.
    Line(inEntries_ ? line + dice_.Blanks() : Padded(dice_, line), "fascicolo");
    entries.push_back({number, parties, true});
    inEntries_ = false;
    if (dice_.Below(4) != 0) AddEntries();
  }

  void AddEntries() {
    Line(Padded(dice_, "Elenco impegni"), "impegni");
    inEntries_ = true;
    for (std::size_t number = dice_.Below(4); number > 0; --number) {
      const std::string date = Padded(dice_, Value());
      const std::string description = dice_.Half() ? Value() + " # " + Value() : Value();
      Line(Padded(dice_, "Udienza") + " # " + date + " # " + Padded(dice_, description), "impegno");
      entries.push_back({"    " + date, "    " + description, false});
    }
  }

  void EndEntries() {
    Line("", "fine impegni");
    inEntries_ = false;
  }

  void AddIdleLine() {
    constexpr std::array kIdle = {"",
                                  "x",
                                  "a # b # c",
                                  "Causa # A # 1/2026",
                                  "A # 1 davanti a X",
                                  "elenco impegni",
                                  "Impegni in tutto: 3",
                                  "\t"};
    Line(Padded(dice_, dice_.OneOf(kIdle)), "none");
  }

  Dice dice_;
  bool inEntries_ = false;
};

TEST(RandomAgenda, OfKnownCasesAndEntriesYieldsExactlyThese) {
  AgendaBench bench;
  for (std::uint32_t seed = 1; seed <= 300; ++seed) {
    const KnownAgenda known(seed);
    bench.Forget();
    ASSERT_EQ(bench.ReadBytes(known.text), Stop{}) << "seed " << seed << "\n" << known.text;
    ASSERT_EQ(bench.sink.agenda, known.entries) << "seed " << seed << "\n" << known.text;
    ASSERT_EQ(bench.page.iNrEventiAgenda, known.count) << "seed " << seed << "\n" << known.text;
    ASSERT_EQ(TakerOfEachLine(bench.trace), known.takers) << "seed " << seed << "\n" << known.text;
  }
}

void ImportAnything(AgendaBench& bench, const std::string& bytes) {
  bench.Forget();
  ExpectSound(bench, bench.ReadBytes(bytes), bytes, {6, 9, 13, 62});
  ExpectNoLineTakenTwice(bench);
}

TEST(RandomAgenda, OfPlainBytesAtMostStopsTheImport) {
  Dice dice(25);
  AgendaBench bench;
  for (int run = 0; run < 300; ++run) {
    ImportAnything(bench, RandomBytes(dice, 600));
    ASSERT_FALSE(::testing::Test::HasFatalFailure()) << "run " << run;
  }
}

TEST(RandomAgenda, OfPiecesOfPagesAtMostStopsTheImport) {
  constexpr std::array kPieces = {"\n",
                                  "\n",
                                  "\r\n",
                                  "\r\n\r\n",
                                  "\r",
                                  " ",
                                  " # ",
                                  " # ",
                                  " # ",
                                  "°",
                                  "\xE8",
                                  "\xC3",
                                  "\"",
                                  "\t",
                                  "Causa #",
                                  "Causa #",
                                  " davanti a ",
                                  " davanti a ",
                                  "Elenco impegni\n",
                                  "Impegni in tutto:",
                                  "dal giorno",
                                  "7",
                                  "99999",
                                  "x",
                                  "a # b # c\n",
                                  "\nCausa # A # 1 davanti a B\n"};
  Dice dice(633);
  AgendaBench bench;
  for (int run = 0; run < 500; ++run) {
    ImportAnything(bench, PiecesOf(dice, kPieces));
    ASSERT_FALSE(::testing::Test::HasFatalFailure()) << "run " << run;
  }
}

TEST(RandomAgenda, ThatIsDamagedAtMostStopsTheImport) {
  Dice dice(1190);
  AgendaBench bench;
  for (std::uint32_t run = 1; run <= 300; ++run) {
    ImportAnything(bench, Damaged(dice, KnownAgenda(run).text + KnownAgenda(run + 1).text));
    ASSERT_FALSE(::testing::Test::HasFatalFailure()) << "run " << run;
  }
}

}  // namespace
}  // namespace ordex::testing
