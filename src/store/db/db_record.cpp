#include "store/db/db_record.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <unordered_set>
#include <utility>

#include "base/error.h"
#include "base/quoted.h"
#include "store/db/ascii.h"
#include "store/db/fit_to_column.h"
#include "store/db/refused_query.h"

namespace ordex {
namespace {

RunTimeError RecordError(const std::string& text) {
  return MakeError(ErrorNumber::kDatabase, text);
}

RunTimeError NoCurrentRow() {
  return RecordError("non c'è una riga corrente: il risultato è vuoto o finito");
}

RunTimeError RowGone(const ColumnInfo& key, const Value& keyValue) {
  return RecordError("la riga non esiste più nella tabella " + Quoted(key.table) + " (" + key.name +
                     " " + ToText(keyValue) +
                     "): un altro programma l'ha cancellata; ripetere l'operazione");
}

// The one table that the columns stem from; expressions stem from none.
void RequireOneTable(const std::vector<ColumnInfo>& columns) {
  const ColumnInfo* first = nullptr;
  for (const ColumnInfo& column : columns) {
    if (column.table.empty()) continue;
    if (first == nullptr) first = &column;
    if (!EqualAscii(first->table, column.table)) {
      throw RecordError("il risultato non si può modificare: viene da più tabelle (" +
                        Quoted(first->table) + ", " + Quoted(column.table) + ")");
    }
  }
}

// A SELECT of those columns of one row that stem from its table.
std::string SelectRow(const std::vector<ColumnInfo>& columns, const ColumnInfo& key) {
  std::string select = "SELECT ";
  const char* separator = "";
  for (const ColumnInfo& column : columns) {
    if (column.table.empty()) continue;
    select.append(separator).append(Quoted(column.name));
    separator = ", ";
  }
  return select + " FROM " + Quoted(key.table) + " WHERE " + Quoted(key.name) + " = ?";
}

}  // namespace

Recordset::Recordset(Connection& connection, std::unique_ptr<Query> query, bool updatable)
    : connection_(connection), query_(std::move(query)), updatable_(updatable) {}

// --- reading ------------------------------------------------------------------------------------

void Recordset::Fetch() {
  if (fetched_) return;
  std::vector<Row> selected = query_->FetchAll();
  fetched_ = true;
  if (rows_.empty()) {
    rows_ = std::move(selected);
    return;
  }
  // Rows added before may be among those selected now; each counts once.
  const std::size_t key = KeyColumn();
  std::unordered_set<std::string> added;
  for (const Row& row : rows_) added.insert(ToText(row[key]));
  std::erase_if(selected, [&](const Row& row) { return added.contains(ToText(row[key])); });
  current_ += selected.size();
  selected.insert(selected.end(), std::make_move_iterator(rows_.begin()),
                  std::make_move_iterator(rows_.end()));
  rows_ = std::move(selected);
}

std::size_t Recordset::RecordCount() {
  Fetch();
  return rows_.size();
}

bool Recordset::Eof() {
  // A row added here is current without anything having been read.
  if (current_ < rows_.size()) return false;
  Fetch();
  return current_ >= rows_.size();
}

void Recordset::MoveNext() {
  if (HasChanges()) Update();
  Fetch();
  CurrentRow();
  ++current_;
}

const std::vector<ColumnInfo>& Recordset::Fields() {
  return query_->Columns();
}

std::size_t Recordset::ColumnIndex(std::string_view name) {
  const std::vector<ColumnInfo>& columns = Fields();
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (EqualAscii(columns[i].name, name)) return i;
  }
  throw RecordError("la colonna " + Quoted(name) + " non è nel risultato dell'interrogazione");
}

Row& Recordset::CurrentRow() {
  if (Eof()) throw NoCurrentRow();
  return rows_[current_];
}

Value Recordset::Get(std::string_view column) {
  const std::size_t index = ColumnIndex(column);
  for (const Change& change : changes_) {
    if (change.column == index) return change.value;
  }
  if (adding_) return Null{};
  const Row& row = CurrentRow();
  const std::size_t first_added = rows_.size() - known_.size();
  if (current_ >= first_added && !known_[current_ - first_added][index]) ReadAgain(current_);
  return row[index];
}

// Reads what the engine put into those columns of a new row that were not set.
void Recordset::ReadAgain(std::size_t place) {
  const std::vector<ColumnInfo>& columns = Fields();
  const std::size_t key = KeyColumn();
  const Value key_value = rows_[place][key];
  const std::string select = SelectRow(columns, columns[key]);
  std::vector<Row> found = connection_.PrepareNative(select, {&key_value, 1})->FetchAll();
  if (found.size() != 1) throw RowGone(columns[key], key_value);
  auto value = found.front().begin();
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (!columns[i].table.empty()) rows_[place][i] = std::move(*value++);
  }
  known_[place - (rows_.size() - known_.size())].assign(columns.size(), true);
}

