#include "store/db/transaction.h"

#include <string>

namespace ordex {
namespace {

// Used on ways out that have an error to report already: a second one would hide it.
void RollBackQuietly(Connection& connection) noexcept {
  try {
    if (connection.InTransaction()) connection.Rollback();
  } catch (const RunTimeError&) {  // NOLINT(bugprone-empty-catch): the first error is the one told
  }
}

void CommitOrRollBack(Connection& connection) {
  try {
    connection.Commit();
  } catch (...) {
    // A commit that met a lock leaves its transaction open.
    RollBackQuietly(connection);
    throw;
  }
}

RunTimeError EndedByEngine(std::string_view cause) {
  std::string text =
      "il database ha annullato da sé l'operazione in corso: nulla di quanto era stato scritto è "
      "rimasto; ripetere l'operazione";
  if (!cause.empty()) text.append(" (").append(cause).append(")");
  return MakeError(ErrorNumber::kDatabase, text);
}

// `error` left the body while its transaction had already been ended by the engine.
[[noreturn]] void RaiseLoss(const RunTimeError& error) {
  if (error.code() == ErrorNumber::kDatabase) throw;  // NOLINT: called from a handler only
  throw EndedByEngine(error.description());
}

}  // namespace

void InTransaction(const Database& database, const std::function<void()>& body) {
  Connection& connection = database.connection;
  connection.Begin();
  try {
    body();
  } catch (const RunTimeError& error) {
    if (!connection.InTransaction()) RaiseLoss(error);
    CommitOrRollBack(connection);
    throw;
  } catch (...) {
    RollBackQuietly(connection);
    throw;
  }
  if (!connection.InTransaction()) throw EndedByEngine({});
  CommitOrRollBack(connection);
}

bool TrapErrors(const Database& database, std::string_view routine,
                const std::function<void()>& body) {
  const bool was_open = database.connection.InTransaction();
  try {
    body();
    return true;
  } catch (const RunTimeError& error) {
    if (was_open && !database.connection.InTransaction()) throw;
    database.diagnostics.Trapped(routine, error);
    return false;
  }
}

}  // namespace ordex
