// New databases for the embedded engine.
#pragma once

#include <filesystem>

namespace ordex {

// Makes a new database file with the tables of the case application and its fixed rows; with
// `sample` also the cases and persons that fit the sample pages. Leaves no half-made file behind.
// Errors: the file exists already, or cannot be written.
void CreateSqliteDatabase(const std::filesystem::path& file, bool sample);

}  // namespace ordex
