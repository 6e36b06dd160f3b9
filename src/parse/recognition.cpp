#include "parse/recognition.h"

#include <algorithm>
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

std::size_t LongestText(const KeyedTable& cRestr) {
  std::size_t longest = 0;
  for (const KeyedTable::Entry& entry : cRestr.Entries()) {
    longest = std::max(longest, entry.value.size());
  }
  return longest;
}

// The place of the first of the texts in front of `before` that `lowered` holds; `before` where
// there is none.
std::size_t FirstHeld(const KeyedTable& cRestr, std::string_view lowered, std::size_t before) {
  std::size_t i = 1;
  while (i < before && !Contains(lowered, cRestr.At(i).value)) ++i;
  return i;
}

// The page is brought to lower case piece by piece: a large one is not held once more. A piece
// begins with the end of the one before, so that no text of the list is cut in two.
void FindKind(const KeyedTable& cRestr, std::string_view clipboardText, std::int16_t& iOrdexPage) {
  constexpr std::size_t kPiece = 250'000;  // characters
  if (cRestr.Count() == 0) return;
  const std::size_t none = cRestr.Count() + 1;
  const std::size_t kept = LongestText(cRestr);
  std::size_t kind = none;
  std::string lowered;
  std::string_view rest = clipboardText;
  do {
    const std::string_view piece = Left(rest, kPiece);
    AppendLower(piece, lowered);
    kind = FirstHeld(cRestr, lowered, kind);
    if (lowered.size() > kept) lowered.erase(0, lowered.size() - kept);
    rest.remove_prefix(piece.size());
  } while (!rest.empty() && kind > 1);
  iOrdexPage = kPageUnknown;
  if (kind != none) iOrdexPage = KindAt(kind);
}

}  // namespace

std::string ClipboardText(const Clipboard& clipboard) {
  std::string text = clipboard.GetText();
  if (HasOnlyCrLf(text)) return text;
  return ToCrLf(text);
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
