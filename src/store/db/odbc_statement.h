// One ODBC statement: parameters in, rows out.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "store/db/connection.h"
#include "store/db/odbc_handle.h"
#include "store/db/odbc_link.h"
#include "store/db/odbc_parameter.h"
#include "store/db/odbc_text.h"

namespace ordex {

// What a result's column is, as the driver describes it.
struct OdbcResultColumn {
  std::string name;
  ColumnType type = ColumnType::kText;
  std::size_t size = 0;  // as ColumnInfo::size
};

// The type of a column with that SQL type; its size as ColumnInfo has it.
OdbcResultColumn DescribeType(SQLSMALLINT sqlType, SQLULEN columnSize, SQLSMALLINT digits);

// Errors of every function: database, what the engine reports.
class OdbcStatement {
 public:
  explicit OdbcStatement(std::shared_ptr<OdbcLink> link);

  // Columns may be asked for right after it, once the parameters are bound.
  void Prepare(std::string_view sql);
  // Parameters count from 1. The value is kept. `target` gives a Null its type.
  void Bind(std::size_t parameter, const Value& value, const OdbcColumnType& target);
  void Execute();
  void ExecuteDirect(std::string_view sql);

  SQLSMALLINT ColumnCount();
  OdbcResultColumn Describe(SQLSMALLINT column);
  bool Fetch();
  // To be called once for each column, in order: some drivers give long ones only so.
  Value Get(SQLSMALLINT column, ColumnType type);
  // Goes on to the next result of a batch; false where there is none.
  bool NextResult();
  // Reads all results that are left and closes the cursor.
  void Finish();
  void CloseCursor();

  SQLHSTMT get() const { return handle_.get(); }
  OdbcLink& link() const { return *link_; }
  // Raises where `code` is a failure, or where the driver hides an error among its warnings.
  // SQL_NO_DATA, the answer of a statement without a count, is none.
  void Check(SQLRETURN code);

 private:
  std::optional<std::string> Text(SQLSMALLINT column);
  template <class Number>
  std::optional<Number> Fixed(SQLSMALLINT column, SQLSMALLINT cType);

  // Behind the link: a statement must go before its connection.
  std::shared_ptr<OdbcLink> link_;
  OdbcHandle<SQL_HANDLE_STMT> handle_;
  std::vector<std::unique_ptr<OdbcParameter>> parameters_;  // drivers keep their addresses
};

// Closes the cursor on every way out of a scope.
class CloseLater {
 public:
  explicit CloseLater(OdbcStatement& statement) : statement_(statement) {}
  ~CloseLater() { statement_.CloseCursor(); }
  CloseLater(const CloseLater&) = delete;
  CloseLater& operator=(const CloseLater&) = delete;
  CloseLater(CloseLater&&) = delete;
  CloseLater& operator=(CloseLater&&) = delete;

 private:
  OdbcStatement& statement_;
};

}  // namespace ordex
