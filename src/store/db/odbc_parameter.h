// A value as ODBC takes it: typed by us, since not every driver can tell what a parameter wants.
#pragma once

#include <variant>

#include "store/db/connection.h"
#include "store/db/odbc_engine.h"
#include "store/db/odbc_text.h"

namespace ordex {

// What the driver must know of the column that a parameter goes into.
struct OdbcColumnType {
  ColumnType type = ColumnType::kText;
  bool toTheMinute = false;  // a date column without seconds
  bool codePage = false;     // a text column that holds the characters of one code page alone
};

struct OdbcParameter {
  // Holds what the driver reads when the statement is executed.
  std::variant<std::monostate, WideText, SQLINTEGER, SQLBIGINT, double, unsigned char,
               SQL_TIMESTAMP_STRUCT>
      data;
  SQLSMALLINT cType = SQL_C_WCHAR;
  SQLSMALLINT sqlType = SQL_WVARCHAR;
  SQLULEN size = 1;
  SQLSMALLINT digits = 0;
  SQLLEN bytes = SQL_NULL_DATA;

  OdbcParameter(const Value& value, const OdbcColumnType& target, const OdbcEngine& engine);
  OdbcParameter(const OdbcParameter&) = delete;
  OdbcParameter& operator=(const OdbcParameter&) = delete;
  OdbcParameter(OdbcParameter&&) = delete;
  OdbcParameter& operator=(OdbcParameter&&) = delete;
  ~OdbcParameter() = default;

  SQLPOINTER pointer();

 private:
  void TakeNull(const OdbcColumnType& target, const OdbcEngine& engine);
  void TakeText(std::string_view text);
  void TakeNumber(std::int64_t number);
  void TakeDate(const DateTime& date);
  void Type(SQLSMALLINT c, SQLSMALLINT sql, SQLULEN columnSize, SQLLEN length);
};

}  // namespace ordex
