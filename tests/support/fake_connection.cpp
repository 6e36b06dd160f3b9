#include "support/fake_connection.h"

#include <algorithm>
#include <utility>

#include "base/text.h"

namespace ordex {
namespace {

std::string Shape(const std::string& table, std::span<const NamedValue> values) {
  std::string shape = table + " (";
  const char* separator = "";
  for (const NamedValue& value : values) {
    shape.append(separator).append(value.first);
    separator = ", ";
  }
  return shape + ")";
}

}  // namespace

class FakeConnection::FakeQuery final : public Query {
 public:
  FakeQuery(FakeConnection& connection, std::unique_ptr<Query> real, std::string sql)
      : connection_(connection), real_(std::move(real)), sql_(std::move(sql)) {}

  const std::vector<ColumnInfo>& Columns() override { return real_->Columns(); }

  std::vector<Row> FetchAll() override {
    connection_.Note("FETCH " + sql_);
    return real_->FetchAll();
  }

 private:
  FakeConnection& connection_;
  std::unique_ptr<Query> real_;
  std::string sql_;
};

std::size_t FakeConnection::Count(std::string_view start) const {
  const auto begins = [&](const std::string& statement) { return statement.starts_with(start); };
  return static_cast<std::size_t>(std::count_if(statements_.begin(), statements_.end(), begins));
}

void FakeConnection::FailAt(std::size_t number, FakeFailure failure) {
  plans_.push_back({number, {}, std::move(failure)});
}

void FakeConnection::FailOn(std::string part, FakeFailure failure) {
  plans_.push_back({0, std::move(part), std::move(failure)});
}

void FakeConnection::Note(std::string statement) {
  statements_.push_back(std::move(statement));
  if (deadFrom_ != 0 && statements_.size() >= deadFrom_) throw FakeFailure{}.error;
  const auto plan = std::find_if(plans_.begin(), plans_.end(), [&](const Plan& each) {
    if (each.number != 0) return each.number == statements_.size();
    return Contains(statements_.back(), each.part);
  });
  if (plan == plans_.end()) return;
  const FakeFailure failure = plan->failure;
  plans_.erase(plan);
  if (failure.endsTransaction && real_.InTransaction()) real_.Rollback();
  throw failure.error;
}

std::unique_ptr<Query> FakeConnection::Prepare(std::string_view sql) {
  Note("PREPARE " + std::string(sql));
  return std::make_unique<FakeQuery>(*this, real_.Prepare(sql), std::string(sql));
}

std::unique_ptr<Query> FakeConnection::PrepareNative(std::string_view sql,
                                                     std::span<const Value> parameters) {
  Note("PREPARE " + std::string(sql));
  return std::make_unique<FakeQuery>(*this, real_.PrepareNative(sql, parameters), std::string(sql));
}

void FakeConnection::Execute(std::string_view sql) {
  Note("EXECUTE " + std::string(sql));
  real_.Execute(sql);
}

const std::vector<ColumnInfo>& FakeConnection::TableColumns(const std::string& table) {
  return real_.TableColumns(table);
}

std::int64_t FakeConnection::Insert(const std::string& table, std::span<const NamedValue> values) {
  Note("INSERT " + Shape(table, values));
  return real_.Insert(table, values);
}

std::int64_t FakeConnection::UpdateRow(const std::string& table, std::span<const NamedValue> values,
                                       const std::string& key, const Value& keyValue) {
  Note("UPDATE " + Shape(table, values));
  return real_.UpdateRow(table, values, key, keyValue);
}

void FakeConnection::Begin() {
  Note("BEGIN");
  real_.Begin();
}

void FakeConnection::Commit() {
  Note("COMMIT");
  real_.Commit();
}

void FakeConnection::Rollback() {
  Note("ROLLBACK");
  real_.Rollback();
}

std::string FakeConnection::Limited(const std::string& select, std::size_t count) const {
  return real_.Limited(select, count);
}

}  // namespace ordex
