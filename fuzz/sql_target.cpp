// The SQL dialect: cutting, the rule of one SELECT, rewriting, and what the engine makes of it.
//
// The input: a mode, then a text. In mode 0 the text is SQL as it stands. In the other modes it is
// a value that a page might carry, put into the routines' own look-ups.
#include <sqlite3.h>

#include <string>
#include <vector>

#include "base/error.h"
#include "base/text.h"
#include "store/db/dialect_sqlite.h"
#include "store/db/one_select.h"
#include "store/db/sql_text.h"
#include "store/db/sql_tokens.h"
#include "store/db/sqlite_connection.h"
#include "store/db/sqlite_create.h"
#include "support/folder.h"

namespace ordex::fuzz {
namespace {

class Office {
 public:
  Office() {
    CreateSqliteDatabase(folder_.path() / "office.db", true);
    connection_ = OpenSqlite(folder_.path() / "office.db");
    // For what the engine itself thinks of a text.
    sqlite3_open((folder_.path() / "office.db").c_str(), &plain_);
    state_ = State();
  }
  ~Office() { sqlite3_close_v2(plain_); }
  Office(const Office&) = delete;
  Office& operator=(const Office&) = delete;

  Connection& connection() { return *connection_; }

  void RequireUntouched() {
    Require(State() == state_, "a look-up changes nothing");
    Require(!connection_->InTransaction(), "a look-up opens no transaction");
  }

 private:
  // The file's own counters: of its changes and of its tables' changes.
  std::string State() {
    std::string state;
    for (const char* pragma : {"PRAGMA data_version", "PRAGMA schema_version"}) {
      sqlite3_exec(
          plain_, pragma,
          [](void* out, int, char** values, char**) {
            static_cast<std::string*>(out)->append(values[0]).append(";");
            return 0;
          },
          &state, nullptr);
    }
    return state;
  }

  Folder folder_;
  std::unique_ptr<Connection> connection_;
  sqlite3* plain_ = nullptr;
  std::string state_;
};

std::string Joined(const std::vector<Token>& tokens) {
  std::string text;
  for (const Token& token : tokens) text.append(token.text);
  return text;
}

// The literals of a text, as they are meant.
std::vector<std::string> Literals(const std::vector<Token>& tokens) {
  std::vector<std::string> literals;
  for (const Token& token : tokens) {
    const std::string_view inside =
        token.text.size() < 2 ? std::string_view{} : token.text.substr(1, token.text.size() - 2);
    if (token.kind == TokenKind::kText) literals.push_back(ReplaceAll(inside, "''", "'"));
    if (token.kind == TokenKind::kQuoted) literals.push_back(ReplaceAll(inside, "\"\"", "\""));
  }
  return literals;
}

class NoCatalog final : public TableCatalog {
 public:
  bool IsBitColumn(std::span<const std::string>, std::string_view) override { return false; }
};

// Without bits and dates, rewriting keeps every literal as it is meant.
void CheckRewriting(const std::vector<Token>& tokens) {
  NoCatalog catalog;
  for (const Token& token : tokens) {
    const bool converts = token.kind == TokenKind::kDate ||
                          (token.kind == TokenKind::kWord && Lower(token.text) == "convert");
    if (converts) return;
  }
  const std::string rewritten = RewriteForSqlite(tokens, catalog);
  Require(Literals(Tokenize(rewritten)) == Literals(tokens), "no literal is changed");
}

void Prepare(Office& office, std::string_view sql) {
  const std::vector<Token> tokens = Tokenize(sql);
  Require(Joined(tokens) == sql, "tokens joined are the text");
  try {
    RequireOneSelect(tokens);
    CheckRewriting(tokens);
    office.connection().Prepare(sql)->Columns();
  } catch (const RunTimeError& error) {
    Require(!error.description().empty(), "an error says what is wrong");
  }
  office.RequireUntouched();
}

// The look-ups that carry a page's text, run to their end.
void LookUp(Office& office, std::size_t mode, std::string_view value) {
  SqlText sql;
  if (mode == 1) {
    sql.Append("Select ID_Pra from Pratica where NumeroRegGenerale = ").AppendUndoubled(value);
  } else if (mode == 2) {
    sql.Append("SELECT * from Anagrafica where  LOWER(Cognome) = " +
               FormattaStringaSql(Lower(value)) + " AND  Nome IS NULL");
  } else {
    sql.Append(
        "SELECT * from SCADENZE where  Data_End =#03/12/2026# and Codice_Pra = 1 and Parti = "
        "\"" +
        ReplaceAll(value, "\"", "\"\"") + "\" and ucase(Scadenza) = \"X\"");
  }
  if (!sql.HoldsTogether()) return;
  const std::vector<Token> tokens = Tokenize(sql.text());
  const std::size_t count = mode == 3 ? 2 : 1;
  const std::vector<std::string> literals = Literals(tokens);
  Require(literals.size() == count, "a value is one literal");
  Require(literals[0] == (mode == 2 ? Lower(value) : std::string(value)), "and the value itself");
  try {
    office.connection().Prepare(sql.text())->FetchAll();
  } catch (const RunTimeError& error) {
    Require(Contains(sql.text(), std::string_view("\0", 1)),
            "a look-up only fails over a NUL: " + error.description());
  }
  office.RequireUntouched();
}

}  // namespace
}  // namespace ordex::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace ordex::fuzz;
  static Office office;
  Input input(data, size);
  const std::size_t mode = input.Choice(4);
  if (mode == 0) {
    Prepare(office, input.Rest());
  } else if (input.Rest().size() < 8000) {
    LookUp(office, mode, input.Rest());
  }
  return 0;
}
