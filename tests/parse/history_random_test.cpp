// Random history pages: those built from known values yield exactly these; those of random bytes
// may stop the import and do nothing worse.
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

constexpr std::array kWords = {"alfa", "È vero", "12/03/2026", "€ 5,00", "l'atto", "\"C\"", "a*b",
                               "=",    "°",      "N. Giorno",  "::",     "🙂",   "%s\\n"};

// Writes a page line by line and, beside it, what the rules must make of it.
class KnownHistory {
 public:
  explicit KnownHistory(std::uint32_t seed) : dice_(seed) {
    for (std::size_t lines = dice_.Below(5); lines > 0; --lines) AddLineBefore();
    for (std::size_t tables = 1 + dice_.Below(2); tables > 0; --tables) AddTable();
  }

  std::string text;
  Rows rows;
  std::vector<std::string> takers;

 private:
  void Line(const std::string& line, const char* taker) {
    text.append(line).append(dice_.Half() ? "\r\n" : "\n");
    takers.emplace_back(taker);
  }

  std::string Value() { return SomeOf(dice_, kWords); }
  std::string Gap() { return dice_.Half() ? " " : "  "; }

  void AddLineBefore() {
    constexpr std::array kBefore = {"",
                                    "x",
                                    "1 14/01/2025 prima",
                                    "n. giorno fatto",
                                    "**",
                                    "Lista(3 voci)",
                                    "N. Giorno Fatto:",
                                    "Torna"};
    Line(Padded(dice_, dice_.OneOf(kBefore)), "none");
  }

  void AddTable() {
    constexpr std::array kHeaders = {"N. Giorno Fatto", "N. Giorno Fatto (segue)",
                                     "N. Giorno Evento", "N. Giorno Evento (segue)"};
    Line(Padded(dice_, dice_.OneOf(kHeaders)), "intestazione");
    // Leading blanks of the line behind the header are not taken away.
    AddEvent("");
    for (std::size_t lines = dice_.Below(15); lines > 0; --lines) {
      if (dice_.Below(4) == 0) {
        AddIdleLine();
      } else {
        AddEvent(dice_.Blanks());
      }
    }
  }

  // Single blanks within the description stay as they are.
  void AddEvent(const std::string& indent) {
    const std::string number = std::to_string(1 + dice_.Below(99));
    const std::string date = std::to_string(1 + dice_.Below(28)) + "/03/2026";
    const std::string description = Value();
    std::string line = indent + number;
    line.append(Gap()).append(date).append(Gap()).append(description).append(dice_.Blanks());
    Line(line, "evento");
    rows.push_back(HistoryRow(number, date, description));
  }

  void AddIdleLine() {
    constexpr std::array kIdle = {"", "x", "**", "** 1 14/01/2025 y", "1 14/01 ** z", "È", "\""};
    Line(Padded(dice_, dice_.OneOf(kIdle)), "none");
  }

  Dice dice_;
};

TEST(RandomHistory, OfKnownEventsYieldsExactlyThese) {
  HistoryBench bench;
  for (std::uint32_t seed = 1; seed <= 300; ++seed) {
    const KnownHistory known(seed);
    bench.Forget();
    ASSERT_EQ(bench.ReadBytes(known.text), Stop{}) << "seed " << seed << "\n" << known.text;
    ASSERT_EQ(bench.sink.rows, known.rows) << "seed " << seed << "\n" << known.text;
    ASSERT_EQ(TakerOfEachLine(bench.trace), known.takers) << "seed " << seed << "\n" << known.text;
  }
}

void ImportAnything(HistoryBench& bench, const std::string& bytes) {
  bench.Forget();
  ExpectSound(bench, bench.ReadBytes(bytes), bytes, {9, 62});
  ExpectNoLineTakenTwice(bench);
}

TEST(RandomHistory, OfPlainBytesAtMostStopsTheImport) {
  Dice dice(42);
  HistoryBench bench;
  for (int run = 0; run < 300; ++run) {
    ImportAnything(bench, RandomBytes(dice, 600));
    ASSERT_FALSE(::testing::Test::HasFatalFailure()) << "run " << run;
  }
}

TEST(RandomHistory, OfPiecesOfPagesAtMostStopsTheImport) {
  constexpr std::array kPieces = {"\n",
                                  "\n",
                                  "\r\n",
                                  "\r\n\r\n",
                                  "\r",
                                  " ",
                                  "  ",
                                  "   ",
                                  "**",
                                  "°",
                                  "\xE8",
                                  "\xC3",
                                  "\"",
                                  "\t",
                                  "\nN. Giorno Fatto\n",
                                  "N. Giorno Evento",
                                  " (segue)\n",
                                  "1 14/01/2025 alfa beta\n",
                                  "1 14/01/2025 alfa\n",
                                  "2  x  y\n",
                                  "x",
                                  "Lista(",
                                  "voci)",
                                  "Foglio"};
  Dice dice(907);
  HistoryBench bench;
  for (int run = 0; run < 500; ++run) {
    ImportAnything(bench, PiecesOf(dice, kPieces));
    ASSERT_FALSE(::testing::Test::HasFatalFailure()) << "run " << run;
  }
}

TEST(RandomHistory, ThatIsDamagedAtMostStopsTheImport) {
  Dice dice(3056);
  HistoryBench bench;
  for (std::uint32_t run = 1; run <= 300; ++run) {
    ImportAnything(bench, Damaged(dice, KnownHistory(run).text + KnownHistory(run + 1).text));
    ASSERT_FALSE(::testing::Test::HasFatalFailure()) << "run " << run;
  }
}

}  // namespace
}  // namespace ordex::testing
