// The look-up by register number and the case header's search in a large office, next to the same
// SQL on the bare engine.
#include <sqlite3.h>

#include <memory>
#include <string>

#include "benchmarks.h"
#include "cases/case_choice_rules.h"
#include "cases/case_search.h"
#include "native_log.h"
#include "statement_log.h"
#include "store/db/open_connection.h"
#include "store/db/sqlite_connection.h"
#include "store/db/sqlite_create.h"
#include "support/fake_ports.h"
#include "support/temp_folder.h"

namespace ordex::bench {
namespace {

// So many cases, a tenth as many persons.
void Fill(const std::filesystem::path& file, std::int64_t cases) {
  const std::string n = std::to_string(cases);
  const std::string persons = std::to_string(cases / 10 + 1);
  RunOnBareEngine(
      file,
      {"PRAGMA synchronous=OFF", "BEGIN",
       "WITH RECURSIVE c(i) AS (SELECT 2 UNION ALL SELECT i + 1 FROM c WHERE i < " + persons +
           ") INSERT INTO Anagrafica (ID_Ana, Cognome, Nome, IsFisicaGiuridica) "
           "SELECT i, 'COGNOME' || (i * 7919 % 1000003), 'NOME' || (i % 97), 1 FROM c",
       "WITH RECURSIVE c(i) AS (SELECT 2 UNION ALL SELECT i + 1 FROM c WHERE i < " + n +
           ") INSERT INTO Pratica (ID_Pra, NumPos, Posizione, ID_Cliente, ID_Controparte, "
           "ControCognome, ID_Contab, NumeroRegGenerale, Sezione, Oggetto) "
           "SELECT i, i, i, 2 + i % (" +
           persons +
           " - 1), 1, 'CONTROPARTE' || (i % 50021), 2, (i % 20000) || '/' || (1980 + i / 20000), "
           "'Prima', 'Risarcimento del danno n. ' || i || ' in materia di contratti' FROM c",
       "COMMIT", "ANALYZE"});
}

struct LargeOffice {
  explicit LargeOffice(std::int64_t cases) {
    CreateSqliteDatabase(folder / "office.db", false);
    Fill(folder / "office.db", cases);
    connection = OpenSqlite(folder / "office.db");
    sqlite3_open_v2((folder / "office.db").c_str(), &bare, SQLITE_OPEN_READWRITE, nullptr);
    lastCase = std::to_string(cases);
  }
  ~LargeOffice() { sqlite3_close(bare); }
  LargeOffice(const LargeOffice&) = delete;
  LargeOffice& operator=(const LargeOffice&) = delete;

  testing::TempFolder folder;
  std::unique_ptr<Connection> connection;
  sqlite3* bare = nullptr;
  std::string lastCase;
};

void Bind(sqlite3_stmt* statement, const std::vector<Value>& parameters) {
  for (std::size_t i = 0; i < parameters.size(); ++i) {
    const auto place = static_cast<int>(i + 1);
    if (const auto* text = std::get_if<std::string>(&parameters[i])) {
      sqlite3_bind_text(statement, place, text->data(), static_cast<int>(text->size()),
                        SQLITE_STATIC);
    } else {
      sqlite3_bind_int64(statement, place, std::get<std::int64_t>(parameters[i]));
    }
  }
}

void RunSelect(sqlite3* database, const NativeSelect& select) {
  sqlite3_stmt* statement = nullptr;
  sqlite3_prepare_v2(database, select.sql.c_str(), static_cast<int>(select.sql.size()), &statement,
                     nullptr);
  Bind(statement, select.parameters);
  while (sqlite3_step(statement) == SQLITE_ROW) {
    for (int i = 0; i < sqlite3_column_count(statement); ++i) sqlite3_column_text(statement, i);
  }
  sqlite3_finalize(statement);
}

void AddProgram(LargeOffice& office, const std::string& group,
                const std::function<void(Connection&)>& work) {
  benchmark::RegisterBenchmark((group + "/program").c_str(),
                               [&office, work](benchmark::State& state) {
                                 for (auto _ : state) work(*office.connection);
                               });
}

// Both sides keep their connection open, as the program does.
void AddLookUp(RatioReporter& reporter, LargeOffice& office, const std::string& group,
               const std::function<void(Connection&)>& work) {
  const std::vector<std::string> statements = StatementsOf([&] {
    const auto connection = OpenSqlite(office.folder / "office.db");
    work(*connection);
  });
  benchmark::RegisterBenchmark((group + "/baseline").c_str(),
                               [&office, statements](benchmark::State& state) {
                                 for (auto _ : state) RunOnBareEngine(office.bare, statements);
                               });
  AddProgram(office, group, work);
  reporter.Aim(group, 1.2);
}

void AddSearch(RatioReporter& reporter, LargeOffice& office, const std::string& group,
               const std::string& text) {
  NativeLog log(*office.connection);
  SearchCases(log, text);
  benchmark::RegisterBenchmark((group + "/baseline").c_str(),
                               [&office, selects = log.selects()](benchmark::State& state) {
                                 for (auto _ : state) {
                                   for (const NativeSelect& one : selects) {
                                     RunSelect(office.bare, one);
                                   }
                                 }
                               });
  AddProgram(office, group, [text](Connection& connection) {
    auto found = SearchCases(connection, text);
    benchmark::DoNotOptimize(found);
  });
  reporter.Aim(group, 1.2);
}

void LookUp(Connection& connection) {
  testing::RecordingDiagnostics diagnostics;
  CaseChoice choice;
  CaseHeaderControl header(choice.ctlTestata1);
  header.SetConnection(connection);
  CercaPratica({connection, diagnostics}, "4711/1980", choice, header);
  benchmark::DoNotOptimize(choice);
}

}  // namespace

void AddSearchBenchmarks(RatioReporter& reporter, std::int64_t cases) {
  static LargeOffice office(cases);
  AddLookUp(reporter, office, "look-up by number", LookUp);
  AddSearch(reporter, office, "search number", "4711/19");
  AddSearch(reporter, office, "search surname", "cognome4711");
  AddSearch(reporter, office, "search subject", "n. " + office.lastCase + " in");
}

}  // namespace ordex::bench
