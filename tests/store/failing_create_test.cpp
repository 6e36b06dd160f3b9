// Creating a case while the database refuses its Nth statement: what is told, and what stays.
#include <gtest/gtest.h>

#include <cstddef>
#include <ostream>
#include <string>
#include <vector>

#include "support/case_record_fixture.h"

namespace ordex::testing {
namespace {

// The statements of a create for a client that the registry does not know.
enum Step : std::size_t {
  kOpenCase = 1,
  kOpenPerson,
  kReadPerson,
  kAddPerson,
  kBegin,
  kOpenPosition,
  kReadPosition,
  kOpenPositionAgain,
  kReadPositionAgain,
  kAddCase,
  kOpenProfile,
  kReadProfile,
  kAddProfile,
  kCommit,
};

struct Outcome {
  bool succeeded = false;
  std::size_t boxes = 0;
  std::string persons;   // rows beside the fixed one
  std::string cases;     // likewise, with their clients
  std::string profiles;  // how many
  bool operator==(const Outcome&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
  return out << (outcome.succeeded ? "created" : "failed") << ", boxes " << outcome.boxes
             << ", persons " << outcome.persons << ", cases " << outcome.cases << ", profiles "
             << outcome.profiles;
}

Outcome CreateWithFailureAt(Step step, bool endsTransaction) {
  CaseRecordFixture record;
  FakeFailure failure;
  failure.endsTransaction = endsTransaction;
  record.office.connection().FailAt(step, failure);
  Outcome outcome;
  outcome.succeeded = record.Create();
  outcome.boxes = record.person.boxes.shown.size();
  outcome.persons = record.office.Row("SELECT COUNT(*) FROM Anagrafica WHERE ID_Ana > 1");
  outcome.cases = record.office.Row(
      "SELECT COUNT(*) || coalesce(' with client ' || max(ID_Cliente), '') FROM Pratica WHERE "
      "ID_Pra > 1");
  outcome.profiles = record.office.Row("SELECT COUNT(*) FROM PraOrdex");
  EXPECT_FALSE(record.office.connection().InTransaction());
  return outcome;
}

// The next tests name the statements by their places.
TEST(FailingCreate, HasTheseStatementsToFail) {
  CaseRecordFixture record;
  ASSERT_TRUE(record.Create());
  const std::string person =
      "SELECT * from Anagrafica where  LOWER(Cognome) = 'verdi' AND  LOWER(Nome) = 'anna'";
  const std::string position = "SELECT MAX(NumPos) AS PosMax FROM Pratica";
  const std::string profile = "SELECT * from PraOrdex where ID_PraRel = 2";
  const std::vector<std::string>& all = record.office.connection().statements();
  ASSERT_EQ(all.size(), kCommit);
  EXPECT_EQ(all[kOpenCase - 1], "PREPARE SELECT * FROM Pratica WHERE Id_Pra = 0");
  EXPECT_EQ(all[kOpenPerson - 1], "PREPARE " + person);
  EXPECT_EQ(all[kReadPerson - 1], "FETCH " + person);
  EXPECT_TRUE(all[kAddPerson - 1].starts_with("INSERT Anagrafica ("));
  EXPECT_EQ(all[kBegin - 1], "BEGIN");
  EXPECT_EQ(all[kOpenPosition - 1], "PREPARE " + position);
  EXPECT_EQ(all[kReadPosition - 1], "FETCH " + position);
  EXPECT_EQ(all[kOpenPositionAgain - 1], "PREPARE " + position);
  EXPECT_EQ(all[kReadPositionAgain - 1], "FETCH " + position);
  EXPECT_TRUE(all[kAddCase - 1].starts_with("INSERT Pratica ("));
  EXPECT_EQ(all[kOpenProfile - 1], "PREPARE " + profile);
  EXPECT_EQ(all[kReadProfile - 1], "FETCH " + profile);
  EXPECT_TRUE(all[kAddProfile - 1].starts_with("INSERT PraOrdex ("));
  EXPECT_EQ(all[kCommit - 1], "COMMIT");
}

TEST(FailingCreate, BeforeThePersonSearchWritesNothing) {
  EXPECT_EQ(CreateWithFailureAt(kOpenCase, false), (Outcome{false, 0, "0", "0", "0"}));
}

TEST(FailingCreate, InThePersonSearchIsShownAndTheCaseIsCreatedWithoutAClient) {
  const Outcome withoutClient = {true, 1, "0", "1 with client 0", "1"};
  EXPECT_EQ(CreateWithFailureAt(kOpenPerson, false), withoutClient);
  EXPECT_EQ(CreateWithFailureAt(kReadPerson, false), withoutClient);
  EXPECT_EQ(CreateWithFailureAt(kAddPerson, false), withoutClient);
}

TEST(FailingCreate, BeforeTheCaseRowKeepsThePersonAlone) {
  const Outcome personAlone = {false, 0, "1", "0", "0"};
  for (const Step step :
       {kBegin, kOpenPosition, kReadPosition, kOpenPositionAgain, kReadPositionAgain, kAddCase}) {
    EXPECT_EQ(CreateWithFailureAt(step, false), personAlone) << "statement " << step;
  }
}

TEST(FailingCreate, BehindTheCaseRowKeepsItAndCountsAsDone) {
  const Outcome withoutProfile = {true, 0, "1", "1 with client 2", "0"};
  for (const Step step : {kOpenProfile, kReadProfile, kAddProfile}) {
    EXPECT_EQ(CreateWithFailureAt(step, false), withoutProfile) << "statement " << step;
  }
}

TEST(FailingCreate, AtTheCommitLosesTheCaseAndFails) {
  EXPECT_EQ(CreateWithFailureAt(kCommit, false), (Outcome{false, 0, "1", "0", "0"}));
}

TEST(FailingCreate, WhoseTransactionTheEngineEndedFailsWithThePersonAlone) {
  const Outcome personAlone = {false, 0, "1", "0", "0"};
  for (const Step step : {kOpenPosition, kReadPosition, kOpenPositionAgain, kReadPositionAgain,
                          kAddCase, kOpenProfile, kReadProfile, kAddProfile, kCommit}) {
    EXPECT_EQ(CreateWithFailureAt(step, true), personAlone) << "statement " << step;
  }
}

TEST(FailingCreate, WithoutAStatementThatFailsWritesAll) {
  CaseRecordFixture record;
  EXPECT_TRUE(record.Create());
  EXPECT_EQ(record.office.Row("SELECT COUNT(*) FROM Pratica"), "2");
  EXPECT_EQ(record.office.Row("SELECT COUNT(*) FROM PraOrdex"), "1");
}

TEST(FailingCreate, TellsTheErrorToTheDiagnosticsAlone) {
  CaseRecordFixture record;
  record.office.connection().FailOn("INSERT Pratica");
  EXPECT_FALSE(record.Create());
  EXPECT_EQ(
      record.office.diagnostics.trapped,
      (std::vector<NotedError>{{"RegistraPratica", kDatabaseErrorNumber,
                                "Errore del database: errore chiesto dalla prova", std::nullopt}}));
  EXPECT_TRUE(record.person.boxes.shown.empty());
}

// The inner routine absorbs the error that ended the transaction; the outer one must still notice.
TEST(FailingCreate, WhoseTransactionEndedInsideTheAgendaFails) {
  CaseRecordFixture record;
  record.page.cDatiFasc.Add("12/03/2026", "DPUd");
  record.agenda.onTake = [&] { record.office.connection().Rollback(); };
  EXPECT_FALSE(record.Create());
  EXPECT_EQ(record.office.Row("SELECT COUNT(*) FROM Pratica"), "1");
}

}  // namespace
}  // namespace ordex::testing
