#include "store/db/odbc_statement.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <utility>

#include "base/error.h"

namespace ordex {
namespace {

RunTimeError TooLong() {
  return MakeError(ErrorNumber::kDatabase, "istruzione SQL rifiutata: è troppo lunga");
}

WideText StatementText(std::string_view sql) {
  // Engines would take what stands before it for the whole.
  if (sql.find('\0') != std::string_view::npos) {
    throw MakeError(ErrorNumber::kDatabase,
                    "istruzione SQL rifiutata: contiene un carattere nullo");
  }
  WideText text = ToWide(sql);
  if (text.size() > static_cast<std::size_t>(std::numeric_limits<SQLINTEGER>::max())) {
    throw TooLong();
  }
  return text;
}

void SetAttribute(SQLHSTMT statement, SQLINTEGER attribute, SQLULEN value) {
  // A driver that does not know the attribute goes on without it.
  // NOLINTNEXTLINE: the interface takes numbers as pointers
  SQLSetStmtAttrW(statement, attribute, reinterpret_cast<SQLPOINTER>(std::uintptr_t{value}), 0);
}

bool IsNarrowOrWideText(SQLSMALLINT sqlType) {
  return sqlType == SQL_CHAR || sqlType == SQL_VARCHAR || sqlType == SQL_WCHAR ||
         sqlType == SQL_WVARCHAR;
}

}  // namespace

OdbcResultColumn DescribeType(SQLSMALLINT sqlType, SQLULEN columnSize, SQLSMALLINT digits) {
  constexpr SQLULEN kMostDigits = 18;  // of a number that 64 bits always hold
  // Longer than any column with a limit: how drivers report NVARCHAR(MAX).
  constexpr SQLULEN kNoRealLimit = 1'000'000;
  switch (sqlType) {
    case SQL_BIT:
      return {{}, ColumnType::kBit, 0};
    case SQL_TINYINT:
      return {{}, ColumnType::kInteger, 1};
    case SQL_SMALLINT:
      return {{}, ColumnType::kInteger, 2};
    case SQL_INTEGER:
      return {{}, ColumnType::kInteger, 4};
    case SQL_BIGINT:
      return {{}, ColumnType::kInteger, 8};
    case SQL_NUMERIC:
    case SQL_DECIMAL:
      if (digits == 0 && columnSize <= kMostDigits) return {{}, ColumnType::kInteger, 8};
      return {{}, ColumnType::kReal, 0};
    case SQL_FLOAT:
    case SQL_REAL:
    case SQL_DOUBLE:
      return {{}, ColumnType::kReal, 0};
    case SQL_DATE:
    case SQL_TIMESTAMP:
    case SQL_TYPE_DATE:
    case SQL_TYPE_TIMESTAMP:
      return {{}, ColumnType::kDate, 0};
    default:
      break;
  }
  const bool limited = IsNarrowOrWideText(sqlType) && columnSize < kNoRealLimit;
  return {{}, ColumnType::kText, limited ? static_cast<std::size_t>(columnSize) : 0};
}

OdbcStatement::OdbcStatement(std::shared_ptr<OdbcLink> link)
    : link_(std::move(link)), handle_(link_->get()) {
  if (get() == nullptr) {
    throw link_->Error(DiagnosticsOf(SQL_HANDLE_DBC, link_->get()));
  }
  // Braces in a text are no escapes of ODBC.
  SetAttribute(get(), SQL_ATTR_NOSCAN, SQL_NOSCAN_ON);
  if (link_->engine().QueryTimeOut() != 0) {
    SetAttribute(get(), SQL_ATTR_QUERY_TIMEOUT, link_->engine().QueryTimeOut());
  }
}

void OdbcStatement::Check(SQLRETURN code) {
  if (code == SQL_SUCCESS || code == SQL_NO_DATA) return;
  const std::vector<OdbcDiagnostic> diagnostics = DiagnosticsOf(SQL_HANDLE_STMT, get());
  if (code == SQL_SUCCESS_WITH_INFO && !HoldsError(diagnostics)) return;
  throw link_->Error(diagnostics);
}

void OdbcStatement::Prepare(std::string_view sql) {
  WideText text = StatementText(sql);
  Check(SQLPrepareW(get(), text.data(), static_cast<SQLINTEGER>(text.size())));
}

void OdbcStatement::Bind(std::size_t parameter, const Value& value, const OdbcColumnType& target) {
  if (parameters_.size() < parameter) parameters_.resize(parameter);
  auto& slot = parameters_[parameter - 1];
  slot = std::make_unique<OdbcParameter>(value, target, link_->engine());
  Check(SQLBindParameter(get(), static_cast<SQLUSMALLINT>(parameter), SQL_PARAM_INPUT, slot->cType,
                         slot->sqlType, slot->size, slot->digits, slot->pointer(),
                         std::max<SQLLEN>(slot->bytes, 0), &slot->bytes));
}

void OdbcStatement::Execute() {
  Check(SQLExecute(get()));
}

void OdbcStatement::ExecuteDirect(std::string_view sql) {
  WideText text = StatementText(sql);
  Check(SQLExecDirectW(get(), text.data(), static_cast<SQLINTEGER>(text.size())));
}

SQLSMALLINT OdbcStatement::ColumnCount() {
  SQLSMALLINT count = 0;
  Check(SQLNumResultCols(get(), &count));
  return count;
}

OdbcResultColumn OdbcStatement::Describe(SQLSMALLINT column) {
  std::array<SQLWCHAR, 256> name{};
  SQLSMALLINT length = 0;
  SQLSMALLINT type = 0;
  SQLULEN size = 0;
  SQLSMALLINT digits = 0;
  SQLSMALLINT nullable = 0;
  Check(SQLDescribeColW(get(), static_cast<SQLUSMALLINT>(column), name.data(),
                        static_cast<SQLSMALLINT>(name.size()), &length, &type, &size, &digits,
                        &nullable));
  OdbcResultColumn described = DescribeType(type, size, digits);
  const auto used = static_cast<std::size_t>(std::max<SQLSMALLINT>(length, 0));
  described.name = FromWide(name.data(), std::min(used, name.size() - 1));
  return described;
}

bool OdbcStatement::Fetch() {
  const SQLRETURN code = SQLFetch(get());
  Check(code);
  return code != SQL_NO_DATA;
}

template <class Number>
std::optional<Number> OdbcStatement::Fixed(SQLSMALLINT column, SQLSMALLINT cType) {
  Number number{};
  SQLLEN indicator = 0;
  Check(SQLGetData(get(), static_cast<SQLUSMALLINT>(column), cType, &number, sizeof(number),
                   &indicator));
  if (indicator == SQL_NULL_DATA) return std::nullopt;
  return number;
}

std::optional<std::string> OdbcStatement::Text(SQLSMALLINT column) {
  constexpr std::size_t kPiece = 2048;  // UTF-16 units, the closing null included
  std::array<SQLWCHAR, kPiece> piece{};
  WideText whole;
  for (;;) {
    SQLLEN indicator = 0;
    const SQLRETURN code = SQLGetData(get(), static_cast<SQLUSMALLINT>(column), SQL_C_WCHAR,
                                      piece.data(), sizeof(piece), &indicator);
    Check(code);
    if (code == SQL_NO_DATA) break;
    if (indicator == SQL_NULL_DATA) return std::nullopt;
    // What is left, before this call; unknown where the driver does not count.
    const bool more = indicator == SQL_NO_TOTAL ||
                      static_cast<std::size_t>(indicator) > (kPiece - 1) * sizeof(SQLWCHAR);
    const std::size_t length =
        more ? kPiece - 1 : static_cast<std::size_t>(indicator) / sizeof(SQLWCHAR);
    whole.insert(whole.end(), piece.begin(), piece.begin() + static_cast<std::ptrdiff_t>(length));
    if (!more) break;
    // A driver that does not count ends the last piece with a null.
    if (indicator == SQL_NO_TOTAL && code == SQL_SUCCESS) {
      whole.resize(whole.size() - length);
      whole.insert(whole.end(), piece.begin(), std::find(piece.begin(), piece.end(), SQLWCHAR{0}));
      break;
    }
  }
  return FromWide(whole.data(), whole.size());
}

Value OdbcStatement::Get(SQLSMALLINT column, ColumnType type) {
  const auto value_of = [](auto&& found, auto&& convert) -> Value {
    if (!found) return Null{};
    return convert(*found);
  };
  switch (type) {
    case ColumnType::kText:
      return value_of(Text(column), [](std::string& text) { return Value(std::move(text)); });
    case ColumnType::kInteger:
      return value_of(Fixed<SQLBIGINT>(column, SQL_C_SBIGINT),
                      [](SQLBIGINT number) { return Value(std::int64_t{number}); });
    case ColumnType::kReal:
      return value_of(Fixed<double>(column, SQL_C_DOUBLE),
                      [](double number) { return Value(number); });
    case ColumnType::kBit:
      return value_of(Fixed<unsigned char>(column, SQL_C_BIT),
                      [](unsigned char bit) { return Value(bit != 0); });
    case ColumnType::kDate:
      return value_of(Fixed<SQL_TIMESTAMP_STRUCT>(column, SQL_C_TYPE_TIMESTAMP),
                      [](const SQL_TIMESTAMP_STRUCT& stamp) {
                        return Value(DateTime{stamp.year, stamp.month, stamp.day, stamp.hour,
                                              stamp.minute, stamp.second});
                      });
  }
  return Null{};
}

bool OdbcStatement::NextResult() {
  const SQLRETURN code = SQLMoreResults(get());
  Check(code);
  return code != SQL_NO_DATA;
}

void OdbcStatement::Finish() {
  while (NextResult()) {
  }
}

void OdbcStatement::CloseCursor() {
  SQLFreeStmt(get(), SQL_CLOSE);
}

}  // namespace ordex
