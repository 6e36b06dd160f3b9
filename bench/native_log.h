// A connection that passes everything on and remembers the SELECTs of our own, with their
// parameters.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "store/db/connection.h"

namespace ordex::bench {

struct NativeSelect {
  std::string sql;
  std::vector<Value> parameters;
};

class NativeLog : public Connection {
 public:
  explicit NativeLog(Connection& real) : real_(real) {}

  const std::vector<NativeSelect>& selects() const { return selects_; }

  std::unique_ptr<Query> PrepareNative(std::string_view sql,
                                       std::span<const Value> parameters) override {
    selects_.push_back({std::string(sql), {parameters.begin(), parameters.end()}});
    return real_.PrepareNative(sql, parameters);
  }
  std::unique_ptr<Query> Prepare(std::string_view sql) override { return real_.Prepare(sql); }
  void Execute(std::string_view sql) override { real_.Execute(sql); }
  const std::vector<ColumnInfo>& TableColumns(const std::string& table) override {
    return real_.TableColumns(table);
  }
  std::int64_t Insert(const std::string& table, std::span<const NamedValue> values) override {
    return real_.Insert(table, values);
  }
  std::int64_t UpdateRow(const std::string& table, std::span<const NamedValue> values,
                         const std::string& key, const Value& keyValue) override {
    return real_.UpdateRow(table, values, key, keyValue);
  }
  void Begin() override { real_.Begin(); }
  void Commit() override { real_.Commit(); }
  void Rollback() override { real_.Rollback(); }
  bool InTransaction() const override { return real_.InTransaction(); }
  std::string Limited(const std::string& select, std::size_t count) const override {
    return real_.Limited(select, count);
  }

 private:
  Connection& real_;
  std::vector<NativeSelect> selects_;
};

}  // namespace ordex::bench
