// Tells which kind of page the user copied.
#pragma once

#include <string>
#include <string_view>

#include "state/mappings.h"
#include "state/page.h"
#include "state/ports.h"

namespace ordex {

// The clipboard's text as the program works on it: line ends brought to CRLF.
std::string ClipboardText(const Clipboard& clipboard);

// Sets `iOrdexPage` to the position of the first recognition text that the clipboard's text holds,
// letter case ignored. Where there is none, tells the user, clears the clipboard and returns false:
// the program must end. Errors: overflow, where the position is no 16-bit integer; on a history
// page those of LoadDelimitatori.
bool RiconosciPagina(Mappings& mappings, Page& page, HistoryPaging& paging, Clipboard& clipboard,
                     MessageBoxes& boxes);

}  // namespace ordex
