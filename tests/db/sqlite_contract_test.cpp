// The driver of the embedded engine, against what every driver must do.
#include "connection_contract.h"
#include "store/db/sqlite_connection.h"
#include "store/db/sqlite_create.h"

namespace ordex {
namespace {

class SqliteDatabase final : public ContractDatabase {
 public:
  SqliteDatabase() { CreateSqliteDatabase(folder_ / "studio.db", false); }
  std::unique_ptr<Connection> Connect() override { return OpenSqlite(folder_ / "studio.db"); }

 private:
  DbTemporaryFolder folder_;
};

const Driver kSqlite = {"Sqlite", [] { return std::make_unique<SqliteDatabase>(); }, true};

INSTANTIATE_TEST_SUITE_P(Engine, ConnectionContract, testing::Values(kSqlite), DriverName);
INSTANTIATE_TEST_SUITE_P(Engine, RecordContract, testing::Values(kSqlite), DriverName);

}  // namespace
}  // namespace ordex
