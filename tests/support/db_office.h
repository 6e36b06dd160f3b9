// An embedded office database in a temporary folder, open, with diagnostics that remember.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "state/ports.h"
#include "store/db/db_record.h"
#include "store/db/sqlite_connection.h"
#include "store/db/sqlite_create.h"
#include "support/db_temporary_folder.h"

namespace ordex {

class DbDiagnostics final : public Diagnostics {
 public:
  struct TrappedError {
    std::string routine;
    std::string description;
    bool operator==(const TrappedError&) const = default;
  };

  void DebugszSql(std::string_view szSql) override { sql.emplace_back(szSql); }
  void Trapped(std::string_view routine, const RunTimeError& error) override {
    trapped.push_back({std::string(routine), error.description()});
  }
  void Failed(const RunTimeError& error, std::optional<std::size_t> /*line*/) override {
    failed.push_back(error.description());
  }

  std::vector<std::string> sql;
  std::vector<TrappedError> trapped;
  std::vector<std::string> failed;
};

class DbOffice {
 public:
  explicit DbOffice(bool sample = false) {
    CreateSqliteDatabase(file(), sample);
    connection_ = OpenSqlite(file());
  }

  std::filesystem::path file() const { return folder_ / "studio.db"; }
  Connection& connection() { return *connection_; }
  DbDiagnostics& diagnostics() { return diagnostics_; }
  Database database() { return {*connection_, diagnostics_}; }

  // The one value that a SELECT of the engine's own SQL gives.
  Value One(std::string_view sql) {
    return connection_->PrepareNative(sql, {})->FetchAll().at(0).at(0);
  }

 private:
  DbTemporaryFolder folder_;
  std::unique_ptr<Connection> connection_;
  DbDiagnostics diagnostics_;
};

}  // namespace ordex
