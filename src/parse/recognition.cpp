#include "parse/recognition.h"

#include <limits>

#include "base/error.h"
#include "base/text.h"
#include "parse/history_paging.h"
#include "parse/mapping_files.h"

namespace ordex {
namespace {

constexpr std::size_t kLastKind = std::numeric_limits<std::int16_t>::max();

// Error: overflow, where the position is no 16-bit integer.
std::int16_t KindAt(std::size_t position) {
  if (position > kLastKind) {
    throw MakeError(ErrorNumber::kOverflow, "file \"" + std::string(kMapRestr) + "\", più di " +
                                                std::to_string(kLastKind) +
                                                " testi: toglierne qualcuno.");
  }
  return static_cast<std::int16_t>(position);
}

void FindKind(const KeyedTable& cRestr, std::string_view clipboardText, std::int16_t& iOrdexPage) {
  const std::string lowered = Lower(clipboardText);
  for (std::size_t i = 1; i <= cRestr.Count(); ++i) {
    if (Contains(lowered, cRestr.At(i).value)) {
      iOrdexPage = KindAt(i);
      return;
    }
    iOrdexPage = kPageUnknown;
  }
}

}  // namespace

std::string ClipboardText(const Clipboard& clipboard) {
  return ToCrLf(clipboard.GetText());
}

bool RiconosciPagina(Mappings& mappings, Page& page, HistoryPaging& paging, Clipboard& clipboard,
                     MessageBoxes& boxes) {
  const std::string text = ClipboardText(clipboard);
  FindKind(mappings.cRestr, text, page.iOrdexPage);
  if (page.iOrdexPage == kPageUnknown) {
    boxes.Show({"La pagina corrente non può essere importata in Praxion.", std::string(kBoxTitle),
                BoxIcon::kStop});
    clipboard.Clear();
    return false;
  }
  if (page.iOrdexPage == kPageHistory) {
    LoadDelimitatori(mappings);
    ReadHistoryPlace(mappings.cDelimitatori, text, paging);
  }
  return true;
}

}  // namespace ordex
