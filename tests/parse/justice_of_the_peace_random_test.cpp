// Random justice-of-the-peace pages: those built from known values yield exactly these; those of
// random bytes may stop the import and do nothing worse.
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

constexpr std::array kWords = {"alfa",  "È vero",  "12/03/2026", "€ 5,00", "l'atto",
                               "\"C\"", "a: b",    "=",          "°",      "x;y",
                               "p|q",   "Oggetto", "🙂",       "%s\\n"};

// Writes a page line by line and, beside it, what the rules must make of it.
class KnownJustice {
 public:
  explicit KnownJustice(std::uint32_t seed) : dice_(seed) {
    for (std::size_t lines = dice_.Below(4); lines > 0; --lines) AddLineBefore();
    Line(Padded(dice_, "Dati della causa"), "inizio dati");
    for (std::size_t lines = dice_.Below(8); lines > 0; --lines) AddData();
    AddParties();
    for (std::size_t lines = dice_.Below(4); lines > 0; --lines) AddData();
    AddHistory();
    for (std::size_t lines = dice_.Below(4); lines > 0; --lines) AddData();
  }

  std::string text;
  Rows rows;
  Parties parties;
  KeyedTable values;
  std::vector<std::string> takers;

 private:
  struct Labelled {
    const char* label;
    const char* NomeDb;
  };
  struct Side {
    const char* form;
    const char* NomeDb;
    const char* party;
    const char* counsel;
  };

  void Line(const std::string& line, const char* taker) {
    text.append(line).append(dice_.Half() ? "\r\n" : "\n");
    takers.emplace_back(taker);
  }

  std::string Value() { return SomeOf(dice_, kWords); }

  void Store(const std::string& NomeDb, const std::string& value) {
    if (!ItemExists(values, NomeDb)) return values.Add(value, NomeDb);
    values.Add(values.Take(NomeDb) + "; \r\n" + value, NomeDb);
  }

  void AddLineBefore() {
    constexpr std::array kBefore = {"", "x", "Oggetto: prima", "Le parti", "Ricorre: A"};
    if (dice_.Half()) return AddPairs();
    Line(Padded(dice_, dice_.OneOf(kBefore)), "none");
  }

  void AddData() {
    constexpr std::array kIdle = {"x", "   ", "Stanza: 2", "::", ": nulla", "Fine"};
    switch (dice_.Below(4)) {
      case 0:
        return Line(Padded(dice_, dice_.OneOf(kIdle)), "none");
      case 1:
        return AddPairs();
      default:
        return Line(Padded(dice_, Pair()), "campo");
    }
  }

  // A label and its value; the row is expected from here on.
  std::string Pair() {
    constexpr std::array<Labelled, 6> kFields = {{{"Oggetto", "Oggetto"},
                                                  {"OGGETTO", "Oggetto"},
                                                  {"Materia", "Materia"},
                                                  {"Note", "Note"},
                                                  {"Avvisi", "Note"},
                                                  {"Prossima udienza", "DPUd"}}};
    const Labelled& field = kFields.at(dice_.Below(kFields.size()));
    const std::string value = dice_.Below(6) == 0 ? "" : Value();
    rows.push_back(FieldRow(field.NomeDb, field.label, value));
    Store(field.NomeDb, value);
    return Padded(dice_, field.label) + ":" + Padded(dice_, value);
  }

  void AddPairs() {
    const bool data = dice_.Half();
    std::string line = data ? "Ruolo ;" : "Giudice |";
    if (!data && dice_.Half()) line = "Udienze |";
    const std::string between = data ? " ; " : " | ";
    line += data ? " Sede: x" : " Sede: y";
    for (std::size_t count = dice_.Below(4); count > 0; --count) {
      line += between + (dice_.Below(4) == 0 ? dice_.Blanks() : Pair());
    }
    // A mark that ends the line would lose its blank to the trimming.
    Line(Padded(dice_, line + between + "fine"), "più campi");
  }

  void AddParties() {
    Line(Padded(dice_, "Le parti"), "parti");
    for (std::size_t lines = dice_.Below(6); lines > 0; --lines) {
      if (dice_.Below(3) == 0) {
        AddData();
      } else {
        AddParty();
      }
    }
    Line("", "fine blocco");
  }

