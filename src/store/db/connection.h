// The database connection, as every engine's driver provides it.
//
// All failures are RunTimeError with number kDatabase and an Italian description that says what
// went wrong and what can be done about it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "store/db/value.h"

namespace ordex {

enum class ColumnType { kText, kInteger, kReal, kBit, kDate };

// A column of a table or of a result, as the engine describes it.
struct ColumnInfo {
  std::string name;
  ColumnType type = ColumnType::kText;
  // Text: the most characters it holds. Integer: its width in bytes. 0: no limit known.
  std::size_t size = 0;
  std::string table;        // the table that it stems from; empty for an expression
  bool identity = false;    // assigned by the engine
  bool primaryKey = false;  // alone the primary key of its table
};

using Row = std::vector<Value>;

// One prepared SELECT. Column values come typed by the column's declared type; a stored value that
// does not fit that type is an error when it is read.
class Query {
 public:
  virtual ~Query() = default;
  // Valid as long as the query. Fetches nothing.
  virtual const std::vector<ColumnInfo>& Columns() = 0;
  // Runs the query, reads all of its rows and resets it, so that nothing of it stays open.
  virtual std::vector<Row> FetchAll() = 0;
};

// What the dialect must know of the tables to rewrite a statement.
class TableCatalog {
 public:
  virtual ~TableCatalog() = default;
  // True when one of `tables` has a bit column of that name (letter case ignored); names that are
  // no tables are passed over.
  virtual bool IsBitColumn(std::span<const std::string> tables, std::string_view column) = 0;
};

using NamedValue = std::pair<std::string, Value>;

class Connection {
 public:
  virtual ~Connection() = default;

  // Prepares the one SELECT that `sql` holds, written in the SQL that the routines write; the
  // driver's dialect rewrites it for the engine. Refuses a text with a second statement and a text
  // that is no SELECT.
  virtual std::unique_ptr<Query> Prepare(std::string_view sql) = 0;
  // The same for a SELECT of our own, in the engine's SQL, with a `?` for each parameter.
  virtual std::unique_ptr<Query> PrepareNative(std::string_view sql,
                                               std::span<const Value> parameters) = 0;
  // Runs one statement without result rows, written in the SQL that the routines write.
  virtual void Execute(std::string_view sql) = 0;

  // The columns of a table in the table's order; empty where there is no such table.
  virtual const std::vector<ColumnInfo>& TableColumns(const std::string& table) = 0;
  // Adds one row and returns the value that the engine gave its identity column (0 where the table
  // has none). The values must fit their columns' types.
  virtual std::int64_t Insert(const std::string& table, std::span<const NamedValue> values) = 0;
  // Changes the row whose `key` column holds `keyValue`; returns how many rows were touched.
  virtual std::int64_t UpdateRow(const std::string& table, std::span<const NamedValue> values,
                                 const std::string& key, const Value& keyValue) = 0;

  // A writing transaction: whoever else wants to write waits from the beginning on.
  virtual void Begin() = 0;
  virtual void Commit() = 0;
  virtual void Rollback() = 0;
  // Whether a transaction is open, as the engine sees it: false also where the engine itself ended
  // it (deadlock, disk full).
  virtual bool InTransaction() const = 0;

  // `select`, a SELECT in the engine's SQL, cut off after `count` rows.
  virtual std::string Limited(const std::string& select, std::size_t count) const = 0;
};

}  // namespace ordex
