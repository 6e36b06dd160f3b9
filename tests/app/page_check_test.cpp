// What a folder of stored pages says of the mapping files.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "app/page_check.h"
#include "findings.h"

namespace ordex::testing {
namespace {

namespace fs = std::filesystem;

// The shipped mapping files and a copy of the sample pages, to which a test adds.
struct PageCheckFixture {
  PageCheckFixture() {
    for (const fs::directory_entry& entry :
         fs::directory_iterator(fs::path(ORDEX_SOURCE_DIR) / "samples")) {
      const std::string name = entry.path().filename().string();
      if (entry.path().extension() == ".txt") pages.Write(name, SourceFile("samples/" + name));
    }
  }
  Findings Check() const { return CheckPages(folder.path(), pages.path()); }
  // Changes `from` to `to` wherever the page holds it.
  void Reword(const std::string& name, const std::string& from, const std::string& to) {
    std::string text = pages.Read(name);
    ASSERT_NE(text.find(from), std::string::npos) << name;
    for (std::size_t at = text.find(from); at != std::string::npos;
         at = text.find(from, at + to.size())) {
      text.replace(at, from.size(), to);
    }
    pages.Write(name, text);
  }

  EditedMapping folder;
  TempFolder pages;
};

TEST(PageCheck, OfTheSamplesFindsNothing) {
  const EditedMapping folder;
  EXPECT_EQ(CheckPages(folder.path(), fs::path(ORDEX_SOURCE_DIR) / "samples"), Findings{});
}

TEST(PageCheck, LooksAtTextFilesOfTheFolderItselfOnly) {
  PageCheckFixture fixture;
  fixture.pages.Write("LEGGIMI.md", "niente");
  fs::create_directory(fixture.pages / "vecchie.txt");
  EXPECT_EQ(fixture.Check(), Findings{});
}

TEST(PageCheck, LeavesTheProgramFolderAndThePagesAsTheyAre) {
  const PageCheckFixture fixture;
  const std::size_t pages = fixture.pages.FileCount();
  const std::string page = fixture.pages.Read("storico-pagina-1.txt");
  fixture.Check();
  EXPECT_EQ(fixture.folder.FileCount(), 3U);
  EXPECT_EQ(fixture.pages.FileCount(), pages);
  EXPECT_EQ(fixture.pages.Read("storico-pagina-1.txt"), page);
}

// --- pages --------------------------------------------------------------------------------------

TEST(PageCheck, WarnsOfAPageThatYieldsNothing) {
  PageCheckFixture fixture;
  fixture.pages.Write("vuota.txt", "Profilo del fascicolo - Dati generali\nPiano: 2\n");
  EXPECT_EQ(fixture.Check(),
            (Findings{WarningAt("vuota.txt", 0,
                                "Dalla pagina non viene letto nulla: controllare le diciture in "
                                "\"MapDelimitatori.txt\" e \"MapCampi.txt\".")}));
}

TEST(PageCheck, WarnsOfPagesOfWhichOnlyTheFrameIsFound) {
  PageCheckFixture fixture;
  fixture.pages.Write("gdp.txt",
                      "Giudice di pace - Scheda del procedimento\nDati del procedimento\n"
                      "Materiale: x\n\nParti e rappresentanti\nOpponente: A\n\n");
  fixture.pages.Write("storia.txt",
                      "Storico del fascicolo - Elenco eventi\nElenco(3 righe)\n"
                      "Prog. Data Descrizione\n\n");
  const std::string nothing =
      "Dalla pagina non viene letto nulla: controllare le diciture in \"MapDelimitatori.txt\" e "
      "\"MapCampi.txt\".";
  EXPECT_EQ(fixture.Check(),
            (Findings{WarningAt("gdp.txt", 0, nothing), WarningAt("storia.txt", 0, nothing)}));
}

TEST(PageCheck, TakesTheEndingOfAFileInAnyLetterCase) {
  PageCheckFixture fixture;
  fixture.pages.Write("LETTERA.TXT", "Gentile collega,\n");
  ASSERT_EQ(fixture.Check().size(), 1U);
  EXPECT_EQ(fixture.Check()[0].file, "LETTERA.TXT");
}

TEST(PageCheck, OfAFolderWithoutPagesSaysSoAndBlamesNoMappingLine) {
  const EditedMapping folder;
  const TempFolder pages;
  pages.Write("profilo", "Profilo del fascicolo - Dati generali\n");
  const Findings findings = CheckPages(folder.path(), pages.path());
  ASSERT_EQ(findings.size(), 1U);
  EXPECT_EQ(
      findings[0].text,
      "Nella cartella non c'è nessuna pagina: salvare qui il testo di ogni pagina, in un file "
      "che finisce per .txt.");
}

TEST(PageCheck, TakesAWeekWithoutEntriesForRead) {
  PageCheckFixture fixture;
  fixture.pages.Write(
      "vuota.txt", "Agenda dell'avvocato - Impegni del periodo\nTotale impegni: 0 nel periodo\n");
  EXPECT_EQ(fixture.Check(), Findings{});
}

TEST(PageCheck, WarnsOfAPageOfNoKnownKind) {
  PageCheckFixture fixture;
  fixture.pages.Write("lettera.txt", "Gentile collega,\n");
  EXPECT_EQ(fixture.Check(),
            (Findings{WarningAt("lettera.txt", 0,
                                "La pagina non viene riconosciuta: nessun testo di "
                                "\"MapRestr.txt\" vi compare.")}));
}

TEST(PageCheck, NamesTheLineAtWhichAPageStops) {
  PageCheckFixture fixture;
  fixture.pages.Write("ferma.txt",
                      "Profilo del fascicolo - Dati generali\nRito: Ordinario\nMateria\n");
  EXPECT_EQ(fixture.Check(),
            (Findings{ErrorAt("ferma.txt", 3,
                              "L'importazione si ferma: Indice non incluso nell'intervallo: nella "
                              "riga manca il separatore \":\" tra etichetta e valore")}));
}

TEST(PageCheck, GoesOnBehindAHistoryWhosePlaceCannotBeRead) {
  PageCheckFixture fixture;
  fixture.pages.Write("senza-numero.txt",
                      "Storico del fascicolo - Elenco eventi\nElenco(sette righe)\n");
  fixture.pages.Write("vuota.txt", "Profilo del fascicolo - Dati generali\n");
  const Findings findings = fixture.Check();
  ASSERT_EQ(findings.size(), 2U);
  EXPECT_EQ(findings[0],
            ErrorAt("senza-numero.txt", 0,
                    "L'importazione si ferma: Tipo non corrispondente: il totale degli "
                    "eventi dello storico non si legge: tra \"Elenco(\" (DELSF4) e "
                    "\"righe)\" (DELSF5) sta \"sette\". Copiare di nuovo la pagina, "
                    "oppure correggere i due testi in \"MapDelimitatori.txt\""));
  EXPECT_EQ(findings[1].file, "vuota.txt");
}

TEST(PageCheck, TakesEachPageForItselfAlsoTheSameHistoryPageTwice) {
  PageCheckFixture fixture;
  fixture.pages.Write("ancora.txt", fixture.pages.Read("storico-pagina-1.txt"));
  EXPECT_EQ(fixture.Check(), Findings{});
}

// --- mapping lines ------------------------------------------------------------------------------

TEST(UnusedMapping, OfALabelIsTold) {
  PageCheckFixture fixture;
  const std::size_t line = fixture.folder.Append(kCampi, "Aula=Numero di stanza");
  EXPECT_EQ(
      fixture.Check(),
      (Findings{WarningAt(kCampi, line,
                          "Nessuna delle pagine usa l'etichetta \"Numero di stanza\" (Aula=Numero "
                          "di stanza): se il "
                          "portale non la usa più togliere la riga, altrimenti correggerla.")}));
}

TEST(UnusedMapping, OfALabelThatPagesOnlyMentionIsTold) {
  PageCheckFixture fixture;
  const std::size_t line = fixture.folder.Append(kCampi, "Aula=Gentile collega");
  fixture.pages.Write("profilo.txt",
                      "Profilo del fascicolo - Dati generali\nRito: Gentile collega\n"
                      "Nota di Gentile collega: 1\n");
  const Findings findings = fixture.Check();
  ASSERT_EQ(findings.size(), 1U);
  EXPECT_EQ(findings[0].file, kCampi);
  EXPECT_EQ(findings[0].line, line);
}

TEST(UnusedMapping, IsNotToldOfALabelInOtherLetterCase) {
  PageCheckFixture fixture;
  fixture.folder.Change(kCampi, "Rito=Rito", "Rito=RITO");
  EXPECT_EQ(fixture.Check(), Findings{});
}

TEST(UnusedMapping, OfADelimiterIsTold) {
  PageCheckFixture fixture;
  const std::size_t line =
      fixture.folder.Change(kDelimitatori, "Terzo chiamato=TESTO3", "Chiamato in causa=TESTO3");
  EXPECT_EQ(
      fixture.Check(),
      (Findings{WarningAt(kDelimitatori, line,
                          "In nessuna delle pagine compare il testo di \"TESTO3\" (Chiamato in "
                          "causa=TESTO3): se la "
                          "dicitura è cambiata correggere il testo. La riga non va tolta: senza la "
                          "chiave l'importazione si ferma.")}));
}

TEST(UnusedMapping, OfADelimiterIsToldForOtherLetterCaseToo) {
  PageCheckFixture fixture;
  const std::size_t line =
      fixture.folder.Change(kDelimitatori, "Terzo chiamato=TESTO3", "TERZO CHIAMATO=TESTO3");
  const Findings findings = fixture.Check();
  ASSERT_EQ(findings.size(), 1U);
  EXPECT_EQ(findings[0].line, line);
}

TEST(UnusedMapping, IsNotToldOfAHistoryTextThatThePageHoldsWithBlanks) {
  PageCheckFixture fixture;
  for (const char* page : {"storico-pagina-1.txt", "storico-pagina-2.txt", "storico-pagina-3.txt",
                           "storico-lavoro-pagina-2.txt"}) {
    fixture.Reword(page, "righe) Pagina ", "righe) Pagina numero ");
  }
  fixture.folder.Change(kDelimitatori, "Pagina=DELSF6", "Paginanumero=DELSF6");
  EXPECT_EQ(fixture.Check(), Findings{});
}

TEST(UnusedMapping, OfARecognitionTextIsTold) {
  PageCheckFixture fixture;
  const std::size_t line = fixture.folder.Append(kRestr, "udienze da remoto=Remoto");
  EXPECT_EQ(
      fixture.Check(),
      (Findings{WarningAt(
          kRestr, line,
          "Nessuna delle pagine viene riconosciuta da \"Remoto\" (udienze da remoto=Remoto): se il "
          "titolo è cambiato correggere il testo. La riga non va tolta: l'ordine delle "
          "righe è fisso.")}));
}

// The portal has changed the label of the register number.
TEST(UnusedMapping, ShowsTheLinesThatAChangedLabelLeftBehind) {
  PageCheckFixture fixture;
  for (const char* page :
       {"profilo-contratto.txt", "profilo-lavoro.txt", "profilo-condominio.txt"}) {
    fixture.Reword(page, "Numero di iscrizione a ruolo:", "Numero di ruolo generale:");
  }
  const Findings findings = fixture.Check();
  ASSERT_EQ(findings.size(), 2U);
  EXPECT_EQ(findings[0].file, kCampi);
  EXPECT_EQ(findings[0].line,
            fixture.folder.Line(kCampi, "NumeroRegGenerale=Numero di iscrizione a ruolo:"));
  EXPECT_EQ(findings[1].file, kDelimitatori);
  EXPECT_EQ(findings[1].line,
            fixture.folder.Line(kDelimitatori, "Numero di iscrizione a ruolo:=DELPF1"));

  fixture.folder.Change(kCampi, "NumeroRegGenerale=Numero di iscrizione a ruolo:",
                        "NumeroRegGenerale=Numero di ruolo generale:");
  fixture.folder.Change(kDelimitatori, "Numero di iscrizione a ruolo:=DELPF1",
                        "Numero di ruolo generale:=DELPF1");
  EXPECT_EQ(fixture.Check(), Findings{});
}

}  // namespace
}  // namespace ordex::testing
