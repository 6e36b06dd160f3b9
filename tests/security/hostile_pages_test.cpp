// Pages whose every field holds what could mean something to a database: nothing is changed but the
// rows that the import is for, and the texts stand in them as they stood on the page.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "abuse/console_try.h"
#include "database.h"
#include "workplace.h"

namespace ordex::security {
namespace {

using abuse::Commands;
using abuse::ConsoleTry;
using sessions::Content;
using sessions::Workplace;
using Rows = std::vector<std::string>;

struct Hostile {
  std::string name;
  std::string text;
};

// Without what the pages themselves are cut at: line ends, tabs, ":", " | ", " ; ", double blanks.
std::vector<Hostile> HostileTexts() {
  return {
      {"Apostrophe", "'"},
      {"TwoApostrophes", "''"},
      {"ThreeApostrophes", "'''"},
      {"DoubleQuote", "\""},
      {"MixedQuotes", "'\"'\"\"''`"},
      {"ManyApostrophes", std::string(190, '\'')},
      {"ManyDoubleQuotes", std::string(190, '"')},
      {"Backslash", "\\"},
      {"BackslashQuote", "\\'; DROP TABLE SCADENZE; --"},
      {"DropTable", "x'; DROP TABLE Pratica; --"},
      {"DropTableInDoubleQuotes", "x\"; DROP TABLE Pratica; --"},
      {"DeleteBehindAParenthesis", "x'); DELETE FROM Utenti; --"},
      {"Insert", "'); INSERT INTO Utenti (NomeUtente) VALUES ('intruso'); --"},
      {"Update", "', Istruttore = 'intruso' WHERE ID_Pra > 0; --"},
      {"AlwaysTrue", "' OR '1'='1"},
      {"AlwaysTrueInDoubleQuotes", "\" OR \"1\"=\"1"},
      {"Union", "'/**/UNION/**/SELECT/**/NomeUtente/**/FROM/**/Utenti--"},
      {"Comment", "/* x */ -- y"},
      {"OpenComment", "/* x"},
      {"ClosingComment", "x */ '"},
      {"Date", "#01/06/2026#"},
      {"OpenDate", "#01/06/2026"},
      {"ConvertedDate", "CONVERT (SMALLDATETIME,'01/06/2026', 105)"},
      {"Bit", "'TRUE'"},
      {"Brackets", "[Pratica]"},
      {"Parameter", "? ?1 @p $p"},
      {"Percent", "%_%' OR Cognome LIKE '%"},
      {"Attach", "'; ATTACH DATABASE 'intruso.db' AS i; --"},
      {"Pragma", "'; PRAGMA writable_schema=1; --"},
      {"Shell", "$(reboot) `reboot` & reboot"},
      {"Format", "%s%n%d {0} ${HOME}"},
      {"TypographicQuotes", "\u2018 \u2019 \u201C \u201D \u02BC \uFF07"},
      {"TurnedAround", "\u202Efdp.exe\u202C \u2066x\u2069"},
      {"NoWidth", "a\u200Bb\u200D\uFEFFc"},
      {"Controls", "a\x01\x07\x08\x1B[2Jb\x7F"},
      {"LineSeparators",
       "a\u2028b\u2029c\u0085"
       "d"},
      {"BeyondTheFirstPlane", "\U0001F4A3\U0010FFFF"},
      {"Markup", "<script>alert(1)</script>&amp;"},
  };
}

std::string Hex(std::string_view text) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string hex;
  for (const char character : text) {
    const auto byte = static_cast<unsigned char>(character);
    hex.append({kDigits[byte / 16], kDigits[byte % 16]});
  }
  return hex;
}

std::string WithoutDoubleQuotes(std::string name) {
  std::erase(name, '"');
  return name;
}

Rows Without(const Rows& rows, const Rows& gone) {
  Rows rest;
  for (const std::string& row : rows) {
    if (std::find(gone.begin(), gone.end(), row) == gone.end()) rest.push_back(row);
  }
  return rest;
}

class HostilePage : public ::testing::TestWithParam<Hostile> {
 protected:
  HostilePage() : before_(Now()), tables_(Tables()) {}

