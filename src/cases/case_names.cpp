#include "cases/case_names.h"

#include "base/text.h"
#include "store/fixed_rows.h"

namespace ordex {
namespace {

// The person of three columns: ID_Ana, Cognome, Nome.
std::int32_t ReadPerson(const Row& row, std::size_t column, std::string& name) {
  if (IsNull(row[column])) return 0;
  const std::int32_t id = AsInt32(row[column]);
  if (id == kNobody) return 0;
  const std::string both = ToText(row[column + 1]) + " " + ToText(row[column + 2]);
  name = Trim(both);
  return id;
}

void AppendPiece(std::string& text, std::string_view separator, std::string_view piece) {
  if (piece.empty()) return;
  if (!text.empty()) text.append(separator);
  text.append(piece);
}

}  // namespace

CaseNames ReadCaseNames(const Row& row) {
  CaseNames names;
  names.idPra = AsInt32(row[0]);
  names.numeroRG = ToText(row[1]);
  names.idCliente = ReadPerson(row, 2, names.cliente);
  names.idControparte = ReadPerson(row, 5, names.controparte);
  if (names.idControparte == 0) names.controparte = Trim(ToText(row[8]));
  return names;
}

std::string CaseNames::Title() const {
  std::string title;
  AppendPiece(title, "", cliente);
  AppendPiece(title, kBetweenParties, controparte);
  if (!numeroRG.empty()) AppendPiece(title, " - ", std::string(kBeforeNumber) + numeroRG);
  return title;
}

}  // namespace ordex
