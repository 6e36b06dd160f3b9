// The buttons of the main window and what they have agreed with the user.
#pragma once

#include "state/controls.h"

namespace ordex {

struct Commands {
  Button cmdAzione{"Azione", Symbol::kNone, true, true,
                   "I dati di OrdexWeb saranno allineati con la pratica di Praxion selezionata"};
  Button cmdAnnulla{"&Annulla", Symbol::kNone, false, true, "Annulla la creazione"};
  Button cmdNo{"&Chiudi", Symbol::kNone, true, true,
               "I dati di OrdexWeb non saranno importati in Praxion. Il programma verrà chiuso"};
  Button cmdPulisci{"", Symbol::kNone, true, true, "Pulisci campi"};
  ToggleButton chkDettagli{"&Dettagli ...", false, "keyExpand", "Mostra i dettagli"};
  Label HIWarning{
      "Verificare la correttezza dei dati prima di qualsiasi operazione cliccando su DETTAGLI !"};

  // The user has agreed to create a case and is choosing the parties: the next press creates it.
  bool bConferma = false;
  // The user's last answer in the person dialog: link the client to the person shown.
  bool bCollegareAna = false;
};

}  // namespace ordex
