#include "abuse/big_pages.h"

namespace ordex::abuse {
namespace {

// Further and further days of the years from 2027 on, 28 to each month.
std::string Day(std::size_t number) {
  constexpr std::size_t kDays = 28;
  constexpr std::size_t kMonths = 12;
  const auto two = [](std::size_t value) {
    return (value < 10 ? "0" : "") + std::to_string(value);
  };
  const std::size_t month = number / kDays;
  return two(number % kDays + 1) + "/" + two(month % kMonths + 1) + "/" +
         std::to_string(2027 + month / kMonths);
}

std::string Text(std::size_t number, std::size_t length) {
  std::string text = "Evento " + std::to_string(number) + " ";
  text.append(length, 'x');
  return text;
}

}  // namespace

std::string ProfilePage(const std::string& number, const std::string& client,
                        std::size_t deadlines) {
  std::string page =
      "Profilo del fascicolo - Dati generali\nNumero di iscrizione a ruolo: " + number +
      "\nOggetto: Compravendita\nAttore: " + client +
      " - Avv. Ferrigati Nora\nConvenuto: ALFA S.R.L. - Avv. De Santilli Ippolito\n"
      "Prossima udienza: 12/03/2026 09:30 (Fascicolo)\n"
      "Termini assegnati dal giudice\n";
  for (std::size_t i = 0; i < deadlines; ++i) {
    page.append("Termine ").append(std::to_string(i + 1)).append(": ").append(Day(i)).append("\n");
  }
  return page + "\nTorna in cima\n";
}

std::string HistoryPage(std::size_t events, std::size_t length) {
  std::string page = "Storico del fascicolo - Elenco eventi\nElenco(" + std::to_string(events) +
                     " righe) Pagina 1 di 1\n\nProg.\tData\tDescrizione\n";
  for (std::size_t i = 1; i <= events; ++i) {
    page.append(std::to_string(i)).append("\t").append(Day(i)).append("\t");
    page.append(Text(i, length)).append("\n");
  }
  return page;
}

std::string AgendaPage(const std::string& number, std::size_t deadlines) {
  std::string page =
      "Agenda dell'avvocato - Impegni del periodo\nTotale impegni: " + std::to_string(deadlines) +
      " nel periodo scelto\n\nFascicolo | VERDI / NERI | " + number +
      " presso Tribunale\nTipo | Quando | Impegno\n";
  for (std::size_t i = 0; i < deadlines; ++i) {
    page.append("Scadenza | ").append(Day(i)).append(" | Impegno ").append(std::to_string(i + 1));
    page.append("\n");
  }
  return page + "\nTorna in cima\n";
}

std::string JusticePage(const std::string& number, std::size_t events) {
  std::string page =
      "Giudice di pace - Scheda del procedimento\nDati del procedimento\n"
      "Ruolo ; N. Ruolo GdP: " +
      number +
      " ; Iscritto il: 24/11/2025\nOggetto: Sinistro\n\n"
      "Parti e rappresentanti\nAttore/Danneggiato: P**** rappresentato/a da F****\n"
      "Convenuto/Responsabile: T**** rappresentato/a da Q****\n\n"
      "STORICO DEL FASCICOLO - MOVIMENTI\nData \tMovimento\n";
  for (std::size_t i = 0; i < events; ++i) {
    page.append(Day(i)).append(" \t").append(Text(i + 1, 100)).append("\n");
  }
  return page + "\nTorna in cima\n";
}

}  // namespace ordex::abuse
