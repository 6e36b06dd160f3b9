// Which case an agenda entry goes to, and the text of its parties: the same for hearings and
// deadlines.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/agenda_fixture.h"

namespace ordex::testing {
namespace {

using Texts = std::vector<std::string>;

enum class Kind { kHearing, kDeadline };

class AgendaCaseTest : public ::testing::TestWithParam<Kind> {
 protected:
  // Writes the entry and returns the text of its parties.
  std::string Parties() {
    if (GetParam() == Kind::kHearing) {
      agenda_.Hearing("12/03/2026");
    } else {
      agenda_.Deadline("12/03/2026", "Note");
    }
    return agenda_.Entry("Parti");
  }
  void UpdateCase(const std::string& columns) {
    agenda_.office.Do("UPDATE Pratica SET " + columns + " WHERE NumeroRegGenerale = '1842/2025'");
  }

  AgendaFixture agenda_;
};

INSTANTIATE_TEST_SUITE_P(Both, AgendaCaseTest, ::testing::Values(Kind::kHearing, Kind::kDeadline),
                         [](const auto& test) {
                           return test.param == Kind::kHearing ? "Hearing" : "Deadline";
                         });

TEST_P(AgendaCaseTest, JoinsTheSurnamesOfClientAndCounterpart) {
  EXPECT_EQ(Parties(), "EDILIZIA VALLEBRUNA S.R.L. \\ IMMOBILIARE PONTEMIRTO S.P.A.");
}

TEST_P(AgendaCaseTest, LeavesTheFirstNamesOut) {
  UpdateCase("ID_Cliente = 4, ID_Controparte = 6");
  EXPECT_EQ(Parties(), "D'AMICO \\ BALDRACCHI");
}

TEST_P(AgendaCaseTest, TakesTheNameOfACounterpartThatIsNoRegisteredPerson) {
  UpdateCase("ID_Cliente = 4, ID_Controparte = 1, ControCognome = 'NERI UGO'");
  EXPECT_EQ(Parties(), "D'AMICO \\ NERI UGO");
}

TEST_P(AgendaCaseTest, IgnoresThatNameWhereTheCounterpartIsARegisteredPerson) {
  UpdateCase("ID_Cliente = 4, ID_Controparte = 6, ControCognome = 'NERI UGO'");
  EXPECT_EQ(Parties(), "D'AMICO \\ BALDRACCHI");
}

TEST_P(AgendaCaseTest, WithoutACounterpartHasTheClientAlone) {
  UpdateCase("ID_Cliente = 4, ID_Controparte = 1, ControCognome = ''");
  EXPECT_EQ(Parties(), "D'AMICO");
}

TEST_P(AgendaCaseTest, WithoutACounterpartAtAllHasTheClientAlone) {
  UpdateCase("ID_Cliente = 4, ID_Controparte = 1, ControCognome = NULL");
  EXPECT_EQ(Parties(), "D'AMICO");
}

TEST_P(AgendaCaseTest, WithoutAClientBeginsWithTheSeparator) {
  UpdateCase("ID_Cliente = 1, ID_Controparte = 6");
  EXPECT_EQ(Parties(), " \\ BALDRACCHI");
}

TEST_P(AgendaCaseTest, WithNeitherIsEmpty) {
  UpdateCase("ID_Cliente = 1, ID_Controparte = 1, ControCognome = ''");
  EXPECT_EQ(Parties(), "");
}

TEST_P(AgendaCaseTest, CutsEachSideAtThirtyCharacters) {
  agenda_.office.Do(
      "UPDATE Anagrafica SET Cognome = 'ÀBCDEFGHIJKLMNOPQRSTUVWXYZ1234567' WHERE ID_Ana = 2");
  UpdateCase("ID_Controparte = 1, ControCognome = 'zyxwvutsrqponmlkjihgfedcba9876543'");
  EXPECT_EQ(Parties(), "ÀBCDEFGHIJKLMNOPQRSTUVWXYZ1234 \\ zyxwvutsrqponmlkjihgfedcba9876");
}

TEST_P(AgendaCaseTest, KeepsSidesOfThirtyCharactersWhole) {
  const std::string thirty(30, 'A');
  UpdateCase("ID_Cliente = 1, ID_Controparte = 1, ControCognome = '" + thirty + "'");
  EXPECT_EQ(Parties(), " \\ " + thirty);
}

TEST_P(AgendaCaseTest, CutsASurnameThatHoldsACommaThere) {
  agenda_.office.Do("UPDATE Anagrafica SET Cognome = 'ROSSI, BIANCHI' WHERE ID_Ana = 2");
  UpdateCase("ID_Controparte = 1, ControCognome = ''");
  EXPECT_EQ(Parties(), "ROSSI");
}

TEST_P(AgendaCaseTest, TakesTheFirstOfTwoCasesWithTheSameNumber) {
  agenda_.page.szNumeroRG = "907/2024";
  Parties();
  EXPECT_EQ(agenda_.Entry("Codice_Pra, Codice_Cli, IdResponsabile, Responsabile"),
            "3|5|3|FERRIGATI NORA");
}

TEST_P(AgendaCaseTest, AnUnknownNumberWritesAndReportsNothing) {
  agenda_.page.szNumeroRG = "3056/2025";
  EXPECT_EQ(Parties(), "0 rows");
  EXPECT_TRUE(agenda_.office.diagnostics.trapped.empty());
}

TEST_P(AgendaCaseTest, ACaseWhoseAccountingUserIsGoneCountsAsUnknown) {
  UpdateCase("ID_Contab = 99");
  EXPECT_EQ(Parties(), "0 rows");
  EXPECT_TRUE(agenda_.office.diagnostics.trapped.empty());
}

TEST_P(AgendaCaseTest, AClientWhoIsNotInTheRegistryIsAnErrorThatIsAbsorbed) {
  UpdateCase("ID_Cliente = 0");
  EXPECT_EQ(Parties(), "0 rows");
  ASSERT_EQ(agenda_.office.diagnostics.trapped.size(), 1U);
  EXPECT_EQ(agenda_.office.diagnostics.trapped[0].number, kDatabaseErrorNumber);
}

TEST_P(AgendaCaseTest, AnErrorOfTheDatabaseIsAbsorbed) {
  agenda_.office.connection().FailOn("FETCH SELECT * from Pratica");
  EXPECT_EQ(Parties(), "0 rows");
  ASSERT_EQ(agenda_.office.diagnostics.trapped.size(), 1U);
  EXPECT_EQ(agenda_.office.diagnostics.trapped[0].routine,
            GetParam() == Kind::kHearing ? "ScriviUdienza" : "ScriviScadenza");
}

// What was written before in the same transaction is gone: the caller must hear of it.
TEST_P(AgendaCaseTest, AnErrorThatEndedTheCallersTransactionGoesOn) {
  FakeConnection& connection = agenda_.office.connection();
  FakeFailure deadlock;
  deadlock.endsTransaction = true;
  connection.FailOn("INSERT SCADENZE", deadlock);
  connection.Begin();
  EXPECT_EQ(ErrorNumberOf([this] { Parties(); }), kDatabaseErrorNumber);
}

}  // namespace
}  // namespace ordex::testing
