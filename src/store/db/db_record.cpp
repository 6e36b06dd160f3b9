#include "store/db/db_record.h"

#include <algorithm>
#include <string>
#include <utility>

#include "base/error.h"
#include "store/db/ascii.h"

namespace ordex {
namespace {

RunTimeError RecordError(const std::string& text) {
  return MakeError(ErrorNumber::kDatabase, text);
}

std::string Quoted(std::string_view name) {
  return "\"" + std::string(name) + "\"";
}

}  // namespace

Recordset::Recordset(Connection& connection, std::unique_ptr<Query> query, bool updatable)
    : connection_(connection), query_(std::move(query)), updatable_(updatable) {}

// --- reading ------------------------------------------------------------------------------------

void Recordset::Fetch() {
  if (fetched_) return;
  std::vector<Row> rows = query_->FetchAll();
  fetched_ = true;
  if (added_.empty()) {
    rows_ = std::move(rows);
    return;
  }
  // Rows added before may be among those selected now; each counts once, behind the others.
  const std::size_t key = KeyColumn();
  std::erase_if(rows, [&](const Row& row) {
    return std::any_of(rows_.begin(), rows_.end(), [&](const Row& added) {
      return !IsNull(added[key]) && added[key] == row[key];
    });
  });
  current_ += rows.size();
  for (AddedRow& added : added_) added.place += rows.size();
  rows.insert(rows.end(), std::make_move_iterator(rows_.begin()),
              std::make_move_iterator(rows_.end()));
  rows_ = std::move(rows);
}

std::size_t Recordset::RecordCount() {
  Fetch();
  return rows_.size();
}

bool Recordset::Eof() {
  // On a row that was added here nothing need be read to know it.
  if (current_ < rows_.size()) return false;
  Fetch();
  return current_ >= rows_.size();
}

void Recordset::MoveNext() {
  if (HasChanges()) Update();
  if (Eof()) throw RecordError("non c'è una riga corrente: il risultato è finito o vuoto");
  Fetch();
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
  if (Eof()) throw RecordError("non c'è una riga corrente: il risultato è finito o vuoto");
  return rows_[current_];
}

Value Recordset::Get(std::string_view column) {
  const std::size_t index = ColumnIndex(column);
  for (const Change& change : changes_) {
    if (change.column == index) return change.value;
  }
  if (adding_) return Null{};
  const Row& row = CurrentRow();
  const auto added = std::find_if(added_.begin(), added_.end(),
                                  [&](const AddedRow& each) { return each.place == current_; });
  if (added != added_.end() && !added->known[index]) ReadAgain(*added);
  return row[index];
}

// What the engine put into the columns of a new row that were not set.
void Recordset::ReadAgain(AddedRow& added) {
  const std::vector<ColumnInfo>& columns = Fields();
  const std::size_t key = KeyColumn();
  std::string select;
  std::vector<std::size_t> places;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (columns[i].table.empty()) continue;
    select.append(places.empty() ? "SELECT " : ", ").append(Quoted(columns[i].name));
    places.push_back(i);
  }
  select.append(" FROM ").append(Quoted(columns[key].table));
  select.append(" WHERE ").append(Quoted(columns[key].name)).append(" = ?");
  Row& row = rows_[added.place];
  const Value key_value = row[key];
  std::vector<Row> found = connection_.PrepareNative(select, {&key_value, 1})->FetchAll();
  if (found.size() != 1) throw RecordError(GoneText(columns[key], key_value));
  for (std::size_t i = 0; i < places.size(); ++i) row[places[i]] = std::move(found[0][i]);
  added.known.assign(columns.size(), true);
}

// --- writing ------------------------------------------------------------------------------------

void Recordset::RequireUpdatable() const {
  if (!updatable_) {
    throw RecordError("il risultato è aperto in sola lettura (serve il modo di apertura 3)");
  }
}

std::size_t Recordset::KeyColumn() {
  const std::vector<ColumnInfo>& columns = Fields();
  const std::string* table = nullptr;
  for (const ColumnInfo& column : columns) {
    if (column.table.empty()) continue;
    if (table != nullptr && !EqualAscii(*table, column.table)) {
      throw RecordError("il risultato non si può modificare: viene da più tabelle (" +
                        Quoted(*table) + " e " + Quoted(column.table) + ")");
    }
    table = &column.table;
  }
  const auto is_identity = [](const ColumnInfo& column) { return column.identity; };
  const auto is_key = [](const ColumnInfo& column) { return column.primaryKey; };
  auto key = std::find_if(columns.begin(), columns.end(), is_identity);
  if (key == columns.end()) key = std::find_if(columns.begin(), columns.end(), is_key);
  if (key == columns.end()) {
    throw RecordError(
        "il risultato non si può modificare: tra le colonne lette non c'è la chiave della tabella");
  }
  return static_cast<std::size_t>(key - columns.begin());
}

std::string Recordset::GoneText(const ColumnInfo& key, const Value& keyValue) {
  return "la riga non esiste più nella tabella " + Quoted(key.table) + " (" + key.name + " " +
         ToText(keyValue) + "): qualcun altro l'ha cancellata; ripetere l'operazione";
}

void Recordset::AddNew() {
  RequireUpdatable();
  KeyColumn();
  if (HasChanges()) Update();
  adding_ = true;
}

void Recordset::Set(std::string_view column, const Value& value) {
  const std::size_t index = ColumnIndex(column);
  if (!adding_) CurrentRow();
  Value fitted = FitToColumn(value, Fields()[index]);
  for (Change& change : changes_) {
    if (change.column == index) {
      change.value = std::move(fitted);
      return;
    }
  }
  changes_.push_back({index, std::move(fitted)});
}

void Recordset::Update() {
  RequireUpdatable();
  if (adding_) {
    WriteNewRow();
  } else if (!changes_.empty()) {
    WriteChanges();
  }
  adding_ = false;
  changes_.clear();
}

std::vector<NamedValue> Recordset::NamedChanges(const std::vector<Change>& changes) {
  const std::vector<ColumnInfo>& columns = Fields();
  std::vector<NamedValue> values;
  values.reserve(changes.size());
  for (const Change& change : changes) {
    const ColumnInfo& column = columns[change.column];
    if (column.identity) {
      throw RecordError("la colonna " + Quoted(column.name) +
                        " è assegnata dal database e non si può scrivere");
    }
    if (column.table.empty()) {
      throw RecordError("la colonna " + Quoted(column.name) +
                        " è il risultato di un calcolo e non si può scrivere");
    }
    values.emplace_back(column.name, change.value);
  }
  return values;
}

void Recordset::WriteNewRow() {
  const std::vector<ColumnInfo>& columns = Fields();
  const std::size_t key = KeyColumn();
  const std::int64_t identity = connection_.Insert(columns[key].table, NamedChanges(changes_));
  AddedRow added{rows_.size(), std::vector<bool>(columns.size(), false)};
  Row row(columns.size());
  for (Change& change : changes_) {
    row[change.column] = std::move(change.value);
    added.known[change.column] = true;
  }
  if (columns[key].identity) row[key] = identity;
  added.known[key] = true;
  rows_.push_back(std::move(row));
  current_ = added.place;
  added_.push_back(std::move(added));
}

void Recordset::WriteChanges() {
  const std::size_t key = KeyColumn();
  Row& row = CurrentRow();
  std::vector<Change> differing;
  for (const Change& change : changes_) {
    if (change.value != Get(Fields()[change.column].name, row)) differing.push_back(change);
  }
}

// --- the record object --------------------------------------------------------------------------

}  // namespace ordex
