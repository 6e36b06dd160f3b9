// The sample profiles, imported with the shipped mapping files.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "base/text.h"
#include "import_bench.h"
#include "parse/lines.h"

namespace ordex::testing {
namespace {

namespace fs = std::filesystem;

// The page as it lies in the page file: a text between double quotes, tabs taken out.
std::string PageFileText(const std::string& name) {
  const std::string page = ToCrLf(SourceFile("samples/" + name + ".txt"));
  return "\"" + ReplaceAll(page, "\t", "") + "\"\r\n";
}

// A sample imported with the shipped files.
class SampleImport {
 public:
  explicit SampleImport(const std::string& name) : text(PageFileText(name)) {
    LocateMappings(mappings_, folder_.path());
    LoadOrdexMap(mappings_);
    folder_.Write("profilo.txt", text);
    stop = StopOf(
        Import({folder_.path(), mappings_, page, paging_, sink, &trace}, "profilo", kPageProfile));
  }

  std::string text;
  Stop stop;
  Page page;
  RecordingSink sink;
  RecordingTrace trace;

 private:
  TempProgramFolder folder_;
  Mappings mappings_;
  HistoryPaging paging_;
};

std::string Joined(const Row& row) {
  std::ostringstream out;
  out << row;
  return out.str();
}

std::vector<std::string> JoinedRows(const Rows& rows) {
  std::vector<std::string> joined;
  for (const Row& row : rows) joined.push_back(Joined(row));
  return joined;
}

// The stored rows; nothing where there are none yet.
std::optional<std::vector<std::string>> StoredRows(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  if (!in) return std::nullopt;
  std::ostringstream bytes;
  bytes << in.rdbuf();
  const std::string text = bytes.str();
  std::vector<std::string> rows;
  for (Lines lines(text); !lines.AtEnd();) rows.emplace_back(lines.Next());
  return rows;
}

void StoreRows(const fs::path& file, const std::vector<std::string>& rows) {
  fs::create_directories(file.parent_path());
  std::ofstream out(file, std::ios::binary);
  for (const std::string& row : rows) out << row << "\n";
}

// Which rule takes a line, for the lines that are taken at all.
using Takers = std::map<std::size_t, std::string>;

struct LineRange {
  std::size_t first;
  std::size_t last;
  const char* rule;
};

Takers TakersOf(const std::vector<LineRange>& ranges) {
  Takers takers;
  for (const LineRange& range : ranges) {
    for (std::size_t line = range.first; line <= range.last; ++line) takers[line] = range.rule;
  }
  return takers;
}

const std::map<std::string, Takers>& ExpectedTakers() {
  static const std::map<std::string, Takers> kTakers = {
      {"profilo-contratto", TakersOf({{23, 23, "numero"},
                                      {24, 28, "campo"},
                                      {32, 43, "campo"},
                                      {47, 47, "campo"},
                                      {49, 49, "campo"},
                                      {51, 53, "campo"},
                                      {58, 61, "campo"},
                                      {65, 65, "scadenze"},
                                      {66, 68, "scadenza"},
                                      {69, 69, "fine scadenze"},
                                      {73, 73, "campo"},
                                      {78, 78, "deposito"},
                                      {79, 79, "data deposito"},
                                      {80, 81, "campo"}})},
      {"profilo-lavoro", TakersOf({{23, 24, "campo"},
                                   {25, 25, "numero"},
                                   {26, 29, "campo"},
                                   {33, 43, "campo"},
                                   {47, 47, "campo"},
                                   {49, 49, "campo"},
                                   {51, 53, "campo"},
                                   {57, 59, "campo"},
                                   {64, 64, "scadenze"},
                                   {65, 66, "scadenza"},
                                   {67, 67, "fine scadenze"},
                                   {71, 73, "campo"}})},
      {"profilo-condominio", TakersOf({{23, 23, "numero"},
                                       {24, 28, "campo"},
                                       {31, 41, "campo"},
                                       {45, 45, "campo"},
                                       {47, 47, "campo"},
                                       {49, 51, "campo"},
                                       {58, 60, "campo"},
                                       {64, 64, "scadenze"},
                                       {65, 66, "scadenza"},
                                       {67, 67, "fine scadenze"},
                                       {70, 70, "scadenze"},
                                       {71, 72, "scadenza"},
                                       {73, 73, "fine scadenze"},
                                       {75, 75, "deposito"},
                                       {76, 76, "data deposito"},
                                       {78, 78, "campo"},
                                       {82, 83, "campo"}})},
  };
  return kTakers;
}

// The profiles in samples/, whatever their number: a new one needs its expectations here.
std::vector<std::string> ProfileSamples() {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(fs::path(ORDEX_SOURCE_DIR) / "samples")) {
    const std::string name = entry.path().stem().string();
    if (name.starts_with("profilo-")) names.push_back(name);
  }
  std::sort(names.begin(), names.end());
  return names;
}

class ProfileSample : public ::testing::TestWithParam<std::string> {};

TEST_P(ProfileSample, IsImportedToItsEnd) {
  const SampleImport sample(GetParam());
  EXPECT_EQ(sample.stop, Stop{});
}

TEST_P(ProfileSample, GivesTheStoredRows) {
  const SampleImport sample(GetParam());
  const fs::path file =
      fs::path(ORDEX_SOURCE_DIR) / "tests" / "parse" / "expected" / (GetParam() + ".rows");
  const std::vector<std::string> rows = JoinedRows(sample.sink.rows);
  const auto stored = StoredRows(file);
  if (!stored) {
    StoreRows(file, rows);
    FAIL() << file << " was missing and is written now: read it against the page, line by line.";
  }
  EXPECT_EQ(rows, *stored);
}

TEST_P(ProfileSample, HasEachOfItsLinesReadExactlyOnceAndInOrder) {
  const SampleImport sample(GetParam());
  std::vector<RecordingTrace::ReadLine> expected;
  std::istringstream lines(sample.text);
  for (std::string line; std::getline(lines, line);) {
    if (line.ends_with('\r')) line.pop_back();
    expected.push_back({expected.size() + 1, line});
  }
  EXPECT_EQ(sample.trace.lines, expected);
}

TEST_P(ProfileSample, HasEachLineTakenByTheRuleThatFitsAndTheOthersByNone) {
  const SampleImport sample(GetParam());
  ASSERT_TRUE(ExpectedTakers().contains(GetParam())) << "no expectations for this page yet";
  Takers takers;
  for (const auto& line : sample.trace.lines) {
    const std::string taker = sample.trace.FirstTaker(line.number);
    if (taker != "none") takers[line.number] = taker;
  }
  EXPECT_EQ(takers, ExpectedTakers().at(GetParam()));
}

TEST_P(ProfileSample, HasNoLineTakenByTwoRules) {
  const SampleImport sample(GetParam());
  for (const auto& [line, rules] : sample.trace.takers) EXPECT_EQ(rules.size(), 1U) << line;
}

TEST_P(ProfileSample, GivesTheSameWhenTheFileHasOnlyLfLineEnds) {
  const SampleImport sample(GetParam());
  ImportBench bench;
  bench.folder.Write(kMapDelimitatori, SourceFile("mapping/MapDelimitatori.txt"));
  bench.folder.Write(kMapCampi, SourceFile("mapping/MapCampi.txt"));
  LoadOrdexMap(bench.mappings);
  bench.folder.Write("lf.txt", ReplaceAll(sample.text, "\r\n", "\n"));
  EXPECT_EQ(StopOf(Import({bench.folder.path(), bench.mappings, bench.page, bench.paging,
                           bench.sink, &bench.trace},
                          "lf", kPageProfile)),
            Stop{});
  EXPECT_EQ(bench.sink.rows, sample.sink.rows);
  EXPECT_EQ(bench.trace.lines, sample.trace.lines);
}

INSTANTIATE_TEST_SUITE_P(Samples, ProfileSample, ::testing::ValuesIn(ProfileSamples()),
                         [](const auto& test) { return ReplaceAll(test.param, "-", "_"); });

TEST(ProfileSamples, EveryOneHasExpectations) {
  EXPECT_EQ(ProfileSamples().size(), ExpectedTakers().size());
}

TEST(ProfileSamples, TheContractCaseGivesItsRegisterNumberAndPageValues) {
  const SampleImport sample("profilo-contratto");
  EXPECT_EQ(sample.page.szNumeroRG, "1842/2025");
  EXPECT_EQ(
      ValuesOf(sample.page.cDatiFasc),
      (NamedValues{
          {"NumeroRegGenerale", "1842/2025"},
          {"DataIscrizione", "14/01/2025"},
          {"Ufficio", "Tribunale Ordinario di Valdombra"},
          {"Sezione", "Seconda Civile"},
          {"Istruttore", "Dott.ssa Bracalenti Ersilia"},
          {"Cancelliere", "Passalenti Rocco"},
          {"Oggetto",
           "Esecuzione specifica dell'obbligo di concludere un contratto: vendita di cosa "
           "immobile"},
          {"CodiceOggetto", "VB-140.062"},
          {"Materia", "Contratti e obbligazioni"},
          {"Rito", "Ordinario"},
          {"TipoProcedimento", "Cognizione di primo grado"},
          {"StatoFascicolo", "In istruttoria"},
          {"ValoreCausa", "€ 186.500,00"},
          {"ContributoUnificato", "€ 759,00 (versato il 13/01/2025 alle 17:05)"},
          {"DataAtto", "20/12/2024"},
          {"DataNotifica", "30/12/2024"},
          {"FascicoliCollegati",
           "3310/2024 (accertamento tecnico); \r\n212/2025 (sequestro conservativo)"},
          {"Attore", "EDILIZIA VALLEBRUNA S.R.L."},
          {"DifAttore", "Ferrigati Nora - Avv. Lumera Ottavio"},
          {"ParteAttrice",
           "EDILIZIA VALLEBRUNA S.R.L. - Avv. Ferrigati Nora - Avv. Lumera Ottavio"},
          {"Convenuto", "IMMOBILIARE PONTEMIRTO S.P.A."},
          {"DifConvenuto", "Brandisio Clelia"},
          {"ParteConvenuta",
           "IMMOBILIARE PONTEMIRTO S.P.A. - Avv. Brandisio Clelia - Avv. Dell'Orsa Guido"},
          {"AltreParti",
           "ASSICURAZIONI ALTAMAREA S.P.A. - Avv. Quarantelli Fosca; \r\nGRESSANI TEODORO; \r\n"
           "CASSA RURALE DI MONTEFOSCO - Avv. Salvadente Pietro"},
          {"DUUd", "18/11/2025 10:15"},
          {"EsitoUdienza",
           "Ammesse le prove per testi; rinvio per l'escussione dei primi due testimoni di parte "
           "attrice"},
          {"DPUd", "12/03/2026 09:30"},
          {"Aula", "Aula 7, piano terra"},
          {"ConsulenteTecnico", "Geom. Tavernari Ulisse"},
          {"NoteCancelleria",
           "Relazione notarile completa, visto del 15/04/2025; \r\nL'originale del contratto "
           "preliminare è custodito nell'armadio n. 3"}}));
}

TEST(ProfileSamples, TheContractCaseOffersItsFiveParties) {
  const SampleImport sample("profilo-contratto");
  EXPECT_EQ(sample.sink.parties,
            (Parties{{"EDILIZIA VALLEBRUNA S.R.L.", "Ferrigati Nora - Avv. Lumera Ottavio"},
                     {"IMMOBILIARE PONTEMIRTO S.P.A.", "Brandisio Clelia"},
                     {"ASSICURAZIONI ALTAMAREA S.P.A.", "Quarantelli Fosca"},
                     {"GRESSANI TEODORO", ""},
                     {"CASSA RURALE DI MONTEFOSCO", "Salvadente Pietro"}}));
}

TEST(ProfileSamples, TheLabourCaseOffersItsFiveParties) {
  const SampleImport sample("profilo-lavoro");
  EXPECT_EQ(sample.page.szNumeroRG, "3056/2025");
  EXPECT_EQ(sample.sink.parties,
            (Parties{{"D'AMICO LUCA", "Ferrigati Nora"},
                     {"LOGISTICA SERRAVENTO S.P.A.", "De Santilli Ippolito"},
                     {"COOPERATIVA FACCHINI L'UNIONE S.C. A R.L.", "Degli Olmi Saverio"},
                     {"SINDACATO AUTONOMO MAGAZZINIERI", ""},
                     {"CONTI DELL'ORTO ADELAIDE", "Ferrigati Nora"}}));
}

TEST(ProfileSamples, TheCondominiumCaseOffersItsFiveParties) {
  const SampleImport sample("profilo-condominio");
  EXPECT_EQ(sample.page.szNumeroRG, "907/2024");
  EXPECT_EQ(sample.sink.parties, (Parties{{"CONDOMINIO VIA DEI TIGLI 14", "Ferrigati Nora"},
                                          {"BALDRACCHI ERMINIA", "Lanzafiorita Ezio"},
                                          {"CARRUBBINI SALVINO", "Ferrigati Nora"},
                                          {"D'AGNOLO E FIGLI S.N.C.", "Lanzafiorita Ezio"},
                                          {"DEL PRATO ANNA", ""}}));
}

}  // namespace
}  // namespace ordex::testing
