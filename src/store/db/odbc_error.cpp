#include "store/db/odbc_error.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "base/text.h"
#include "store/db/odbc_text.h"

namespace ordex {
namespace {

constexpr SQLSMALLINT kMostRecords = 32;  // of one call; more say nothing new
constexpr std::size_t kStateLength = 5;

// Without "[Microsoft][ODBC Driver 17 for SQL Server][SQL Server]" in front.
std::string WithoutSources(std::string_view words) {
  while (words.starts_with('[')) {
    const std::size_t end = words.find(']');
    if (end == std::string_view::npos) break;
    words = TrimLeft(words.substr(end + 1));
  }
  return std::string(words);
}

std::string ReadWords(SQLSMALLINT handleType, SQLHANDLE handle, SQLSMALLINT record,
                      OdbcDiagnostic& diagnostic) {
  std::array<SQLWCHAR, kStateLength + 1> state{};
  WideText words(512);
  SQLINTEGER native = 0;
  SQLSMALLINT length = 0;
  for (;;) {
    const SQLRETURN code =
        SQLGetDiagRecW(handleType, handle, record, state.data(), &native, words.data(),
                       static_cast<SQLSMALLINT>(words.size()), &length);
    if (!Succeeded(code)) return {};
    if (length < 0 || static_cast<std::size_t>(length) < words.size()) break;
    words.resize(static_cast<std::size_t>(length) + 1);
  }
  diagnostic.state = FromWide(state.data(), kStateLength);
  diagnostic.native = native;
  return FromWide(words.data(), static_cast<std::size_t>(std::max<SQLSMALLINT>(length, 0)));
}

bool BeginsWith(const OdbcDiagnostic& diagnostic, std::string_view stateClass) {
  return diagnostic.state.starts_with(stateClass);
}

bool IsWarning(const OdbcDiagnostic& diagnostic) {
  return BeginsWith(diagnostic, "01") || BeginsWith(diagnostic, "00");
}

// The words of all errors, each once; of the warnings where there is no error.
std::string JoinedWords(std::span<const OdbcDiagnostic> diagnostics) {
  const bool errors = HoldsError(diagnostics);
  std::vector<std::string> told;
  for (const OdbcDiagnostic& diagnostic : diagnostics) {
    const bool known = std::find(told.begin(), told.end(), diagnostic.words) != told.end();
    if (diagnostic.words.empty() || known || (errors && IsWarning(diagnostic))) continue;
    told.push_back(diagnostic.words);
  }
  std::string joined;
  for (const std::string& words : told) joined.append(joined.empty() ? "" : " ").append(words);
  return joined;
}

std::string WithWords(std::string_view text, std::span<const OdbcDiagnostic> diagnostics) {
  const std::string words = JoinedWords(diagnostics);
  std::string whole(text);
  if (!words.empty()) whole.append(" (").append(words).append(")");
  return whole;
}

bool HasNative(std::span<const OdbcDiagnostic> diagnostics, std::span<const int> numbers) {
  return std::any_of(diagnostics.begin(), diagnostics.end(), [&](const OdbcDiagnostic& each) {
    return !IsWarning(each) &&
           std::find(numbers.begin(), numbers.end(), each.native) != numbers.end();
  });
}

bool HasState(std::span<const OdbcDiagnostic> diagnostics, std::string_view stateClass) {
  return std::any_of(diagnostics.begin(), diagnostics.end(),
                     [&](const OdbcDiagnostic& each) { return BeginsWith(each, stateClass); });
}

// One driver manager tells it by a general state and its own words.
bool CannotLoadDriver(std::span<const OdbcDiagnostic> diagnostics) {
  return std::any_of(diagnostics.begin(), diagnostics.end(), [](const OdbcDiagnostic& each) {
    return each.words.starts_with("Can't open lib");
  });
}

// The server's own numbers of what an office meets.
constexpr std::array<int, 1> kDeadlock = {1205};
constexpr std::array<int, 1> kLockTimeOut = {1222};
constexpr std::array<int, 4> kTruncated = {8152, 2628, 8115, 220};
constexpr std::array<int, 3> kNoRight = {229, 230, 262};
constexpr std::array<int, 2> kReadOnly = {3906, 978};
constexpr std::array<int, 1> kNoColumn = {207};
constexpr std::array<int, 1> kNoTable = {208};
constexpr std::array<int, 4> kConstraint = {547, 2627, 2601, 515};
constexpr std::array<int, 3> kFull = {1105, 9002, 1101};
constexpr std::array<int, 4> kConversion = {241, 242, 245, 295};
constexpr std::array<int, 5> kLogin = {18456, 18452, 18488, 18486, 18470};
constexpr std::array<int, 2> kDatabaseName = {4060, 4064};
// FreeTDS: read or write failed, the connection is dead. It may tell so by a warning alone.
constexpr std::array<int, 5> kLost = {20004, 20006, 20017, 20020, 20047};

// What to tell where an error has one of the numbers, or a state that begins so.
struct Rule {
  std::span<const int> numbers;
  std::string_view state;  // empty: none tells it
  std::string_view text;
  bool withWords = true;  // the engine's own behind it
};

constexpr std::array<Rule, 10> kRules = {{
    {kLockTimeOut, "", "i dati sono bloccati da un altro programma; riprovare tra poco", false},
    {{}, "HYT", "il server del database non ha risposto in tempo; riprovare tra poco", false},
    {kReadOnly, "", "il database è di sola lettura; avvertire chi amministra il server"},
    {kNoRight, "42501",
     "l'utente del database non ha i diritti necessari; chiederli a chi amministra il server"},
    {kTruncated, "22001", "un valore è troppo lungo o troppo grande per la sua colonna"},
    {kNoColumn, "42S22",
     "una colonna non esiste in questo database; \"ordex-console db test\" elenca quelle che "
     "mancano"},
    {kNoTable, "42S02",
     "una tabella non esiste in questo database; \"ordex-console db test\" elenca quelle che "
     "mancano"},
    {kConstraint, "23", "la riga non rispetta una regola della tabella"},
    {kFull, "", "lo spazio del database è esaurito; avvertire chi amministra il server"},
    {kConversion, "22", "un valore non si può convertire nel tipo della colonna"},
}};

bool Applies(const Rule& rule, std::span<const OdbcDiagnostic> diagnostics) {
  return HasNative(diagnostics, rule.numbers) ||
         (!rule.state.empty() && HasState(diagnostics, rule.state));
}

}  // namespace

std::vector<OdbcDiagnostic> DiagnosticsOf(SQLSMALLINT handleType, SQLHANDLE handle) {
  std::vector<OdbcDiagnostic> diagnostics;
  for (SQLSMALLINT record = 1; record <= kMostRecords; ++record) {
    OdbcDiagnostic diagnostic;
    const std::string words = ReadWords(handleType, handle, record, diagnostic);
    if (diagnostic.state.empty()) break;
    diagnostic.words = WithoutSources(words);
    diagnostics.push_back(std::move(diagnostic));
  }
  return diagnostics;
}

bool HoldsError(std::span<const OdbcDiagnostic> diagnostics) {
  return std::any_of(diagnostics.begin(), diagnostics.end(),
                     [](const OdbcDiagnostic& each) { return !IsWarning(each); });
}

bool LostConnection(std::span<const OdbcDiagnostic> diagnostics) {
  return HasState(diagnostics, "08") ||
         std::any_of(diagnostics.begin(), diagnostics.end(), [](const OdbcDiagnostic& each) {
           return std::find(kLost.begin(), kLost.end(), each.native) != kLost.end();
         });
}

bool EndedTransaction(std::span<const OdbcDiagnostic> diagnostics) {
  return HasState(diagnostics, "40") || HasNative(diagnostics, kDeadlock);
}

std::string SqlServerErrorText(std::span<const OdbcDiagnostic> diagnostics) {
  if (LostConnection(diagnostics)) {
    return WithWords(
        "la connessione con il server del database si è interrotta; controllare la rete e il "
        "server, poi riavviare il programma",
        diagnostics);
  }
  if (EndedTransaction(diagnostics)) {
    return "il database ha annullato l'operazione perché un altro programma bloccava gli stessi "
           "dati; ripetere l'operazione";
  }
  for (const Rule& rule : kRules) {
    if (!Applies(rule, diagnostics)) continue;
    return rule.withWords ? WithWords(rule.text, diagnostics) : std::string(rule.text);
  }
  return WithWords("il database ha rifiutato l'istruzione", diagnostics);
}

std::string ConnectErrorText(std::span<const OdbcDiagnostic> diagnostics) {
  if (HasState(diagnostics, "IM") || CannotLoadDriver(diagnostics)) {
    return WithWords("il driver ODBC non è installato o non si può caricare", diagnostics);
  }
  if (HasNative(diagnostics, kLogin) || HasState(diagnostics, "28")) {
    return WithWords(
        "il server ha rifiutato l'accesso; controllare l'utente e la password, o i diritti "
        "dell'utente di Windows",
        diagnostics);
  }
  if (HasNative(diagnostics, kDatabaseName)) {
    return WithWords("il database non esiste sul server, o l'utente non può aprirlo", diagnostics);
  }
  if (HasState(diagnostics, "HYT")) {
    return "il server non ha risposto in tempo; controllare il nome del server e la rete";
  }
  return WithWords(
      "il server non si raggiunge; controllare il nome del server, la rete e che SQL Server sia in "
      "funzione",
      diagnostics);
}

}  // namespace ordex
