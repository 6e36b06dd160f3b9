// Learns which statements the program runs on the embedded engine, and runs them again on the bare
// engine.
#pragma once

#include <sqlite3.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace ordex::bench {

// Every SQL text, with its values in place, that connections opened inside `work` run, in order;
// but for the questions about the tables' columns, which only a program needs to ask.
std::vector<std::string> StatementsOf(const std::function<void()>& work);

// Runs the statements one by one, reading every row.
void RunOnBareEngine(sqlite3* database, const std::vector<std::string>& statements);
// The same on a connection that is opened for it and closed again.
void RunOnBareEngine(const std::filesystem::path& file, const std::vector<std::string>& statements);

}  // namespace ordex::bench
