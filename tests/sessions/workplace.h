// The place where a session happens: an office with the program folder, the user's settings, the
// clipboard and the database, in a temporary folder of its own.
//
//     office/         the program folder, with the mapping files and the database
//     settings.ini    the user's settings
//     page.txt        what stands on the clipboard at the start
//     samples         the sample pages, for the "clipboard" command
#pragma once

#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "temporary_folder.h"

namespace ordex::sessions {

class Workplace {
 public:
  // `source` is the root of the source tree. Makes the mapping files as shipped, settings that name
  // the database, and the sample office. With `driver` every settings file that names a database
  // file reaches it through the ODBC driver of that name.
  explicit Workplace(std::filesystem::path source, std::string driver = {});

  const std::filesystem::path& folder() const { return folder_.path(); }
  std::filesystem::path office() const { return folder() / "office"; }
  std::filesystem::path settings() const { return folder() / "settings.ini"; }
  std::filesystem::path database() const { return office() / databaseName_; }
  const std::optional<std::string>& page() const { return page_; }

  // `what`: "sample", "empty" or "none".
  void MakeDatabase(const std::string& what);
  // The database that is looked into from here on; a name inside of the program folder.
  void NameDatabase(const std::string& name) { databaseName_ = name; }

  // A page of the source tree, or "none": an empty clipboard.
  void TakePage(const std::string& name);
  void SetPage(std::string text) { page_ = std::move(text); }

  void WriteSettings(const std::string& text) const;
  void RemoveSettings() const;
  // The value behind "key=" in the section, nullopt where there is none.
  std::optional<std::string> Setting(std::string_view section, std::string_view key) const;

  void WriteMapping(const std::string& name, std::string_view text) const;
  std::string Mapping(const std::string& name) const;
  void RemoveMapping(const std::string& name) const;

  // Files that a session puts there itself, folders of their names included.
  void WriteWorkFile(const std::string& name, std::string_view text) const;
  void WriteOfficeFile(const std::string& name, std::string_view text);
  // A file that the program may leave in the program folder.
  void ExpectFile(const std::string& name) { ownFiles_.insert(name); }
  // A file or folder of the program folder that nobody may write to from here on.
  void MakeReadOnly(const std::string& name);

  // Puts down what the next run begins with. `forNobody` opens everything to all users.
  void Prepare(bool forNobody) const;
  // To be called behind the run: even to read it, the engine writes beside a database.
  void LookInto() const;

  // The files of the program folder that are neither ours nor databases.
  std::set<std::string> Leftovers() const;

 private:
  void OpenToAll() const;
  std::string Through() const;

  std::filesystem::path source_;
  std::string driver_;
  TemporaryFolder folder_;
  std::string databaseName_ = "office.db";
  std::optional<std::string> page_;
  std::set<std::string> ownFiles_;
  std::set<std::filesystem::path> readOnly_;
};

}  // namespace ordex::sessions
