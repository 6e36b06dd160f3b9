// Benches for the page kinds beside the profile, each with the wording of a portal of our own.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "import_bench.h"

namespace ordex::testing {

// A bench for pages of one kind.
class PageBench : public ImportBench {
 public:
  PageBench(std::int16_t kind, std::string_view delimiters) : kind_(kind) {
    Delimiters(delimiters);
  }

  Stop Read(const std::vector<std::string>& lines) { return Run(lines, kind_); }
  Stop ReadBytes(std::string_view bytes) { return RunBytes(bytes, kind_); }

 private:
  std::int16_t kind_;
};

// The words for a line that was cut into fewer parts than the rule needs.
inline std::string TooFewParts(int has, int needs) {
  return "Indice non incluso nell'intervallo: la riga ha " + std::to_string(has) +
         (has == 1 ? " parte" : " parti") + ", ne servono almeno " + std::to_string(needs);
}

// The words for the total of a history that cannot be read.
inline std::string TotalNotRead(const std::string& why) {
  return "il totale degli eventi dello storico non si legge: " + why +
         ". Copiare di nuovo la pagina, oppure correggere i due testi in \"MapDelimitatori.txt\"";
}
inline std::string TotalIs(const std::string& text) {
  return TotalNotRead("tra \"Lista(\" (DELSF4) e \"voci)\" (DELSF5) sta \"" + text + "\"");
}

// --- agenda -------------------------------------------------------------------------------------

inline constexpr std::string_view kAgendaDelimiters =
    "Impegni in tutto:=DELAV1\n"
    "dal giorno=DELAV2\n"
    "Causa #=DELAV3\n"
    " davanti a =DELAV4\n"
    "Elenco impegni=DELAV5\n"
    " # =DELAV6\n";

using AgendaEntries = std::vector<AgendaEntry>;

struct AgendaBench : PageBench {
  AgendaBench() : PageBench(kPageAgenda, kAgendaDelimiters) {}
};

// --- history ------------------------------------------------------------------------------------

inline constexpr std::string_view kHistoryDelimiters =
    "N. Giorno Fatto=DELSF1\n"
    " =DELSF2\n"
    "**=DELSF3\n"
    "Lista(=DELSF4\n"
    "voci)=DELSF5\n"
    "Foglio=DELSF6\n"
    "su=DELSF7\n"
    "N. Giorno Fatto (segue)=DELSF8\n"
    "N. Giorno Evento=DELSF9\n"
    "N. Giorno Evento (segue)=DELSF10\n";

inline constexpr const char* kHistoryHeader = "N. Giorno Fatto";

// At page 2 of 5.
struct HistoryBench : PageBench {
  HistoryBench() : PageBench(kPageHistory, kHistoryDelimiters) {
    paging.iPaginaStorico = 2;
    paging.iTotPagineStorico = 5;
  }
};

inline Row HistoryRow(std::string number, std::string date, std::string description,
                      std::string page = "2/5") {
  return {std::move(number), std::move(date), std::move(description), std::move(page), ""};
}

// --- justice of the peace -----------------------------------------------------------------------

inline constexpr std::string_view kJusticeDelimiters =
    ":=DELGDP1\n"
    "Dati della causa=DELGDP2\n"
    "Le parti=DELGDP3\n"
    "Ruolo ;=DELGDP4\n"
    "MOVIMENTI=DELGDP5\n"
    "Giorno Fatto=DELGDP6\n"
    "Ricorre:=DELGDP8\n"
    "Resiste:=DELGDP9\n"
    "Agisce:=DELGDP10\n"
    "Risponde:=DELGDP11\n"
    " ; =DELGDP12\n"
    "Udienze |=DELGDP13\n"
    " | =DELGDP14\n"
    "Giudice |=DELGDP15\n"
    " =DELSF2\n";

// Two of the four party forms fill no field.
inline constexpr std::string_view kJusticeFields =
    "NumeroRegGenerale=N. Ruolo\n"
    "Oggetto=Oggetto\n"
    "Materia=Materia\n"
    "Note=Note\n"
    "Note=Avvisi\n"
    "Istruttore=Magistrato\n"
    "Sezione=Sezione\n"
    "DUUd=Ultima udienza\n"
    "DPUd=Prossima udienza\n"
    "ParteAttrice=Ricorre:\n"
    "ParteConvenuta=Resiste:\n";

struct JusticeBench : PageBench {
  JusticeBench() : PageBench(kPageJusticeOfThePeace, kJusticeDelimiters) { Fields(kJusticeFields); }
};

inline const Row kHistoryHeadingRow{"", "--STORICO DEL FASCICOLO--", "", "", ""};

inline Row EventRow(std::string date, std::string text) {
  return {"Storico", std::move(date), std::move(text), "", ""};
}

}  // namespace ordex::testing
