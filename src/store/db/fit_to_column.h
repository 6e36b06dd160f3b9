// Values on their way into a column.
#pragma once

#include "store/db/connection.h"
#include "store/db/value.h"

namespace ordex {

// Brings `value` to the type of `column`: a text given to a date column is read day first (an empty
// one is no date, so Null), a text given to a number must be a number. Errors: type mismatch,
// overflow or (database) a text too long for its column.
Value FitToColumn(const Value& value, const ColumnInfo& column);

}  // namespace ordex
