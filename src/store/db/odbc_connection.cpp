#include "store/db/odbc_connection.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "base/error.h"
#include "base/text.h"
#include "store/db/odbc_catalog.h"
#include "store/db/odbc_link.h"
#include "store/db/odbc_query.h"
#include "store/db/odbc_session.h"
#include "store/db/odbc_statement.h"
#include "store/db/one_select.h"
#include "store/db/write_sql.h"

namespace ordex {
namespace {

RunTimeError NoIdentity(const std::string& table) {
  return MakeError(ErrorNumber::kDatabase,
                   "il database non ha comunicato il numero assegnato alla nuova riga della "
                   "tabella \"" +
                       table + "\"");
}

constexpr std::size_t kShown = 60;  // characters of a text in a message

class OdbcConnection final : public Connection {
 public:
  explicit OdbcConnection(std::shared_ptr<OdbcLink> link)
      : link_(std::move(link)), catalog_(std::make_shared<OdbcCatalog>(link_)) {}

  std::unique_ptr<Query> Prepare(std::string_view sql) override {
    const std::vector<Token> tokens = Tokenize(sql);
    RequireOneSelect(tokens);
    return std::make_unique<OdbcQuery>(catalog_, tokens, engine().Rewrite(tokens, *catalog_),
                                       std::span<const Value>{});
  }

  std::unique_ptr<Query> PrepareNative(std::string_view sql,
                                       std::span<const Value> parameters) override {
    const std::vector<Token> tokens = Tokenize(sql);
    RequireOneStatement(tokens);
    return std::make_unique<OdbcQuery>(catalog_, tokens, sql, parameters);
  }

  void Execute(std::string_view sql) override {
    const std::vector<Token> tokens = Tokenize(sql);
    RequireOneStatement(tokens);
    Run(engine().Rewrite(tokens, *catalog_));
  }

  const std::vector<ColumnInfo>& TableColumns(const std::string& table) override {
    return catalog_->Columns(table);
  }

  std::int64_t Insert(const std::string& table, std::span<const NamedValue> values) override {
    const std::vector<ColumnInfo>& columns = catalog_->Columns(table);
    const bool has_identity = std::any_of(columns.begin(), columns.end(),
                                          [](const ColumnInfo& column) { return column.identity; });
    const OdbcWrite write = engine().Insert(table, NamesOf(values), has_identity);
    OdbcStatement statement(link_);
    for (std::size_t i = 0; i < values.size(); ++i) Bind(statement, i, table, values[i]);
    const std::optional<std::int64_t> number = RunWrite(statement, write);
    if (!has_identity) return 0;
    if (!number) throw NoIdentity(table);
    return *number;
  }

  std::int64_t UpdateRow(const std::string& table, std::span<const NamedValue> values,
                         const std::string& key, const Value& keyValue) override {
    if (values.empty()) return 0;
    const OdbcWrite write = engine().Update(table, NamesOf(values), key);
    OdbcStatement statement(link_);
    for (std::size_t i = 0; i < values.size(); ++i) Bind(statement, i, table, values[i]);
    Bind(statement, values.size(), table, {key, keyValue});
    return RunWrite(statement, write).value_or(0);
  }

  void Begin() override {
    link_->TakeTrouble();
    Run(engine().BeginSql());
    open_ = true;
  }
  void Commit() override { End(engine().CommitSql()); }
  void Rollback() override { End(engine().RollbackSql()); }

  // Only an error can have ended it, so the engine is asked behind one alone.
  bool InTransaction() const override {
    if (!open_) return false;
    const OdbcLink::Trouble trouble = link_->TakeTrouble();
    if (trouble == OdbcLink::Trouble::kEnded) open_ = false;
    if (trouble == OdbcLink::Trouble::kPerhaps) open_ = StillOpen();
    return open_;
  }

  std::string Limited(const std::string& select, std::size_t count) const override {
    return engine().Limited(select, count);
  }

