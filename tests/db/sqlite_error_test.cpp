#include "store/db/sqlite_error.h"

#include <gtest/gtest.h>

#include <vector>

namespace ordex {
namespace {

TEST(SqliteErrorText, EveryKindOfFailureSaysWhatToDo) {
  struct Case {
    int code;
    const char* text;
  };
  const std::vector<Case> cases = {
      {SQLITE_BUSY, "il database è bloccato da un altro programma; riprovare tra poco"},
      {SQLITE_LOCKED, "il database è bloccato da un altro programma; riprovare tra poco"},
      {SQLITE_READONLY,
       "il database è di sola lettura; controllare i diritti di scrittura sul file e sulla sua "
       "cartella"},
      {SQLITE_FULL, "il disco è pieno; liberare spazio e riprovare"},
      {SQLITE_NOTADB, "il file non è un database; controllare il nome del file nelle impostazioni"},
      {SQLITE_CORRUPT, "il database è danneggiato; ripristinarlo da una copia di sicurezza"},
      {SQLITE_CONSTRAINT, "la riga non rispetta una regola della tabella (parole)"},
      {SQLITE_CANTOPEN,
       "il file del database, o un file di lavoro accanto ad esso, non si può aprire; controllare "
       "i diritti sul file e sulla sua cartella"},
      {SQLITE_IOERR,
       "errore di lettura o di scrittura del file del database; controllare il disco o la rete e "
       "riprovare"},
      {SQLITE_NOMEM, "memoria insufficiente; chiudere altri programmi e riprovare"},
      {SQLITE_ERROR, "il database ha rifiutato l'istruzione (parole)"},
  };
  for (const auto& each : cases) EXPECT_EQ(SqliteErrorText(each.code, "parole"), each.text);
}

TEST(SqliteErrorText, AnExtendedCodeReadsAsItsKind) {
  EXPECT_EQ(SqliteErrorText(SQLITE_BUSY_SNAPSHOT, ""), SqliteErrorText(SQLITE_BUSY, ""));
  EXPECT_EQ(SqliteErrorText(SQLITE_IOERR_WRITE, ""), SqliteErrorText(SQLITE_IOERR, ""));
  EXPECT_EQ(SqliteErrorText(SQLITE_READONLY_DIRECTORY, ""), SqliteErrorText(SQLITE_READONLY, ""));
}

}  // namespace
}  // namespace ordex
