// Names of registered persons.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "cases/nominativo.h"
#include "support/office_fixture.h"

namespace ordex::testing {
namespace {

TEST(LeggiNominativo, AsksInTheseWords) {
  Office office(Office::Data::kSample);
  LeggiNominativo(office.database(), 4);
  EXPECT_EQ(office.diagnostics.sql,
            (std::vector<std::string>{"SELECT Cognome,Nome From Anagrafica WHERE ID_Ana = 4"}));
}

TEST(LeggiNominativo, JoinsTrimmedSurnameAndFirstNameByAComma) {
  Office office;
  office.Do("INSERT INTO Anagrafica (ID_Ana, Cognome, Nome) VALUES (4, '  D''AMICO ', ' LUCA ')");
  EXPECT_EQ(LeggiNominativo(office.database(), 4), "D'AMICO,LUCA");
}

TEST(LeggiNominativo, AlwaysSuppliesTheComma) {
  Office office;
  office.Do("INSERT INTO Anagrafica (ID_Ana, Cognome, Nome) VALUES (4, 'OLMETO', NULL)");
  office.Do("INSERT INTO Anagrafica (ID_Ana, Cognome, Nome) VALUES (5, NULL, NULL)");
  EXPECT_EQ(LeggiNominativo(office.database(), 4), "OLMETO,");
  EXPECT_EQ(LeggiNominativo(office.database(), 5), ",");
}

TEST(LeggiNominativo, OfAPersonThatIsNotThereIsADatabaseError) {
  Office office;
  EXPECT_EQ(ErrorNumberOf([&] { LeggiNominativo(office.database(), 99); }), kDatabaseErrorNumber);
}

TEST(CognomeDaNominativo, IsThePartBeforeTheFirstComma) {
  EXPECT_EQ(CognomeDaNominativo("ROSSI,MARIO"), "ROSSI");
  EXPECT_EQ(CognomeDaNominativo("ROSSI, BIANCHI E C.,"), "ROSSI");
  EXPECT_EQ(CognomeDaNominativo(","), "");
}

TEST(CognomeDaNominativo, WithoutACommaIsASubscriptError) {
  EXPECT_EQ(ErrorNumberOf([] { CognomeDaNominativo("ROSSI"); }), 9);
}

}  // namespace
}  // namespace ordex::testing
