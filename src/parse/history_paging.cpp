#include "parse/history_paging.h"

#include <optional>

#include "base/error.h"
#include "base/number.h"
#include "base/text.h"
#include "parse/mapping_files.h"
#include "parse/page_rules.h"

namespace ordex {
namespace {

constexpr std::size_t kLongestShown = 60;  // characters of a text in a message

// A number that cannot be read leaves its variable as it was: the page's rows are worth having
// without its place in the history.
void ReadNumber(std::string_view text, std::int16_t& number) {
  try {
    number = ToInt16(text);
  } catch (const RunTimeError&) {  // NOLINT(bugprone-empty-catch): it stays as it was
  }
}

// Where the mapping file lacks the text between the two numbers the line cannot be cut, and both
// stay as they were.
void ReadPageLine(const KeyedTable& cDelimitatori, std::string_view line, HistoryPaging& paging) {
  const std::string* between = cDelimitatori.Lookup("DELSF7");
  if (between == nullptr) return;
  const auto numbers = Split(line, *between, 2);
  ReadNumber(numbers[0], paging.iPaginaStorico);
  if (numbers.size() > 1) ReadNumber(numbers[1], paging.iTotPagineStorico);
}

RunTimeError TotalError(ErrorNumber number, const std::string& why) {
  return MakeError(number, "il totale degli eventi dello storico non si legge: " + why +
                               ". Copiare di nuovo la pagina, oppure correggere i due testi in \"" +
                               std::string(kMapDelimitatori) + "\"");
}

// The number of events, which stands between the marks `begin` and `end`; `before` is the text up
// to `end`. Errors: subscript, type mismatch, overflow.
std::int16_t ReadTotal(std::string_view before, std::string_view begin, const std::string& end) {
  const std::string first = "\"" + std::string(begin) + "\" (DELSF4)";
  const std::string last = "\"" + end + "\" (DELSF5)";
  const auto total = Split(before, begin, 2);
  if (total.size() < 2) {
    throw TotalError(ErrorNumber::kSubscript, first + " non sta prima di " + last);
  }
  try {
    return ToInt16(total[1]);
  } catch (const RunTimeError& error) {
    throw TotalError(error.code(), "tra " + first + " e " + last + " sta \"" +
                                       std::string(Left(total[1], kLongestShown)) + "\"");
  }
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
  paging.iTotEventiStorico = ReadTotal(before, Delimiter(cDelimitatori, "DELSF4").text(), end);

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
  paging.bPaginaNuova = !ItemExists(paging.cPagineStorico, number);
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
