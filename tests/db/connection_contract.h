// What every engine's driver must do. A driver's own test file makes the suites run over it:
//   INSTANTIATE_TEST_SUITE_P(Engine, ConnectionContract, testing::Values(Driver{…}), DriverName);
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

#include "store/db/connection.h"
#include "store/db/db_record.h"
#include "support/db_office.h"

namespace ordex {

// An office database of one engine, made for one test: all tables, with the fixed rows only. Gone
// when it is released.
class ContractDatabase {
 public:
  virtual ~ContractDatabase() = default;
  virtual std::unique_ptr<Connection> Connect() = 0;
};

struct Driver {
  std::string name;
  std::function<std::unique_ptr<ContractDatabase>()> make;
  // False where the engine's LOWER and UPPER change ASCII letters alone.
  bool unicodeLetterCase = true;
};

inline std::string DriverName(const testing::TestParamInfo<Driver>& info) {
  return info.param.name;
}

class DriverTest : public testing::TestWithParam<Driver> {
 protected:
  Connection& connection() { return *connection_; }
  DbDiagnostics& diagnostics() { return diagnostics_; }
  Database database() { return {*connection_, diagnostics_}; }
  std::unique_ptr<Connection> Connect() { return database_->Connect(); }

  std::vector<Row> Rows(std::string_view sql) { return connection_->Prepare(sql)->FetchAll(); }
  Value One(std::string_view sql) { return Rows(sql).at(0).at(0); }

  std::int64_t AddEvent(std::int64_t ID_PraRel, std::int64_t progressivo) {
    const std::vector<NamedValue> values = {{"ID_PraRel", ID_PraRel}, {"Progressivo", progressivo}};
    return connection_->Insert("EventiPraOrdex", values);
  }

 private:
  std::unique_ptr<ContractDatabase> database_ = GetParam().make();
  std::unique_ptr<Connection> connection_ = database_->Connect();
  DbDiagnostics diagnostics_;
};

class ConnectionContract : public DriverTest {};
class RecordContract : public DriverTest {};

inline const ColumnInfo& ColumnNamed(const std::vector<ColumnInfo>& columns,
                                     std::string_view name) {
  for (const ColumnInfo& column : columns) {
    if (column.name == name) return column;
  }
  throw std::runtime_error("no column " + std::string(name));
}

}  // namespace ordex
