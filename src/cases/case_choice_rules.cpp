#include "cases/case_choice_rules.h"

#include <limits>
#include <string>

#include "base/error.h"

namespace ordex {
namespace {

constexpr std::string_view kOnNumber = "sulla base del N. Registro Generale : ";

void SetAction(Button& cmdAzione, std::string_view caption, Symbol symbol) {
  cmdAzione.caption = caption;
  cmdAzione.symbol = symbol;
}

std::int16_t ToCount(std::size_t rows) {
  if (rows > static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max())) {
    throw MakeError(ErrorNumber::kOverflow, "troppe pratiche con lo stesso numero di registro");
  }
  return static_cast<std::int16_t>(rows);
}

}  // namespace

void CercaPratica(const Database& database, std::string_view szNumeroRG, CaseChoice& choice,
                  CaseHeaderControl& ctlTestata1) {
  SqlText szSql("Select ID_Pra from Pratica where ");
  szSql.Append("NumeroRegGenerale = ").AppendUndoubled(szNumeroRG);
  DbRecord record;
  record.Open(database, szSql, kForReadingToo);
  choice.iCountPra = ToCount(record.recordset().RecordCount());
  if (choice.iCountPra > 0) {
    choice.lIdPratica = AsInt32(record.Get("ID_Pra"));
    ctlTestata1.LoadCase(choice.lIdPratica);
  }
}

void GestCount(std::int16_t iCountPra, std::string_view szNumeroRG, StatusBar& status,
               Button& cmdAzione) {
  const std::string onNumber = std::string(kOnNumber).append(szNumeroRG);
  if (iCountPra == 0) {
    status = {"NoPratiche", "Nessuna pratica trovata " + onNumber};
    SetAction(cmdAzione, "Crea", Symbol::kCreate);
    return;
  }
  status.picture = "Praxion";
  if (iCountPra == 1) {
    status.text = "Trovata una sola pratica " + onNumber;
  } else {
    status.text = "Sono state trovate " + std::to_string(iCountPra) + " pratiche " + onNumber;
  }
  SetAction(cmdAzione, "Aggiorna", Symbol::kUpdate);
}

// Below 1 the number is followed directly by the closing words.
void GestCountAgenda(std::int16_t iNrEventi, StatusBar& status) {
  status.text = std::to_string(iNrEventi);
  if (iNrEventi > 1) {
    status.text.append(" eventi saranno riportati");
  } else if (iNrEventi == 1) {
    status.text.append(" evento sarà riportato");
  }
  status.text.append(" nell'Agenda di Praxion.");
}

void LoadUteContabilita(const Database& database, CaseChoice& choice) {
  ComboBox& box = choice.cmbUtenteCont;
  box = ComboBox{};
  DbRecord record;
  record.Open(database, "Select ID_Utente, NomeUtente from Utenti where TitContabilita = 'TRUE'",
              kForReadingToo);
  for (Recordset& rows = record.recordset(); !rows.Eof(); rows.MoveNext()) {
    box.items.push_back({ToText(rows.Get("NomeUtente")), AsInt32(rows.Get("ID_Utente"))});
  }
  record.Close();
  if (box.items.empty()) {
    throw MakeError(ErrorNumber::kSubscript,
                    "nessun utente di Praxion è titolare di contabilità; attivare "
                    "\"TitContabilita\" per almeno un utente");
  }
  SelectUtenteCont(choice, 0);
}

void LoadcmbParti(CaseChoice& choice, std::string_view szSoggetto, std::string_view szDifensore) {
  constexpr std::array<std::string_view, 2> kPrefixes = {"CL", "CO"};
  for (std::size_t i = 0; i < choice.cmbParti.size(); ++i) {
    std::vector<ComboBox::Item>& items = choice.cmbParti[i].items;
    const std::string key = std::string(kPrefixes[i]) + std::to_string(items.size());
    items.push_back({std::string(szSoggetto)});
    choice.difensori.Add(std::string(szDifensore), key);
  }
}

void SelectParty(CaseChoice& choice, std::size_t Index, int place) {
  choice.cmbParti[Index].index = place;
  cmbParti_Click(choice, Index);
}

// One party can never be client and counterpart at once.
void cmbParti_Click(CaseChoice& choice, std::size_t Index) {
  ComboBox& chosen = choice.cmbParti[Index];
  for (std::size_t j = 0; j < choice.cmbParti.size(); ++j) {
    if (j != Index && choice.cmbParti[j].Text() == chosen.Text()) {
      chosen.index = ComboBox::kNoChoice;
    } else {
      chosen.toolTip = chosen.Text();
    }
  }
}

void SelectUtenteCont(CaseChoice& choice, int place) {
  choice.cmbUtenteCont.index = place;
  cmbUtenteCont_Click(choice);
}

void cmbUtenteCont_Click(CaseChoice& choice) {
  const ComboBox& box = choice.cmbUtenteCont;
  if (box.index == ComboBox::kNoChoice) return;
  choice.lIdContab = box.items[static_cast<std::size_t>(box.index)].itemData;
}

void ctlTestata1_Event9(std::int16_t pageKind, const CaseHeader& header, StatusBar& status,
                        Button& cmdAzione) {
  if (pageKind == kPageHistory) {
    status = {"Praxion", "Pratica selezionata : " + header.title};
  }
  cmdAzione.enabled = true;
  SetAction(cmdAzione, "Aggiorna", Symbol::kUpdate);
}

}  // namespace ordex
