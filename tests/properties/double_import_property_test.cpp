// Importing the same page twice is importing it once: random pages, read and written as a whole.
#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "support/page_texts.h"
#include "support/random_values.h"
#include "support/whole_import.h"

namespace ordex::testing {
namespace {

constexpr int kPages = 25;

constexpr std::array<std::string_view, 16> kWords = {
    "ROSSI",    "D'AMICO", "\"Margherita\"", "straße", "İstanbul", "ŉ",     "(Fascicolo)", "'; --",
    "L'AQUILA", "È vero",  "n. 3/bis",       "DZ ǆ",   "ﬁne",      "100 %", "[a]",         "Œuvre"};

std::string Words(Random& random) {
  std::string text(random.OneOf(kWords));
  for (std::size_t count = random.Below(5); count > 0; --count) {
    text.append(" ").append(random.OneOf(kWords));
  }
  return text;
}

std::string Day(Random& random) {
  return FormatDayFirst(
      {2026, static_cast<int>(1 + random.Below(12)), static_cast<int>(1 + random.Below(28))});
}

std::string Minute(Random& random) {
  return " " + std::to_string(8 + random.Below(10)) + (random.Half() ? ":15" : ":30");
}

std::string ProfilePage(Random& random) {
  constexpr std::array<std::string_view, 6> kLabels = {
      "Oggetto", "Sezione", "Materia", "Rito", "Ufficio giudiziario", "Giudice istruttore"};
  std::string page =
      "Profilo del fascicolo - Dati generali\nNumero di iscrizione a ruolo: 1842/2025\n";
  for (std::size_t count = random.Below(8); count > 0; --count) {
    page.append(random.OneOf(kLabels)).append(": ").append(Words(random)).append("\n");
  }
  page.append("Attore: ").append(Words(random)).append(" - Avv. ").append(Words(random));
  page.append("\nConvenuto: ").append(Words(random)).append("\n");
  if (random.Half()) page.append("Ultima udienza: ").append(Day(random)).append("\n");
  if (random.Half()) {
    page.append("Prossima udienza: ").append(Day(random)).append(Minute(random));
    page.append(" (Fascicolo)\n");
  }
  page.append("Termini assegnati dal giudice\n");
  for (std::size_t count = random.Below(5); count > 0; --count) {
    page.append(Words(random)).append(": ").append(Day(random)).append("\n");
  }
  return page + "\n";
}

std::string AgendaOf(Random& random) {
  constexpr std::array<std::string_view, 4> kNumbers = {"633/2025", "1842/2025", "9/9999",
                                                        "907/2024"};
  std::string page = "Agenda dell'avvocato - Impegni del periodo\nTotale impegni: 4 nel periodo\n";
  for (std::size_t cases = 1 + random.Below(4); cases > 0; --cases) {
    page.append("Fascicolo | ").append(Words(random)).append(" / ").append(Words(random));
    page.append(" | ").append(random.OneOf(kNumbers)).append(" presso Tribunale\n");
    page.append("Tipo | Quando | Impegno\n");
    for (std::size_t entries = random.Below(5); entries > 0; --entries) {
      page.append("Udienza | ").append(Day(random)).append(random.Half() ? Minute(random) : "");
      page.append(" | ");
      // Longer than the column now and then.
      for (std::size_t words = 1 + random.Below(12); words > 0; --words) {
        page.append(Words(random)).append(" ");
      }
      page.append("\n");
    }
    page.append("\n");
  }
  return page;
}

std::string HistoryOf(Random& random) {
  std::string page =
      "Storico del fascicolo - Elenco eventi\nElenco(42 righe) Pagina 2 di 5\n"
      "Prog. Data Descrizione\n";
  const std::size_t count = random.Below(8);
  for (std::size_t i = 1; i <= count; ++i) {
    page.append(std::to_string(i)).append("\t").append(Day(random)).append("\t");
    page.append(Words(random)).append("\n");
  }
  return page + "\n";
}

std::string JusticeOf(Random& random) {
  std::string page =
      "Giudice di pace - Scheda del procedimento\nDati del procedimento\n"
      "Ruolo ; N. Ruolo GdP: 633/2025 ; Sede del giudice: " +
      Words(random) + "\nOggetto: " + Words(random) + "\n";
  if (random.Half()) page.append("Udienze | Prossima udienza: ").append(Day(random)).append("\n");
  page.append("\nParti e rappresentanti\nAttore/Danneggiato: ").append(Words(random));
  page.append(" rappresentato/a da ").append(Words(random));
  page.append("\n\nSTORICO DEL FASCICOLO - MOVIMENTI\nData Movimento\n");
  for (std::size_t count = random.Below(6); count > 0; --count) {
    page.append(Day(random)).append("\t").append(Words(random)).append("\n");
  }
  return page + "\n";
}

Tables WithoutIdentities(Tables tables) {
  for (auto& [name, rows] : tables) {
    for (std::string& row : rows) row.erase(0, row.find('|'));
  }
  return tables;
}

struct Kind {
  const char* name;
  std::string (*page)(Random&);
  std::int32_t choose;  // the case to choose; 0 where the page's number finds it
  const char* table;    // which must have got rows from these pages
};

class SecondImport : public ::testing::TestWithParam<Kind> {};

TEST_P(SecondImport, LeavesTheTablesAsTheFirstDid) {
  const Kind& kind = GetParam();
  TempFolder folder;
  CreateSqliteDatabase(folder / "original.db", true);
  std::size_t written = 0;
  for (int number = 1; number <= kPages; ++number) {
    Random random(static_cast<std::uint32_t>(number) * 7919);
    ImportScript script;
    script.page = kind.page(random);
    SCOPED_TRACE(script.page);
    script.acts = [&](MainWindow& window, FakeClipboard&) {
      if (kind.choose != 0) window.ChooseCase(kind.choose);
      window.PressAzione();
    };
    Office office(folder / "original.db");
    const Course first = RunImport(office, script);
    ASSERT_EQ(first.reports, std::vector<std::string>{});
    const Tables once = WithoutIdentities(TablesOf(office));
    const Course second = RunImport(office, script);
    ASSERT_EQ(second.boxes, first.boxes);
    ASSERT_EQ(WithoutIdentities(TablesOf(office)), once);
    written += once.at(kind.table).size();
  }
  EXPECT_GT(written, 0U);
}

INSTANTIATE_TEST_SUITE_P(Of, SecondImport,
                         ::testing::Values(Kind{"Profile", ProfilePage, 0, "PraOrdex"},
                                           Kind{"Agenda", AgendaOf, 0, "SCADENZE"},
                                           Kind{"History", HistoryOf, 6, "EventiPraOrdex"},
                                           Kind{"JusticeOfThePeace", JusticeOf, 0,
                                                "EventiPraOrdex"}),
                         [](const auto& one) { return std::string(one.param.name); });

}  // namespace
}  // namespace ordex::testing
