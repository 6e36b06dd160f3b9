#include "cases/case_search.h"

#include <algorithm>
#include <array>
#include <string>
#include <unordered_map>
#include <utility>

#include "base/text.h"
#include "cases/case_names.h"
#include "store/fixed_rows.h"

namespace ordex {
namespace {

// Each finder is one SELECT of ID_Pra, quick on its own: the beginnings of names and numbers are
// found through an index, the middles by a walk over an index that is narrower than the table.
// Finders are asked one after the other until there are enough hits. CROSS JOIN keeps the
// embedded engine from walking over all cases instead of the few persons; a server chooses its way
// by itself.
constexpr std::string_view kByNumber = "SELECT ID_Pra FROM Pratica WHERE NumeroRegGenerale = ?";
constexpr std::string_view kByNumberLike =
    "SELECT ID_Pra FROM Pratica WHERE NumeroRegGenerale LIKE ? ESCAPE '!'";
constexpr std::string_view kByCounterpartLike =
    "SELECT ID_Pra FROM Pratica WHERE ControCognome LIKE ? ESCAPE '!'";
constexpr std::string_view kBySubjectLike =
    "SELECT ID_Pra FROM Pratica WHERE Oggetto LIKE ? ESCAPE '!'";
// The person that stands for nobody is none to look for.
static_assert(kNobody == 1);
constexpr std::array<std::string_view, 2> kByPersonLike = {
    "SELECT p.ID_Pra FROM Anagrafica a CROSS JOIN Pratica p "
    "WHERE p.ID_Cliente = a.ID_Ana AND a.Cognome LIKE ? ESCAPE '!' AND a.ID_Ana <> 1",
    "SELECT p.ID_Pra FROM Anagrafica a CROSS JOIN Pratica p "
    "WHERE p.ID_Controparte = a.ID_Ana AND a.Cognome LIKE ? ESCAPE '!' AND a.ID_Ana <> 1"};
constexpr std::string_view kAndFirstName = " AND a.Nome LIKE ? ESCAPE '!'";

// Middles are looked for from this length on: shorter texts stand in nearly every case.
constexpr std::size_t kShortestMiddle = 3;

std::string Escaped(std::string_view text) {
  std::string pattern;
  for (const char letter : text) {
    if (std::string_view("!%_[").find(letter) != std::string_view::npos) pattern.push_back('!');
    pattern.push_back(letter);
  }
  return pattern;
}

std::string BeginsWith(std::string_view text) {
  return Escaped(text) + "%";
}

std::string Holds(std::string_view text) {
  return "%" + Escaped(text) + "%";
}

// The embedded engine's LIKE ignores the case of ASCII letters alone: a text that holds others is
// looked for as it stands, in small letters and in capitals.
std::vector<std::string> Spellings(std::string_view text) {
  std::vector<std::string> spellings = {std::string(text)};
  const bool ascii = std::all_of(text.begin(), text.end(), [](char letter) {
    return static_cast<unsigned char>(letter) < 0x80;
  });
  if (ascii) return spellings;
  for (std::string other : {Lower(text), Upper(text)}) {
    if (other != text) spellings.push_back(std::move(other));
  }
  return spellings;
}

class Search {
 public:
  explicit Search(Connection& connection) : connection_(connection) {}

  bool Enough() const { return hits_.size() >= kMostHits; }
  bool FoundAny() const { return !hits_.empty(); }

  void Ask(std::string_view select, const std::vector<Value>& parameters) {
    if (Enough()) return;
    const auto query =
        connection_.PrepareNative(connection_.Limited(std::string(select), kMostHits), parameters);
    for (const Row& row : query->FetchAll()) {
      const std::int32_t id = AsInt32(row[0]);
      const bool known = std::find(hits_.begin(), hits_.end(), id) != hits_.end();
      if (!known && !Enough()) hits_.push_back(id);
    }
  }

  void AskForNumber(std::string_view text) {
    Ask(kByNumber, {std::string(text)});
    Ask(kByNumberLike, {BeginsWith(text)});
  }

  // Parties whose surname, or surname and first name, begin with the text. Where the one ends and
  // the other begins is not known: every blank may stand between them.
  void AskForParties(std::string_view text) {
    for (const std::string_view select : kByPersonLike) Ask(select, {BeginsWith(text)});
    for (std::size_t at = text.find(' '); at != std::string_view::npos;
         at = text.find(' ', at + 1)) {
      for (const std::string_view select : kByPersonLike) {
        Ask(std::string(select).append(kAndFirstName),
            {BeginsWith(text.substr(0, at)), BeginsWith(text.substr(at + 1))});
      }
    }
    Ask(kByCounterpartLike, {BeginsWith(text)});
  }

  void AskForMiddles(std::string_view text) {
    if (ShorterThan(text, kShortestMiddle)) return;
    for (const std::string_view select : kByPersonLike) Ask(select, {Holds(text)});
    Ask(kByCounterpartLike, {Holds(text)});
    Ask(kBySubjectLike, {Holds(text)});
  }

  std::vector<FoundCase> Found() const;

 private:
  Connection& connection_;
  std::vector<std::int32_t> hits_;
};

std::vector<FoundCase> Search::Found() const {
  if (hits_.empty()) return {};
  std::string select(kSelectCaseNames);
  select.append(" WHERE p.ID_Pra IN (");
  for (std::size_t i = 0; i < hits_.size(); ++i) select.append("?,");
  select.back() = ')';
  const std::vector<Value> ids(hits_.begin(), hits_.end());
  std::unordered_map<std::int32_t, FoundCase> cases;
  for (const Row& row : connection_.PrepareNative(select, ids)->FetchAll()) {
    const CaseNames names = ReadCaseNames(row);
    cases[names.idPra] = {names.idPra, names.numeroRG, names.Title()};
  }
  std::vector<FoundCase> found;
  for (const std::int32_t id : hits_) {
    const auto one = cases.find(id);
    if (one != cases.end()) found.push_back(one->second);
  }
  return found;
}

// What to look for where `text` is a case's title, or a piece of it: the number at its end, else
// the client at its beginning.
std::string_view TellingPiece(std::string_view text) {
  if (const auto halves = SplitOnce(text, kBeforeNumber)) {
    if (!Trim(halves->right).empty()) return Trim(halves->right);
  }
  if (const auto halves = SplitOnce(text, kBetweenParties)) return Trim(halves->left);
  return text;
}

}  // namespace

std::vector<FoundCase> SearchCases(Connection& connection, std::string_view text) {
  const std::string_view wanted = TellingPiece(Trim(text));
  if (wanted.empty()) return {};
  const std::vector<std::string> spellings = Spellings(wanted);
  Search search(connection);
  for (const std::string& spelling : spellings) search.AskForNumber(spelling);
  // Whoever types a register number means it.
  if (search.FoundAny()) return search.Found();
  for (const std::string& spelling : spellings) search.AskForParties(spelling);
  for (const std::string& spelling : spellings) search.AskForMiddles(spelling);
  return search.Found();
}

}  // namespace ordex
