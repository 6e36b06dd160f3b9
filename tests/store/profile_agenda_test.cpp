// The tagged deadline rows of the review list, handed to the agenda.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/profile_fixture.h"

namespace ordex::testing {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* kTag = "Scadenza Termini";

TEST(ProfileDeadlines, GoIntoTheAgendaAsDateAndDescriptionInPageOrder) {
  ProfileFixture profile;
  profile.Row("Rito", "Ordinario", "");
  profile.Row("Lista testi", "20/02/2026", kTag);
  profile.Row("Materia", "Contratti", "");
  profile.Row("Note", "02/03/2026", kTag);
  profile.Write();
  EXPECT_EQ(profile.agenda.taken,
            (Texts{"scadenza 20/02/2026, Lista testi", "scadenza 02/03/2026, Note"}));
}

TEST(ProfileDeadlines, ComeBehindTheNextHearing) {
  ProfileFixture profile;
  profile.Value("12/03/2026", "DPUd");
  profile.Row("Note", "02/03/2026", kTag);
  profile.Write();
  EXPECT_EQ(profile.agenda.taken, (Texts{"udienza DPUd", "scadenza 02/03/2026, Note"}));
}

TEST(ProfileDeadlines, AreLeftOutWhileTheFlagOfTaggedRowsIsNotSet) {
  ProfileFixture profile;
  profile.Row("Note", "02/03/2026", kTag);
  profile.lstImport.hasTaggedRows = false;
  profile.Write();
  EXPECT_TRUE(profile.agenda.taken.empty());
}

TEST(ProfileDeadlines, ARowNamedTwiceIsHandedOverOnce) {
  ProfileFixture profile;
  profile.Row("Note", "02/03/2026", kTag);
  profile.lstImport.taggedRows = {1, 1};
  profile.Write();
  EXPECT_EQ(profile.agenda.taken, (Texts{"scadenza 02/03/2026, Note"}));
}

// After a second page the collection still names the rows of the first.
TEST(ProfileDeadlines, IndexesOfAnEarlierPageSwallowNone) {
  ProfileFixture profile;
  profile.Row("Rito", "Ordinario", "");
  profile.Row("Note", "02/03/2026", kTag);
  profile.Row("Repliche", "09/03/2026", kTag);
  profile.lstImport.taggedRows = {1, 9, 3, 2, 3};
  profile.Write();
  EXPECT_EQ(profile.agenda.taken,
            (Texts{"scadenza 09/03/2026, Repliche", "scadenza 02/03/2026, Note"}));
}

TEST(ProfileDeadlines, StoredIndexesNameTheRowsAlsoAfterASort) {
  ProfileFixture profile;
  profile.Row("Rito", "Ordinario", "");
  profile.Row("Note", "02/03/2026", kTag);
  profile.lstImport.order = {1, 0};
  profile.Write();
  EXPECT_EQ(profile.agenda.taken, (Texts{"scadenza 02/03/2026, Note"}));
}

TEST(ProfileDeadlines, AreLeftOutWhenTheHearingFails) {
  ProfileFixture profile;
  profile.Value("12/03/2026", "DPUd");
  profile.Row("Note", "02/03/2026", kTag);
  profile.agenda.onTake = [] { throw MakeError(ErrorNumber::kDatabase, "agenda"); };
  profile.Write();
  EXPECT_EQ(profile.agenda.taken, (Texts{"udienza DPUd"}));
}

}  // namespace
}  // namespace ordex::testing
