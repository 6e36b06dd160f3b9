// Small pages of the portal, as text on the clipboard.
#pragma once

#include <initializer_list>
#include <string>

namespace ordex::testing {

inline constexpr const char* kHistoryPhrase = "storico del fascicolo - elenco eventi";
inline constexpr const char* kHistoryFile = "storico del fascicolo - elenco eventi.txt";
inline constexpr const char* kAgendaPhrase = "agenda dell'avvocato - impegni del periodo";
inline constexpr const char* kJusticePhrase = "giudice di pace - scheda del procedimento";

// A history page with that place, e.g. "Pagina 2 di 5", and those lines as its events.
inline std::string HistoryPage(const std::string& place, std::initializer_list<const char*> lines) {
  std::string page = "Storico del fascicolo - Elenco eventi\nElenco(42 righe) " + place +
                     "\nProg. Data Descrizione\n";
  for (const char* line : lines) page.append(line).append("\n");
  return page;
}

// An agenda page with one case and those lines as its entries.
inline std::string AgendaPage(const std::string& number, std::initializer_list<const char*> lines) {
  std::string page = "Agenda dell'avvocato - Impegni del periodo\nTotale impegni: " +
                     std::to_string(lines.size()) + " nel periodo\nFascicolo | ROSSI / BIANCHI | " +
                     number + " presso Tribunale\nTipo | Quando | Impegno\n";
  for (const char* line : lines) page.append(line).append("\n");
  return page + "\n";
}

}  // namespace ordex::testing
