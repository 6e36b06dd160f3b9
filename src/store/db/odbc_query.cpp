#include "store/db/odbc_query.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/error.h"
#include "store/db/ascii.h"
#include "store/db/refused_query.h"
#include "store/db/statement_tables.h"

namespace ordex {
namespace {

const ColumnInfo* ColumnNamed(const std::vector<ColumnInfo>& columns, std::string_view name) {
  const auto found = std::find_if(columns.begin(), columns.end(), [&](const ColumnInfo& column) {
    return EqualAscii(column.name, name);
  });
  return found == columns.end() ? nullptr : &*found;
}

// The table columns behind the result's, in order; null for an expression. nullopt where the tables
// do not tell them.
class ColumnFinder {
 public:
  ColumnFinder(const std::vector<Token>& statement, OdbcCatalog& catalog)
      : tables_(FindTables(statement)), catalog_(catalog) {}

  std::optional<std::vector<const ColumnInfo*>> Find(const std::vector<SelectItem>& items) {
    for (const SelectItem& item : items) {
      if (item.kind == SelectItemKind::kAll) {
        if (!TakeAll(item.qualifier)) return std::nullopt;
      } else {
        found_.push_back(item.kind == SelectItemKind::kColumn ? OneColumn(item) : nullptr);
      }
    }
    return std::move(found_);
  }

 private:
  static bool Fits(const NamedTable& table, std::string_view qualifier) {
    return qualifier.empty() || EqualAscii(qualifier, table.name) ||
           EqualAscii(qualifier, table.alias);
  }

  bool TakeAll(std::string_view qualifier) {
    for (const NamedTable& table : tables_) {
      if (!Fits(table, qualifier)) continue;
      const std::vector<ColumnInfo>& columns = catalog_.Columns(table.name);
      if (columns.empty()) return false;
      for (const ColumnInfo& column : columns) found_.push_back(&column);
    }
    return true;
  }

  const ColumnInfo* OneColumn(const SelectItem& item) {
    const ColumnInfo* only = nullptr;
    for (const NamedTable& table : tables_) {
      if (!Fits(table, item.qualifier)) continue;
      const ColumnInfo* column = ColumnNamed(catalog_.Columns(table.name), item.name);
      if (column != nullptr && only != nullptr) return nullptr;
      if (column != nullptr) only = column;
    }
    return only;
  }

  std::vector<NamedTable> tables_;
  OdbcCatalog& catalog_;
  std::vector<const ColumnInfo*> found_;
};

bool BeginsWithSelect(const std::vector<Token>& tokens) {
  const std::size_t first = NextToken(tokens, kNoToken);
  return first != kNoToken && IsWord(tokens[first], "SELECT");
}

}  // namespace

std::vector<ColumnInfo> WithTables(std::vector<ColumnInfo> described,
                                   const std::vector<Token>& statement, OdbcCatalog& catalog) {
  const auto found = ColumnFinder(statement, catalog).Find(SelectItems(statement));
  if (!found || found->size() != described.size()) return described;
  for (std::size_t i = 0; i < described.size(); ++i) {
    const ColumnInfo* column = (*found)[i];
    if (column != nullptr && EqualAscii(column->name, described[i].name)) described[i] = *column;
  }
  return described;
}

OdbcQuery::OdbcQuery(std::shared_ptr<OdbcCatalog> catalog, const std::vector<Token>& written,
                     std::string_view sql, std::span<const Value> parameters)
    : catalog_(std::move(catalog)), statement_(catalog_->link()) {
  statement_.Prepare(sql);
  for (std::size_t i = 0; i < parameters.size(); ++i) statement_.Bind(i + 1, parameters[i], {});
  columns_ = Described();
  if (columns_.empty() && BeginsWithSelect(written)) {
    // A driver that describes nothing before it has run the statement.
    statement_.Execute();
    const CloseLater close(statement_);
    columns_ = Described();
  }
  if (columns_.empty()) {
    throw RefusedQuery("l'istruzione non è una lettura");
  }
  columns_ = WithTables(std::move(columns_), written, *catalog_);
}

std::vector<ColumnInfo> OdbcQuery::Described() {
  std::vector<ColumnInfo> described;
  const SQLSMALLINT count = statement_.ColumnCount();
  for (SQLSMALLINT column = 1; column <= count; ++column) {
    OdbcResultColumn one = statement_.Describe(column);
    described.push_back({std::move(one.name), one.type, one.size, {}, false, false});
  }
  return described;
}

std::vector<Row> OdbcQuery::FetchAll() {
  statement_.Execute();
  const CloseLater close(statement_);
  // The engine prepares a statement anew where the table was altered since.
  if (statement_.ColumnCount() != Count()) {
    throw MakeError(ErrorNumber::kDatabase,
                    "le colonne della tabella sono cambiate mentre la si leggeva; ripetere "
                    "l'operazione");
  }
  // An expression's type may be known only now.
  std::vector<ColumnType> types;
  for (SQLSMALLINT column = 1; column <= Count(); ++column) {
    const ColumnInfo& known = columns_[static_cast<std::size_t>(column) - 1];
    types.push_back(known.table.empty() ? statement_.Describe(column).type : known.type);
  }
  std::vector<Row> rows;
  while (statement_.Fetch()) {
    Row row;
    row.reserve(types.size());
    for (SQLSMALLINT column = 1; column <= Count(); ++column) {
      row.push_back(statement_.Get(column, types[static_cast<std::size_t>(column) - 1]));
    }
    rows.push_back(std::move(row));
  }
  // An error may stand behind the last row.
  statement_.Finish();
  return rows;
}

}  // namespace ordex
