// SQL texts that are part of the program.
#pragma once

#include <string_view>

namespace ordex {

// The tables of an empty embedded database, with its fixed rows.
extern const std::string_view kEmbeddedTables;
// A handful of cases and persons that fit the sample pages.
extern const std::string_view kSampleOffice;
// The tables of an empty test database in T-SQL, with the fixed rows; one batch.
extern const std::string_view kSqlServerTables;

}  // namespace ordex
