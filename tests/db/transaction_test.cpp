#include "store/db/transaction.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "support/db_office.h"
#include "support/db_raised.h"
#include "support/fake_connection.h"

namespace ordex {
namespace {

using testing::ElementsAre;

class TransactionTest : public testing::Test {
 protected:
  Database database() { return {fake_, office_.diagnostics()}; }

  void AddEvent() {
    fake_.Insert("EventiPraOrdex", std::vector<NamedValue>{{"Progressivo", std::int64_t{1}}});
  }
  std::int64_t Events() {
    return std::get<std::int64_t>(office_.One("SELECT COUNT(*) FROM EventiPraOrdex"));
  }
  FakeFailure DiskFull() { return {MakeError(ErrorNumber::kDatabase, "disco pieno"), true}; }

  DbOffice office_;
  FakeConnection fake_{office_.connection()};
};

const DbRaised kLost = DbError(
    "il database ha annullato da sé l'operazione in corso: nulla di quanto era stato scritto è "
    "rimasto; ripetere l'operazione");

TEST_F(TransactionTest, ABodyThatEndsWellIsCommitted) {
  InTransaction(database(), [&] {
    EXPECT_TRUE(fake_.InTransaction());
    AddEvent();
  });
  EXPECT_FALSE(fake_.InTransaction());
  EXPECT_EQ(Events(), 1);
  EXPECT_THAT(fake_.statements(),
              ElementsAre("BEGIN", "INSERT EventiPraOrdex (Progressivo)", "COMMIT"));
}

TEST_F(TransactionTest, WhatWasWrittenBeforeAnErrorStaysAndTheErrorGoesOn) {
  EXPECT_EQ(DbRaisedBy([&] {
              InTransaction(database(), [&] {
                AddEvent();
                throw MakeError(ErrorNumber::kTypeMismatch, "x");
              });
            }),
            (DbRaised{13, "Tipo non corrispondente: x"}));
  EXPECT_EQ(Events(), 1);
  EXPECT_FALSE(fake_.InTransaction());
}

TEST_F(TransactionTest, AnyOtherExceptionRollsBack) {
  EXPECT_THROW(InTransaction(database(),
                             [&] {
                               AddEvent();
                               throw std::logic_error("x");
                             }),
               std::logic_error);
  EXPECT_EQ(Events(), 0);
  EXPECT_FALSE(fake_.InTransaction());
}

TEST_F(TransactionTest, ATransactionThatCannotBeginDoesNotRunTheBody) {
  fake_.FailOn("BEGIN");
  bool ran = false;
  EXPECT_EQ(DbRaisedBy([&] { InTransaction(database(), [&] { ran = true; }); }).number,
            kDatabaseNumber);
  EXPECT_FALSE(ran);
}

TEST_F(TransactionTest, ACommitThatFailsLeavesNothingAndIsTheErrorThatGoesOn) {
  fake_.FailOn("COMMIT", {MakeError(ErrorNumber::kDatabase, "bloccato"), false});
  EXPECT_EQ(DbRaisedBy([&] { InTransaction(database(), [&] { AddEvent(); }); }),
            DbError("bloccato"));
  EXPECT_EQ(Events(), 0);
  EXPECT_FALSE(fake_.InTransaction());
}

TEST_F(TransactionTest, ACommitThatFailsAfterAnErrorIsTheErrorThatGoesOn) {
  fake_.FailOn("COMMIT", {MakeError(ErrorNumber::kDatabase, "bloccato"), false});
  EXPECT_EQ(DbRaisedBy([&] {
              InTransaction(database(), [&] {
                AddEvent();
                throw MakeError(ErrorNumber::kTypeMismatch);
              });
            }),
            DbError("bloccato"));
  EXPECT_EQ(Events(), 0);
}

TEST_F(TransactionTest, AnErrorWithWhichTheEngineEndedTheTransactionGoesOnAndNothingStays) {
  fake_.FailAt(3, DiskFull());
  EXPECT_EQ(DbRaisedBy([&] {
              InTransaction(database(), [&] {
                AddEvent();
                AddEvent();
              });
            }),
            DbError("disco pieno"));
  EXPECT_EQ(Events(), 0);
  EXPECT_EQ(fake_.Count("COMMIT"), 0U);
}

TEST_F(TransactionTest, ABodyThatGoesOnAfterTheEngineEndedTheTransactionIsAnError) {
  fake_.FailAt(3, DiskFull());
  EXPECT_EQ(DbRaisedBy([&] {
              InTransaction(database(), [&] {
                AddEvent();
                EXPECT_EQ(DbRaisedBy([&] { AddEvent(); }), DbError("disco pieno"));
              });
            }),
            kLost);
  EXPECT_EQ(fake_.Count("COMMIT"), 0U);
}

TEST_F(TransactionTest, AnUnrelatedErrorAfterTheEngineEndedTheTransactionTellsOfTheLoss) {
  fake_.FailAt(2, DiskFull());
  EXPECT_EQ(DbRaisedBy([&] {
              InTransaction(database(), [&] {
                EXPECT_EQ(DbRaisedBy([&] { AddEvent(); }), DbError("disco pieno"));
                throw MakeError(ErrorNumber::kTypeMismatch);
              });
            }),
            (DbRaised{kDatabaseNumber, kLost.description + " (Tipo non corrispondente)"}));
}

TEST_F(TransactionTest, TheRealEngineEndingATransactionIsSeen) {
  office_.connection().Execute(
      "create table Unica (ID INTEGER PRIMARY KEY, A INT UNIQUE ON "
      "CONFLICT ROLLBACK)");
  const std::vector<NamedValue> values = {{"A", std::int64_t{1}}};
  const DbRaised raised = DbRaisedBy([&] {
    InTransaction(database(), [&] {
      AddEvent();
      TrapErrors(database(), "Esterna", [&] {
        TrapErrors(database(), "Interna", [&] {
          fake_.Insert("Unica", values);
          fake_.Insert("Unica", values);
        });
        ADD_FAILURE() << "the error was absorbed";
      });
    });
  });
  EXPECT_EQ(raised.number, kDatabaseNumber);
  EXPECT_EQ(raised, DbError("la riga non rispetta una regola della tabella (UNIQUE constraint "
                            "failed: Unica.A)"));
  EXPECT_TRUE(office_.diagnostics().trapped.empty());
  EXPECT_EQ(Events(), 0);
}

// --- absorbing errors ---------------------------------------------------------------------------

TEST_F(TransactionTest, ARoutineThatEndsWellIsToldSo) {
  EXPECT_TRUE(TrapErrors(database(), "RegistraEvento", [&] { AddEvent(); }));
  EXPECT_TRUE(office_.diagnostics().trapped.empty());
  EXPECT_EQ(Events(), 1);
}

TEST_F(TransactionTest, AnAbsorbedErrorIsToldUnderTheRoutinesName) {
  EXPECT_FALSE(TrapErrors(database(), "RegistraEvento",
                          [] { throw MakeError(ErrorNumber::kTypeMismatch, "x"); }));
  EXPECT_THAT(office_.diagnostics().trapped, ElementsAre(DbDiagnostics::TrappedError{
                                                 "RegistraEvento", "Tipo non corrispondente: x"}));
}

TEST_F(TransactionTest, AnErrorInsideATransactionThatStillStandsIsAbsorbed) {
  InTransaction(database(), [&] {
    AddEvent();
    EXPECT_FALSE(
        TrapErrors(database(), "ScriviUdienza", [] { throw MakeError(ErrorNumber::kMissingKey); }));
    AddEvent();
  });
  EXPECT_EQ(Events(), 2);
}

TEST_F(TransactionTest, AnErrorWithWhichTheTransactionWasLostIsNotAbsorbed) {
  fake_.FailOn("INSERT", DiskFull());
  EXPECT_EQ(DbRaisedBy([&] {
              InTransaction(database(), [&] {
                TrapErrors(database(), "ScriviUdienza", [&] { AddEvent(); });
                ADD_FAILURE() << "the error was absorbed";
              });
            }),
            DbError("disco pieno"));
  EXPECT_TRUE(office_.diagnostics().trapped.empty());
}

TEST_F(TransactionTest, OutsideATransactionEveryRunTimeErrorIsAbsorbed) {
  fake_.FailOn("INSERT", DiskFull());
  EXPECT_FALSE(TrapErrors(database(), "RegistraEvento", [&] { AddEvent(); }));
  EXPECT_EQ(office_.diagnostics().trapped.size(), 1U);
}

TEST_F(TransactionTest, AnExceptionThatIsNoRunTimeErrorIsNotAbsorbed) {
  EXPECT_THROW(TrapErrors(database(), "RegistraEvento", [] { throw std::logic_error("x"); }),
               std::logic_error);
}

}  // namespace
}  // namespace ordex
