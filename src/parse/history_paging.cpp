#include "parse/history_paging.h"

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

void ReadPageLine(const KeyedTable& cDelimitatori, std::string_view line, HistoryPaging& paging) {
  const auto numbers = Split(line, Delimiter(cDelimitatori, "DELSF7").text(), 2);
  ReadNumber(numbers[0], paging.iPaginaStorico);
  if (numbers.size() > 1) ReadNumber(numbers[1], paging.iTotPagineStorico);
}

}  // namespace

void LeggiPaginazioneStorico(const KeyedTable& cDelimitatori, std::string& s,
                             HistoryPaging& paging) {
  if (s.empty()) return;
  const std::string end(Delimiter(cDelimitatori, "DELSF5").text());
  const std::string_view before = Split(s, end, 2)[0];
  const auto total = Split(before, Delimiter(cDelimitatori, "DELSF4").text(), 2);
  paging.iTotEventiStorico = ToInt16(Part(total, 1));

  const std::string pageMark = end + std::string(Delimiter(cDelimitatori, "DELSF6").text());
  const auto around = Split(s, pageMark, 2);
  if (around.size() < 2) {
    // A history of one page prints no page line.
    paging.iPaginaStorico = 1;
    paging.iTotPagineStorico = 1;
    return;
  }
  s = std::string(Split(around[1], "\r\n", 2)[0]);
  ReadPageLine(cDelimitatori, s, paging);
}

void ReadHistoryPlace(const KeyedTable& cDelimitatori, std::string_view clipboardText,
                      HistoryPaging& paging) {
  const std::string_view begin = Delimiter(cDelimitatori, "DELSF4").text();
  const std::string_view end = Delimiter(cDelimitatori, "DELSF5").text();
  if (!Contains(clipboardText, begin) || !Contains(clipboardText, end)) return;
  std::string s = ReplaceAll(clipboardText, " ", "");
  LeggiPaginazioneStorico(cDelimitatori, s, paging);
  const std::string number = std::to_string(paging.iPaginaStorico);
  paging.bPaginaNuova = !paging.cPagineStorico.Exists(number);
  if (paging.bPaginaNuova) paging.cPagineStorico.Add(number, number);
}

void ForgetHistoryPage(HistoryPaging& paging) {
  const std::string number = std::to_string(paging.iPaginaStorico);
  if (paging.bPaginaNuova && paging.cPagineStorico.Exists(number)) {
    paging.cPagineStorico.Remove(number);
  }
}

}  // namespace ordex
