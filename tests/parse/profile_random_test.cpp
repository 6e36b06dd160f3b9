// Random pages. Those built from known labels and values yield exactly these; those of random bytes
// may stop the import and do nothing worse.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/error.h"
#include "base/text.h"
#include "import_bench.h"
#include "random_pages.h"

namespace ordex::testing {
namespace {

// --- pages that are known to the last line ------------------------------------------------------

constexpr std::array kWords = {
    "alfa", "È vero",      "12/03/2026", "€ 5,00",   "l'atto", "\"C\"",  "a: b", "=",    "°",
    "x;y",  "(fascicolo)", "Oggetto",    "ore 9:30", "🙂",   "d'Água", "Avv.", "%s\\n"};

struct Labelled {
  const char* label;
  const char* NomeDb;
};

constexpr std::array<Labelled, 8> kFields = {{{"Oggetto", "Oggetto"},
                                              {"OGGETTO", "Oggetto"},
                                              {"Materia", "Materia"},
                                              {"Unità locale", "Unita"},
                                              {"UNITÀ LOCALE", "Unita"},
                                              {"Note", "Note"},
                                              {"Avvisi", "Note"},
                                              {"È", "Lettera"}}};

// Writes a page line by line and, beside it, what the rules must make of it.
class KnownPage {
 public:
  explicit KnownPage(std::uint32_t seed) : dice_(seed) {
    const std::size_t pieces = 5 + dice_.Below(30);
    for (std::size_t i = 0; i < pieces; ++i) AddPiece();
  }

  std::string text;
  Rows rows;
  Parties parties;
  NamedValues values;
  std::vector<std::string> takers;
  std::string number;

 private:
  void AddPiece() {
    switch (dice_.Below(8)) {
      case 0:
        return AddNumber();
      case 1:
        return AddParty(plaintiff_, "Attore", "Ricorrente", "ParteAttrice");
      case 2:
        return AddParty(defendant_, "Convenuto", "Resistente", "ParteConvenuta");
      case 3:
        return AddFurtherParty();
      case 4:
        return AddHearing();
      case 5:
        return AddBlock();
      case 6:
        return AddIdleLine();
      default:
        return AddField();
    }
  }

  void Line(const std::string& line, const char* taker) {
    text.append(line).append(dice_.Half() ? "\r\n" : "\n");
    takers.emplace_back(taker);
  }

  // A few words without a blank at either end.
  std::string Value() {
    std::string value = dice_.OneOf(kWords);
    for (std::size_t i = dice_.Below(4); i > 0; --i) value += " " + dice_.OneOf(kWords);
    return value;
  }

  std::string Padded(const std::string& core) {
    std::string padded = dice_.Blanks();
    return padded.append(core).append(dice_.Blanks());
  }

  void LabelLine(const std::string& label, const std::string& value, const char* taker) {
    std::string line = Padded(label);
    Line(line.append(":").append(Padded(value)), taker);
  }

  void Store(const std::string& NomeDb, const std::string& value) {
    const auto found = std::find_if(values.begin(), values.end(),
                                    [&](const auto& entry) { return entry.first == NomeDb; });
    if (found == values.end()) {
      values.emplace_back(NomeDb, value);
      return;
    }
    const std::string joined = found->second + "; \r\n" + value;
    values.erase(found);
    values.emplace_back(NomeDb, joined);
  }

  void AddNumber() {
    if (!number.empty()) return AddField();
    number = Value();
    LabelLine("Numero di ruolo generale", number, "numero");
    // The delimiter ends in ":", which must follow the words at once.
    const std::size_t words = text.rfind("Numero di ruolo generale");
    const std::size_t colon = text.find(':', words);
    text.erase(words + 24, colon - words - 24);
    rows.push_back(FieldRow("NumeroRegGenerale", "Numero di ruolo generale:", number));
    values.emplace_back("NumeroRegGenerale", number);
  }

  void AddField() {
    const Labelled& field = kFields[dice_.Below(kFields.size())];
    const std::string value = dice_.Below(6) == 0 ? "" : Value();
    LabelLine(field.label, value, "campo");
    rows.push_back(FieldRow(field.NomeDb, field.label, value));
    Store(field.NomeDb, value);
  }

  void AddHearing() {
    const bool next = dice_.Half();
    const std::string label = next ? "Prossima udienza" : "Ultima udienza";
    const std::string date = std::to_string(1 + dice_.Below(28)) + "/03/2026";
    LabelLine(label, dice_.Half() ? date + " (Fascicolo)" : date, "campo");
    rows.push_back(FieldRow(next ? "DPUd" : "DUUd", label, date));
    Store(next ? "DPUd" : "DUUd", date);
  }

