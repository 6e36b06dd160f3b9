#include "page_text.h"

#include <array>
#include <string_view>

namespace ordex::bench {
namespace {

struct Field {
  std::string_view label;
  std::string_view value;
};

// Party labels are left out: a second plaintiff would stop the import.
constexpr std::array<Field, 12> kFields = {{
    {"Sezione", "Seconda Civile"},
    {"Giudice istruttore", "Dott.ssa Bracalenti Ersilia"},
    {"Oggetto", "Esecuzione specifica dell'obbligo di concludere un contratto: vendita"},
    {"Codice oggetto", "VB-140.062"},
    {"Materia", "Contratti e obbligazioni"},
    {"Rito", "Ordinario"},
    {"Stato del fascicolo", "In istruttoria"},
    {"Valore della causa", "€ 186.500,00"},
    {"Contributo unificato", "€ 759,00 (versato il 13/01/2025 alle 17:05)"},
    {"Fascicoli collegati", "3310/2024 (accertamento tecnico preventivo)"},
    {"Esito dell'ultima udienza",
     "Ammesse le prove per testi; rinvio per l'escussione dei testimoni"},
    {"Annotazioni di cancelleria", "L'originale è custodito nell'armadio n. 3"},
}};

}  // namespace

std::string ProfilePage(std::size_t mappedLines) {
  std::string page = "\"Profilo del fascicolo - Dati generali\r\n";
  page.append("Numero di iscrizione a ruolo:1842/2025\r\n");
  for (std::size_t i = 0; i < mappedLines; ++i) {
    const Field& field = kFields[i % kFields.size()];
    page.append(field.label).append(":").append(field.value).append("\r\n");
  }
  return page.append("\"\r\n");
}

std::string HistoryPage(std::size_t events) {
  std::string page = "\"Storico del fascicolo - Elenco eventi\r\nProg. Data Descrizione\r\n";
  for (std::size_t i = 1; i <= events; ++i) {
    page.append(std::to_string(i))
        .append("  12/05/2025  Deposito della memoria integrativa di parte attrice\r\n");
  }
  return page.append("\"\r\n");
}

std::string AgendaPage(std::size_t entries) {
  std::string page = "\"Agenda dell'avvocato - Impegni del periodo\r\n";
  page.append("Tipo | Quando | Impegno\r\n");
  for (std::size_t i = 1; i <= entries; ++i) {
    page.append("Scadenza | 12/03/2026 | Deposito della prova dell'avvenuta notifica\r\n");
  }
  return page.append("\r\n\"\r\n");
}

std::string JusticeOfThePeacePage(std::size_t mappedLines) {
  std::string page = "\"Giudice di pace - Scheda del procedimento\r\nDati del procedimento\r\n";
  for (std::size_t i = 0; i < mappedLines; ++i) {
    const Field& field = kFields[i % kFields.size()];
    page.append(field.label).append(":").append(field.value).append("\r\n");
  }
  return page.append("\"\r\n");
}

}  // namespace ordex::bench
