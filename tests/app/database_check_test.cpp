#include "app/database_check.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "store/db/open_connection.h"
#include "support/db_office.h"

namespace ordex {
namespace {

class DatabaseCheckTest : public testing::Test {
 protected:
  DatabaseCheckTest() { CreateSqliteDatabase(folder_ / "studio.db", false); }

  void Change(const char* sql) { OpenSqlite(folder_ / "studio.db")->Execute(sql); }

  // "error Table.Column: text", in order; the same without and through ODBC.
  std::vector<std::string> Findings() {
    std::vector<std::string> plain = FindingsOf("Data Source=file:studio.db");
    EXPECT_EQ(FindingsOf("Driver={SQLite3};Data Source=file:studio.db"), plain);
    return plain;
  }

 private:
  std::vector<std::string> FindingsOf(const char* settings) {
    const auto connection = OpenConnection(settings, folder_.path());
    std::vector<std::string> found;
    for (const TableFinding& finding : CheckDatabase(*connection)) {
      found.push_back(std::string(finding.severity == Severity::kError ? "error " : "warning ") +
                      finding.table + "." + finding.column + ": " + finding.text);
    }
    return found;
  }

  DbTemporaryFolder folder_;
};

using Texts = std::vector<std::string>;

TEST_F(DatabaseCheckTest, ADatabaseWithEverythingGivesNoFinding) {
  EXPECT_EQ(Findings(), Texts{});
}

TEST_F(DatabaseCheckTest, AMissingTableIsNamedOnce) {
  Change("DROP TABLE PraOrdex");
  EXPECT_EQ(Findings(),
            Texts{"error PraOrdex.: La tabella \"PraOrdex\" non esiste, o l'utente del database "
                  "non la può vedere."});
}

TEST_F(DatabaseCheckTest, EachMissingColumnIsNamedWithItsTable) {
  Change("ALTER TABLE SCADENZE DROP COLUMN Ora");
  Change("ALTER TABLE EventiPraOrdex DROP COLUMN NrPagina");
  EXPECT_EQ(Findings(), (Texts{"error EventiPraOrdex.NrPagina: Nella tabella \"EventiPraOrdex\" "
                               "manca la colonna \"NrPagina\".",
                               "error SCADENZE.Ora: Nella tabella \"SCADENZE\" manca la colonna "
                               "\"Ora\"."}));
}

TEST_F(DatabaseCheckTest, AMissingPenalFlagIsOnlyAWarning) {
  Change("ALTER TABLE Pratica DROP COLUMN IsPenale");
  EXPECT_EQ(Findings(),
            Texts{"warning Pratica.IsPenale: Nella tabella \"Pratica\" manca la colonna "
                  "\"IsPenale\": nessuna pratica verrà riconosciuta come penale."});
}

TEST_F(DatabaseCheckTest, ATableWithoutAKeyCannotBeChanged) {
  Change("DROP TABLE EventiPraOrdex");
  Change(
      "CREATE TABLE EventiPraOrdex (ID_PraRel INT, Progressivo INT, Data TEXT, Descrizione TEXT, "
      "NrPagina TEXT, DataAcquisizione DATETIME)");
  EXPECT_EQ(Findings(),
            Texts{"error EventiPraOrdex.: La tabella \"EventiPraOrdex\" non ha né una colonna "
                  "numerata dal database né una chiave di una colonna: le sue righe non si possono "
                  "modificare."});
}

TEST_F(DatabaseCheckTest, AMissingFixedRowIsOnlyAWarning) {
  Change("DELETE FROM Utenti");
  EXPECT_EQ(Findings(),
            Texts{"warning Utenti.ID_Utente: Nella tabella \"Utenti\" manca la riga con ID_Utente "
                  "2, l'utente usato quando Praxion non ne indica nessuno."});
}

}  // namespace
}  // namespace ordex
