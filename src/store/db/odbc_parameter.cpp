#include "store/db/odbc_parameter.h"

#include <limits>

namespace ordex {
namespace {

// UTF-16 units of the longest NVARCHAR that is not a long type. One size for all shorter texts lets
// the server keep one plan for a statement.
constexpr std::size_t kLongestPlainText = 4000;
// "YYYY-MM-DD HH:MM:SS": no fraction, which not every date column could hold.
constexpr SQLULEN kDateLength = 19;

// Where the driver finds a value.
struct Address {
  SQLPOINTER operator()(std::monostate& /*none*/) const { return nullptr; }
  SQLPOINTER operator()(WideText& text) const { return text.data(); }
  template <class Number>
  SQLPOINTER operator()(Number& number) const {
    return &number;
  }
};

DateTime ToTheMinute(DateTime date) {
  date.second = 0;
  return date;
}

}  // namespace

OdbcParameter::OdbcParameter(const Value& value, const OdbcColumnType& target,
                             const OdbcEngine& engine) {
  if (const auto* text = std::get_if<std::string>(&value)) {
    TakeText(*text);
  } else if (const auto* number = std::get_if<std::int64_t>(&value)) {
    TakeNumber(*number);
  } else if (const auto* real = std::get_if<double>(&value)) {
    data = *real;
    Type(SQL_C_DOUBLE, SQL_DOUBLE, 0, sizeof(double));
  } else if (const auto* bit = std::get_if<bool>(&value)) {
    if (engine.HoldsTextsAndNumbers()) {
      TakeNumber(*bit ? 1 : 0);
    } else {
      data = static_cast<unsigned char>(*bit ? 1 : 0);
      Type(SQL_C_BIT, SQL_BIT, 1, sizeof(unsigned char));
    }
  } else if (const auto* date = std::get_if<DateTime>(&value)) {
    if (engine.HoldsTextsAndNumbers()) {
      TakeText(FormatIso(*date));
    } else {
      // The server would round the seconds, perhaps into the next day.
      TakeDate(target.toTheMinute ? ToTheMinute(*date) : *date);
    }
  } else {
    TakeNull(target, engine);
  }
}

void OdbcParameter::Type(SQLSMALLINT c, SQLSMALLINT sql, SQLULEN columnSize, SQLLEN length) {
  cType = c;
  sqlType = sql;
  size = columnSize;
  bytes = length;
}

// The server converts no text to some types, not even where it is Null.
void OdbcParameter::TakeNull(const OdbcColumnType& target, const OdbcEngine& engine) {
  switch (target.type) {
    case ColumnType::kText:
      break;
    case ColumnType::kInteger:
      Type(SQL_C_SLONG, SQL_INTEGER, 0, SQL_NULL_DATA);
      break;
    case ColumnType::kReal:
      Type(SQL_C_DOUBLE, SQL_DOUBLE, 0, SQL_NULL_DATA);
      break;
    case ColumnType::kBit:
      Type(SQL_C_BIT, SQL_BIT, 1, SQL_NULL_DATA);
      break;
    case ColumnType::kDate:
      if (!engine.HoldsTextsAndNumbers()) {
        Type(SQL_C_TYPE_TIMESTAMP, SQL_TYPE_TIMESTAMP, kDateLength, SQL_NULL_DATA);
      }
      break;
  }
}

void OdbcParameter::TakeText(std::string_view text) {
  WideText wide = ToWide(text);
  const std::size_t length = wide.size();
  const bool is_long = length > kLongestPlainText;
  Type(SQL_C_WCHAR, is_long ? SQL_WLONGVARCHAR : SQL_WVARCHAR, is_long ? length : kLongestPlainText,
       static_cast<SQLLEN>(length * sizeof(SQLWCHAR)));
  wide.push_back(0);  // an empty text too has an address
  data = std::move(wide);
}

void OdbcParameter::TakeNumber(std::int64_t number) {
  if (number >= std::numeric_limits<SQLINTEGER>::min() &&
      number <= std::numeric_limits<SQLINTEGER>::max()) {
    data = static_cast<SQLINTEGER>(number);
    Type(SQL_C_SLONG, SQL_INTEGER, 0, sizeof(SQLINTEGER));
  } else {
    data = static_cast<SQLBIGINT>(number);
    Type(SQL_C_SBIGINT, SQL_BIGINT, 0, sizeof(SQLBIGINT));
  }
}

void OdbcParameter::TakeDate(const DateTime& date) {
  SQL_TIMESTAMP_STRUCT stamp{};
  stamp.year = static_cast<SQLSMALLINT>(date.year);
  stamp.month = static_cast<SQLUSMALLINT>(date.month);
  stamp.day = static_cast<SQLUSMALLINT>(date.day);
  stamp.hour = static_cast<SQLUSMALLINT>(date.hour);
  stamp.minute = static_cast<SQLUSMALLINT>(date.minute);
  stamp.second = static_cast<SQLUSMALLINT>(date.second);
  data = stamp;
  Type(SQL_C_TYPE_TIMESTAMP, SQL_TYPE_TIMESTAMP, kDateLength, sizeof(SQL_TIMESTAMP_STRUCT));
}

SQLPOINTER OdbcParameter::pointer() {
  return std::visit(Address{}, data);
}

}  // namespace ordex
