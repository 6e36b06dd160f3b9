// What the name of a column's type says.
#pragma once

#include <cstddef>
#include <optional>

#include "store/db/connection.h"

namespace ordex {

// What a declared type such as "NVARCHAR(200)" says of a column. The engine itself keeps to it only
// loosely.
struct DeclaredType {
  ColumnType type = ColumnType::kText;
  std::size_t size = 0;
};
// nullopt where there is no declared type (`declared` is null or says nothing known): then each
// value is of the type that it is stored with.
std::optional<DeclaredType> ParseDeclaredType(const char* declared);

}  // namespace ordex
