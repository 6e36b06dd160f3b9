// Where in the portal's history the copied page stands.
#pragma once

#include <string>
#include <string_view>

#include "base/keyed_table.h"
#include "state/page.h"

namespace ordex {

// Reads the page's place from the clipboard's text, and whether it is new in this run. A text
// without the marks of the total leaves everything as it was.
// Errors: missing key, of the delimiters of the total; subscript, type mismatch or overflow, where
// no number stands between its marks. Errors of the page line are absorbed.
void ReadHistoryPlace(const KeyedTable& cDelimitatori, std::string_view clipboardText,
                      HistoryPaging& paging);

// `s` is the clipboard's text with every blank removed; it is overwritten with a fragment of it.
void LeggiPaginazioneStorico(const KeyedTable& cDelimitatori, std::string& s,
                             HistoryPaging& paging);

// Forgets the page that the last recognition entered, so that it can be copied again. Where it
// entered none, nothing is forgotten: an earlier page may have been taken well.
void ForgetHistoryPage(HistoryPaging& paging);

}  // namespace ordex
