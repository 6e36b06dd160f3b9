// An import that stops half-way: the user is told, and the program goes on with what was read.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "app/intake.h"
#include "support/window_fixture.h"

namespace ordex::testing {
namespace {

const std::string kAdvice =
    "\r\n\r\nI dati letti fino a qui restano nell'elenco. Prima di registrarli copiare di nuovo la "
    "pagina intera oppure correggere i file di mappatura.";

// A deadline line without a separator stops the import.
std::string StoppingPage() {
  return ProfilePage("1842/2025",
                     "Rito: Ordinario\nTermini assegnati dal giudice\nNote 20/03/2026\n\n"
                     "Materia: Contratti\n");
}

TEST(ImportStop, NamesTheLineItsTextAndTheCause) {
  const ImportStop stop = {MakeError(ErrorNumber::kSubscript, "causa"), 12, "riga \"x\"", true};
  EXPECT_EQ(ImportStopBox(stop),
            (BoxText{"L'importazione della pagina si è fermata alla riga 12:\r\n\"riga \"x\"\""
                     "\r\n\r\nErrore 9: Indice non incluso nell'intervallo: causa" +
                         kAdvice,
                     "Praxion", BoxIcon::kWarning, BoxButtons::kOk}));
}

TEST(ImportStop, ShowsTheBeginningOfALongLine) {
  std::string line;
  for (int i = 0; i < 400; ++i) line.append("è");
  const ImportStop stop = {MakeError(ErrorNumber::kSubscript), 1, line, true};
  EXPECT_NE(ImportStopBox(stop).text.find("\"" + line.substr(0, 600) + "\"\r\n"),
            std::string::npos);
}

TEST(ImportStop, OfAMappingFileNamesNoLineOfThePage) {
  const ImportStop stop = {MakeError(ErrorNumber::kFileNotFound, "\"x\""), 3, "", false};
  EXPECT_EQ(ImportStopBox(stop),
            (BoxText{"L'importazione della pagina si è fermata.\r\n\r\nErrore 53: Impossibile "
                     "trovare il file: \"x\"",
                     "Praxion", BoxIcon::kWarning, BoxButtons::kOk}));
}

TEST(ImportThatStops, IsToldAndTheProgramGoesOnWithWhatWasRead) {
  WindowFixture fixture(StoppingPage());
  fixture.Start();
  EXPECT_FALSE(fixture.window.ended().has_value());
  ASSERT_EQ(fixture.boxes.shown.size(), 1U);
  const BoxText& box = fixture.boxes.shown[0];
  EXPECT_TRUE(box.text.starts_with(
      "L'importazione della pagina si è fermata alla riga 5:\r\n\"Note 20/03/2026\"\r\n\r\nErrore "
      "9: Indice non incluso nell'intervallo"))
      << box;
  EXPECT_EQ(box.title, "Praxion");
  EXPECT_EQ(box.icon, BoxIcon::kWarning);

  const Window& state = fixture.state();
  EXPECT_EQ(state.lstImport.rows.size(), 2U);
  EXPECT_EQ(state.page.cDatiFasc.Item("Rito"), "Ordinario");
  EXPECT_FALSE(ItemExists(state.page.cDatiFasc, "Materia"));
  EXPECT_EQ(state.choice.ctlTestata1.idPra, 2);
  EXPECT_EQ(state.page.pageAtOpening, 1);
}

TEST(ImportThatStops, IsToldToTheDiagnosticsWithItsLine) {
  WindowFixture fixture(StoppingPage());
  fixture.Start();
  ASSERT_EQ(fixture.office.diagnostics.failed.size(), 1U);
  EXPECT_EQ(fixture.office.diagnostics.failed[0].number, 9);
  EXPECT_EQ(fixture.office.diagnostics.failed[0].line, 5U);
}

TEST(ImportThatStops, LeavesNoPageFileBehindAndWritesNothing) {
  WindowFixture fixture(StoppingPage());
  fixture.Start();
  EXPECT_FALSE(fixture.folder.Holds(kProfileFile));
  EXPECT_EQ(fixture.office.Row("SELECT COUNT(*) FROM PraOrdex"), "0");
}

TEST(ImportThatStops, IsWrittenWhenTheUserThenPressesTheButton) {
  WindowFixture fixture(StoppingPage());
  fixture.Start();
  fixture.window.PressAzione();
  EXPECT_EQ(fixture.window.ended(), EndReason::kDone);
  EXPECT_EQ(fixture.office.Row("SELECT ID_PraRel, Rito, Materia FROM PraOrdex"),
            "2|Ordinario|NULL");
}

TEST(ImportThatStops, ForWantOfTheDelimiterFileGoesOnWithoutAPage) {
  WindowFixture fixture;
  fixture.folder.Remove("MapDelimitatori.txt");
  fixture.Start();
  EXPECT_FALSE(fixture.window.ended().has_value());
  ASSERT_EQ(fixture.boxes.shown.size(), 1U);
  EXPECT_TRUE(fixture.boxes.shown[0].text.starts_with(
      "L'importazione della pagina si è fermata.\r\n\r\nErrore 53: "))
      << fixture.boxes.shown[0];
  EXPECT_NE(fixture.boxes.shown[0].text.find("MapDelimitatori.txt"), std::string::npos);
  EXPECT_EQ(fixture.state().status.text,
            "Nessuna pratica trovata sulla base del N. Registro Generale : ");
  EXPECT_FALSE(fixture.folder.Holds(kProfileFile));
}

}  // namespace
}  // namespace ordex::testing
