#include "parse/recognition.h"

#include "base/text.h"
#include "parse/mapping_files.h"

namespace ordex {
namespace {

void FindKind(const KeyedTable& cRestr, std::string_view clipboardText, std::int16_t& iOrdexPage) {
  const std::string lowered = Lower(clipboardText);
  for (std::size_t i = 1; i <= cRestr.Count(); ++i) {
    if (Contains(lowered, cRestr.At(i).value)) {
      iOrdexPage = static_cast<std::int16_t>(i);
      return;
    }
    iOrdexPage = kPageUnknown;
  }
}

}  // namespace

std::string ClipboardText(const Clipboard& clipboard) {
  return ToCrLf(clipboard.GetText());
}

bool RiconosciPagina(Mappings& mappings, Page& page, HistoryPaging&, Clipboard& clipboard,
                     MessageBoxes& boxes) {
  const std::string text = ClipboardText(clipboard);
  FindKind(mappings.cRestr, text, page.iOrdexPage);
  if (page.iOrdexPage == kPageUnknown) {
    boxes.Show({"La pagina corrente non può essere importata in Praxion.", std::string(kBoxTitle),
                BoxIcon::kStop});
    clipboard.Clear();
    return false;
  }
  if (page.iOrdexPage == kPageHistory) LoadDelimitatori(mappings);
  return true;
}

}  // namespace ordex