 private:
  const OdbcEngine& engine() const { return link_->engine(); }

  void Run(std::string_view sql) const {
    OdbcStatement statement(link_);
    statement.ExecuteDirect(sql);
    statement.Finish();
  }

  void End(std::string_view sql) {
    Run(sql);
    open_ = false;
  }

  void Bind(OdbcStatement& statement, std::size_t place, const std::string& table,
            const NamedValue& value) {
    const OdbcColumnType type = catalog_->TypeOf(table, value.first);
    const auto* text = std::get_if<std::string>(&value.second);
    if (type.codePage && text != nullptr) RequireHeld(value.first, *text);
    statement.Bind(place + 1, value.second, type);
  }

  // The server would put question marks or letters without accents, in silence, for what the code
  // page of a column lacks. It is asked only about letters that a server of Western Europe may
  // lack.
  void RequireHeld(const std::string& column, const std::string& text) {
    const std::string sql(engine().CodePageSql());
    if (sql.empty() || FitsWindows1252(text)) return;
    const Value sent = text;
    const auto rows = PrepareNative(sql, {&sent, 1})->FetchAll();
    if (rows.size() == 1 && ToText(rows[0][0]) == text) return;
    throw MakeError(ErrorNumber::kDatabase, "il testo \"" + std::string(Left(text, kShown)) +
                                                "\" ha lettere che la colonna \"" + column +
                                                "\" non può contenere (non è di tipo NVARCHAR)");
  }

  // The last result that is one number: a trigger may give results of its own before it.
  static std::optional<std::int64_t> LastNumber(OdbcStatement& statement) {
    std::optional<std::int64_t> number;
    do {
      if (statement.ColumnCount() != 1) continue;
      const ColumnType type = statement.Describe(1).type;
      if (type != ColumnType::kInteger && type != ColumnType::kReal) continue;
      while (statement.Fetch()) {
        const Value value = statement.Get(1, ColumnType::kInteger);
        number.reset();
        if (!IsNull(value)) number = std::get<std::int64_t>(value);
      }
    } while (statement.NextResult());
    return number;
  }

  std::optional<std::int64_t> RunWrite(OdbcStatement& statement, const OdbcWrite& write) const {
    statement.ExecuteDirect(write.sql);
    const std::optional<std::int64_t> number = LastNumber(statement);
    statement.CloseCursor();
    if (write.numberSql.empty()) return number;
    OdbcStatement asking(link_);
    asking.ExecuteDirect(write.numberSql);
    return LastNumber(asking);
  }

  // Whether the transaction outlived an error. One that cannot be committed any more is rolled
  // back; where the engine gives no answer nothing can be relied on.
  bool StillOpen() const {
    try {
      const std::string_view sql = engine().TransactionStateSql();
      if (sql.empty()) return RefusesToBegin();
      OdbcStatement statement(link_);
      statement.ExecuteDirect(sql);
      const std::int64_t state = LastNumber(statement).value_or(0);
      if (state < 0) Run(engine().RollbackSql());
      return state > 0;
    } catch (const RunTimeError&) {
      link_->TakeTrouble();
      return false;
    }
  }

  bool RefusesToBegin() const {
    try {
      Run("BEGIN");
    } catch (const RunTimeError&) {
      link_->TakeTrouble();
      return true;
    }
    Run(engine().RollbackSql());
    return false;
  }

  std::shared_ptr<OdbcLink> link_;
  std::shared_ptr<OdbcCatalog> catalog_;
  mutable bool open_ = false;  // as far as is known
};

}  // namespace

std::unique_ptr<Connection> OpenOdbc(const OdbcTarget& target) {
  auto link = std::make_shared<OdbcLink>(target);
  const OdbcEngine& engine = link->engine();
  SetUpSession(link, engine.SessionSettings(), engine.NeedsSessionSettings());
  return std::make_unique<OdbcConnection>(std::move(link));
}

}  // namespace ordex
