#include "store/db/odbc_session.h"

#include "base/error.h"
#include "store/db/odbc_statement.h"

namespace ordex {

void SetUpSession(const std::shared_ptr<OdbcLink>& link, std::span<const std::string> settings,
                  bool needed) {
  for (const std::string& setting : settings) {
    try {
      OdbcStatement statement(link);
      statement.ExecuteDirect(setting);
      statement.Finish();
    } catch (const RunTimeError&) {
      if (link->TakeTrouble() == OdbcLink::Trouble::kEnded || needed) throw;
    }
  }
}

}  // namespace ordex
