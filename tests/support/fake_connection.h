// A connection that passes everything on to a real one, keeps a list of what it was asked, and can
// be told to fail.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/error.h"
#include "store/db/connection.h"

namespace ordex {

// What a failing statement does. With `endsTransaction` the engine has also rolled the open
// transaction back by itself, as on a deadlock or a full disk.
struct FakeFailure {
  RunTimeError error = MakeError(ErrorNumber::kDatabase, "errore chiesto dalla prova");
  bool endsTransaction = false;
};

class FakeConnection final : public Connection {
 public:
  explicit FakeConnection(Connection& real) : real_(real) {}
  // Keeps the real connection as long as it lives itself.
  explicit FakeConnection(std::unique_ptr<Connection> real)
      : owned_(std::move(real)), real_(*owned_) {}

  // In order: "BEGIN", "COMMIT", "ROLLBACK", "PREPARE …" and "FETCH …" with the text of a SELECT,
  // "EXECUTE …" with the text of a statement, "INSERT Table (A, B)", "UPDATE Table (A, B)". A
  // statement that fails is listed too.
  const std::vector<std::string>& statements() const { return statements_; }
  // How many of them begin with `start`.
  std::size_t Count(std::string_view start) const;
  // Empties the list; numbers count from 1 again.
  void Forget() { statements_.clear(); }

  // The statement with that number fails, once; it is not passed on.
  void FailAt(std::size_t number, FakeFailure failure = {});
  // The next statement whose listed text contains `part` fails, once; it is not passed on.
  void FailOn(std::string part, FakeFailure failure = {});
  // The statement with that number and all behind it fail, a rollback too: the line is dead.
  void FailFrom(std::size_t number) { deadFrom_ = number; }

  std::unique_ptr<Query> Prepare(std::string_view sql) override;
  std::unique_ptr<Query> PrepareNative(std::string_view sql,
                                       std::span<const Value> parameters) override;
  void Execute(std::string_view sql) override;
  const std::vector<ColumnInfo>& TableColumns(const std::string& table) override;
  std::int64_t Insert(const std::string& table, std::span<const NamedValue> values) override;
  std::int64_t UpdateRow(const std::string& table, std::span<const NamedValue> values,
                         const std::string& key, const Value& keyValue) override;
  void Begin() override;
  void Commit() override;
  void Rollback() override;
  bool InTransaction() const override { return real_.InTransaction(); }
  std::string Limited(const std::string& select, std::size_t count) const override;

 private:
  class FakeQuery;

  struct Plan {
    std::size_t number = 0;  // 0: by text
    std::string part;
    FakeFailure failure;
  };

  // Lists a statement and fails where that was asked for.
  void Note(std::string statement);

  std::unique_ptr<Connection> owned_;
  Connection& real_;
  std::vector<std::string> statements_;
  std::vector<Plan> plans_;
  std::size_t deadFrom_ = 0;  // 0: never
};

}  // namespace ordex
