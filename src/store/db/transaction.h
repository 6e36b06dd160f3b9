// Running a routine inside one writing transaction, and absorbing errors as its handlers do.
#pragma once

#include <functional>
#include <string_view>

#include "store/db/db_record.h"

namespace ordex {

// Runs `body` in one writing transaction, committed on every way out: what was written before an
// error stays, and the error goes on to the caller. Where the engine itself ended the transaction,
// or the commit fails, nothing of it stays and that is the error that goes on.
void InTransaction(const Database& database, const std::function<void()>& body);

// Runs `body`; an error in it is told to the diagnostics under the routine's name and goes no
// further. Returns whether `body` ran to its end. Where a transaction was open before and the
// engine has ended it, the error does go on: what was written before it is gone, so the caller
// must not go on as if it stood.
bool TrapErrors(const Database& database, std::string_view routine,
                const std::function<void()>& body);

}  // namespace ordex
