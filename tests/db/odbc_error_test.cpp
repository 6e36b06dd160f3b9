#include "store/db/odbc_error.h"

#include <gtest/gtest.h>

#include <vector>

#include "store/db/odbc_link.h"

namespace ordex {
namespace {

using Records = std::vector<OdbcDiagnostic>;

std::string Told(const OdbcDiagnostic& record) {
  return SqlServerErrorText(Records{record});
}

TEST(SqlServerErrorText, EveryKindOfFailureSaysWhatToDo) {
  struct Case {
    OdbcDiagnostic record;
    const char* text;
  };
  const std::vector<Case> cases = {
      {{"08S01", 10054, "TCP Provider: chiusa"},
       "la connessione con il server del database si è interrotta; controllare la rete e il "
       "server, poi riavviare il programma (TCP Provider: chiusa)"},
      {{"HY000", 20006, "Write to the server failed"},
       "la connessione con il server del database si è interrotta; controllare la rete e il "
       "server, poi riavviare il programma (Write to the server failed)"},
      {{"40001", 1205, "deadlock"},
       "il database ha annullato l'operazione perché un altro programma bloccava gli stessi dati; "
       "ripetere l'operazione"},
      {{"HY000", 1205, "deadlock"},
       "il database ha annullato l'operazione perché un altro programma bloccava gli stessi dati; "
       "ripetere l'operazione"},
      {{"HY000", 1222, "Lock request time out period exceeded."},
       "i dati sono bloccati da un altro programma; riprovare tra poco"},
      {{"HYT00", 0, "Query timeout expired"},
       "il server del database non ha risposto in tempo; riprovare tra poco"},
      {{"42000", 229, "The INSERT permission was denied"},
       "l'utente del database non ha i diritti necessari; chiederli a chi amministra il server "
       "(The INSERT permission was denied)"},
      {{"25000", 3906, "read-only"},
       "il database è di sola lettura; avvertire chi amministra il server (read-only)"},
      {{"22001", 8152, "String or binary data would be truncated."},
       "un valore è troppo lungo o troppo grande per la sua colonna (String or binary data would "
       "be truncated.)"},
      {{"42000", 2628, "String or binary data would be truncated in table 'SCADENZE'"},
       "un valore è troppo lungo o troppo grande per la sua colonna (String or binary data would "
       "be truncated in table 'SCADENZE')"},
      {{"42S22", 207, "Invalid column name 'Ora'."},
       "una colonna non esiste in questo database; \"ordex-console db test\" elenca quelle che "
       "mancano (Invalid column name 'Ora'.)"},
      {{"42S02", 208, "Invalid object name 'PraOrdex'."},
       "una tabella non esiste in questo database; \"ordex-console db test\" elenca quelle che "
       "mancano (Invalid object name 'PraOrdex'.)"},
      {{"23000", 515, "Cannot insert the value NULL"},
       "la riga non rispetta una regola della tabella (Cannot insert the value NULL)"},
      {{"HY000", 9002, "The transaction log is full"},
       "lo spazio del database è esaurito; avvertire chi amministra il server (The transaction log "
       "is full)"},
      {{"22007", 241, "Conversion failed"},
       "un valore non si può convertire nel tipo della colonna (Conversion failed)"},
      {{"42000", 102, "Incorrect syntax"},
       "il database ha rifiutato l'istruzione (Incorrect syntax)"},
  };
  for (const Case& each : cases) EXPECT_EQ(Told(each.record), each.text) << each.record.native;
}

TEST(SqlServerErrorText, AllErrorsAreToldOnceAndWarningsAreLeftOut) {
  EXPECT_EQ(SqlServerErrorText(Records{{"01000", 3621, "The statement has been terminated."},
                                       {"42000", 102, "Uno."},
                                       {"42000", 156, "Due."},
                                       {"42000", 102, "Uno."}}),
            "il database ha rifiutato l'istruzione (Uno. Due.)");
}

TEST(SqlServerErrorText, WithoutAnyRecordSomethingIsToldAllTheSame) {
  EXPECT_EQ(SqlServerErrorText(Records{}), "il database ha rifiutato l'istruzione");
}

TEST(OdbcDiagnostics, AWarningIsNoError) {
  EXPECT_FALSE(HoldsError(Records{{"01000", 5701, "Changed database context"}}));
  EXPECT_TRUE(HoldsError(Records{{"01000", 0, "x"}, {"22001", 8152, "y"}}));
}

TEST(OdbcDiagnostics, WhatEndsATransactionIsRecognised) {
  EXPECT_TRUE(EndedTransaction(Records{{"40001", 1205, "deadlock"}}));
  EXPECT_TRUE(EndedTransaction(Records{{"37000", 1205, "deadlock"}}));
  EXPECT_FALSE(EndedTransaction(Records{{"HY000", 1222, "lock time out"}}));
  EXPECT_TRUE(LostConnection(Records{{"08S01", 0, "x"}}));
  EXPECT_TRUE(LostConnection(Records{{"HY000", 20047, "DBPROCESS is dead"}}));
  EXPECT_TRUE(LostConnection(Records{{"01000", 20017, "Unexpected EOF from the server"}}));
  EXPECT_FALSE(LostConnection(Records{{"42000", 207, "x"}}));
}

TEST(ConnectErrorText, EveryKindOfFailureSaysWhatToDo) {
  const auto told = [](const OdbcDiagnostic& record) { return ConnectErrorText(Records{record}); };
  EXPECT_EQ(told({"IM002", 0, "Data source name not found"}),
            "il driver ODBC non è installato o non si può caricare (Data source name not found)");
  EXPECT_EQ(told({"28000", 18456, "Login failed for user 'u'."}),
            "il server ha rifiutato l'accesso; controllare l'utente e la password, o i diritti "
            "dell'utente di Windows (Login failed for user 'u'.)");
  EXPECT_EQ(told({"42000", 4060, "Cannot open database"}),
            "il database non esiste sul server, o l'utente non può aprirlo (Cannot open database)");
  EXPECT_EQ(told({"HYT00", 0, "Login timeout expired"}),
            "il server non ha risposto in tempo; controllare il nome del server e la rete");
  EXPECT_EQ(told({"08001", 53, "Named Pipes Provider"}),
            "il server non si raggiunge; controllare il nome del server, la rete e che SQL Server "
            "sia in funzione (Named Pipes Provider)");
}

TEST(WithoutPassword, WordsThatHoldThePasswordAreNotToldAndTheRestIs) {
  const Records records = {{"28000", 18456, "PWD=segreto;"}, {"42S02", 208, "Pratica"}};
  EXPECT_EQ(ConnectErrorText(WithoutPassword(records, "segreto")),
            "il server ha rifiutato l'accesso; controllare l'utente e la password, o i diritti "
            "dell'utente di Windows (Pratica)");
  EXPECT_EQ(WithoutPassword(records, "").front().words, "PWD=segreto;");
}

}  // namespace
}  // namespace ordex
