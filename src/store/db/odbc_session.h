// What a session is told when it begins.
#pragma once

#include <memory>
#include <span>
#include <string>

#include "store/db/odbc_link.h"

namespace ordex {

// Runs each of `settings`. Error (database): one failed, where they are `needed`, or the connection
// was lost.
void SetUpSession(const std::shared_ptr<OdbcLink>& link, std::span<const std::string> settings,
                  bool needed);

}  // namespace ordex
