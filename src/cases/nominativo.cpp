#include "cases/nominativo.h"

#include "base/error.h"
#include "base/text.h"

namespace ordex {

std::string LeggiNominativo(const Database& database, std::int32_t ID_Ana) {
  DbRecord record;
  record.Open(database,
              "SELECT Cognome,Nome From Anagrafica WHERE ID_Ana = " + std::to_string(ID_Ana),
              kForReadingToo);
  const std::string cognome = ToText(record.Get("Cognome"));
  const std::string nome = ToText(record.Get("Nome"));
  return std::string(Trim(cognome)).append(",").append(Trim(nome));
}

std::string CognomeDaNominativo(std::string_view nominativo) {
  const auto halves = SplitOnce(nominativo, ",");
  if (!halves) throw MakeError(ErrorNumber::kSubscript, "\"" + std::string(nominativo) + "\"");
  return std::string(halves->left);
}

}  // namespace ordex
