// What a trial of a page tells of each line: its text, the rule that took it and its rows.
#include "app/page_trial.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/error.h"
#include "findings.h"
#include "support/temp_folder.h"

namespace ordex::testing {
namespace {

namespace fs = std::filesystem;

using Told = std::vector<std::string>;

std::string ProfileWith(const std::string& lines) {
  return "Profilo del fascicolo - Dati generali\n" + lines;
}

// Each line as 'number "text" rule', then its review rows in braces and its agenda rows in
// brackets; "-" where no rule took it.
Told ToldOf(const PageTrial& trial) {
  Told told;
  for (const LineReport& line : trial.lines) {
    std::string text = std::to_string(line.number) + " [" + line.text + "] " +
                       (line.rule.empty() ? "-" : line.rule);
    for (const std::size_t place : line.reviewRows) {
      const ReviewRow row = trial.window.lstImport.rows.at(place);
      text.append(" {").append(row.text);
      for (const std::string_view sub : row.sub) text.append("|").append(sub);
      text.append("}");
    }
    for (const std::size_t place : line.agendaRows) {
      const AgendaRow row = trial.window.lstAgendaAvv.rows.at(place);
      text.append(row.bold ? " *{" : " {").append(row.text).append("|").append(row.sub).append("}");
    }
    told.push_back(std::move(text));
  }
  return told;
}

Told ToldOfPage(const EditedMapping& folder, const std::string& page) {
  const auto trial = TryPage(folder.path(), page);
  if (trial == nullptr) return {"refused"};
  if (trial->stop) return {"stopped: " + trial->stop->error.description()};
  return ToldOf(*trial);
}

std::vector<std::string> SampleNames() {
  std::vector<std::string> names;
  for (const fs::directory_entry& entry :
       fs::directory_iterator(fs::path(ORDEX_SOURCE_DIR) / "samples")) {
    if (entry.path().extension() == ".txt") names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

// --- lines --------------------------------------------------------------------------------------

TEST(PageTrialLines, AreThoseOfThePageFileWithItsQuotesAndWithoutTabs) {
  EXPECT_EQ(ToldOfPage({}, ProfileWith("\tRito:\tOrdinario\n  Piano: 2 \n\n")),
            (Told{"1 [\"Profilo del fascicolo - Dati generali] -",
                  "2 [Rito:Ordinario] campo {Rito|Rito|Ordinario|}", "3 [  Piano: 2 ] -", "4 [] -",
                  "5 [\"] -"}));
}

TEST(PageTrialLines, EndWithTheQuoteBehindALastLineThatHasNoEnd) {
  EXPECT_EQ(ToldOfPage({}, ProfileWith("Piano: 2")).back(), "2 [Piano: 2\"] -");
}

TEST(PageTrialLines, AreTheSameWhateverTheLineEnds) {
  const std::string page = ProfileWith("Rito: Ordinario\nPiano: 2\n");
  std::string crlf;
  for (const char c : page) crlf.append(c == '\n' ? "\r\n" : std::string(1, c));
  EXPECT_EQ(ToldOfPage({}, crlf), ToldOfPage({}, page));
  EXPECT_EQ(ToldOfPage({}, crlf).size(), 4U);
}

TEST(PageTrialLines, OfEverySampleAreAllToldInOrderAndEachRowIsOfOneLineThatARuleTook) {
  const TempProgramFolder folder;
  const std::vector<std::string> names = SampleNames();
  ASSERT_GE(names.size(), 12U);
  for (const std::string& name : names) {
    const std::string page = SourceFile("samples/" + name);
    const auto trial = TryPage(folder.path(), page);
    ASSERT_NE(trial, nullptr) << name;
    EXPECT_FALSE(trial->stop.has_value()) << name;
    const auto ends = static_cast<std::size_t>(std::count(page.begin(), page.end(), '\n'));
    EXPECT_EQ(trial->lines.size(), ends + 1) << name;
    std::vector<std::size_t> review;
    std::vector<std::size_t> agenda;
    for (std::size_t i = 0; i < trial->lines.size(); ++i) {
      const LineReport& line = trial->lines[i];
      EXPECT_EQ(line.number, i + 1) << name;
      review.insert(review.end(), line.reviewRows.begin(), line.reviewRows.end());
      agenda.insert(agenda.end(), line.agendaRows.begin(), line.agendaRows.end());
      if (!line.reviewRows.empty() || !line.agendaRows.empty()) {
        EXPECT_NE(line.rule, "") << name << " " << line.number;
      }
    }
    std::sort(review.begin(), review.end());
    std::vector<std::size_t> all;
    for (std::size_t i = 0; i < trial->window.lstImport.rows.size(); ++i) all.push_back(i);
    EXPECT_EQ(review, all) << name;
    all.clear();
    for (std::size_t i = 0; i < trial->window.lstAgendaAvv.rows.size(); ++i) all.push_back(i);
    EXPECT_EQ(agenda, all) << name;
  }
}

// --- rules and rows -----------------------------------------------------------------------------

TEST(PageTrialRows, OfAProfileStandAtTheirLines) {
  EXPECT_EQ(ToldOfPage({}, ProfileWith("Numero di iscrizione a ruolo: 7/2026\n"
                                       "Attore: ROSSI MARIO - Avv. Uno\n"
                                       "Termini assegnati dal giudice\n"
                                       "Note: 20/03/2026\n"
                                       "\n"
                                       "Deposito della documentazione ipocatastale\n"
                                       "Depositata il: 11/04/2026\n"
                                       "Rito: Ordinario\n")),
            (Told{"1 [\"Profilo del fascicolo - Dati generali] -",
                  "2 [Numero di iscrizione a ruolo: 7/2026] numero "
                  "{NumeroRegGenerale|Numero di iscrizione a ruolo:|7/2026|}",
                  "3 [Attore: ROSSI MARIO - Avv. Uno] campo "
                  "{ParteAttrice|Attore|ROSSI MARIO - Avv. Uno|}",
                  "4 [Termini assegnati dal giudice] scadenze",
                  "5 [Note: 20/03/2026] scadenza {|Note|20/03/2026|}", "6 [] fine scadenze",
                  "7 [Deposito della documentazione ipocatastale] deposito",
                  "8 [Depositata il: 11/04/2026] data deposito "
                  "{|Data dep. relaz. notarile/documentazione ipocatastale|11/04/2026|}",
                  "9 [Rito: Ordinario] campo {Rito|Rito|Ordinario|}", "10 [\"] -"}));
}

TEST(PageTrialRows, OfADeadlineHeadingThatIsAMappedLabelTooStandAtTheHeadingAndItsFirstTakerStays) {
  EditedMapping folder;
  folder.Append(kCampi, "NoteCancelleria=Termini assegnati dal giudice");
  EXPECT_EQ(ToldOfPage(folder, ProfileWith("Termini assegnati dal giudice: in udienza\n"
                                           "Note: 20/03/2026\n"
                                           "Repliche: 30/03/2026\n"
                                           "\n"
                                           "Rito: Ordinario\n")),
            (Told{"1 [\"Profilo del fascicolo - Dati generali] -",
                  "2 [Termini assegnati dal giudice: in udienza] scadenze "
                  "{NoteCancelleria|Termini assegnati dal giudice|in udienza|}",
                  "3 [Note: 20/03/2026] scadenza {|Note|20/03/2026|}",
                  "4 [Repliche: 30/03/2026] scadenza {|Repliche|30/03/2026|}", "5 [] fine scadenze",
                  "6 [Rito: Ordinario] campo {Rito|Rito|Ordinario|}", "7 [\"] -"}));
}

TEST(PageTrialRows, OfAHistoryStandAtTheirEvents) {
  EXPECT_EQ(
      ToldOfPage({},
                 "Storico del fascicolo - Elenco eventi\n"
                 "Elenco(17 righe) Pagina 2 di 3\n"
                 "Prog.\tData\tEvento\n"
                 "9\t02/01/2026\tIscrizione a ruolo\n"
                 ":: Torna al profilo ::\n"
                 "10\t03/01/2026\tAssegnazione\n"),
      (Told{"1 [\"Storico del fascicolo - Elenco eventi] -", "2 [Elenco(17 righe) Pagina 2 di 3] -",
            "3 [Prog. Data Evento] intestazione",
            "4 [9 02/01/2026 Iscrizione a ruolo] evento {9|02/01/2026|Iscrizione a ruolo|2/3}",
            "5 [:: Torna al profilo ::] -",
            "6 [10 03/01/2026 Assegnazione] evento {10|03/01/2026|Assegnazione|2/3}", "7 [\"] -"}));
}

TEST(PageTrialRows, OfAnAgendaStandAtTheirLinesAlsoWhereACaseEndsTheBlockBeforeIt) {
  EXPECT_EQ(ToldOfPage({},
                       "Agenda dell'avvocato - Impegni del periodo\n"
                       "Totale impegni: 2 nel periodo\n"
                       "Fascicolo | ROSSI / BIANCHI | 12/2026 presso Tribunale\n"
                       "Tipo | Quando | Impegno\n"
                       "Udienza | 10/03/2026 | Prima udienza\n"
                       "Fascicolo | VERDI / NERI | 13/2026 presso Tribunale\n"
                       "Tipo | Quando | Impegno\n"
                       "Scadenza | 11/03/2026 | Memoria\n"
                       "\n"),
            (Told{"1 [\"Agenda dell'avvocato - Impegni del periodo] -",
                  "2 [Totale impegni: 2 nel periodo] numero impegni",
                  "3 [Fascicolo | ROSSI / BIANCHI | 12/2026 presso Tribunale] fascicolo "
                  "*{12/2026|ROSSI / BIANCHI}",
                  "4 [Tipo | Quando | Impegno] impegni",
                  "5 [Udienza | 10/03/2026 | Prima udienza] impegno "
                  "{    10/03/2026|    Prima udienza}",
                  "6 [Fascicolo | VERDI / NERI | 13/2026 presso Tribunale] fascicolo "
                  "*{13/2026|VERDI / NERI}",
                  "7 [Tipo | Quando | Impegno] impegni",
                  "8 [Scadenza | 11/03/2026 | Memoria] impegno {    11/03/2026|    Memoria}",
                  "9 [] fine impegni", "10 [\"] -"}));
}

TEST(PageTrialRows, OfAJusticeOfThePeacePageStandAtTheirLinesSeveralAtOneLineOfSeveralData) {
  EXPECT_EQ(ToldOfPage({},
                       "Giudice di pace - Scheda del procedimento\n"
                       "Dati del procedimento\n"
                       "Ruolo ; N. Ruolo GdP: 7/2026 ; Iscritto il: 02/01/2026\n"
                       "Parti e rappresentanti\n"
                       "Attore/Danneggiato: A*** rappresentato/a da B***\n"
                       "\n"
                       "STORICO DEL FASCICOLO - MOVIMENTI\n"
                       "\n"
                       "Data Movimento\n"
                       "03/01/2026 Iscrizione a ruolo\n"),
            (Told{"1 [\"Giudice di pace - Scheda del procedimento] -",
                  "2 [Dati del procedimento] inizio dati",
                  "3 [Ruolo ; N. Ruolo GdP: 7/2026 ; Iscritto il: 02/01/2026] più campi "
                  "{NumeroRegGenerale|N. Ruolo GdP|7/2026|} "
                  "{DataIscrizione|Iscritto il|02/01/2026|}",
                  "4 [Parti e rappresentanti] parti",
                  "5 [Attore/Danneggiato: A*** rappresentato/a da B***] parte "
                  "{ParteAttrice|Attore/Danneggiato:|A*** rappresentato/a da B***|}",
                  "6 [] fine blocco",
                  "7 [STORICO DEL FASCICOLO - MOVIMENTI] storico {|--STORICO DEL FASCICOLO--||}",
                  "8 [] fine blocco", "9 [Data Movimento] riga saltata",
                  "10 [03/01/2026 Iscrizione a ruolo] evento "
                  "{Storico|03/01/2026|Iscrizione a ruolo|}",
                  "11 [\"] fine blocco"}));
}

// --- the window ---------------------------------------------------------------------------------

TEST(PageTrial, ShowsTheWindowThatThePageWouldGive) {
  const TempProgramFolder folder;
  const auto trial = TryPage(folder.path(), SourceFile("samples/profilo-contratto.txt"));
  ASSERT_NE(trial, nullptr);
  const Window& window = trial->window;
  EXPECT_EQ(window.frmMain.caption, "Ordex - profilo del fascicolo - dati generali");
  EXPECT_EQ(window.page.iOrdexPage, kPageProfile);
  EXPECT_EQ(window.page.pageAtOpening, kPageProfile);
  EXPECT_EQ(window.page.szNumeroRG, "1842/2025");
  EXPECT_EQ(window.lstImport.taggedRows.size(), 3U);
  ASSERT_EQ(window.choice.cmbParti[0].items.size(), 5U);
  EXPECT_EQ(window.choice.cmbParti[0].items[0].text, "EDILIZIA VALLEBRUNA S.R.L.");
}

TEST(PageTrial, OfTheSameHistoryPageTwiceTellsTheSame) {
  const EditedMapping folder;
  const std::string page = SourceFile("samples/storico-pagina-1.txt");
  const Told first = ToldOfPage(folder, page);
  EXPECT_EQ(ToldOfPage(folder, page), first);
  EXPECT_EQ(std::count_if(first.begin(), first.end(),
                          [](const std::string& line) {
                            return line.find("] evento {") != std::string::npos;
                          }),
            15);
}

TEST(PageTrial, OfAPageOfNoKnownKindIsNull) {
  const TempProgramFolder folder;
  EXPECT_EQ(TryPage(folder.path(), ""), nullptr);
  std::size_t pages = 0;
  for (const fs::directory_entry& entry :
       fs::directory_iterator(fs::path(ORDEX_SOURCE_DIR) / "samples/not-a-page")) {
    const std::string name = entry.path().filename().string();
    EXPECT_EQ(TryPage(folder.path(), SourceFile("samples/not-a-page/" + name)), nullptr) << name;
    ++pages;
  }
  EXPECT_GE(pages, 8U);
}

// --- a page that stops --------------------------------------------------------------------------

TEST(StoppedTrial, TellsTheLinesUpToTheOneAtFaultAndKeepsTheirRows) {
  const TempProgramFolder folder;
  const auto trial = TryPage(folder.path(), ProfileWith("Rito: Ordinario\n"
                                                        "Termini assegnati dal giudice\n"
                                                        "Note 20/03/2026\n"
                                                        "\n"
                                                        "Materia: Contratti\n"));
  ASSERT_NE(trial, nullptr);
  ASSERT_TRUE(trial->stop.has_value());
  EXPECT_EQ(trial->stop->error.number(), 9);
  EXPECT_EQ(trial->stop->line, 4U);
  EXPECT_EQ(trial->stop->lineText, "Note 20/03/2026");
  EXPECT_TRUE(trial->stop->inPage);
  EXPECT_EQ(ToldOf(*trial),
            (Told{"1 [\"Profilo del fascicolo - Dati generali] -",
                  "2 [Rito: Ordinario] campo {Rito|Rito|Ordinario|}",
                  "3 [Termini assegnati dal giudice] scadenze", "4 [Note 20/03/2026] scadenza"}));
}

TEST(StoppedTrial, OfAKeyThatTheFileLacksNamesTheLineThatAskedForIt) {
  EditedMapping folder;
  folder.Drop(kDelimitatori, " - Avv. =DELPF3");
  const auto trial = TryPage(folder.path(), ProfileWith("Rito: Ordinario\nAttore: ROSSI\n"));
  ASSERT_NE(trial, nullptr);
  ASSERT_TRUE(trial->stop.has_value());
  EXPECT_EQ(trial->stop->error.number(), 5);
  EXPECT_EQ(trial->stop->line, 3U);
}

TEST(StoppedTrial, OfAHistoryWhosePlaceCannotBeReadTellsNoLineAndIsNoFaultOfTheFiles) {
  const TempProgramFolder folder;
  const auto trial =
      TryPage(folder.path(), "Storico del fascicolo - Elenco eventi\nElenco(sette righe)\n");
  ASSERT_NE(trial, nullptr);
  ASSERT_TRUE(trial->stop.has_value());
  EXPECT_EQ(trial->stop->error.number(), 13);
  EXPECT_EQ(trial->stop->error.description(),
            "Tipo non corrispondente: il totale degli eventi dello storico non si legge: tra "
            "\"Elenco(\" (DELSF4) e \"righe)\" (DELSF5) sta \"sette\". Copiare di nuovo la pagina, "
            "oppure correggere i due testi in \"MapDelimitatori.txt\"");
  EXPECT_FALSE(trial->stop->inPage);
  EXPECT_EQ(trial->lines.size(), 0U);
  EXPECT_EQ(trial->window.frmMain.caption, "Ordex - storico del fascicolo - elenco eventi");
}

// --- broken mapping files -----------------------------------------------------------------------

// The number and line of the file error that a trial raises; nullopt where it raises none.
std::optional<std::pair<int, std::size_t>> FaultOfFiles(const EditedMapping& folder,
                                                        const std::string& page) {
  try {
    TryPage(folder.path(), page);
  } catch (const FileLineError& error) {
    return std::pair(error.number(), error.line());
  }
  return std::nullopt;
}

TEST(TrialWithBrokenMapping, RaisesTheFilesErrorWithItsLineForEachFileAndPageKind) {
  for (const char* sample : {"profilo-contratto.txt", "storico-unica.txt", "agenda-vuota.txt",
                             "giudice-di-pace-sinistro.txt"}) {
    const std::string page = SourceFile(std::string("samples/") + sample);
    for (const char* file : {kRestr, kCampi, kDelimitatori}) {
      EditedMapping folder;
      const std::size_t line = folder.Append(file, "da rivedere");
      EXPECT_EQ(FaultOfFiles(folder, page), std::pair(9, line)) << sample << " " << file;
      folder.Remove(file);
      EXPECT_EQ(FaultOfFiles(folder, page), std::pair(53, std::size_t{0})) << sample << " " << file;
    }
  }
}

TEST(TrialWithBrokenMapping, OfARepeatedKeyRaisesItsError) {
  EditedMapping folder;
  const std::size_t line = folder.Append(kDelimitatori, "Altro=DELPF2");
  EXPECT_EQ(FaultOfFiles(folder, ProfileWith("")), std::pair(457, line));
}

// --- files --------------------------------------------------------------------------------------

TEST(PageTrial, LeavesTheProgramFolderAsItIs) {
  EditedMapping folder;
  ToldOfPage(folder, SourceFile("samples/profilo-contratto.txt"));
  ToldOfPage(folder, ProfileWith("Materia\n"));
  ToldOfPage(folder, "Gentile collega");
  EXPECT_EQ(folder.FileCount(), 3U);
}

TEST(PageTrial, DoesNotTouchThePageFileOfAProgramThatIsImportingThere) {
  EditedMapping folder;
  folder.Write("profilo del fascicolo - dati generali.txt", "\"un'altra pagina\"\r\n");
  EXPECT_EQ(ToldOfPage(folder, ProfileWith("Rito: Ordinario\n")).size(), 3U);
  EXPECT_EQ(folder.Read("profilo del fascicolo - dati generali.txt"), "\"un'altra pagina\"\r\n");
}

}  // namespace
}  // namespace ordex::testing
