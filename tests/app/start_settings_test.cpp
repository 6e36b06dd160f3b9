// What the start reads from the settings and writes there.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "store/db/open_connection.h"
#include "support/window_fixture.h"

namespace ordex::testing {
namespace {

using Texts = std::vector<std::string>;

// --- the connection string ----------------------------------------------------------------------

TEST(ConnectionStringOfTheStart, IsJoinedFromTheFragmentsAsTheyStand) {
  WindowFixture fixture;
  fixture.Start();
  EXPECT_EQ(fixture.opened,
            (Texts{"Provider=SQLNCLI.1;Integrated Security=SSPI;Initial Catalog=Zelmo32;Data "
                   "Source=SRV"}));
}

TEST(ConnectionStringOfTheStart, AddsNoSeparatorOfItsOwn) {
  WindowFixture fixture;
  fixture.settings.values[{"startup", "Security"}] = " a ";
  fixture.settings.values[{"startup", "Server"}] = " b ";
  fixture.Start();
  EXPECT_EQ(fixture.opened, (Texts{"Provider=SQLNCLI.1 a Initial Catalog=Zelmo32; b "}));
}

TEST(ConnectionStringOfTheStart, WithoutFragmentsHoldsTheFixedPartsAlone) {
  WindowFixture fixture;
  fixture.settings.values.erase({"startup", "Security"});
  fixture.settings.values.erase({"startup", "Server"});
  fixture.Start();
  EXPECT_EQ(fixture.opened, (Texts{"Provider=SQLNCLI.1Initial Catalog=Zelmo32;"}));
}

TEST(ConnectionStringOfTheStart, IsOpenedOnceForTheWholeRun) {
  WindowFixture fixture;
  fixture.Start();
  fixture.Sample("profilo-condominio.txt");
  EXPECT_EQ(fixture.opened.size(), 1U);
}

// --- a database that cannot be opened -----------------------------------------------------------

TEST(StartWithoutADatabase, EndsWithTheDriversError) {
  WindowFixture fixture;
  fixture.cannotOpen = MakeError(ErrorNumber::kDatabase, "server spento");
  fixture.Start();
  EXPECT_EQ(fixture.window.ended(), EndReason::kError);
  EXPECT_EQ(
      fixture.boxes.shown,
      (std::vector<BoxText>{{"Errore di run-time '-2147467259': Errore del database: server spento",
                             "Ordex", BoxIcon::kStop, BoxButtons::kOk}}));
}

TEST(StartWithoutADatabase, OfAFileThatIsNotThereNamesTheFile) {
  const TempFolder folder;
  try {
    OpenConnection("Provider=SQLNCLI.1;Initial Catalog=Zelmo32;Data Source=file:studio.db",
                   folder.path());
    FAIL() << "no error";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), kDatabaseErrorNumber);
    EXPECT_NE(error.description().find((folder / "studio.db").string()), std::string::npos);
  }
}

// --- the user -----------------------------------------------------------------------------------

TEST(UserOfTheStart, IsHandedToTheHeaderAndLeftInTheSettings) {
  WindowFixture fixture;
  fixture.Start();
  EXPECT_EQ(fixture.state().choice.ctlTestata1.idUtente, 7);
  EXPECT_EQ(fixture.settings.saved, (Texts{"Shared/OrdexHandle=4711"}));
}

TEST(UserOfTheStart, WhenNobodyIsLoggedOnIsUserTwoAndIsWrittenBack) {
  WindowFixture fixture;
  fixture.settings.values[{"Shared", "Id_Utente"}] = "-1";
  fixture.Start();
  EXPECT_EQ(fixture.state().choice.ctlTestata1.idUtente, 2);
  EXPECT_EQ(fixture.settings.saved, (Texts{"Shared/OrdexHandle=4711", "Shared/Id_Utente=2"}));
}

TEST(UserOfTheStart, MayHaveBlanksAround) {
  WindowFixture fixture;
  fixture.settings.values[{"Shared", "Id_Utente"}] = " 7 ";
  fixture.Start();
  EXPECT_EQ(fixture.state().choice.ctlTestata1.idUtente, 7);
}

void ExpectEndWith(const std::string& user, const std::string& report) {
  WindowFixture fixture;
  fixture.settings.values[{"Shared", "Id_Utente"}] = user;
  fixture.Start();
  EXPECT_EQ(fixture.window.ended(), EndReason::kError);
  EXPECT_EQ(fixture.boxes.shown,
            (std::vector<BoxText>{{report, "Ordex", BoxIcon::kStop, BoxButtons::kOk}}));
  EXPECT_EQ(fixture.settings.saved, (Texts{"Shared/OrdexHandle=4711"}));
}

std::string NoUser(const std::string& value) {
  return "nelle impostazioni di \"Zelmo32\", sezione \"Shared\", il valore di \"Id_Utente\" è \"" +
         value +
         "\" e non il numero di un utente. Aprire Praxion e accedere, poi avviare di nuovo Ordex";
}

TEST(UserOfTheStart, ThatIsMissingEndsTheProgram) {
  ExpectEndWith("", "Errore di run-time '13': Tipo non corrispondente: " + NoUser(""));
}

TEST(UserOfTheStart, ThatIsNoNumberEndsTheProgram) {
  ExpectEndWith("ROSSI", "Errore di run-time '13': Tipo non corrispondente: " + NoUser("ROSSI"));
  ExpectEndWith("7.5", "Errore di run-time '13': Tipo non corrispondente: " + NoUser("7.5"));
}

TEST(UserOfTheStart, ThatIsTooLargeEndsTheProgram) {
  ExpectEndWith("2147483648", "Errore di run-time '6': Overflow: " + NoUser("2147483648"));
}

}  // namespace
}  // namespace ordex::testing
