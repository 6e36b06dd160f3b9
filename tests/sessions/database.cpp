#include "database.h"

#include <stdexcept>
#include <string_view>

#include "text_files.h"

namespace ordex::sessions {
namespace fs = std::filesystem;
namespace {

constexpr int kBusyMilliseconds = 10'000;

struct Closer {
  void operator()(sqlite3* database) const { sqlite3_close_v2(database); }
  void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Handle = std::unique_ptr<sqlite3, Closer>;
using Statement = std::unique_ptr<sqlite3_stmt, Closer>;

[[noreturn]] void Fail(sqlite3* database, const std::string& sql) {
  throw std::runtime_error(std::string(sqlite3_errmsg(database)) + ": " + sql);
}

Handle Open(const fs::path& file, int flags) {
  sqlite3* database = nullptr;
  const int code = sqlite3_open_v2(file.c_str(), &database, flags, nullptr);
  Handle handle(database);
  if (code != SQLITE_OK) Fail(database, file.string());
  sqlite3_busy_timeout(database, kBusyMilliseconds);
  return handle;
}

void Execute(sqlite3* database, const std::string& sql) {
  if (sqlite3_exec(database, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) {
    Fail(database, sql);
  }
}

std::string Escaped(std::string_view value) {
  std::string text;
  for (const char character : value) {
    switch (character) {
      case '\\':
        text.append("\\\\");
        break;
      case '|':
        text.append("\\|");
        break;
      case '\r':
        text.append("\\r");
        break;
      case '\n':
        text.append("\\n");
        break;
      case '\t':
        text.append("\\t");
        break;
      default:
        text.push_back(character);
    }
  }
  return text;
}

std::string Cell(sqlite3_stmt* statement, int column) {
  if (sqlite3_column_type(statement, column) == SQLITE_NULL) return "NULL";
  const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
  return Escaped({bytes, static_cast<std::size_t>(sqlite3_column_bytes(statement, column))});
}

std::vector<std::string> Rows(sqlite3* database, const std::string& select) {
  sqlite3_stmt* prepared = nullptr;
  if (sqlite3_prepare_v2(database, select.c_str(), -1, &prepared, nullptr) != SQLITE_OK) {
    Fail(database, select);
  }
  const Statement statement(prepared);
  std::vector<std::string> rows;
  int code = sqlite3_step(prepared);
  for (; code == SQLITE_ROW; code = sqlite3_step(prepared)) {
    std::string row = Cell(prepared, 0);
    for (int column = 1; column < sqlite3_column_count(prepared); ++column) {
      row.append("|").append(Cell(prepared, column));
    }
    rows.push_back(std::move(row));
  }
  if (code != SQLITE_DONE) Fail(database, select);
  return rows;
}

}  // namespace

void MakeDatabase(const fs::path& file, const std::vector<fs::path>& sqlFiles) {
  const Handle database = Open(file, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
  Execute(database.get(), "PRAGMA journal_mode=WAL");
  Execute(database.get(), "PRAGMA synchronous=OFF");
  Execute(database.get(), "BEGIN");
  for (const fs::path& sql : sqlFiles) Execute(database.get(), ReadFile(sql));
  Execute(database.get(), "COMMIT");
}

void RunSql(const fs::path& file, const std::string& sql) {
  Execute(Open(file, SQLITE_OPEN_READWRITE).get(), sql);
}

std::vector<std::string> QueryRows(const fs::path& file, const std::string& select) {
  return Rows(Open(file, SQLITE_OPEN_READWRITE).get(), select);
}

Content ContentOf(const fs::path& file) {
  Content content;
  if (!fs::is_regular_file(file)) return content;
  const Handle database = Open(file, SQLITE_OPEN_READWRITE);
  for (const std::string& table :
       Rows(database.get(), "SELECT name FROM sqlite_master WHERE type = 'table'")) {
    content[table] = Rows(database.get(), "SELECT * FROM \"" + table + "\" ORDER BY rowid");
  }
  return content;
}

WriteLock::WriteLock(const fs::path& file)
    : database_(Open(file, SQLITE_OPEN_READWRITE).release()) {
  Execute(database_.get(), "BEGIN IMMEDIATE");
}

}  // namespace ordex::sessions
