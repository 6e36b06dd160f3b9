#include "statement_log.h"

#include <memory>
#include <stdexcept>

#include "base/text.h"

namespace ordex::bench {
namespace {

// The engine calls back with no place for an argument, so the log that is being written is found
// here.
std::vector<std::string>* writtenLog = nullptr;

bool IsAboutColumns(std::string_view sql) {
  return sql.starts_with("--") || Contains(sql, "pragma_table_info");
}

int Note(unsigned, void*, void* statement, void*) {
  char* text = sqlite3_expanded_sql(static_cast<sqlite3_stmt*>(statement));
  if (text != nullptr && writtenLog != nullptr && !IsAboutColumns(text)) {
    writtenLog->emplace_back(text);
  }
  sqlite3_free(text);
  return 0;
}

int TraceConnection(sqlite3* database, const char**, const sqlite3_api_routines*) {
  return sqlite3_trace_v2(database, SQLITE_TRACE_STMT, Note, nullptr);
}

void LowerFunction(sqlite3_context* context, int, sqlite3_value** values) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(values[0]));
  if (text == nullptr) return sqlite3_result_null(context);
  const std::string lowered = Lower(text);
  sqlite3_result_text(context, lowered.c_str(), static_cast<int>(lowered.size()), SQLITE_TRANSIENT);
}

struct CloseDatabase {
  void operator()(sqlite3* database) const { sqlite3_close(database); }
};

void RunOne(sqlite3* database, const std::string& sql) {
  sqlite3_stmt* statement = nullptr;
  if (sqlite3_prepare_v2(database, sql.c_str(), static_cast<int>(sql.size()), &statement,
                         nullptr) != SQLITE_OK) {
    throw std::runtime_error(sql + ": " + sqlite3_errmsg(database));
  }
  int step = sqlite3_step(statement);
  for (; step == SQLITE_ROW; step = sqlite3_step(statement)) {
    for (int i = 0; i < sqlite3_column_count(statement); ++i) sqlite3_column_text(statement, i);
  }
  sqlite3_finalize(statement);
  if (step != SQLITE_DONE) throw std::runtime_error(sql + ": " + sqlite3_errmsg(database));
}

}  // namespace

std::vector<std::string> StatementsOf(const std::function<void()>& work) {
  std::vector<std::string> statements;
  writtenLog = &statements;
  const auto entry = reinterpret_cast<void (*)()>(TraceConnection);
  sqlite3_auto_extension(entry);
  work();
  sqlite3_cancel_auto_extension(entry);
  writtenLog = nullptr;
  return statements;
}

void RunOnBareEngine(sqlite3* database, const std::vector<std::string>& statements) {
  for (const std::string& statement : statements) RunOne(database, statement);
}

void RunOnBareEngine(const std::filesystem::path& file,
                     const std::vector<std::string>& statements) {
  sqlite3* opened = nullptr;
  if (sqlite3_open_v2(file.c_str(), &opened, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK) {
    throw std::runtime_error("cannot open the database of the benchmark");
  }
  const std::unique_ptr<sqlite3, CloseDatabase> database(opened);
  sqlite3_create_function(opened, "lower", 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr,
                          LowerFunction, nullptr, nullptr);
  RunOnBareEngine(opened, statements);
}

}  // namespace ordex::bench
