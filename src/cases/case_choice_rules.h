// The choice of the case, of its parties and of its accounting user.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "cases/case_header.h"
#include "state/case_choice.h"
#include "state/commands.h"
#include "state/page.h"
#include "store/db/db_record.h"

namespace ordex {

// Looks the page's register number up: counts the cases that carry it and shows the first of them
// in the case header. Where there is none the case shown and lIdPratica stay as they are.
// Errors: of the database; also where the number holds an apostrophe.
void CercaPratica(const Database& database, std::string_view szNumeroRG, CaseChoice& choice,
                  CaseHeaderControl& ctlTestata1);

// Tells in the status bar how many cases were found, and sets the action button up accordingly.
void GestCount(std::int16_t iCountPra, std::string_view szNumeroRG, StatusBar& status,
               Button& cmdAzione);
// The same for an agenda page: how many entries will be taken over.
void GestCountAgenda(std::int16_t iNrEventi, StatusBar& status);

// Fills cmbUtenteCont afresh with the users who may hold the accounts and chooses the first.
// Errors: of the database; subscript, where there is no such user.
void LoadUteContabilita(const Database& database, CaseChoice& choice);

// Offers a party, and keeps its counsel, in both boxes.
void LoadcmbParti(CaseChoice& choice, std::string_view szSoggetto, std::string_view szDifensore);

// The user chose entry `place` of a parties box (ComboBox::kNoChoice: none).
void SelectParty(CaseChoice& choice, std::size_t Index, int place);
void cmbParti_Click(CaseChoice& choice, std::size_t Index);

// The user chose entry `place` of the accounting users.
void SelectUtenteCont(CaseChoice& choice, int place);
void cmbUtenteCont_Click(CaseChoice& choice);

// The user chose the case that the header now shows.
void ctlTestata1_Event9(std::int16_t pageKind, const CaseHeader& header, StatusBar& status,
                        Button& cmdAzione);

}  // namespace ordex
