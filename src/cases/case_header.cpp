#include "cases/case_header.h"

#include <algorithm>

#include "base/error.h"
#include "base/text.h"
#include "cases/case_names.h"
#include "cases/case_search.h"

namespace ordex {
namespace {

constexpr std::string_view kSelectCase = "SELECT * FROM Pratica WHERE ID_Pra = ?";

// The column's value, or Null where the table has no such column: an older case database lacks
// some.
Value ColumnValue(const std::vector<ColumnInfo>& columns, const Row& row, std::string_view name) {
  const auto found = std::find_if(columns.begin(), columns.end(), [name](const ColumnInfo& column) {
    return EqualIgnoringCase(column.name, name);
  });
  if (found == columns.end()) return Null{};
  return row[static_cast<std::size_t>(found - columns.begin())];
}

}  // namespace

void CaseHeaderControl::Reset() {
  const std::int32_t user = header_.idUtente;
  const bool visible = header_.visible;
  header_ = CaseHeader{};
  header_.idUtente = user;
  header_.visible = visible;
}

void CaseHeaderControl::Clear() {
  Reset();
}

bool CaseHeaderControl::LoadCase(std::int32_t idPra) {
  const std::vector<Value> parameters = {std::int64_t{idPra}};
  const auto query = connection_->PrepareNative(kSelectCase, parameters);
  const std::vector<Row> rows = query->FetchAll();
  const std::vector<Row> named =
      connection_->PrepareNative(std::string(kSelectCaseNames) + " WHERE p.ID_Pra = ?", parameters)
          ->FetchAll();
  Clear();
  if (rows.empty() || named.empty()) return false;

  const CaseNames names = ReadCaseNames(named.front());
  const auto text = [&](std::string_view column) {
    return ToText(ColumnValue(query->Columns(), rows.front(), column));
  };
  header_.idPra = idPra;
  header_.numeroRG = names.numeroRG;
  header_.title = names.Title();
  header_.descriptions = {text("Oggetto"), text("Sezione")};
  header_.penale = ToBool(ColumnValue(query->Columns(), rows.front(), "IsPenale"));
  header_.cliente = {names.idCliente, names.cliente};
  header_.controparte = {names.idControparte, names.controparte};
  header_.istruttore = text("Istruttore");
  header_.posizione = text("Posizione");
  return true;
}

void CaseHeaderControl::Search(std::string_view text) {
  header_.searchText = text;
  header_.found = SearchCases(*connection_, text);
}

}  // namespace ordex
