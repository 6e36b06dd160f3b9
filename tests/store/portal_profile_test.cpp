// The profile row of a case, and its last and next hearing.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/profile_fixture.h"

namespace ordex::testing {
namespace {

using Texts = std::vector<std::string>;

TEST(PortalProfile, IsLookedUpInTheseWords) {
  ProfileFixture profile;
  profile.Write(7);
  EXPECT_EQ(profile.office.diagnostics.sql, (Texts{"SELECT * from PraOrdex where ID_PraRel = 7"}));
}

TEST(PortalProfile, OfACaseWithoutOneIsAdded) {
  ProfileFixture profile;
  profile.Value("12/2026", "NumeroRegGenerale");
  profile.Value("Ordinario", "Rito");
  profile.Write(7);
  EXPECT_EQ(profile.Columns("ID_PraRel, NumeroRegGenerale, Rito, Ufficio, DUUd, DPUd, "
                            "DataAcquisizione"),
            "7|12/2026|Ordinario|NULL|NULL|NULL|20/02/2026");
}

TEST(PortalProfile, OfACaseThatHasOneIsRefreshed) {
  ProfileFixture profile;
  profile.office.Do(
      "INSERT INTO PraOrdex (ID_PraRel, Rito, DataAcquisizione) VALUES (7, 'Ordinario', "
      "'2025-01-01 00:00:00')");
  profile.Value("Semplificato", "Rito");
  profile.Write(7);
  EXPECT_EQ(profile.Columns("ID_PraRel, Rito, DataAcquisizione"), "7|Semplificato|20/02/2026");
}

TEST(PortalProfile, ColumnsThatThePageDoesNotHoldKeepTheirValues) {
  ProfileFixture profile;
  profile.office.Do(
      "INSERT INTO PraOrdex (ID_PraRel, Ufficio, Rito, DUUd, DPUd) VALUES (7, 'Tribunale', "
      "'Ordinario', '2025-01-02 10:00:00', '2025-03-04 11:00:00')");
  profile.Value("Semplificato", "Rito");
  profile.Write(7);
  EXPECT_EQ(profile.Columns("Ufficio, Rito, DUUd, DPUd"),
            "Tribunale|Semplificato|02/01/2025 10:00:00|04/03/2025 11:00:00");
}

TEST(PortalProfile, KeysThatAreNoColumnsAreIgnored) {
  ProfileFixture profile;
  profile.Value("ROSSI MARIO", "Attore");
  profile.Value("Avv. Uno", "DifAttore");
  profile.Value("Ordinario", "Rito");
  profile.Write(7);
  EXPECT_EQ(profile.Columns("ID_PraRel, Rito"), "7|Ordinario");
  EXPECT_TRUE(profile.office.diagnostics.trapped.empty());
}

TEST(PortalProfile, ColumnNamesMatchKeysInOtherLetterCase) {
  ProfileFixture profile;
  profile.Value("Ordinario", "RITO");
  profile.Write(7);
  EXPECT_EQ(profile.Columns("Rito"), "Ordinario");
}

TEST(PortalProfile, ThePageCannotWriteTheFirstTwoColumns) {
  ProfileFixture profile;
  profile.Value("900", "ID_PraOrdex");
  profile.Value("901", "ID_PraRel");
  profile.Write(7);
  EXPECT_EQ(profile.Columns("ID_PraOrdex, ID_PraRel"), "1|7");
}

TEST(PortalProfile, TheDayOfTheImportStandsWhateverThePageSays) {
  ProfileFixture profile;
  profile.Value("01/01/2020", "DataAcquisizione");
  profile.Write(7);
  EXPECT_EQ(profile.Columns("DataAcquisizione"), "20/02/2026");
}

TEST(PortalProfile, OfAnotherCaseIsLeftAlone) {
  ProfileFixture profile;
  profile.office.Do("INSERT INTO PraOrdex (ID_PraRel, Rito) VALUES (8, 'Ordinario')");
  profile.Value("Semplificato", "Rito");
  profile.Write(7);
  EXPECT_EQ(profile.office.Rows("SELECT ID_PraRel, Rito FROM PraOrdex ORDER BY ID_PraRel"),
            (Texts{"7|Semplificato", "8|Ordinario"}));
}

TEST(PortalProfile, LongValuesOfSeveralLinesAreKeptWhole) {
  ProfileFixture profile;
  const std::string value = std::string(5000, 'x') + "; \r\nl'altra";
  profile.Value(value, "FascicoliCollegati");
  profile.Write(7);
  EXPECT_EQ(profile.Columns("FascicoliCollegati"), value);
}

// --- hearings -----------------------------------------------------------------------------------

class LastHearing : public ::testing::TestWithParam<const char*> {};

// Whatever its day: today's date is compared with a text, and a date is always less than a text.
TEST_P(LastHearing, StaysTheLastOneAndLeavesNoNextOne) {
  ProfileFixture profile;
  profile.office.Do(
      "INSERT INTO PraOrdex (ID_PraRel, DUUd, DPUd) VALUES (7, '2024-01-01 00:00:00', "
      "'2025-03-04 11:00:00')");
  profile.Value(GetParam(), "DUUd");
  profile.Write(7);
  EXPECT_EQ(profile.Columns("DUUd, DPUd"), std::string(GetParam()) + ":00|NULL");
  EXPECT_TRUE(profile.agenda.taken.empty());
}

INSTANTIATE_TEST_SUITE_P(PastTodayAndToCome, LastHearing,
                         ::testing::Values("18/11/2025 10:15", "20/02/2026 10:15",
                                           "18/11/2030 10:15"));

TEST(PortalProfile, ANextHearingTakesTheLastOneAwayAndGoesIntoTheAgenda) {
  ProfileFixture profile;
  profile.office.Do("INSERT INTO PraOrdex (ID_PraRel, DUUd) VALUES (7, '2025-01-02 10:00:00')");
  profile.Value("12/03/2026 09:30", "DPUd");
  profile.Write(7);
  EXPECT_EQ(profile.Columns("DUUd, DPUd"), "NULL|12/03/2026 09:30:00");
  EXPECT_EQ(profile.agenda.taken, (Texts{"udienza DPUd"}));
}

TEST(PortalProfile, OfLastAndNextHearingTheNextOneAloneStays) {
  ProfileFixture profile;
  profile.Value("18/11/2025 10:15", "DUUd");
  profile.Value("12/03/2026 09:30", "DPUd");
  profile.Write(7);
  EXPECT_EQ(profile.Columns("DUUd, DPUd"), "NULL|12/03/2026 09:30:00");
  EXPECT_EQ(profile.agenda.taken, (Texts{"udienza DPUd"}));
}

TEST(PortalProfile, AnEmptyLastHearingLeavesTheNextOneAlone) {
  ProfileFixture profile;
  profile.office.Do(
      "INSERT INTO PraOrdex (ID_PraRel, DUUd, DPUd) VALUES (7, '2025-01-02 10:00:00', "
      "'2025-03-04 11:00:00')");
  profile.Value("", "DUUd");
  profile.Write(7);
  EXPECT_EQ(profile.Columns("DUUd, DPUd"), "NULL|04/03/2025 11:00:00");
  EXPECT_TRUE(profile.agenda.taken.empty());
}

TEST(PortalProfile, AnEmptyNextHearingStillTakesTheLastOneAway) {
  ProfileFixture profile;
  profile.Value("18/11/2025 10:15", "DUUd");
  profile.Value("", "DPUd");
  profile.Write(7);
  EXPECT_EQ(profile.Columns("DUUd, DPUd"), "NULL|NULL");
  EXPECT_EQ(profile.agenda.taken, (Texts{"udienza DPUd"}));
}

// --- failures -----------------------------------------------------------------------------------

TEST(PortalProfile, WithAHearingThatIsNoDateIsNotWrittenAndNothingIsSaid) {
  ProfileFixture profile;
  profile.Value("Ordinario", "Rito");
  profile.Value("da fissare", "DPUd");
  profile.Row("Note", "20/03/2026", "Scadenza Termini");
  profile.Write(7);
  EXPECT_EQ(profile.office.Row("SELECT COUNT(*) FROM PraOrdex"), "0");
  EXPECT_TRUE(profile.agenda.taken.empty());
  ASSERT_EQ(profile.office.diagnostics.trapped.size(), 1U);
  EXPECT_EQ(profile.office.diagnostics.trapped[0].routine, "RegistraDatiOrdex");
  EXPECT_EQ(profile.office.diagnostics.trapped[0].number, 13);
}

TEST(PortalProfile, ThatTheDatabaseRefusesPutsNothingIntoTheAgenda) {
  ProfileFixture profile;
  profile.Value("12/03/2026", "DPUd");
  profile.office.connection().FailOn("INSERT PraOrdex");
  profile.Write(7);
  EXPECT_TRUE(profile.agenda.taken.empty());
  EXPECT_EQ(profile.office.diagnostics.trapped.size(), 1U);
}

TEST(PortalProfile, StaysWrittenWhenTheAgendaFails) {
  ProfileFixture profile;
  profile.Value("12/03/2026", "DPUd");
  profile.agenda.onTake = [] { throw MakeError(ErrorNumber::kDatabase, "agenda"); };
  profile.Write(7);
  EXPECT_EQ(profile.Columns("ID_PraRel, DPUd"), "7|12/03/2026");
  EXPECT_EQ(profile.office.diagnostics.trapped.size(), 1U);
}

}  // namespace
}  // namespace ordex::testing