  // The value of a party's line, and the party with the first counsel and with all of them.
  struct PartyLine {
    std::string value;
    std::string name;
    std::string first;
    std::string all;
  };

  PartyLine MakeParty() {
    PartyLine party;
    party.name = Value();
    party.value = party.name;
    for (std::size_t count = dice_.Below(3); count > 0; --count) {
      const std::string counsel = Value();
      party.value += " - Avv. " + counsel;
      if (party.first.empty()) {
        party.first = party.all = counsel;
      } else {
        party.all += " - Avv. " + counsel;
      }
    }
    return party;
  }

  void AddParty(bool& done, const std::string& key, const std::string& otherWording,
                const std::string& NomeDb) {
    if (done) return AddField();
    done = true;
    const PartyLine party = MakeParty();
    const std::string label = dice_.Half() ? key : otherWording;
    const std::string& counsel = key == "Attore" ? party.all : party.first;
    LabelLine(label, party.value, "campo");
    rows.push_back(FieldRow(NomeDb, label, party.value));
    values.emplace_back(key, party.name);
    values.emplace_back("Dif" + key, counsel);
    Store(NomeDb, party.value);
    parties.push_back({party.name, counsel});
  }

  void AddFurtherParty() {
    const PartyLine party = MakeParty();
    const std::string label = dice_.Half() ? "Terzo chiamato" : "Intervenuto";
    LabelLine(label, party.value, "campo");
    rows.push_back(FieldRow("AltreParti", label, party.value));
    Store("AltreParti", party.value);
    parties.push_back({party.name, party.first});
  }

  void AddBlock() {
    if (dice_.Half()) return AddDeposit();
    Line(Padded("Termini assegnati"), "scadenze");
    for (std::size_t count = dice_.Below(4); count > 0; --count) {
      const std::string label = Padded(dice_.Half() ? "Oggetto" : "Lista dei testimoni");
      const std::string value = Value();
      std::string line = label;
      Line(line.append(":").append(Padded(value)), "scadenza");
      rows.push_back(DeadlineRow(label, value));
    }
    Line("", "fine scadenze");
  }

  void AddDeposit() {
    Line(Padded("Deposito documenti"), "deposito");
    const std::string value = Value();
    LabelLine("Depositata il", value, "data deposito");
    rows.push_back(DepositRow(value));
    if (dice_.Half()) {
      AddField();
    } else {
      Line(dice_.Blanks(), "none");
    }
  }

  void AddIdleLine() {
    constexpr std::array kIdle = {"",
                                  "x",
                                  "Stanza: 2.14",
                                  "PARTI E DIFENSORI",
                                  "Oggetti",
                                  "::",
                                  "attore e convenuto",
                                  "\tOggetto: x",
                                  ": nulla",
                                  "termini assegnati"};
    Line(Padded(dice_.OneOf(kIdle)), "none");
  }

