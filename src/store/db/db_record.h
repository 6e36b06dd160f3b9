// The record object: every read and write of the case database by the rules' routines goes through
// one. Created just before a query and released right after it; never shared, never cached.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "state/ports.h"
#include "store/db/connection.h"
#include "store/db/sql_text.h"

namespace ordex {

// The one connection of the run and the hook that hears of every SQL text before it runs.
struct Database {
  Connection& connection;
  Diagnostics& diagnostics;
};

// The rows of a query. Lazy: nothing is fetched until RecordCount, Eof or a field is asked for;
// then the whole result is read and the statement reset, so that no statement stays open across a
// message box or a write.
class Recordset {
 public:
  Recordset(Connection& connection, std::unique_ptr<Query> query, bool updatable);

  // The exact number of rows selected; rows added here count too.
  std::size_t RecordCount();
  // True when there is no current row (any more).
  bool Eof();
  // Changes that Update has not written yet are written first. Error: no current row.
  void MoveNext();

  // The columns in table order. Fetches nothing.
  const std::vector<ColumnInfo>& Fields();

  // Starts a new row; the fields set from here on fill it, and Update writes it.
  // Changes that Update has not written yet are written first. Errors: where the recordset was not
  // opened for changes, stems from several tables or holds no key.
  void AddNew();
  // Writes the new row, or those columns of the current row whose value was changed; with nothing
  // changed it does nothing. After a new row the current row is that row, its identity included.
  // Error: where the engine refuses, and where not exactly one row was touched.
  void Update();

  // Errors: no such column; no current row.
  Value Get(std::string_view column);
  // The value is brought to the column's type at once. Errors: no such column; no current row; type
  // mismatch, overflow or a text too long for its column.
  void Set(std::string_view column, const Value& value);

 private:
  struct Change {
    std::size_t column;
    Value value;
  };

  void Fetch();
  std::size_t ColumnIndex(std::string_view name);
  Row& CurrentRow();
  bool HasChanges() const { return adding_ || !changes_.empty(); }
  void RequireOpenForChanges() const;
  // The column that tells the one table's rows apart: its identity, else its primary key.
  std::size_t KeyColumn();
  std::vector<NamedValue> NamedValues(const std::vector<Change>& changes);
  void WriteNewRow();
  void WriteChanges();
  void ReadAgain(std::size_t place);

  Connection& connection_;
  std::unique_ptr<Query> query_;
  bool updatable_;
  bool fetched_ = false;
  bool adding_ = false;
  // The rows selected, once they are fetched, and behind them those added here.
  std::vector<Row> rows_;
  // For each row added here, which of its columns are known without asking the engine.
  std::vector<std::vector<bool>> known_;
  std::size_t current_ = 0;
  std::vector<Change> changes_;
};

// Opening modes. All three give an exact count; only kForChanges allows adding and updating.
inline constexpr int kForReading = 1;
inline constexpr int kForReadingToo = 2;
inline constexpr int kForChanges = 3;

class DbRecord {
 public:
  // Error: where nothing is open.
  Recordset& recordset();

  // Hands `szSql` to the debugging hook, then prepares it. Errors arise here: a text that is not
  // exactly one SELECT, a text whose undoubled stretch breaks out of its literal, what the engine
  // refuses. `mode` is 1, 2 or 3.
  void Open(const Database& database, const SqlText& szSql, int mode);
  void Close();

  Value Get(std::string_view column) { return recordset().Get(column); }
  void Set(std::string_view column, const Value& value) { recordset().Set(column, value); }

 private:
  std::optional<Recordset> recordset_;
};

// Runs one statement without result rows, after handing it to the debugging hook.
void Execute(const Database& database, std::string_view szSql);

}  // namespace ordex
