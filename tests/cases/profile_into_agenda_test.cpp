// A case written together with its hearings and deadlines.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "cases/hearings.h"
#include "support/case_record_fixture.h"

namespace ordex::testing {
namespace {

using Texts = std::vector<std::string>;

struct WholeRecord : CaseRecordFixture {
  WholeRecord() : CaseRecordFixture(Office::Data::kSample) {
    page.cDatiFasc.Add("18/11/2025 10:15", "DUUd");
    page.cDatiFasc.Add("12/03/2026 09:30", "DPUd");
    for (const char* label : {"Note", "Repliche"}) {
      lstImport.rows.push_back({"", {label, "20/03/2026", ""}, "Scadenza Termini"});
      lstImport.taggedRows.push_back(lstImport.rows.size());
    }
    lstImport.hasTaggedRows = true;
  }

  bool WriteAll(std::int32_t idPra) {
    const Database database = office.database();
    HearingWriter writer(database, page, clock);
    return RegistraPratica({database, page, lstImport, choice, person.bCollegareAna, person.dialog,
                            person.boxes, clock, writer, progress},
                           idPra);
  }
  Texts Agenda() {
    return office.Rows(
        "SELECT Scadenza, Data_End, Codice_Pra, Parti FROM SCADENZE ORDER BY ID_Scadenza");
  }
};

TEST(ProfileIntoAgenda, ANewCaseGetsItsNextHearingAndItsDeadlines) {
  WholeRecord record;
  ASSERT_TRUE(record.WriteAll(0));
  EXPECT_EQ(record.Agenda(), (Texts{"UDIENZA|12/03/2026|11|VERDI \\ BIANCHI S.R.L.",
                                    "Note|20/03/2026|11|VERDI \\ BIANCHI S.R.L.",
                                    "Repliche|20/03/2026|11|VERDI \\ BIANCHI S.R.L."}));
}

TEST(ProfileIntoAgenda, TheSameProfileTwiceLeavesTheSameRows) {
  WholeRecord record;
  ASSERT_TRUE(record.WriteAll(2));
  const Texts once = record.Agenda();
  ASSERT_TRUE(record.WriteAll(2));
  EXPECT_EQ(once.size(), 3U);
  EXPECT_EQ(record.Agenda(), once);
  EXPECT_EQ(record.office.Row("SELECT COUNT(*) FROM PraOrdex"), "1");
}

TEST(ProfileIntoAgenda, AHearingThatFailsCostsNeitherTheDeadlinesNorTheCase) {
  WholeRecord record;
  record.office.connection().FailOn("INSERT SCADENZE");
  EXPECT_TRUE(record.WriteAll(2));
  EXPECT_EQ(record.office.Rows("SELECT Scadenza FROM SCADENZE ORDER BY ID_Scadenza"),
            (Texts{"Note", "Repliche"}));
  EXPECT_EQ(record.office.Row("SELECT NumeroRegGenerale FROM Pratica WHERE ID_Pra = 2"), "77/2026");
}

TEST(ProfileIntoAgenda, AllIsLostAndTheWriteFailsWhereTheEngineEndsTheTransaction) {
  WholeRecord record;
  FakeFailure deadlock;
  deadlock.endsTransaction = true;
  record.office.connection().FailOn("INSERT SCADENZE", deadlock);
  EXPECT_FALSE(record.WriteAll(2));
  EXPECT_TRUE(record.Agenda().empty());
  EXPECT_EQ(record.office.Row("SELECT COUNT(*) FROM PraOrdex"), "0");
  EXPECT_EQ(record.office.Row("SELECT NumeroRegGenerale FROM Pratica WHERE ID_Pra = 2"),
            "1842/2025");
}

TEST(ProfileIntoAgenda, IsWrittenInTheOneTransactionOfTheCase) {
  WholeRecord record;
  ASSERT_TRUE(record.WriteAll(2));
  EXPECT_EQ(record.office.connection().Count("BEGIN"), 1U);
  EXPECT_EQ(record.office.connection().Count("COMMIT"), 1U);
  EXPECT_EQ(record.office.connection().statements().back(), "COMMIT");
}

}  // namespace
}  // namespace ordex::testing
