// A record that is written reads back equal, whatever stands in it.
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <string>
#include <vector>

#include "support/office_fixture.h"
#include "support/random_values.h"

namespace ordex::testing {
namespace {

constexpr int kRecords = 300;

// A value that fits the column; now and then none.
Value ValueFor(Random& random, const ColumnInfo& column) {
  if (random.Below(8) == 0) return Null{};
  switch (column.type) {
    case ColumnType::kText:
      return random.Text(column.size == 0 ? 300 : column.size);
    case ColumnType::kInteger:
      return column.size == 2 ? random.Between(INT16_MIN, INT16_MAX)
                              : random.Between(INT32_MIN, INT32_MAX);
    case ColumnType::kReal: {
      const double real = std::bit_cast<double>(random.Bits());
      return std::isfinite(real) ? real : 0.5;
    }
    case ColumnType::kBit:
      return random.Half();
    case ColumnType::kDate:
      return random.Date();
  }
  return Null{};
}

using Written = std::vector<std::pair<std::string, Value>>;

// Sets all columns but the identity, the first one.
Written SetAll(Random& random, DbRecord& record) {
  Written written;
  const std::vector<ColumnInfo>& columns = record.recordset().Fields();
  for (std::size_t i = 1; i < columns.size(); ++i) {
    written.emplace_back(columns[i].name, ValueFor(random, columns[i]));
    record.Set(columns[i].name, written.back().second);
  }
  return written;
}

void ExpectEqual(DbRecord& record, const Written& written) {
  for (const auto& [name, value] : written) {
    EXPECT_EQ(record.Get(name), value) << name << ": " << ToText(value);
  }
}

class WrittenRecord : public ::testing::TestWithParam<const char*> {};

TEST_P(WrittenRecord, ReadsBackEqualFromAnotherConnection) {
  const std::string table = GetParam();
  Random random(1842);
  Office office;
  const auto other = OpenSqlite(office.file());
  office.connection().Begin();
  std::vector<std::pair<std::int32_t, Written>> all;
  for (int i = 0; i < kRecords; ++i) {
    DbRecord record;
    record.Open(office.database(), "SELECT * FROM " + table, kForChanges);
    const std::string identity = record.recordset().Fields().front().name;
    record.recordset().AddNew();
    Written written = SetAll(random, record);
    record.recordset().Update();
    const std::int32_t id = AsInt32(record.Get(identity));
    // Half of them are written over with other values.
    if (random.Half()) {
      record.Open(office.database(),
                  "SELECT * FROM " + table + " WHERE " + identity + " = " + std::to_string(id),
                  kForChanges);
      written = SetAll(random, record);
      record.recordset().Update();
    }
    all.emplace_back(id, std::move(written));
  }
  office.connection().Commit();
  RecordingDiagnostics diagnostics;
  for (const auto& [id, written] : all) {
    SCOPED_TRACE(table + " " + std::to_string(id));
    DbRecord record;
    record.Open({*other, diagnostics},
                "SELECT * FROM " + table + " WHERE rowid = " + std::to_string(id), kForReading);
    ASSERT_EQ(record.recordset().RecordCount(), 1U);
    ExpectEqual(record, written);
    if (HasFailure()) return;
  }
}

INSTANTIATE_TEST_SUITE_P(Of, WrittenRecord,
                         ::testing::Values("Pratica", "Utenti", "Anagrafica", "PraOrdex",
                                           "EventiPraOrdex", "SCADENZE"),
                         [](const auto& one) { return std::string(one.param); });

// The texts of dates that a page may carry mean the day that they name.
TEST(WrittenDate, GivenAsTextIsTheDateThatTheTextNames) {
  Random random(907);
  Office office;
  office.connection().Begin();
  for (int i = 0; i < kRecords; ++i) {
    const DateTime date = random.Date();
    DbRecord record;
    record.Open(office.database(), "SELECT * FROM SCADENZE", kForChanges);
    record.recordset().AddNew();
    std::string text = random.Half() ? FormatForUser(date) : FormatDayFirst(date);
    const DateTime meant = text.size() > 10 ? date : DateOnly(date);
    if (random.Half()) text.replace(2, 1, "-").replace(5, 1, "-");
    record.Set("Data_End", text);
    record.recordset().Update();
    const std::int32_t id = AsInt32(record.Get("ID_Scadenza"));
    record.Open(office.database(),
                "SELECT Data_End FROM SCADENZE WHERE ID_Scadenza = " + std::to_string(id),
                kForReading);
    ASSERT_EQ(record.Get("Data_End"), Value(meant)) << text;
  }
}

// A look-up by a text finds the row that holds it, and no other.
TEST(WrittenText, IsFoundByItsOwnLiteral) {
  Random random(3056);
  Office office;
  office.connection().Begin();
  std::vector<std::string> texts;
  for (int i = 0; i < kRecords; ++i) {
    // Equal texts would find each other.
    texts.push_back(std::to_string(i) + random.Text(40));
    DbRecord record;
    record.Open(office.database(), "SELECT * FROM Pratica", kForChanges);
    record.recordset().AddNew();
    record.Set("NumeroRegGenerale", texts.back());
    record.recordset().Update();
  }
  for (const std::string& text : texts) {
    DbRecord record;
    record.Open(office.database(),
                "SELECT NumeroRegGenerale FROM Pratica WHERE NumeroRegGenerale = " +
                    FormattaStringaSql(text),
                kForReading);
    ASSERT_EQ(record.recordset().RecordCount(), 1U) << text;
    ASSERT_EQ(record.Get("NumeroRegGenerale"), Value(text));
  }
}

}  // namespace
}  // namespace ordex::testing
