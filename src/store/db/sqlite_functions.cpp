#include "store/db/sqlite_functions.h"

#include <new>
#include <string>
#include <string_view>

#include "base/text.h"
#include "store/db/sqlite_error.h"

namespace ordex {
namespace {

using Mapping = std::string (*)(std::string_view);

// The engine calls this; no C++ exception may leave it.
template <Mapping map>
void Apply(sqlite3_context* context, int /*count*/, sqlite3_value** arguments) {
  try {
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(arguments[0]));
    if (text == nullptr) return;  // a result that is not set is Null
    const auto length = static_cast<std::size_t>(sqlite3_value_bytes(arguments[0]));
    const std::string mapped = map({text, length});
    // NOLINTNEXTLINE: the engine's own constant is a number cast to a function
    sqlite3_result_text64(context, mapped.data(), mapped.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
  } catch (const std::bad_alloc&) {
    sqlite3_result_error_nomem(context);
  }
}

template <Mapping map>
void Add(sqlite3* database, const char* name) {
  const int code = sqlite3_create_function_v2(database, name, 1,
                                              SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS,
                                              nullptr, Apply<map>, nullptr, nullptr, nullptr);
  if (code != SQLITE_OK) throw SqliteError(database, code);
}

}  // namespace

void AddUnicodeFunctions(sqlite3* database) {
  Add<Lower>(database, "LOWER");
  Add<Upper>(database, "UPPER");
  Add<Upper>(database, "UCASE");
}

}  // namespace ordex
