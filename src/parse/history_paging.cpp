#include "parse/history_paging.h"

#include <optional>

#include "base/error.h"
#include "base/number.h"
#include "base/text.h"
#include "parse/page_rules.h"

namespace ordex {
namespace {

// Errors of the page line are absorbed: a number that cannot be read leaves its variable as it was.
void ReadNumber(std::string_view text, std::int16_t& number) {
  try {
    number = ToInt16(text);
  } catch (const RunTimeError&) {  // NOLINT(bugprone-empty-catch): prescribed
  }
}

// So does the text between the numbers, where the mapping file lacks it: the line cannot be cut.
void ReadPageLine(const KeyedTable& cDelimitatori, std::string_view line, HistoryPaging& paging) {
  const std::string* between = cDelimitatori.Lookup("DELSF7");
  if (between == nullptr) return;
  const auto numbers = Split(line, *between, 2);
  ReadNumber(numbers[0], paging.iPaginaStorico);
  if (numbers.size() > 1) ReadNumber(numbers[1], paging.iTotPagineStorico);
}

// What stands behind the total and the page's mark; nullopt where there is no such place. A mark
// that the mapping file lacks cannot be found either.
std::optional<std::string_view> BehindPageMark(const KeyedTable& cDelimitatori,
                                               std::string_view text, std::string_view totalEnd) {
  const std::string* mark = cDelimitatori.Lookup("DELSF6");
  if (mark == nullptr) return std::nullopt;
  const auto around = Split(text, std::string(totalEnd).append(*mark), 2);
  if (around.size() < 2) return std::nullopt;
  return around[1];
}

}  // namespace

void LeggiPaginazioneStorico(const KeyedTable& cDelimitatori, std::string& s,
                             HistoryPaging& paging) {
  if (s.empty()) return;
  const std::string end(Delimiter(cDelimitatori, "DELSF5").text());
  const std::string_view before = Split(s, end, 2)[0];
  const auto total = Split(before, Delimiter(cDelimitatori, "DELSF4").text(), 2);
  paging.iTotEventiStorico = ToInt16(Part(total, 1));

  const auto behind = BehindPageMark(cDelimitatori, s, end);
  if (!behind) {
    // A history of one page prints no page line.
    paging.iPaginaStorico = 1;
    paging.iTotPagineStorico = 1;
    return;
  }
  s = std::string(Split(*behind, "\r\n", 2)[0]);
  ReadPageLine(cDelimitatori, s, paging);
}

void ReadHistoryPlace(const KeyedTable& cDelimitatori, std::string_view clipboardText,
                      HistoryPaging& paging) {
  paging.bPaginaAggiunta = false;
  const std::string_view begin = Delimiter(cDelimitatori, "DELSF4").text();
  const std::string_view end = Delimiter(cDelimitatori, "DELSF5").text();
  if (!Contains(clipboardText, begin) || !Contains(clipboardText, end)) return;
  std::string s = ReplaceAll(clipboardText, " ", "");
  LeggiPaginazioneStorico(cDelimitatori, s, paging);
  const std::string number = std::to_string(paging.iPaginaStorico);
  paging.bPaginaNuova = !paging.cPagineStorico.Exists(number);
  if (!paging.bPaginaNuova) return;
  paging.cPagineStorico.Add(number, number);
  paging.bPaginaAggiunta = true;
}

void ForgetHistoryPage(HistoryPaging& paging) {
  if (!paging.bPaginaAggiunta) return;
  paging.cPagineStorico.Remove(std::to_string(paging.iPaginaStorico));
  paging.bPaginaAggiunta = false;
}

}  // namespace ordex
