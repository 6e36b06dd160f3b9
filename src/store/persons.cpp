#include "store/persons.h"

#include <string>

#include "base/text.h"
#include "store/fixed_rows.h"
#include "store/party_names.h"

namespace ordex {
namespace {

struct PartyName {
  bool societa = false;
  std::string cognome;
  std::string nome;
};

PartyName NameOf(std::string_view soggetto) {
  PartyName name;
  name.societa = IsSocieta(soggetto);
  name.cognome = name.societa ? std::string(soggetto) : EstraiCognomi(soggetto, name.nome);
  return name;
}

std::string LookupSql(const PartyName& name) {
  std::string szSql = "SELECT * from Anagrafica where ";
  szSql.append(" LOWER(Cognome) = ").append(FormattaStringaSql(Lower(name.cognome)));
  szSql.append(" AND ");
  if (name.nome.empty()) return szSql.append(" Nome IS NULL");
  return szSql.append(" LOWER(Nome) = ").append(FormattaStringaSql(Lower(name.nome)));
}

// The defaults are fixed, for companies too.
void AddPerson(DbRecord& record, const PartyName& name) {
  Recordset& rows = record.recordset();
  rows.AddNew();
  record.Set("Cognome", name.cognome);
  record.Set("Nome", name.nome);
  record.Set("IsFisicaGiuridica", !name.societa);
  record.Set("IsSostitutoImposta", name.societa);
  record.Set("Cambio", kLiraRate);
  record.Set("Valuta", std::string("EURO"));
  record.Set("StatoCivile", std::int64_t{1});
  record.Set("TipoSocieta", std::int64_t{1});
  record.Set("Categoria", std::string("CLIENTE"));
  rows.Update();
}

std::int32_t FindOrAdd(const Database& database, std::string_view soggetto,
                       PersonDialog& frmInfoAnagrafica, const bool& bCollegareAna) {
  const PartyName name = NameOf(soggetto);
  DbRecord record;
  record.Open(database, LookupSql(name), kForChanges);
  if (record.recordset().RecordCount() >= 1) {
    frmInfoAnagrafica.ValorizzaInfo(record, CardMode::kWithQuestion);
    frmInfoAnagrafica.ShowModal();
  }
  if (!bCollegareAna) AddPerson(record, name);
  return AsInt32(record.Get("ID_Ana"));
}

}  // namespace

std::int32_t CercaAnagrafica(const Database& database, std::string_view soggetto,
                             PersonDialog& frmInfoAnagrafica, const bool& bCollegareAna,
                             MessageBoxes& boxes) {
  try {
    return FindOrAdd(database, soggetto, frmInfoAnagrafica, bCollegareAna);
  } catch (const RunTimeError& error) {
    boxes.Show({error.description(), std::string(kBoxTitle), BoxIcon::kWarning});
    return 0;
  }
}

}  // namespace ordex
