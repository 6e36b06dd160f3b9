// Recognition of the page kind, with the history's paging, under changed mapping files.
//
// The input: the recognition file up to a line "--", then changes and page as in page_input.h.
#include <string>

#include "base/error.h"
#include "base/text.h"
#include "parse/recognition.h"
#include "support/page_input.h"
#include "support/world.h"

namespace ordex::fuzz {
namespace {

void Recognise(const Folder& folder, const std::string& text) {
  Mappings mappings;
  LocateMappings(mappings, folder.path());
  LoadRestr(mappings);
  TextOnClipboard clipboard(text);
  DefaultAnswers boxes;
  Page page;
  HistoryPaging paging;
  // A page that is copied twice in a run is new once.
  for (int copy = 1; copy <= 2; ++copy) {
    const bool known = RiconosciPagina(mappings, page, paging, clipboard, boxes);
    Require(known == (page.iOrdexPage != kPageUnknown), "a known page has a kind");
    if (!known) {
      Require(clipboard.GetText().empty(), "an unknown page is taken off the clipboard");
      return;
    }
    const auto kind = static_cast<std::size_t>(page.iOrdexPage);
    const std::string lowered = Lower(ToCrLf(text));
    for (std::size_t i = 1; i <= kind; ++i) {
      Require(Contains(lowered, mappings.cRestr.At(i).value) == (i == kind), "the first text wins");
    }
    Require(!paging.bPaginaAggiunta || paging.bPaginaNuova, "only a new page is entered");
    Require(copy == 1 || !paging.bPaginaAggiunta, "a page is entered once");
  }
}

}  // namespace
}  // namespace ordex::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace ordex::fuzz;
  static const Folder folder;
  Input input(data, size);
  std::string recognition;
  for (std::string_view line = input.Line(); line != "--" && !input.AtEnd(); line = input.Line()) {
    recognition.append(line).append("\n");
  }
  folder.Write(ordex::kMapRestr, recognition);
  const PageInput page(input, ordex::kPageHistory);
  page.WriteMappings(folder);
  try {
    Recognise(folder, page.page());
  } catch (const ordex::RunTimeError& error) {
    Require(!error.description().empty(), "an error says what is wrong");
  }
  return 0;
}
