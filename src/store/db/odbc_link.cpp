#include "store/db/odbc_link.h"

#include <array>
#include <cstdint>

#include "base/text.h"
#include "store/db/odbc_text.h"

namespace ordex {
namespace {

RunTimeError NoOdbc() {
  return MakeError(ErrorNumber::kDatabase, "ODBC non funziona su questo computer");
}

// A driver that does not know the attribute goes on without it.
void SetAttribute(SQLHDBC connection, SQLINTEGER attribute, SQLULEN value) {
  // NOLINTNEXTLINE: the interface takes numbers as pointers
  SQLSetConnectAttrW(connection, attribute, reinterpret_cast<SQLPOINTER>(std::uintptr_t{value}), 0);
}

OdbcHandle<SQL_HANDLE_ENV> RequireEnvironment() {
  auto environment = MakeOdbcEnvironment();
  if (!environment) throw NoOdbc();
  return std::move(*environment);
}

}  // namespace

std::vector<OdbcDiagnostic> WithoutPassword(std::span<const OdbcDiagnostic> diagnostics,
                                            std::string_view password) {
  std::vector<OdbcDiagnostic> kept(diagnostics.begin(), diagnostics.end());
  for (OdbcDiagnostic& each : kept) {
    if (!password.empty() && Contains(each.words, password)) each.words.clear();
  }
  return kept;
}

OdbcLink::OdbcLink(const OdbcTarget& target)
    : environment_(RequireEnvironment()),
      connection_(environment_.get()),
      password_(target.password) {
  if (connection_.get() == nullptr) throw NoOdbc();
  Connect(target);
  engine_ = MakeOdbcEngine(DbmsName());
}

OdbcLink::~OdbcLink() {
  if (connected_) SQLDisconnect(connection_.get());
}

void OdbcLink::Connect(const OdbcTarget& target) {
  SetAttribute(get(), SQL_ATTR_LOGIN_TIMEOUT, target.loginTimeOut);
  WideText text = ToWide(target.connectionString);
  const SQLRETURN code =
      SQLDriverConnectW(get(), nullptr, text.data(), static_cast<SQLSMALLINT>(text.size()), nullptr,
                        0, nullptr, SQL_DRIVER_NOPROMPT);
  if (!Succeeded(code)) {
    const std::vector<OdbcDiagnostic> told =
        WithoutPassword(DiagnosticsOf(SQL_HANDLE_DBC, get()), password_);
    throw MakeError(ErrorNumber::kDatabase,
                    "impossibile aprire \"" + target.shown + "\": " + ConnectErrorText(told));
  }
  connected_ = true;
}

std::string OdbcLink::DbmsName() const {
  std::array<SQLWCHAR, 256> name{};
  SQLSMALLINT bytes = 0;
  const auto size = static_cast<SQLSMALLINT>(name.size() * sizeof(SQLWCHAR));
  if (!Succeeded(SQLGetInfoW(get(), SQL_DBMS_NAME, name.data(), size, &bytes)) || bytes < 0) {
    return {};
  }
  const std::size_t length = static_cast<std::size_t>(bytes) / sizeof(SQLWCHAR);
  return FromWide(name.data(), std::min(length, name.size()));
}

RunTimeError OdbcLink::Error(std::span<const OdbcDiagnostic> diagnostics) {
  const bool ended = LostConnection(diagnostics) || EndedTransaction(diagnostics);
  trouble_ = ended || trouble_ == Trouble::kEnded ? Trouble::kEnded : Trouble::kPerhaps;
  return MakeError(ErrorNumber::kDatabase,
                   engine().ErrorText(WithoutPassword(diagnostics, password_)));
}

}  // namespace ordex
