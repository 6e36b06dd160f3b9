#include "store/db/sqlite_statement.h"

#include <algorithm>
#include <string>

#include "base/date.h"
#include "store/db/sql_tokens.h"
#include "store/db/sqlite_error.h"

namespace ordex {
namespace {

RunTimeError Refused(const std::string& why) {
  return MakeError(ErrorNumber::kDatabase, "istruzione SQL rifiutata: " + why);
}

bool HoldsNothing(std::string_view sql) {
  const std::vector<Token> tokens = Tokenize(sql);
  return std::all_of(tokens.begin(), tokens.end(), [](const Token& token) {
    return token.kind == TokenKind::kBlank || token.kind == TokenKind::kComment ||
           token.kind == TokenKind::kSemicolon;
  });
}

// Gives the engine a value of each kind; the result is the engine's code.
class Binder {
 public:
  Binder(sqlite3_stmt* statement, int parameter) : statement_(statement), parameter_(parameter) {}

  int operator()(Null) const { return sqlite3_bind_null(statement_, parameter_); }
  int operator()(bool bit) const { return sqlite3_bind_int(statement_, parameter_, bit ? 1 : 0); }
  int operator()(std::int64_t number) const {
    return sqlite3_bind_int64(statement_, parameter_, number);
  }
  int operator()(double number) const {
    return sqlite3_bind_double(statement_, parameter_, number);
  }
  int operator()(const std::string& text) const { return BindText(text, SQLITE_STATIC); }
  int operator()(const DateTime& date) const {
    // NOLINTNEXTLINE: the engine's own constant is a number cast to a function
    return BindText(FormatIso(date), SQLITE_TRANSIENT);
  }

 private:
  int BindText(const std::string& text, sqlite3_destructor_type lifetime) const {
    return sqlite3_bind_text64(statement_, parameter_, text.data(), text.size(), lifetime,
                               SQLITE_UTF8);
  }

  sqlite3_stmt* statement_;
  int parameter_;
};

}  // namespace

SqliteStatement::SqliteStatement(sqlite3* database, std::string_view sql, unsigned flags) {
  // The engine would take what stands before it for the whole.
  if (sql.find('\0') != std::string_view::npos) throw Refused("contiene un carattere nullo");
  sqlite3_stmt* statement = nullptr;
  const char* tail = nullptr;
  const int code = sqlite3_prepare_v3(database, sql.data(), static_cast<int>(sql.size()), flags,
                                      &statement, &tail);
  handle_.reset(statement);
  if (code != SQLITE_OK) throw SqliteError(database, code);
  if (statement == nullptr) throw Refused("il testo è vuoto");
  if (!HoldsNothing(sql.substr(static_cast<std::size_t>(tail - sql.data())))) {
    throw Refused("il testo contiene più di un'istruzione");
  }
}

void SqliteStatement::Bind(int parameter, const Value& value) {
  const int code = std::visit(Binder(get(), parameter), value);
  if (code != SQLITE_OK) throw SqliteError(database(), code);
}

bool SqliteStatement::Step() {
  const int code = sqlite3_step(get());
  if (code == SQLITE_ROW) return true;
  if (code != SQLITE_DONE) throw SqliteError(database(), code);
  return false;
}

void SqliteStatement::Reset() {
  sqlite3_reset(get());
  sqlite3_clear_bindings(get());
}

void RunSqlite(sqlite3* database, const char* sql) {
  const int code = sqlite3_exec(database, sql, nullptr, nullptr, nullptr);
  if (code != SQLITE_OK) throw SqliteError(database, code);
}

}  // namespace ordex
