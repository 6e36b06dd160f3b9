// What a check of the mapping files finds, each finding with its whole text and its place.
#include "app/mapping_check.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "findings.h"
#include "support/office_fixture.h"

namespace ordex::testing {
namespace {

TEST(MappingCheck, OfTheShippedFilesFindsNothing) {
  EXPECT_EQ(EditedMapping().Check(), Findings{});
}

// --- lines --------------------------------------------------------------------------------------

TEST(MappingLines, OneWithoutAnEqualsSignIsAnErrorInEachFile) {
  for (const char* file : {kRestr, kCampi, kDelimitatori}) {
    EditedMapping folder;
    const std::size_t line = folder.Append(file, "Attenzione: da rivedere");
    EXPECT_EQ(folder.Check(),
              (Findings{ErrorAt(file, line,
                                "Nella riga \"Attenzione: da rivedere\" manca il segno \"=\": "
                                "scriverla nella forma testo=chiave, oppure aggiungere il segno "
                                "\"°\" se è un commento.")}));
  }
}

TEST(MappingLines, CommentsAndEmptyLinesAreCountedButNotLookedAt) {
  EditedMapping folder;
  folder.Write(kCampi, "° senza segno di uguale\n\nx\nsenza ° in testa\n\nda rivedere\n" +
                           folder.Read(kCampi));
  const Findings findings = folder.Check();
  ASSERT_EQ(findings.size(), 1U);
  EXPECT_EQ(findings[0].line, 6U);
}

TEST(MappingLines, ARepeatedKeyIsAnErrorAlsoInOtherLetterCase) {
  EditedMapping folder;
  const std::size_t first = folder.Line(kDelimitatori,
                                        "Deposito della documentazione "
                                        "ipocatastale=DELPF6");
  const std::size_t line = folder.Append(kDelimitatori, "Altro deposito=delpf6");
  EXPECT_EQ(folder.Check(),
            (Findings{ErrorAt(kDelimitatori, line,
                              "La chiave \"delpf6\" sta già nella riga " + std::to_string(first) +
                                  ": togliere una delle due righe.")}));
}

TEST(MappingLines, ARepeatedLabelIsAnErrorAndARepeatedFieldIsNot) {
  EditedMapping folder;
  const std::size_t first = folder.Line(kCampi, "Rito=Rito");
  const std::size_t again = folder.Append(kCampi, "Materia=RITO");
  folder.Append(kCampi, "Rito=Rito applicato");
  EXPECT_EQ(folder.Check(),
            (Findings{ErrorAt(kCampi, again,
                              "La chiave \"RITO\" sta già nella riga " + std::to_string(first) +
                                  ": togliere una delle due righe.")}));
}

TEST(MappingLines, ALineWithNothingBeforeOrBehindTheEqualsSignIsAnError) {
  EditedMapping folder;
  const std::size_t noField = folder.Append(kCampi, "=Stanza");
  const std::size_t noLabel = folder.Append(kCampi, "Rito=");
  EXPECT_EQ(folder.Check(),
            (Findings{ErrorAt(kCampi, noField,
                              "La riga \"=Stanza\" non ha testo prima del segno \"=\": "
                              "completarla o toglierla."),
                      ErrorAt(kCampi, noLabel,
                              "La riga \"Rito=\" non ha testo dopo del segno \"=\": completarla o "
                              "toglierla.")}));
}

TEST(MappingLines, AFileThatIsNotThereIsOneErrorAndNotOneForEachOfItsKeys) {
  for (const char* file : {kRestr, kCampi, kDelimitatori}) {
    EditedMapping folder;
    folder.Remove(file);
    EXPECT_EQ(folder.Check(),
              (Findings{ErrorAt(file, 0,
                                "Impossibile trovare il file: \"" + (folder / file).string() +
                                    "\". Il file di mappatura deve stare nella cartella del "
                                    "programma: rimetterlo al suo posto.")}));
  }
}

TEST(MappingLines, OfTheOtherFilesAreLookedAtWhereOneFileIsNotThere) {
  EditedMapping folder;
  folder.Remove(kRestr);
  const std::size_t line = folder.Append(kCampi, "da rivedere");
  const Findings findings = folder.Check();
  ASSERT_EQ(findings.size(), 2U);
  EXPECT_EQ(findings[0].file, kCampi);
  EXPECT_EQ(findings[0].line, line);
  EXPECT_EQ(findings[1].file, kRestr);
}

TEST(MappingLines, FindingsComeFileByFileAndLineByLine) {
  EditedMapping folder;
  const std::size_t restr = folder.Append(kRestr, "uno");
  const std::size_t campi = folder.Append(kCampi, "due");
  const std::size_t delimitatori = folder.Append(kDelimitatori, "tre");
  const std::size_t more = folder.Append(kDelimitatori, "quattro");
  std::vector<std::string> places;
  for (const Finding& finding : folder.Check()) {
    places.push_back(finding.file + " " + std::to_string(finding.line));
  }
  EXPECT_EQ(places, (std::vector<std::string>{"MapCampi.txt " + std::to_string(campi),
                                              "MapDelimitatori.txt " + std::to_string(delimitatori),
                                              "MapDelimitatori.txt " + std::to_string(more),
                                              "MapRestr.txt " + std::to_string(restr)}));
}

// --- encodings ----------------------------------------------------------------------------------

Finding WrongEncoding(std::size_t line, const std::string& text) {
  return WarningAt(kCampi, line,
                   "La riga \"" + text +
                       "\" sembra salvata con una codifica sbagliata: riscrivere le lettere "
                       "accentate e salvare il file come UTF-8.");
}

TEST(MappingEncoding, AnAccentedLetterThatWasEncodedTwiceIsToldWhateverTheLetter) {
  for (const std::string label :
       {"FascicolÃ²", "NovitÃ\u00A0", "PerchÃ©", "NECESSITÃ€", "Ãˆ stato", "SeÂ\u00A0e"}) {
    EditedMapping folder;
    const std::size_t line = folder.Append(kCampi, "Rito=" + label);
    EXPECT_EQ(folder.Check(), (Findings{WrongEncoding(line, "Rito=" + label)}));
  }
}

TEST(MappingEncoding, AReplacementCharacterIsTold) {
  EditedMapping folder;
  const std::size_t line = folder.Append(kCampi, "Rito=Fascicol\uFFFD");
  EXPECT_EQ(folder.Check(), (Findings{WrongEncoding(line, "Rito=Fascicol\uFFFD")}));
}

TEST(MappingEncoding, OneStrayByteThatTurnsTheWholeFileIntoSingleBytesIsToldWhereAccentsAre) {
  EditedMapping folder;
  const std::size_t line = folder.Line(kCampi, "AutoritaAtto=Autorità che ha emesso l'atto");
  folder.Append(kCampi, "Rito=Perch\xE9");
  EXPECT_EQ(folder.Check(),
            (Findings{WrongEncoding(line, "AutoritaAtto=AutoritÃ\u00A0 che ha emesso l'atto")}));
}

TEST(MappingEncoding, GoodAccentsAndAFileInWindows1252AreNoFault) {
  EditedMapping folder;
  folder.Append(kCampi, "Rito=È già così, perché più NECESSITÀ");
  EXPECT_EQ(folder.Check(), Findings{});
  folder.Write(kCampi,
               "NumeroRegGenerale=Numero di iscrizione a ruolo:\n"
               "ParteAttrice=Opponente/Ricorrente:\nParteConvenuta=Opposto/Resistente:\n"
               "AutoritaAtto=Autorit\xE0 che ha emesso l'atto\n");
  EXPECT_EQ(folder.Check(), Findings{});
}

// --- recognition texts --------------------------------------------------------------------------

TEST(RecognitionTexts, OneThatHoldsAnEarlierOneIsNeverReachedWhateverTheLetterCase) {
  EditedMapping folder;
  const std::size_t earlier = folder.Line(kRestr, "profilo del fascicolo - dati generali=Profilo");
  const std::size_t later =
      folder.Change(kRestr, "storico del fascicolo - elenco eventi=Storico",
                    "Storico e PROFILO del fascicolo - dati generali=Storico");
  EXPECT_EQ(
      folder.Check(),
      (Findings{ErrorAt(kRestr, later,
                        "Il testo \"Storico e PROFILO del fascicolo - dati generali\" contiene "
                        "quello della riga " +
                            std::to_string(earlier) +
                            ", \"profilo del fascicolo - dati generali\": questa pagina non verrà "
                            "mai riconosciuta. Usare due testi che non stanno uno nell'altro.")}));
}

TEST(RecognitionTexts, OneThatStandsInAnEarlierOneHidesNothing) {
  EditedMapping folder;
  folder.Change(kRestr, "storico del fascicolo - elenco eventi=Storico", "dati generali=Storico");
  EXPECT_EQ(folder.Check(), Findings{});
}

// The page file is named after the text.
TEST(RecognitionTexts, ThatCannotBeAFilesNameAreErrors) {
  EditedMapping folder;
  const std::size_t line =
      folder.Change(kRestr, "agenda dell'avvocato - impegni del periodo=Agenda",
                    "agenda dell'avvocato: impegni=Agenda");
  EXPECT_EQ(
      folder.Check(),
      (Findings{ErrorAt(kRestr, line,
                        "Il testo \"agenda dell'avvocato: impegni\" contiene il segno \":\", "
                        "che in un nome di file non può stare: il file della pagina prende il "
                        "nome dal testo. Usare un testo senza quel segno.")}));
}

TEST(RecognitionTexts, OtherThanFourAreTold) {
  EditedMapping folder;
  folder.Drop(kRestr, "agenda dell'avvocato - impegni del periodo=Agenda");
  EXPECT_EQ(folder.Check(),
            (Findings{WarningAt(kRestr, 0,
                                "Il file ha 3 righe, le pagine note sono 4: profilo, storico, "
                                "agenda e giudice di pace, in quest'ordine.")}));
}

// --- delimiter keys -----------------------------------------------------------------------------

struct MissingKey {
  const char* line;
  const char* key;
  const char* page;
};

TEST(DelimiterKeys, OneThatNoLineGivesIsAnErrorThatNamesThePageKind) {
  for (const MissingKey& missing : {MissingKey{" - Avv. =DELPF3", "DELPF3", "del profilo"},
                                    {"Terzo chiamato=TESTO3", "TESTO3", "del profilo"},
                                    {"::=DELSF3", "DELSF3", "dello storico"},
                                    {"nel periodo=DELAV2", "DELAV2", "dell'agenda"},
                                    {"Data Movimento=DELGDP6", "DELGDP6", "del giudice di pace"}}) {
    EditedMapping folder;
    folder.Drop(kDelimitatori, missing.line);
    EXPECT_EQ(folder.Check(),
              (Findings{ErrorAt(kDelimitatori, 0,
                                std::string("Manca la chiave \"") + missing.key +
                                    "\", che serve alla pagina " + missing.page +
                                    ": aggiungere la riga testo=" + missing.key + ".")}));
  }
}

TEST(DelimiterKeys, OneThatTwoPageKindsNeedIsToldForEach) {
  EditedMapping folder;
  folder.Drop(kDelimitatori, " =DELSF2");
  EXPECT_EQ(folder.Check(),
            (Findings{ErrorAt(kDelimitatori, 0,
                              "Manca la chiave \"DELSF2\", che serve alla pagina dello storico: "
                              "aggiungere la riga testo=DELSF2."),
                      ErrorAt(kDelimitatori, 0,
                              "Manca la chiave \"DELSF2\", che serve alla pagina del giudice di "
                              "pace: aggiungere la riga testo=DELSF2.")}));
}

TEST(DelimiterKeys, LetterCaseOfAKeyDoesNotCount) {
  EditedMapping folder;
  folder.Change(kDelimitatori, "::=DELSF3", "::=delsf3");
  EXPECT_EQ(folder.Check(), Findings{});
}

TEST(DelimiterKeys, OneThatNothingAsksForIsAWarning) {
  for (const std::string key : {"DELPF5", "DELGDP7", "DELSF3 "}) {
    EditedMapping folder;
    const std::size_t line = folder.Append(kDelimitatori, "Testo=" + key);
    EXPECT_EQ(folder.Check(), (Findings{WarningAt(kDelimitatori, line,
                                                  "Nessuna pagina chiede la chiave \"" + key +
                                                      "\": correggerla o togliere la riga.")}));
  }
}

// --- delimiter texts ----------------------------------------------------------------------------

struct BlankText {
  const char* line;
  const char* text;
  const char* key;
};

TEST(DelimiterTexts, OfTheHistorysPlaceThatHoldABlankAreErrors) {
  for (const BlankText& blank : {BlankText{"Elenco(=DELSF4", "Elenco (", "DELSF4"},
                                 {"righe)=DELSF5", " righe)", "DELSF5"},
                                 {"Pagina=DELSF6", "Pagina ", "DELSF6"},
                                 {"di=DELSF7", " di ", "DELSF7"}}) {
    EditedMapping folder;
    const std::size_t line =
        folder.Change(kDelimitatori, blank.line, std::string(blank.text) + "=" + blank.key);
    EXPECT_EQ(folder.Check(),
              (Findings{ErrorAt(kDelimitatori, line,
                                std::string("Il testo \"") + blank.text + "\" di " + blank.key +
                                    " contiene uno spazio: viene cercato in un testo senza spazi e "
                                    "non verrà mai trovato. Togliere gli spazi.")}));
  }
}

TEST(DelimiterTexts, OfTheRegisterNumberMustBeMapped) {
  EditedMapping folder;
  folder.Drop(kCampi, "NumeroRegGenerale=Numero di iscrizione a ruolo:");
  EXPECT_EQ(folder.Check(),
            (Findings{ErrorAt(kDelimitatori,
                              folder.Line(kDelimitatori, "Numero di iscrizione a ruolo:=DELPF1"),
                              "Il testo \"Numero di iscrizione a ruolo:\" di DELPF1 manca in "
                              "\"MapCampi.txt\": aggiungere la riga NumeroRegGenerale=Numero di "
                              "iscrizione a ruolo:")}));
}

TEST(DelimiterTexts, OfThePartiesBeforeTheJusticeOfThePeaceShouldBeMapped) {
  for (const auto& [field, text, key] :
       {std::array<std::string, 3>{"ParteAttrice", "Opponente/Ricorrente:", "DELGDP8"},
        {"ParteConvenuta", "Opposto/Resistente:", "DELGDP9"}}) {
    EditedMapping folder;
    folder.Drop(kCampi, field + "=" + text);
    EXPECT_EQ(
        folder.Check(),
        (Findings{WarningAt(kDelimitatori, folder.Line(kDelimitatori, text + "=" + key),
                            "Il testo \"" + text + "\" di " + key +
                                " manca in \"MapCampi.txt\": aggiungere la riga campo=" + text)}));
  }
}

// --- labels -------------------------------------------------------------------------------------

Finding NearLabel(std::size_t line, const std::string& label, const std::string& text,
                  const std::string& key, std::size_t keyLine) {
  return WarningAt(kCampi, line,
                   "L'etichetta \"" + label +
                       "\" differisce solo per spazi, due punti o maiuscole dal testo \"" + text +
                       "\" di " + key + " (\"MapDelimitatori.txt\", riga " +
                       std::to_string(keyLine) + "): scriverle uguali.");
}

TEST(Labels, OneThatDiffersFromADelimiterByColonBlanksOrLetterCaseIsAWarning) {
  const std::string text = "Attore/Danneggiato:";
  for (const std::string label : {"Attore/Danneggiato", "Attore/Danneggiato: ",
                                  "Attore / Danneggiato:", "ATTORE/danneggiato:"}) {
    EditedMapping folder;
    const std::size_t line = folder.Change(kCampi, "ParteAttrice=" + text, "ParteAttrice=" + label);
    const std::size_t keyLine = folder.Line(kDelimitatori, text + "=DELGDP10");
    EXPECT_EQ(folder.Check(), (Findings{NearLabel(line, label, text, "DELGDP10", keyLine)}));
  }
}

TEST(Labels, TheRegisterNumbersWithoutItsColonIsToldOnBothSides) {
  EditedMapping folder;
  const std::string text = "Numero di iscrizione a ruolo:";
  const std::size_t line = folder.Change(kCampi, "NumeroRegGenerale=" + text,
                                         "NumeroRegGenerale=Numero di iscrizione a ruolo");
  const std::size_t keyLine = folder.Line(kDelimitatori, text + "=DELPF1");
  const Findings findings = folder.Check();
  ASSERT_EQ(findings.size(), 2U);
  EXPECT_EQ(findings[0], NearLabel(line, "Numero di iscrizione a ruolo", text, "DELPF1", keyLine));
  EXPECT_EQ(findings[1].file, kDelimitatori);
  EXPECT_EQ(findings[1].line, keyLine);
  EXPECT_EQ(findings[1].severity, Severity::kError);
}

TEST(Labels, ADelimiterThatGainedATrailingBlankIsToldAtTheLabel) {
  EditedMapping folder;
  const std::size_t keyLine =
      folder.Change(kDelimitatori, "Terzo chiamato=TESTO3", "Terzo chiamato =TESTO3");
  const std::size_t line = folder.Line(kCampi, "AltreParti=Terzo chiamato");
  EXPECT_EQ(folder.Check(),
            (Findings{NearLabel(line, "Terzo chiamato", "Terzo chiamato ", "TESTO3", keyLine)}));
}

// The label on the page is cut at the colon before it is compared, so that writing both alike but
// with the colon does not help.
TEST(Labels, APartysWrittenAlikeInBothFilesButWithTheColonIsAWarning) {
  EditedMapping folder;
  folder.Change(kDelimitatori, "Convenuto=DELPF8", "Convenuto:=DELPF8");
  const std::size_t line =
      folder.Change(kCampi, "ParteConvenuta=Convenuto", "ParteConvenuta=Convenuto:");
  EXPECT_EQ(folder.Check(),
            (Findings{WarningAt(kCampi, line,
                                "L'etichetta \"Convenuto:\" contiene il separatore \":\", che "
                                "viene tagliato via: scrivere l'etichetta senza.")}));
}

TEST(Labels, APartysWrittenAlikeInBothFilesButWithATrailingBlankIsAWarning) {
  EditedMapping folder;
  folder.Change(kDelimitatori, "Intervenuto=TESTO4", "Intervenuto =TESTO4");
  const std::size_t line =
      folder.Change(kCampi, "AltreParti=Intervenuto", "AltreParti=Intervenuto ");
  EXPECT_EQ(folder.Check(),
            (Findings{WarningAt(kCampi, line,
                                "L'etichetta \"Intervenuto \" ha spazi all'inizio o alla fine: non "
                                "verrà mai trovata. Toglierli.")}));
}

TEST(Labels, OneWithBlanksAroundItIsAWarning) {
  for (const std::string label : {" Stanza", "Stanza "}) {
    EditedMapping folder;
    const std::size_t line = folder.Append(kCampi, "Aula=" + label);
    EXPECT_EQ(folder.Check(),
              (Findings{WarningAt(kCampi, line,
                                  "L'etichetta \"" + label +
                                      "\" ha spazi all'inizio o alla fine: non verrà mai trovata. "
                                      "Toglierli.")}));
  }
}

TEST(Labels, OneThatHoldsTheSeparatorIsAWarning) {
  EditedMapping folder;
  const std::size_t line = folder.Change(kCampi, "Rito=Rito", "Rito=Rito:");
  EXPECT_EQ(folder.Check(),
            (Findings{WarningAt(kCampi, line,
                                "L'etichetta \"Rito:\" contiene il separatore \":\", che viene "
                                "tagliato via: scrivere l'etichetta senza.")}));
}

TEST(Labels, OneThatFillsAPartysReservedNameIsAWarning) {
  for (const std::string name : {"Attore", "DIFATTORE", "Convenuto", "DifConvenuto"}) {
    EditedMapping folder;
    const std::size_t line = folder.Append(kCampi, name + "=Stanza");
    EXPECT_EQ(folder.Check(),
              (Findings{WarningAt(kCampi, line,
                                  "Il nome \"" + name +
                                      "\" è riservato ai nomi delle parti: usare un altro nome di "
                                      "campo.")}));
  }
}

// --- columns of the database --------------------------------------------------------------------

TEST(Columns, HoldEveryFieldOfTheShippedMapping) {
  Office office(Office::Data::kSample);
  EXPECT_EQ(CheckColumns(EditedMapping().path(), office.connection()), Findings{});
}

TEST(Columns, ThatTheTableLacksAreToldWhereTheyAreMapped) {
  Office office(Office::Data::kSample);
  EditedMapping folder;
  const std::size_t line = folder.Change(kCampi, "Rito=Rito", "Ritto=Rito");
  EXPECT_EQ(CheckColumns(folder.path(), office.connection()),
            (Findings{WarningAt(kCampi, line,
                                "Il campo \"Ritto\" non è una colonna della tabella PraOrdex: il "
                                "valore di \"Rito\" non verrà registrato. Correggere il nome.")}));
}

TEST(Columns, AreFoundWhateverTheLetterCase) {
  Office office(Office::Data::kSample);
  EditedMapping folder;
  folder.Change(kCampi, "Rito=Rito", "RITO=Rito");
  EXPECT_EQ(CheckColumns(folder.path(), office.connection()), Findings{});
}

TEST(Columns, OfALineOrAFileThatIsBrokenAreNotAskedFor) {
  Office office(Office::Data::kSample);
  EditedMapping folder;
  folder.Append(kCampi, "da rivedere");
  EXPECT_EQ(CheckColumns(folder.path(), office.connection()), Findings{});
  folder.Remove(kCampi);
  EXPECT_EQ(CheckColumns(folder.path(), office.connection()), Findings{});
}

}  // namespace
}  // namespace ordex::testing
