#include "store/db/sqlite_error.h"

#include "base/path_text.h"

namespace ordex {
namespace {

// The plain code stands in the lowest byte of an extended one.
constexpr int kPlainCode = 0xFF;

std::string WithEngineWords(std::string_view text, std::string_view words) {
  return std::string(text).append(" (").append(words).append(")");
}

}  // namespace

std::string SqliteErrorText(int code, std::string_view engineWords) {
  switch (code & kPlainCode) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return "il database è bloccato da un altro programma; riprovare tra poco";
    case SQLITE_READONLY:
      return "il database è di sola lettura; controllare i diritti di scrittura sul file e sulla "
             "sua cartella";
    case SQLITE_FULL:
      return "il disco è pieno; liberare spazio e riprovare";
    case SQLITE_NOTADB:
      return "il file non è un database; controllare il nome del file nelle impostazioni";
    case SQLITE_CORRUPT:
      return "il database è danneggiato; ripristinarlo da una copia di sicurezza";
    case SQLITE_CONSTRAINT:
      return WithEngineWords("la riga non rispetta una regola della tabella", engineWords);
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
    case SQLITE_AUTH:
      return "il file del database, o un file di lavoro accanto ad esso, non si può aprire; "
             "controllare i diritti sul file e sulla sua cartella";
    case SQLITE_IOERR:
      return "errore di lettura o di scrittura del file del database; controllare il disco o la "
             "rete e riprovare";
    case SQLITE_NOMEM:
      return "memoria insufficiente; chiudere altri programmi e riprovare";
    default:
      return WithEngineWords("il database ha rifiutato l'istruzione", engineWords);
  }
}

RunTimeError SqliteError(sqlite3* database, int code) {
  return MakeError(ErrorNumber::kDatabase, SqliteErrorText(code, sqlite3_errmsg(database)));
}

RunTimeError SqliteFileError(const std::filesystem::path& file, std::string_view problem) {
  return MakeError(ErrorNumber::kDatabase, "\"" + TextOf(file) + "\": " + std::string(problem));
}

}  // namespace ordex
