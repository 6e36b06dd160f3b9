#include "store/db/sqlite_query.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

#include "base/error.h"
#include "store/db/ascii.h"
#include "store/db/refused_query.h"

namespace ordex {
namespace {

std::string TextAt(sqlite3_stmt* statement, int column) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
  if (text == nullptr) return {};
  return {text, static_cast<std::size_t>(sqlite3_column_bytes(statement, column))};
}

// The value as it is stored, whatever the column was declared as.
Value StoredValue(sqlite3_stmt* statement, int column) {
  switch (sqlite3_column_type(statement, column)) {
    case SQLITE_NULL:
      return Null{};
    case SQLITE_INTEGER:
      return std::int64_t{sqlite3_column_int64(statement, column)};
    case SQLITE_FLOAT:
      return sqlite3_column_double(statement, column);
    default:
      return TextAt(statement, column);
  }
}

// The stored value as one of the declared type; nullopt where it is none.
std::optional<Value> Typed(Value stored, ColumnType type) {
  const auto* number = std::get_if<std::int64_t>(&stored);
  const auto* text = std::get_if<std::string>(&stored);
  switch (type) {
    case ColumnType::kText:
      if (text == nullptr) return ToText(stored);
      return stored;
    case ColumnType::kInteger:
      if (number == nullptr) return std::nullopt;
      return stored;
    case ColumnType::kReal:
      if (number != nullptr) return static_cast<double>(*number);
      if (text != nullptr) return std::nullopt;
      return stored;
    case ColumnType::kBit:
      if (number == nullptr || (*number != 0 && *number != 1)) return std::nullopt;
      return *number == 1;
    case ColumnType::kDate: {
      const auto date = text == nullptr ? std::nullopt : ParseIso(*text);
      if (!date) return std::nullopt;
      return *date;
    }
  }
  return stored;
}

std::string_view Wanted(ColumnType type) {
  switch (type) {
    case ColumnType::kText:
      return "un testo";
    case ColumnType::kInteger:
      return "un numero intero";
    case ColumnType::kReal:
      return "un numero";
    case ColumnType::kBit:
      return "un bit (0 o 1)";
    case ColumnType::kDate:
      return "una data (AAAA-MM-GG HH:MM:SS)";
  }
  return "un valore";
}

RunTimeError UnfitValue(sqlite3_stmt* statement, int column, ColumnType type) {
  std::string text = "il valore \"" + TextAt(statement, column) + "\" nella colonna \"";
  text.append(sqlite3_column_name(statement, column)).append("\" non è ").append(Wanted(type));
  return MakeError(ErrorNumber::kDatabase, text.append("; correggere la riga nel database"));
}

Value ReadValue(sqlite3_stmt* statement, int column, const std::optional<DeclaredType>& declared) {
  Value stored = StoredValue(statement, column);
  if (!declared || IsNull(stored)) return stored;
  if (auto typed = Typed(std::move(stored), declared->type)) return *std::move(typed);
  throw UnfitValue(statement, column, declared->type);
}

std::string OrEmpty(const char* text) {
  return text == nullptr ? std::string() : std::string(text);
}

}  // namespace

SqliteQuery::SqliteQuery(std::shared_ptr<SqliteCatalog> catalog, LentStatement statement,
                         std::vector<Value> parameters)
    : catalog_(std::move(catalog)),
      statement_(std::move(statement)),
      parameters_(std::move(parameters)) {
  if (sqlite3_column_count(statement_->get()) == 0 ||
      sqlite3_stmt_readonly(statement_->get()) == 0) {
    throw RefusedQuery("l'istruzione non è una lettura");
  }
}

const std::vector<ColumnInfo>& SqliteQuery::Columns() {
  if (columns_.empty()) {
    const int count = sqlite3_column_count(statement_->get());
    columns_.reserve(static_cast<std::size_t>(count));
    for (int column = 0; column < count; ++column) columns_.push_back(Describe(column));
  }
  return columns_;
}

ColumnInfo SqliteQuery::Describe(int column) {
  sqlite3_stmt* statement = statement_->get();
  ColumnInfo info;
  info.name = OrEmpty(sqlite3_column_name(statement, column));
  const DeclaredType declared =
      ParseDeclaredType(sqlite3_column_decltype(statement, column)).value_or(DeclaredType{});
  info.type = declared.type;
  info.size = declared.size;
  const std::string origin = OrEmpty(sqlite3_column_origin_name(statement, column));
  // Under another name it cannot be written to, so it counts as an expression.
  if (origin.empty() || !EqualAscii(origin, info.name)) return info;
  info.table = OrEmpty(sqlite3_column_table_name(statement, column));
  int is_key = 0;
  sqlite3_table_column_metadata(catalog_->database(), nullptr, info.table.c_str(), origin.c_str(),
                                nullptr, nullptr, nullptr, &is_key, nullptr);
  if (is_key == 0) return info;
  for (const ColumnInfo& known : catalog_->Columns(info.table)) {
    if (!EqualAscii(known.name, origin)) continue;
    info.identity = known.identity;
    info.primaryKey = known.primaryKey;
  }
  return info;
}

void SqliteQuery::FindTypes() {
  types_.clear();
  const int count = sqlite3_column_count(statement_->get());
  // The engine prepares a statement anew where the table was altered since.
  if (!columns_.empty() && columns_.size() != static_cast<std::size_t>(count)) {
    throw MakeError(ErrorNumber::kDatabase,
                    "le colonne della tabella sono cambiate mentre la si leggeva; ripetere "
                    "l'operazione");
  }
  for (int column = 0; column < count; ++column) {
    types_.push_back(ParseDeclaredType(sqlite3_column_decltype(statement_->get(), column)));
  }
}

std::vector<Row> SqliteQuery::FetchAll() {
  const ResetLater reset(*statement_);
  for (std::size_t i = 0; i < parameters_.size(); ++i) {
    statement_->Bind(static_cast<int>(i) + 1, parameters_[i]);
  }
  std::vector<Row> rows;
  while (statement_->Step()) {
    if (rows.empty()) FindTypes();
    Row row;
    row.reserve(types_.size());
    for (std::size_t i = 0; i < types_.size(); ++i) {
      row.push_back(ReadValue(statement_->get(), static_cast<int>(i), types_[i]));
    }
    rows.push_back(std::move(row));
  }
  return rows;
}

}  // namespace ordex
