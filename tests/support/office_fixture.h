// An office for the tests of the rooms above the database layer: the embedded database in a folder
// of its own, a watched connection to it, and the world around.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "base/error.h"
#include "store/db/db_record.h"
#include "store/db/sqlite_connection.h"
#include "store/db/sqlite_create.h"
#include "support/fake_connection.h"
#include "support/fake_ports.h"
#include "support/temp_folder.h"

namespace ordex::testing {

// The embedded database of an office, with the fixed rows alone or with the sample office as well.
//
// The program under test works on `connection`, which lists every statement and can be told to
// fail. `Rows` and `Do` go through a connection of their own, as another program would: what they
// see is what is durable.
class Office {
 public:
  enum class Data { kFixedRows, kSample };

  explicit Office(Data data = Data::kFixedRows) {
    CreateSqliteDatabase(file(), data == Data::kSample);
    other_ = OpenSqlite(file());
  }
  // A copy of a database that nobody has open: much quicker to have than a new one.
  explicit Office(const std::filesystem::path& original) {
    std::filesystem::copy_file(original, file());
    other_ = OpenSqlite(file());
  }

  std::filesystem::path file() const { return folder_ / "studio.db"; }

  // Opened when first asked for, so that a test can still change the tables before.
  FakeConnection& connection() {
    if (!watched_) {
      real_ = OpenSqlite(file());
      watched_ = std::make_unique<FakeConnection>(*real_);
    }
    return *watched_;
  }
  Database database() { return {connection(), diagnostics}; }

  // A row each, its columns joined by "|": dates as the user sees them, bits "Vero" and "Falso",
  // Null as "NULL".
  std::vector<std::string> Rows(std::string_view select) {
    std::vector<std::string> texts;
    for (const ordex::Row& row : other_->PrepareNative(select, {})->FetchAll()) {
      std::string text;
      for (const Value& value : row) {
        if (&value != row.data()) text.push_back('|');
        text.append(IsNull(value) ? std::string("NULL") : ToText(value));
      }
      texts.push_back(std::move(text));
    }
    return texts;
  }
  // The one row that the SELECT gives; says so where there is not exactly one.
  std::string Row(std::string_view select) {
    const std::vector<std::string> rows = Rows(select);
    return rows.size() == 1 ? rows.front() : std::to_string(rows.size()) + " rows";
  }
  void Do(std::string_view statement) { other_->Execute(statement); }

  RecordingDiagnostics diagnostics;

 private:
  TempFolder folder_;
  std::unique_ptr<Connection> other_;
  std::unique_ptr<Connection> real_;
  std::unique_ptr<FakeConnection> watched_;
};

// The number of the run-time error that `body` raises; 0 where it raises none.
inline int ErrorNumberOf(const std::function<void()>& body) {
  try {
    body();
  } catch (const RunTimeError& error) {
    return error.number();
  }
  return 0;
}

inline constexpr int kDatabaseErrorNumber = -2147467259;

}  // namespace ordex::testing
