// A case that exists, refreshed from a page.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/case_record_fixture.h"

namespace ordex::testing {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* kPageColumns =
    "SELECT NumeroRegGenerale, Sezione, Istruttore, Oggetto FROM Pratica WHERE ID_Pra = 3";

TEST(UpdateCase, RefreshesWhatThePageCarries) {
  CaseRecordFixture record(Office::Data::kSample);
  ASSERT_TRUE(record.Write(3));
  EXPECT_EQ(record.office.Row(kPageColumns), "77/2026|Prima Civile|Dott. Neri|Locazione");
}

TEST(UpdateCase, TouchesNoOtherColumnAndNoOtherCase) {
  CaseRecordFixture record(Office::Data::kSample);
  const std::string others =
      "SELECT ID_Pra, Posizione, ID_Cliente, ID_Controparte, ID_Acp, DataInizio, ID_Cla, "
      "ID_FatturareA, NumPos, ID_Riservata, Fk_Gruppo, ID_Corrispondente, Cambio, Valuta, "
      "Rilevanza, ControCognome, AcpCognome, ID_Contab, IsPenale FROM Pratica ORDER BY ID_Pra";
  const std::string otherCases =
      "SELECT NumeroRegGenerale, Sezione, Istruttore, Oggetto FROM Pratica WHERE ID_Pra <> 3 ORDER "
      "BY ID_Pra";
  const Texts columnsBefore = record.office.Rows(others);
  const Texts casesBefore = record.office.Rows(otherCases);
  ASSERT_TRUE(record.Write(3));
  EXPECT_EQ(record.office.Rows(others), columnsBefore);
  EXPECT_EQ(record.office.Rows(otherCases), casesBefore);
}

TEST(UpdateCase, LooksForNoPersonAndComputesNoPosition) {
  CaseRecordFixture record(Office::Data::kSample);
  ASSERT_TRUE(record.Write(3));
  EXPECT_EQ(record.office.diagnostics.sql, (Texts{"SELECT * FROM Pratica WHERE Id_Pra = 3",
                                                  "SELECT * from PraOrdex where ID_PraRel = 3"}));
}

TEST(UpdateCase, KeepsSectionJudgeAndSubjectThatThePageDoesNotHold) {
  CaseRecordFixture record(Office::Data::kSample);
  for (const char* key : {"Sezione", "Istruttore", "Oggetto"}) record.page.cDatiFasc.Remove(key);
  ASSERT_TRUE(record.Write(3));
  EXPECT_EQ(record.office.Row(kPageColumns),
            "77/2026|Prima Civile|Dott. Grimaldesi Nicolò|Cortile comune");
}

TEST(UpdateCase, FromAnotherPageKindWritesThePagesNumberAndNoSection) {
  CaseRecordFixture record(Office::Data::kSample);
  record.page.pageAtOpening = kPageJusticeOfThePeace;
  record.page.szNumeroRG = "9/2026";
  record.page.cDatiFasc = KeyedTable{};
  record.page.cDatiFasc.Add("Settima", "Sezione");
  ASSERT_TRUE(record.Write(3));
  EXPECT_EQ(record.office.Row(kPageColumns),
            "9/2026|Prima Civile|Dott. Grimaldesi Nicolò|Cortile comune");
}

TEST(UpdateCase, ThatIsGoneFailsInSilenceAndWritesNothing) {
  CaseRecordFixture record(Office::Data::kSample);
  EXPECT_FALSE(record.Write(99));
  EXPECT_EQ(record.office.Row("SELECT COUNT(*) FROM PraOrdex"), "0");
  EXPECT_EQ(record.office.Row("SELECT COUNT(*) FROM Pratica"), "10");
  EXPECT_TRUE(record.person.boxes.shown.empty());
}

TEST(UpdateCase, WritesInOneTransaction) {
  CaseRecordFixture record(Office::Data::kSample);
  ASSERT_TRUE(record.Write(3));
  EXPECT_EQ(record.office.connection().Count("BEGIN"), 1U);
  EXPECT_EQ(record.office.connection().Count("COMMIT"), 1U);
}

TEST(UpdateCase, KeepsTheCaseRowWhenTheProfileCannotBeWritten) {
  CaseRecordFixture record(Office::Data::kSample);
  record.office.connection().FailOn("INSERT PraOrdex");
  EXPECT_TRUE(record.Write(3));
  EXPECT_EQ(record.office.Row(kPageColumns), "77/2026|Prima Civile|Dott. Neri|Locazione");
  EXPECT_EQ(record.office.Row("SELECT COUNT(*) FROM PraOrdex"), "0");
}

TEST(UpdateCase, WhoseTransactionTheEngineEndedFailsAndChangesNothing) {
  CaseRecordFixture record(Office::Data::kSample);
  FakeFailure deadlock;
  deadlock.endsTransaction = true;
  record.office.connection().FailOn("INSERT PraOrdex", deadlock);
  EXPECT_FALSE(record.Write(3));
  EXPECT_EQ(record.office.Row(kPageColumns),
            "907/2024|Prima Civile|Dott. Grimaldesi Nicolò|Cortile comune");
}

TEST(UpdateCase, WithTheSameValuesWritesNoCaseRow) {
  CaseRecordFixture record(Office::Data::kSample);
  ASSERT_TRUE(record.Write(3));
  record.office.connection().Forget();
  ASSERT_TRUE(record.Write(3));
  EXPECT_EQ(record.office.connection().Count("UPDATE Pratica"), 0U);
}

}  // namespace
}  // namespace ordex::testing
