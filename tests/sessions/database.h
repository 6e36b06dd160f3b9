// Looks into the embedded database from outside of the program, and changes it as another program
// would.
#pragma once

#include <sqlite3.h>

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace ordex::sessions {

// Errors of all of these: std::runtime_error, in the engine's words.

// Makes a new database from SQL files, one after the other.
void MakeDatabase(const std::filesystem::path& file,
                  const std::vector<std::filesystem::path>& sqlFiles);

void RunSql(const std::filesystem::path& file, const std::string& sql);

// Each row as a line: the values with "|" between them, Null as NULL. Inside a value "\", "|" and
// the control characters are written "\\", "\|", "\r", "\n" and "\t".
std::vector<std::string> QueryRows(const std::filesystem::path& file, const std::string& select);

// The rows of each table by the table's name; nothing where there is no file.
using Content = std::map<std::string, std::vector<std::string>>;
Content ContentOf(const std::filesystem::path& file);

// What another program does that writes for a while: readers are let through, writers wait. The
// lock stands when the constructor returns, and goes with the object. It knows no time: on a busy
// machine nobody can tell how far the others have come meanwhile.
class WriteLock {
 public:
  explicit WriteLock(const std::filesystem::path& file);

 private:
  struct Closer {
    void operator()(sqlite3* database) const { sqlite3_close_v2(database); }
  };

  // Closing it takes its transaction back.
  std::unique_ptr<sqlite3, Closer> database_;
};

}  // namespace ordex::sessions
