// The page file: what is written into it, and that it goes away.
#include <gtest/gtest.h>

#include <string>

#include "app/intake.h"
#include "support/office_fixture.h"

namespace ordex::testing {
namespace {

class PageFileTest : public ::testing::Test {
 protected:
  // The page file's bytes for that text on the clipboard.
  std::string Written(std::string text) {
    TxtfromClipboard(folder_.path(), "pagina", FakeClipboard(std::move(text)));
    return folder_.Read("pagina.txt");
  }

  TempFolder folder_;
};

TEST_F(PageFileTest, HoldsTheTextBetweenQuotesAndALineEnd) {
  EXPECT_EQ(Written("uno"), "\"uno\"\r\n");
  EXPECT_EQ(Written(""), "\"\"\r\n");
}

TEST_F(PageFileTest, HoldsQuotesOfTheTextAsTheyAre) {
  EXPECT_EQ(Written("nave \"Stella\""), "\"nave \"Stella\"\"\r\n");
}

TEST_F(PageFileTest, BringsEveryLineEndToCrLf) {
  EXPECT_EQ(Written("uno\ndue\r\ntre\rquattro\n\ncinque"),
            "\"uno\r\ndue\r\ntre\r\nquattro\r\n\r\ncinque\"\r\n");
}

TEST_F(PageFileTest, LosesTheTabsOfAProfile) {
  EXPECT_EQ(Written("\tSezione:\tPrima\t\tCivile"), "\"Sezione:PrimaCivile\"\r\n");
}

TEST_F(PageFileTest, KeepsTheTabsOfAHistoryAsBlanks) {
  EXPECT_EQ(Written("Storico del fascicolo\n1\t02/03/2026\t\tDeposito"),
            "\"Storico del fascicolo\r\n1 02/03/2026  Deposito\"\r\n");
}

TEST_F(PageFileTest, TellsAHistoryByItsHeadingInExactlyThoseLetters) {
  EXPECT_EQ(Written("STORICO DEL FASCICOLO\n1\t2"), "\"STORICO DEL FASCICOLO\r\n12\"\r\n");
  EXPECT_EQ(Written("storico del fascicolo\n1\t2"), "\"storico del fascicolo\r\n12\"\r\n");
}

TEST_F(PageFileTest, IsWrittenInUtf8) {
  EXPECT_EQ(Written("Nicolò €"), "\"Nicolò €\"\r\n");
}

TEST_F(PageFileTest, ReplacesAnExistingOne) {
  folder_.Write("pagina.txt", std::string(1000, 'x'));
  EXPECT_EQ(Written("uno"), "\"uno\"\r\n");
}

TEST_F(PageFileTest, ThatCannotBeWrittenIsAnErrorThatNamesIt) {
  std::filesystem::create_directory(folder_ / "pagina.txt");
  try {
    Written("uno");
    FAIL() << "no error";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), 75);
    EXPECT_EQ(error.description(),
              "Errore di accesso al file: impossibile scrivere il file della pagina \"" +
                  (folder_ / "pagina.txt").string() +
                  "\". Controllare i diritti sulla cartella del programma e lo spazio su disco.");
  }
}

TEST_F(PageFileTest, AFolderThatBearsItsNameIsLeftThere) {
  std::filesystem::create_directory(folder_ / "pagina.txt");
  { const PageFileOnDisk guard(folder_.path(), "pagina"); }
  EXPECT_TRUE(std::filesystem::is_directory(folder_ / "pagina.txt"));
}

TEST_F(PageFileTest, GoesAwayWithItsGuard) {
  folder_.Write("pagina.txt", "x");
  { const PageFileOnDisk guard(folder_.path(), "pagina"); }
  EXPECT_FALSE(folder_.Holds("pagina.txt"));
}

TEST_F(PageFileTest, GoesAwayWhenItIsDeleted) {
  folder_.Write("pagina.txt", "x");
  PageFileOnDisk guard(folder_.path(), "pagina");
  guard.Delete();
  EXPECT_FALSE(folder_.Holds("pagina.txt"));
}

TEST_F(PageFileTest, ThatCannotBeDeletedIsAnErrorOfFileAccess) {
  std::filesystem::create_directory(folder_ / "pagina.txt");
  folder_.Write("pagina.txt/inside", "x");
  PageFileOnDisk guard(folder_.path(), "pagina");
  EXPECT_EQ(ErrorNumberOf([&] { guard.Delete(); }), 75);
}

}  // namespace
}  // namespace ordex::testing
