#include "store/db/odbc_engine.h"

#include "store/db/ascii.h"

namespace ordex {

std::unique_ptr<OdbcEngine> MakeOdbcEngine(std::string_view dbmsName) {
  if (LowerAscii(dbmsName).find("sqlite") != std::string::npos) return MakeOdbcSqliteEngine();
  return MakeSqlServerEngine();
}

}  // namespace ordex
