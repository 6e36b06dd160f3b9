// The tables of the embedded database.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <algorithm>
#include <set>
#include <vector>

#include "base/text.h"
#include "base/text_file.h"
#include "store/db/sqlite_file.h"
#include "support/db_office.h"

namespace ordex {
namespace {

using testing::ElementsAre;

std::vector<std::string> Names(const std::vector<ColumnInfo>& columns) {
  std::vector<std::string> names;
  names.reserve(columns.size());
  for (const ColumnInfo& column : columns) names.push_back(column.name);
  return names;
}

// The first column of a SELECT of the engine's own SQL.
std::vector<std::string> Texts(DbOffice& office, std::string_view sql) {
  std::vector<std::string> texts;
  for (const Row& row : office.connection().PrepareNative(sql, {})->FetchAll()) {
    texts.push_back(ToText(row.at(0)));
  }
  return texts;
}

// How the engine would search.
std::string Plan(DbOffice& office, const std::string& select) {
  std::string plan;
  for (const Row& row :
       office.connection().PrepareNative("EXPLAIN QUERY PLAN " + select, {})->FetchAll()) {
    plan += ToText(row.at(3)) + "\n";
  }
  return plan;
}

TEST(EmbeddedTables, ThePortalProfileHasATextColumnForEachMappedFieldAndThenTheDates) {
  DbOffice office;
  std::vector<std::string> wanted = {"ID_PraOrdex", "ID_PraRel"};
  std::set<std::string_view> seen = {"DUUd", "DPUd"};
  const std::string mapping =
      ReplaceAll(ReadTextFile(ORDEX_SOURCE_DIR "/mapping/MapCampi.txt"), "\r\n", "\n");
  for (const std::string_view line : Split(mapping, "\n")) {
    const auto halves = SplitOnce(line, "=");
    if (line.starts_with("°") || !halves) continue;
    if (seen.insert(halves->left).second) wanted.emplace_back(halves->left);
  }
  const std::vector<ColumnInfo>& columns = office.connection().TableColumns("PraOrdex");
  for (const ColumnInfo& column : columns) {
    const bool is_mapped = std::find(wanted.begin() + 2, wanted.end(), column.name) != wanted.end();
    if (is_mapped) {
      EXPECT_EQ(column.type, ColumnType::kText) << column.name;
    }
  }
  wanted.insert(wanted.end(), {"DUUd", "DPUd", "DataAcquisizione"});
  EXPECT_EQ(Names(columns), wanted);
  EXPECT_GT(wanted.size(), 20U);
  for (std::size_t i = columns.size() - 3; i < columns.size(); ++i) {
    EXPECT_EQ(columns[i].type, ColumnType::kDate);
  }
}

TEST(EmbeddedTables, TheAgendaHasItsColumnsWithTheirTypes) {
  DbOffice office;
  const std::vector<ColumnInfo>& columns = office.connection().TableColumns("SCADENZE");
  EXPECT_THAT(Names(columns),
              ElementsAre("ID_Scadenza", "Scadenza", "Priorita", "Data_End", "Data_Start",
                          "IsUdienza", "Codice_Pra", "Codice_Cli", "IsOrdex", "IsMemo", "Parti",
                          "Ora", "Responsabile", "IdResponsabile", "LastLocalUpdate"));
  for (const ColumnInfo& column : columns) {
    if (column.type == ColumnType::kText) {
      EXPECT_EQ(column.size, column.name == "Scadenza" ? 200U : 0U) << column.name;
    }
  }
}

TEST(EmbeddedTables, TheCaseTableHasThePenalFlagAsABit) {
  DbOffice office;
  const ColumnInfo& last = office.connection().TableColumns("Pratica").back();
  EXPECT_EQ(last.name, "IsPenale");
  EXPECT_EQ(last.type, ColumnType::kBit);
}

TEST(EmbeddedTables, TheFixedRowsAreThose) {
  DbOffice office;
  const auto rows = [&](std::string_view sql) {
    return office.connection().PrepareNative(sql, {})->FetchAll();
  };
  const auto whole = [](std::int64_t number) { return Value(number); };
  EXPECT_EQ(
      rows("SELECT ID_Pra, NumPos, Posizione, ID_Cliente, ID_Controparte, ID_Contab, "
           "IsPenale FROM Pratica"),
      (std::vector<Row>{{whole(1), whole(0), whole(0), whole(1), whole(1), whole(2), false}}));
  EXPECT_EQ(rows("SELECT ID_Ana, Cognome FROM Anagrafica"),
            (std::vector<Row>{{whole(1), std::string("NULLO")}}));
  EXPECT_EQ(rows("SELECT ID_Utente, NomeUtente, TitContabilita FROM Utenti"),
            (std::vector<Row>{{whole(2), std::string("SUPERVISORE"), true}}));
}

TEST(EmbeddedTables, AnIdentityIsNeverGivenTwice) {
  DbOffice office;
  const std::vector<NamedValue> values = {{"Progressivo", std::int64_t{1}}};
  const std::int64_t first = office.connection().Insert("EventiPraOrdex", values);
  office.connection().Execute("delete from EventiPraOrdex");
  EXPECT_GT(office.connection().Insert("EventiPraOrdex", values), first);
}

TEST(EmbeddedTables, NothingGoesBeyondTablesAndIndexesThatAnyToolUnderstands) {
  DbOffice office;
  EXPECT_THAT(Texts(office,
                    "SELECT name FROM sqlite_master WHERE type NOT IN ('table', 'index') OR sql "
                    "LIKE '%CHECK%' OR sql LIKE '%REFERENCES%'"),
              ElementsAre());
  // An index over an expression has a column without a name.
  EXPECT_THAT(Texts(office,
                    "SELECT m.name FROM sqlite_master m, pragma_index_info(m.name) i WHERE m.type "
                    "= 'index' AND i.name IS NULL"),
              ElementsAre());
}

TEST(EmbeddedTables, TheFileKeepsALogForEveryToolThatOpensIt) {
  const DbOffice office;
  sqlite3* tool = nullptr;
  ASSERT_EQ(sqlite3_open(SqliteFileName(office.file()).c_str(), &tool), SQLITE_OK);
  std::string mode;
  const auto keep = [](void* kept, int /*columns*/, char** values, char** /*names*/) {
    *static_cast<std::string*>(kept) = values[0];
    return 0;
  };
  EXPECT_EQ(sqlite3_exec(tool, "PRAGMA journal_mode", keep, &mode, nullptr), SQLITE_OK);
  EXPECT_EQ(sqlite3_exec(tool, "SELECT * FROM Anagrafica WHERE Cognome LIKE 'nul%'", nullptr,
                         nullptr, nullptr),
            SQLITE_OK);
  sqlite3_close(tool);
  EXPECT_EQ(mode, "wal");
}

TEST(EmbeddedTables, WritesAreDurableAndNoForeignKeysAreEnforced) {
  DbOffice office;
  EXPECT_EQ(office.One("PRAGMA synchronous"), Value(std::int64_t{2}));
  EXPECT_EQ(office.One("PRAGMA foreign_keys"), Value(std::int64_t{0}));
}

TEST(EmbeddedTables, TheLookUpsUseTheirIndexes) {
  DbOffice office;
  struct Case {
    const char* select;
    const char* index;
  };
  const std::vector<Case> cases = {
      {"SELECT ID_Pra FROM Pratica WHERE NumeroRegGenerale = '1'", "Pratica_NumeroRegGenerale "},
      {"SELECT ID_Pra FROM Pratica WHERE NumeroRegGenerale LIKE '12%'",
       "Pratica_NumeroRegGenerale_Cerca"},
      {"SELECT ID_Pra FROM Pratica WHERE ControCognome LIKE 'ROS%'", "Pratica_ControCognome"},
      {"SELECT ID_Pra FROM Pratica WHERE ID_Cliente = 1", "Pratica_ID_Cliente"},
      {"SELECT ID_Pra FROM Pratica WHERE ID_Controparte = 1", "Pratica_ID_Controparte"},
      {"SELECT MAX(NumPos) AS PosMax FROM Pratica", "Pratica_NumPos"},
      {"SELECT ID_Ana FROM Anagrafica WHERE Cognome LIKE 'ros%'", "Anagrafica_Nome"},
      {"SELECT * FROM PraOrdex WHERE ID_PraRel = 1", "PraOrdex_ID_PraRel"},
      {"SELECT * FROM EventiPraOrdex WHERE ID_PraRel = 1 and Progressivo = 2",
       "EventiPraOrdex_Progressivo"},
      {"SELECT * FROM SCADENZE WHERE Codice_Pra = 1", "SCADENZE_Codice_Pra"},
  };
  for (const auto& each : cases) {
    EXPECT_THAT(Plan(office, each.select), testing::HasSubstr(each.index)) << each.select;
    EXPECT_THAT(Plan(office, each.select), testing::HasSubstr("SEARCH")) << each.select;
  }
  EXPECT_THAT(Plan(office, "SELECT ID_Pra FROM Pratica WHERE Oggetto LIKE '%lite%'"),
              testing::HasSubstr("COVERING INDEX Pratica_Oggetto"));
}

}  // namespace
}  // namespace ordex