  const std::string& Text() const { return GetParam().text; }
  Content Now() const { return sessions::ContentOf(workplace_.database()); }
  Rows Tables() const { return Query("SELECT type, name, sql FROM sqlite_master ORDER BY name"); }
  Rows Query(const std::string& select) const {
    return sessions::QueryRows(workplace_.database(), select);
  }

  // Imports the page; false where the console did not end as `told`.
  void Import(const std::string& page, const Commands& commands, const std::string& told) {
    workplace_.SetPage(page);
    workplace_.Prepare(false);
    ConsoleTry run(workplace_, commands);
    run.console().Finish();
    EXPECT_EQ(run.console().exitCode(), 0) << run.console().output() << run.console().errors();
    EXPECT_TRUE(run.Told(told)) << run.console().output();
  }

  // Only rows of `table` that begin with `row` may go, and only so many come.
  void ExpectOnly(const std::string& table, const std::string& row, std::size_t come) {
    const Rows now = Now().at(table);
    for (const std::string& gone : Without(before_.at(table), now)) {
      EXPECT_TRUE(!row.empty() && gone.starts_with(row)) << table << ": " << gone;
    }
    EXPECT_EQ(now.size(), before_.at(table).size() + come) << table;
  }
  void ExpectUnchanged(const Rows& tables) {
    const Content now = Now();
    for (const std::string& table : tables) EXPECT_EQ(now.at(table), before_.at(table)) << table;
    EXPECT_EQ(Tables(), tables_);
    EXPECT_EQ(Query("PRAGMA integrity_check"), Rows{"ok"});
    EXPECT_TRUE(workplace_.Leftovers().empty());
  }
  // That the column holds the text, byte for byte.
  void ExpectText(const std::string& column, const std::string& from) {
    EXPECT_EQ(Query("SELECT hex(" + column + ") FROM " + from), Rows{Hex(Text())})
        << column << " FROM " << from;
  }