  void AddParty() {
    constexpr std::array<Side, 4> kSides = {
        {{"Ricorre:", "ParteAttrice", "Attore", "DifAttore"},
         {"Agisce:", "", "Attore", "DifAttore"},
         {"Resiste:", "ParteConvenuta", "Convenuto", "DifConvenuto"},
         {"Risponde:", "", "Convenuto", "DifConvenuto"}}};
    const Side& side = kSides.at(dice_.Below(kSides.size()));
    const std::string party = Value();
    const std::string counsel = dice_.Half() ? Value() : "";
    const std::string value = counsel.empty() ? party : party + " rappresentato/a da " + counsel;
    Line(Padded(dice_, side.form + Padded(dice_, value)), "parte");
    rows.push_back(FieldRow(side.NomeDb, side.form, value));
    if (*side.NomeDb != '\0') Store(side.NomeDb, value);
    if (!ItemExists(values, side.party)) {
      values.Add(party, side.party);
      values.Add(counsel, side.counsel);
    }
    parties.push_back({party, counsel});
  }

  void AddHistory() {
    Line(Padded(dice_, "MOVIMENTI"), "storico");
    rows.push_back(kHistoryHeadingRow);
    const std::size_t events = 1 + dice_.Below(5);
    if (dice_.Half()) Line("", "fine blocco");
    for (std::size_t event = 0; event < events; ++event) {
      if (dice_.Below(4) == 0) Line(Padded(dice_, "Giorno Fatto"), "riga saltata");
      const std::string date = std::to_string(1 + dice_.Below(28)) + "/03/2026";
      const std::string description = Value() + "  " + Value();
      Line(date + " " + Padded(dice_, description), "evento");
      rows.push_back(EventRow(date, description));
    }
    Line("", "fine blocco");
  }

  Dice dice_;
};

TEST(RandomJustice, OfKnownDataPartiesAndEventsYieldsExactlyThese) {
  JusticeBench bench;
  for (std::uint32_t seed = 1; seed <= 300; ++seed) {
    const KnownJustice known(seed);
    bench.Forget();
    ASSERT_EQ(bench.ReadBytes(known.text), Stop{}) << "seed " << seed << "\n" << known.text;
    ASSERT_EQ(bench.sink.rows, known.rows) << "seed " << seed << "\n" << known.text;
    ASSERT_EQ(bench.sink.parties, known.parties) << "seed " << seed << "\n" << known.text;
    ASSERT_EQ(Sorted(bench.Values()), Sorted(ValuesOf(known.values))) << "seed " << seed;
    ASSERT_EQ(TakerOfEachLine(bench.trace), known.takers) << "seed " << seed << "\n" << known.text;
  }
}

void ImportAnything(JusticeBench& bench, const std::string& bytes) {
  bench.Forget();
  ExpectSound(bench, bench.ReadBytes(bytes), bytes, {9});
  ExpectNoLineTakenTwice(bench);
}

TEST(RandomJustice, OfPlainBytesAtMostStopsTheImport) {
  Dice dice(4417);
  JusticeBench bench;
  for (int run = 0; run < 300; ++run) {
    ImportAnything(bench, RandomBytes(dice, 600));
    ASSERT_FALSE(::testing::Test::HasFatalFailure()) << "run " << run;
  }
}

TEST(RandomJustice, OfPiecesOfPagesAtMostStopsTheImport) {
  constexpr std::array kPieces = {"\n",
                                  "\n",
                                  "\r\n",
                                  "\r\n\r\n",
                                  "\r",
                                  " ",
                                  ":",
                                  ":",
                                  " ; ",
                                  " | ",
                                  "°",
                                  "\xE8",
                                  "\xC3",
                                  "\"\n",
                                  "\t",
                                  "\nDati della causa\n",
                                  "Le parti\n",
                                  "Ruolo ;",
                                  "MOVIMENTI\n",
                                  "Giorno Fatto",
                                  "Ricorre:",
                                  "Resiste:",
                                  "Agisce:",
                                  "Risponde:",
                                  "Udienze |",
                                  "Giudice |",
                                  "Oggetto",
                                  "Note",
                                  "N. Ruolo",
                                  "x",
                                  " rappresentato/a da ",
                                  "01/01/2025 y\n"};
  Dice dice(5230);
  JusticeBench bench;
  for (int run = 0; run < 500; ++run) {
    ImportAnything(bench, PiecesOf(dice, kPieces));
    ASSERT_FALSE(::testing::Test::HasFatalFailure()) << "run " << run;
  }
}

TEST(RandomJustice, ThatIsDamagedAtMostStopsTheImport) {
  Dice dice(58);
  JusticeBench bench;
  for (std::uint32_t run = 1; run <= 300; ++run) {
    ImportAnything(bench, Damaged(dice, KnownJustice(run).text + KnownJustice(run + 1).text));
    ASSERT_FALSE(::testing::Test::HasFatalFailure()) << "run " << run;
  }
}

}  // namespace
}  // namespace ordex::testing
