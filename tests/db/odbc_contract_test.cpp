// The driver of ODBC, against what every driver must do: over the embedded engine's own ODBC
// driver, on the same file.
#include <filesystem>

#include "connection_contract.h"
#include "store/db/open_connection.h"
#include "store/db/sqlite_create.h"

namespace ordex {
namespace {

class OdbcDatabase final : public ContractDatabase {
 public:
  OdbcDatabase() { CreateSqliteDatabase(folder_ / "studio.db", false); }
  std::unique_ptr<Connection> Connect() override {
    return OpenConnection("Provider=SQLNCLI.1;Driver={SQLite3};Data Source=file:studio.db",
                          folder_.path());
  }

 private:
  DbTemporaryFolder folder_;
};

const Driver kOdbc = {"Odbc", [] { return std::make_unique<OdbcDatabase>(); }, false};

INSTANTIATE_TEST_SUITE_P(OdbcEngine, ConnectionContract, testing::Values(kOdbc), DriverName);
INSTANTIATE_TEST_SUITE_P(OdbcEngine, RecordContract, testing::Values(kOdbc), DriverName);

}  // namespace
}  // namespace ordex