  Workplace workplace_{ORDEX_SOURCE_DIR};
  Content before_;
  Rows tables_;
};

std::string Profile(const std::string& number, const std::string& text) {
  return "Profilo del fascicolo - Dati generali\nNumero di iscrizione a ruolo: " + number +
         "\nSezione: " + text + "\nGiudice istruttore: " + text + "\nOggetto: " + text +
         "\nMateria: " + text + "\nAttore: ZANONATI PIERO - Avv. " + text + "\nConvenuto: " + text +
         " - Avv. " + text + "\nTermini assegnati dal giudice\n" + text +
         ": 01/06/2026\n\nTorna in cima\n";
}

TEST_P(HostilePage, OfAProfileChangesTheRowsOfItsCaseAlone) {
  const std::string page = Profile("1842/2025", Text());
  // The second time nothing is doubled.
  for (int time = 1; time <= 2; ++time) {
    Import(page, {"click cmdAzione", "ok"}, "Pratica Praxion aggiornata");
    ExpectOnly("Pratica", "2|", 0);
    ExpectOnly("PraOrdex", "", 1);
    ExpectOnly("SCADENZE", "", 1);
    ExpectUnchanged({"Anagrafica", "Utenti", "EventiPraOrdex"});
  }
  for (const char* column : {"Sezione", "Istruttore", "Oggetto"}) {
    ExpectText(column, "Pratica WHERE ID_Pra = 2");
  }
  for (const char* column : {"Sezione", "Oggetto", "Materia"}) {
    ExpectText(column, "PraOrdex WHERE ID_PraRel = 2");
  }
  ExpectText("Scadenza", "SCADENZE WHERE Codice_Pra = 2");
}

TEST_P(HostilePage, ThatCreatesACaseAddsThatOneAndItsPerson) {
  Import(Profile("77/2030", Text()),
         {"click cmdAzione", "yes", "select cmbParti 0 0", "select cmbParti 1 1", "click cmdAzione",
          "ok"},
         "Pratica Praxion creata");
  ExpectOnly("Pratica", "", 1);
  ExpectOnly("Anagrafica", "", 1);
  ExpectOnly("PraOrdex", "", 1);
  ExpectOnly("SCADENZE", "", 1);
  ExpectUnchanged({"Utenti", "EventiPraOrdex"});
  for (const char* column : {"ControCognome", "AcpCognome", "Oggetto"}) {
    ExpectText(column, "Pratica WHERE ID_Pra = 11");
  }
}

// The party itself: it is looked for in the registry, and a person is made of it.
TEST_P(HostilePage, WhoseClientIsHostileAddsOnePersonAtMost) {
  workplace_.SetPage(
      "Profilo del fascicolo - Dati generali\nNumero di iscrizione a ruolo: 77/2030\nAttore: "
      "ZZZZ " +
      Text() + "\nConvenuto: ALFA S.R.L.\nTorna in cima\n");
  workplace_.Prepare(false);
  ConsoleTry run(workplace_, {"click cmdAzione", "yes", "select cmbParti 0 0",
                              "select cmbParti 1 1", "click cmdAzione"});
  run.console().Finish();
  EXPECT_EQ(run.console().exitCode(), 0) << run.console().output();
  EXPECT_FALSE(run.Printed(R"("event":"dialog")")) << "somebody else was found";
  ExpectOnly("Pratica", "", 1);
  ExpectOnly("Anagrafica", "", 1);
  ExpectUnchanged({"Utenti", "EventiPraOrdex", "SCADENZE"});
  // The name of a person loses its double quotes by rule, that of a company keeps them.
  const bool company =
      Query("SELECT IsFisicaGiuridica FROM Anagrafica WHERE ID_Ana = 12") == Rows{"0"};
  const std::string name = "ZZZZ " + Text();
  EXPECT_EQ(Query("SELECT hex(Cognome || iif(Nome = '', '', ' ' || Nome)) FROM Anagrafica "
                  "WHERE ID_Ana = 12"),
            Rows{Hex(company ? name : WithoutDoubleQuotes(name))});
}

TEST_P(HostilePage, OfAHistoryAddsItsEventsAlone) {
  const std::string page =
      "Storico del fascicolo - Elenco eventi\nElenco(1 righe) Pagina 1 di 1\n\n"
      "Prog.\tData\tDescrizione\n1\t14/01/2025\t" +
      Text() + "\n";
  for (int time = 1; time <= 2; ++time) {
    Import(page, {"choose 6", "click cmdAzione", "ok"}, "Pratica Praxion aggiornata");
    ExpectOnly("EventiPraOrdex", "", 1);
    ExpectUnchanged({"Anagrafica", "Utenti", "SCADENZE", "Pratica"});
  }
  ExpectText("Descrizione", "EventiPraOrdex WHERE ID_PraRel = 6");
}

TEST_P(HostilePage, OfAnAgendaAddsItsEntriesAlone) {
  const std::string page =
      "Agenda dell'avvocato - Impegni del periodo\nTotale impegni: 1 nel periodo scelto\n\n"
      "Fascicolo | " +
      Text() + " | 633/2025 presso Tribunale\nTipo | Quando | Impegno\nScadenza | 10/03/2026 | " +
      Text() + "\n\nTorna in cima\n";
  for (int time = 1; time <= 2; ++time) {
    Import(page, {"click cmdAzione", "ok", "close"}, "Operazione effettuata");
    ExpectOnly("SCADENZE", "", 1);
    ExpectUnchanged({"Anagrafica", "Utenti", "Pratica", "PraOrdex", "EventiPraOrdex"});
  }
  ExpectText("Scadenza", "SCADENZE WHERE Codice_Pra = 6");
  ExpectText("Parti", "SCADENZE WHERE Codice_Pra = 6");
}

TEST_P(HostilePage, WithAHostileNumberChangesNothing) {
  for (const std::string& number : {Text(), "1842/2025" + Text(), Text() + "1842/2025"}) {
    workplace_.SetPage(Profile(number, "x"));
    workplace_.Prepare(false);
    ConsoleTry run(workplace_, {});
    run.console().Finish();
    // Either it is a number that no case has, or it breaks out of its literal and is refused.
    EXPECT_TRUE(run.Printed(R"("iCountPra":0,)") || run.console().exitCode() == 4)
        << run.console().output();
    ExpectUnchanged({"Anagrafica", "Utenti", "Pratica", "PraOrdex", "EventiPraOrdex", "SCADENZE"});
  }
}

INSTANTIATE_TEST_SUITE_P(Of, HostilePage, ::testing::ValuesIn(HostileTexts()),
                         [](const auto& one) { return one.param.name; });

}  // namespace
}  // namespace ordex::security