  Dice dice_;
  bool plaintiff_ = false;
  bool defendant_ = false;
};

TEST(RandomProfile, APageOfKnownLabelsAndValuesYieldsExactlyTheseRowsAndValues) {
  ImportBench bench;
  for (std::uint32_t seed = 1; seed <= 200; ++seed) {
    const KnownPage known(seed);
    bench.Forget();
    ASSERT_EQ(bench.RunBytes(known.text), Stop{}) << "seed " << seed << "\n" << known.text;
    ASSERT_EQ(bench.sink.rows, known.rows) << "seed " << seed << "\n" << known.text;
    ASSERT_EQ(bench.Values(), known.values) << "seed " << seed << "\n" << known.text;
    ASSERT_EQ(bench.sink.parties, known.parties) << "seed " << seed << "\n" << known.text;
    ASSERT_EQ(bench.page.szNumeroRG, known.number) << "seed " << seed << "\n" << known.text;
  }
}

TEST(RandomProfile, EachLineOfAKnownPageIsTakenByTheRuleThatFits) {
  ImportBench bench;
  for (std::uint32_t seed = 1001; seed <= 1200; ++seed) {
    const KnownPage known(seed);
    bench.Forget();
    bench.RunBytes(known.text);
    std::vector<std::string> takers;
    for (const auto& line : bench.trace.lines) {
      takers.push_back(bench.trace.FirstTaker(line.number));
    }
    ASSERT_EQ(takers, known.takers) << "seed " << seed << "\n" << known.text;
  }
}

// --- anything at all ----------------------------------------------------------------------------

// Bits of pages and of mapping files in any order: gets deeper into the rules than plain bytes.
std::string RandomPieces(Dice& dice) {
  constexpr std::array kPieces = {"\n",
                                  "\n",
                                  "\r\n",
                                  "\r\n\r\n",
                                  "\r",
                                  " ",
                                  ":",
                                  ":",
                                  "=",
                                  "°",
                                  "\xB0",
                                  "\xE8",
                                  "\xC3",
                                  "\xEF\xBB\xBF",
                                  "\"",
                                  "\t",
                                  "Attore",
                                  "Convenuto",
                                  "Oggetto",
                                  "Intervenuto",
                                  " - Avv. ",
                                  "Note",
                                  "DELPF2",
                                  "Numero di ruolo generale:",
                                  "È",
                                  "Esito",
                                  "TESTO1",
                                  "x",
                                  "(Fascicolo)",
                                  "Prossima udienza",
                                  "Materia",
                                  "Ricorrente",
                                  "Resistente",
                                  "Termini assegnati",
                                  "Deposito documenti"};
  std::string text;
  for (std::size_t count = dice.Below(120); count > 0; --count) text += dice.OneOf(kPieces);
  return text;
}

void ImportAnything(ImportBench& bench, const std::string& bytes) {
  bench.Forget();
  const Stop stop = bench.RunBytes(bytes);
  ExpectSound(bench, stop, bytes, {5, 9, 62, 457});
  for (const Row& row : bench.sink.rows) ASSERT_EQ(row.third, "");
}

TEST(RandomBytes, AsAPageAtMostStopTheImport) {
  Dice dice(20260220);
  ImportBench bench;
  for (int run = 0; run < 300; ++run) {
    ImportAnything(bench, RandomBytes(dice, 600));
    ASSERT_FALSE(HasFatalFailure()) << "run " << run;
  }
}

TEST(RandomBytes, PiecesOfPagesAtMostStopTheImport) {
  Dice dice(417);
  ImportBench bench;
  for (int run = 0; run < 500; ++run) {
    ImportAnything(bench, RandomPieces(dice));
    ASSERT_FALSE(HasFatalFailure()) << "run " << run;
  }
}

TEST(RandomBytes, DamagedPagesAtMostStopTheImport) {
  Dice dice(1842);
  ImportBench bench;
  const std::string page = KnownPage(7).text + KnownPage(8).text;
  for (int run = 0; run < 300; ++run) {
    ImportAnything(bench, Damaged(dice, page));
    ASSERT_FALSE(HasFatalFailure()) << "run " << run;
  }
}

TEST(RandomBytes, AsMappingFilesAreLoadedOrRefusedWithTheirFileAndLine) {
  Dice dice(907);
  const TempFolder folder;
  Mappings mappings;
  LocateMappings(mappings, folder.path());
  int loaded = 0;
  int refused = 0;
  for (int run = 0; run < 400; ++run) {
    const std::string bytes = run % 2 == 0 ? RandomBytes(dice, 60) : RandomPieces(dice);
    folder.Write(kMapCampi, bytes);
    try {
      LoadOrdexMap(mappings);
      ++loaded;
    } catch (const FileLineError& error) {
      ++refused;
      ASSERT_LE(error.line(), LinesOf(bytes).size());
      ASSERT_GE(error.line(), 1U);
      ASSERT_TRUE(error.number() == 9 || error.number() == 75 || error.number() == 457)
          << error.description();
      ASSERT_NE(error.description().find("file \"MapCampi.txt\", riga " +
                                         std::to_string(error.line()) + ", "),
                std::string::npos)
          << error.description();
    }
  }
  EXPECT_GT(loaded, 0);
  EXPECT_GT(refused, 0);
}

TEST(RandomBytes, AsDelimitersAtMostStopTheImport) {
  Dice dice(3056);
  ImportBench bench;
  for (int run = 0; run < 200; ++run) {
    bench.Forget();
    std::string delimiters(kBenchDelimiters);
    delimiters = Damaged(dice, delimiters);
    bench.Delimiters(delimiters);
    const Stop stop = bench.RunBytes(KnownPage(static_cast<std::uint32_t>(run)).text);
    if (stop == Stop{}) continue;
    ASSERT_NE(stop.description, "");
    ASSERT_GE(stop.line, 1U);
  }
}

}  // namespace
}  // namespace ordex::testing
