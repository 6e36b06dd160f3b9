// Handles of ODBC, released when they go out of scope.
#pragma once

#include <cstdint>
#include <optional>
#include <utility>

#include "store/db/odbc_api.h"

namespace ordex {

// One handle of a kind: SQL_HANDLE_ENV, SQL_HANDLE_DBC or SQL_HANDLE_STMT.
template <SQLSMALLINT kType>
class OdbcHandle {
 public:
  // Empty where `parent` gives no handle; then get() is null.
  explicit OdbcHandle(SQLHANDLE parent) {
    if (!Succeeded(SQLAllocHandle(kType, parent, &handle_))) handle_ = nullptr;
  }
  ~OdbcHandle() {
    if (handle_ != nullptr) SQLFreeHandle(kType, handle_);
  }
  OdbcHandle(const OdbcHandle&) = delete;
  OdbcHandle& operator=(const OdbcHandle&) = delete;
  OdbcHandle(OdbcHandle&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
  OdbcHandle& operator=(OdbcHandle&& other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
  }

  SQLHANDLE get() const { return handle_; }

 private:
  SQLHANDLE handle_ = nullptr;
};

// An environment that speaks ODBC 3; nothing where ODBC does not work.
inline std::optional<OdbcHandle<SQL_HANDLE_ENV>> MakeOdbcEnvironment() {
  OdbcHandle<SQL_HANDLE_ENV> environment(nullptr);
  // NOLINTNEXTLINE: the interface takes numbers as pointers
  const auto version = reinterpret_cast<SQLPOINTER>(std::uintptr_t{SQL_OV_ODBC3});
  if (environment.get() == nullptr ||
      !Succeeded(SQLSetEnvAttr(environment.get(), SQL_ATTR_ODBC_VERSION, version, 0))) {
    return std::nullopt;
  }
  return environment;
}

}  // namespace ordex
