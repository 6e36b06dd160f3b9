// The connection's handle, shared by the connection, its catalog and its queries.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/error.h"
#include "store/db/odbc_engine.h"
#include "store/db/odbc_handle.h"
#include "store/db/odbc_settings.h"

namespace ordex {

class OdbcLink {
 public:
  // Opens the connection and asks which engine it is. Error (database): names the server and why.
  explicit OdbcLink(const OdbcTarget& target);
  ~OdbcLink();
  OdbcLink(const OdbcLink&) = delete;
  OdbcLink& operator=(const OdbcLink&) = delete;
  OdbcLink(OdbcLink&&) = delete;
  OdbcLink& operator=(OdbcLink&&) = delete;

  SQLHDBC get() const { return connection_.get(); }
  const OdbcEngine& engine() const { return *engine_; }

  // The error for what a statement's handle reported. Remembers what it means for an open
  // transaction.
  RunTimeError Error(std::span<const OdbcDiagnostic> diagnostics);

  enum class Trouble {
    kNone,
    kPerhaps,  // a statement failed: the engine may have ended the transaction
    kEnded,    // it did, or the connection is gone
  };
  // What has happened to an open transaction since the last call.
  Trouble TakeTrouble() { return std::exchange(trouble_, Trouble::kNone); }

 private:
  void Connect(const OdbcTarget& target);
  std::string DbmsName() const;

  OdbcHandle<SQL_HANDLE_ENV> environment_;
  OdbcHandle<SQL_HANDLE_DBC> connection_;
  std::unique_ptr<OdbcEngine> engine_;
  std::string password_;
  bool connected_ = false;
  Trouble trouble_ = Trouble::kNone;
};

// The records without the words that hold the password: a driver may quote the string that it was
// given.
std::vector<OdbcDiagnostic> WithoutPassword(std::span<const OdbcDiagnostic> diagnostics,
                                            std::string_view password);

}  // namespace ordex