// --- writing ------------------------------------------------------------------------------------

void Recordset::RequireOpenForChanges() const {
  if (!updatable_) {
    throw RecordError("il risultato è aperto in sola lettura (per scrivere serve il modo 3)");
  }
}

std::size_t Recordset::KeyColumn() {
  const std::vector<ColumnInfo>& columns = Fields();
  RequireOneTable(columns);
  auto key = std::find_if(columns.begin(), columns.end(),
                          [](const ColumnInfo& column) { return column.identity; });
  if (key == columns.end()) {
    key = std::find_if(columns.begin(), columns.end(),
                       [](const ColumnInfo& column) { return column.primaryKey; });
  }
  if (key == columns.end()) {
    throw RecordError(
        "il risultato non si può modificare: tra le colonne lette manca la chiave della tabella");
  }
  return static_cast<std::size_t>(key - columns.begin());
}

void Recordset::AddNew() {
  RequireOpenForChanges();
  KeyColumn();
  if (HasChanges()) Update();
  adding_ = true;
}

void Recordset::Set(std::string_view column, const Value& value) {
  const std::size_t index = ColumnIndex(column);
  if (!adding_) CurrentRow();
  Value fitted = FitToColumn(value, Fields()[index]);
  const auto known = std::find_if(changes_.begin(), changes_.end(),
                                  [&](const Change& change) { return change.column == index; });
  if (known != changes_.end()) {
    known->value = std::move(fitted);
  } else {
    changes_.push_back({index, std::move(fitted)});
  }
}

void Recordset::Update() {
  RequireOpenForChanges();
  if (adding_) {
    WriteNewRow();
  } else if (!changes_.empty()) {
    WriteChanges();
  }
  adding_ = false;
  changes_.clear();
}

std::vector<NamedValue> Recordset::NamedValues(const std::vector<Change>& changes) {
  const std::vector<ColumnInfo>& columns = Fields();
  std::vector<NamedValue> values;
  values.reserve(changes.size());
  for (const Change& change : changes) {
    const ColumnInfo& column = columns[change.column];
    if (column.identity || column.table.empty()) {
      throw RecordError("la colonna " + Quoted(column.name) +
                        (column.identity ? " è assegnata dal database e non si può scrivere"
                                         : " è calcolata e non si può scrivere"));
    }
    values.emplace_back(column.name, change.value);
  }
  return values;
}

void Recordset::WriteNewRow() {
  const std::vector<ColumnInfo>& columns = Fields();
  const std::size_t key = KeyColumn();
  const std::int64_t identity = connection_.Insert(columns[key].table, NamedValues(changes_));
  Row row(columns.size());
  std::vector<bool> known(columns.size(), false);
  for (Change& change : changes_) {
    row[change.column] = std::move(change.value);
    known[change.column] = true;
  }
  if (columns[key].identity) row[key] = identity;
  known[key] = true;
  current_ = rows_.size();
  rows_.push_back(std::move(row));
  known_.push_back(std::move(known));
}

void Recordset::WriteChanges() {
  Row& row = CurrentRow();
  std::vector<Change> differing;
  for (const Change& change : changes_) {
    if (change.value != row[change.column]) differing.push_back(change);
  }
  if (differing.empty()) return;
  const std::size_t key = KeyColumn();
  const ColumnInfo& column = Fields()[key];
  if (connection_.UpdateRow(column.table, NamedValues(differing), column.name, row[key]) != 1) {
    throw RowGone(column, row[key]);
  }
  for (Change& change : differing) row[change.column] = std::move(change.value);
}

// --- the record object --------------------------------------------------------------------------

Recordset& DbRecord::recordset() {
  if (!recordset_) throw RecordError("nessuna interrogazione è aperta");
  return *recordset_;
}

void DbRecord::Open(const Database& database, const SqlText& szSql, int mode) {
  Close();
  database.diagnostics.DebugszSql(szSql.text());
  if (!szSql.HoldsTogether()) {
    throw RefusedQuery(
        "un valore letto dalla pagina contiene un apostrofo, che ne "
        "cambierebbe il senso: " +
        szSql.text());
  }
  recordset_.emplace(database.connection, database.connection.Prepare(szSql.text()),
                     mode == kForChanges);
}

void DbRecord::Close() {
  recordset_.reset();
}

void Execute(const Database& database, std::string_view szSql) {
  database.diagnostics.DebugszSql(szSql);
  database.connection.Execute(szSql);
}

}  // namespace ordex
