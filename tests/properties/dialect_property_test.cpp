// The dialect never changes the inside of a literal.
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "base/text.h"
#include "store/db/dialect_sqlite.h"
#include "store/db/one_select.h"
#include "support/office_fixture.h"
#include "support/random_values.h"

namespace ordex::testing {
namespace {

// What the dialect rewrites outside of literals, and what might end one.
constexpr std::array<std::string_view, 18> kTempting = {"CONVERT (SMALLDATETIME,",
                                                        "#03/12/2026#",
                                                        "ucase(",
                                                        "'TRUE'",
                                                        "\"",
                                                        "'",
                                                        "''",
                                                        "\"\"",
                                                        "--",
                                                        "/*",
                                                        "*/",
                                                        ";",
                                                        "[",
                                                        "]",
                                                        "TRUE",
                                                        "\r\n",
                                                        "\\",
                                                        "SELECT"};

std::string TemptingText(Random& random) {
  std::string text;
  for (std::size_t count = random.Below(8); count > 0; --count) {
    text.append(random.Half() ? std::string(random.OneOf(kTempting)) : random.Text(6));
  }
  return text;
}

std::string Quoted(std::string_view text, const std::string& quote) {
  return quote + ReplaceAll(text, quote, quote + quote) + quote;
}

// SELECTs of literals only: the engine gives back what each was meant to be.
TEST(LiteralOfASelect, ReachesTheEngineAsItIsMeant) {
  Random random(1190);
  Office office;
  for (int run = 0; run < 500; ++run) {
    std::string sql = "SELECT ";
    std::vector<std::string> meant;
    for (std::size_t count = 1 + random.Below(4); count > 0; --count) {
      meant.push_back(TemptingText(random));
      if (meant.size() > 1) sql.append(" , ");
      sql.append(Quoted(meant.back(), random.Half() ? "'" : "\""));
      sql.append(" AS c").append(std::to_string(meant.size()));
    }
    const auto rows = office.connection().Prepare(sql)->FetchAll();
    ASSERT_EQ(rows.size(), 1U) << sql;
    for (std::size_t i = 0; i < meant.size(); ++i) {
      ASSERT_EQ(rows[0][i], Value(meant[i])) << sql;
    }
  }
}

// A statement of pieces of which each is known: as it is written, and as the engine is to see it.
struct Piece {
  std::string written;
  std::string rewritten;
};

Piece RandomPiece(Random& random) {
  const std::string text = TemptingText(random);
  switch (random.Below(6)) {
    case 0:
      return {" and Scadenza = " + Quoted(text, "'"), " and Scadenza = " + Quoted(text, "'")};
    case 1:
      return {" and Parti = " + Quoted(text, "\""), " and Parti = " + Quoted(text, "'")};
    case 2:
      return {" and IsUdienza = 'TRUE'", " and IsUdienza = 1"};
    case 3: {
      const DateTime day = DateOnly(random.Date());
      return {" and Data_End =#" + FormatMonthFirst(day) + "#",
              " and Data_End ='" + FormatIso(day) + "'"};
    }
    case 4: {
      const DateTime day = DateOnly(random.Date());
      return {" and Data_End =" + FormattaDataSql(FormatDayFirst(day)),
              " and Data_End ='" + FormatIso(day) + "' "};
    }
    default:
      return {" and ucase(Scadenza) = " + Quoted(text, "\""),
              " and UPPER(Scadenza) = " + Quoted(text, "'")};
  }
}

class AgendaBits final : public TableCatalog {
 public:
  bool IsBitColumn(std::span<const std::string>, std::string_view column) override {
    return column == "IsUdienza";
  }
};

TEST(RewrittenStatement, DiffersFromTheWrittenOneOnlyOutsideItsLiterals) {
  Random random(58);
  AgendaBits catalog;
  for (int run = 0; run < 1000; ++run) {
    Piece whole{"select * from SCADENZE where Codice_Pra = 1",
                "select * from SCADENZE where Codice_Pra = 1"};
    for (std::size_t count = random.Below(6); count > 0; --count) {
      const Piece piece = RandomPiece(random);
      whole.written.append(piece.written);
      whole.rewritten.append(piece.rewritten);
    }
    const std::vector<Token> tokens = Tokenize(whole.written);
    ASSERT_NO_THROW(RequireOneSelect(tokens)) << whole.written;
    ASSERT_EQ(RewriteForSqlite(tokens, catalog), whole.rewritten);
  }
}

}  // namespace
}  // namespace ordex::testing
