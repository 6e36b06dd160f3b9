#include "workplace.h"

#include <stdexcept>
#include <utility>

#include "database.h"
#include "text_files.h"

namespace ordex::sessions {
namespace fs = std::filesystem;
namespace {

constexpr std::string_view kSettings =
    "[startup]\n"
    "Security=;Integrated Security=SSPI;\n"
    "Server=Data Source=file:office.db\n"
    "[Shared]\n"
    "Id_Utente=7\n";

constexpr std::string_view kFileSource = "Data Source=file:";

bool IsMapping(const std::string& name) {
  return name == "MapCampi.txt" || name == "MapDelimitatori.txt" || name == "MapRestr.txt";
}

}  // namespace

Workplace::Workplace(fs::path source, std::string driver)
    : source_(std::move(source)), driver_(std::move(driver)) {
  fs::create_directory(office());
  fs::create_directory_symlink(source_ / "samples", folder() / "samples");
  for (const auto& entry : fs::directory_iterator(source_ / "mapping")) {
    WriteFile(office() / entry.path().filename(), ReadFile(entry.path()));
  }
  WriteSettings(std::string(kSettings));
  MakeDatabase("sample");
}

void Workplace::MakeDatabase(const std::string& what) {
  for (const std::string_view ending : {"", "-wal", "-shm"}) {
    fs::remove(fs::path(database()).concat(ending));
  }
  if (what == "none") return;
  if (what != "sample" && what != "empty") throw std::runtime_error("no such database: " + what);
  fs::create_directories(database().parent_path());
  if (what == "empty") {
    sessions::MakeDatabase(database(), {source_ / "sql/embedded.sql"});
  } else {
    sessions::MakeDatabase(database(),
                           {source_ / "sql/embedded.sql", source_ / "samples/office.sql"});
  }
}

void Workplace::TakePage(const std::string& name) {
  page_.reset();
  if (name != "none") page_ = ReadFile(source_ / name);
}

// What stands in front of a database file that is reached through a driver; it is ours and not the
// session's.
std::string Workplace::Through() const {
  return driver_.empty() ? std::string() : "Driver={" + driver_ + "};";
}

void Workplace::WriteSettings(const std::string& text) const {
  std::string written = text;
  const std::string through = Through();
  for (std::size_t at = written.find(kFileSource); !through.empty() && at != std::string::npos;
       at = written.find(kFileSource, at + through.size() + kFileSource.size())) {
    written.insert(at, through);
  }
  WriteFile(settings(), written);
}

void Workplace::RemoveSettings() const {
  fs::remove(settings());
}

std::optional<std::string> Workplace::Setting(std::string_view section,
                                              std::string_view key) const {
  if (!fs::exists(settings())) return std::nullopt;
  const std::string text = ReadFile(settings());
  const std::string heading = "[" + std::string(section) + "]";
  const std::string beginning = std::string(key) + "=";
  bool inside = false;
  for (std::string_view rest = text; !rest.empty();) {
    const std::size_t end = rest.find('\n');
    const std::string_view line = rest.substr(0, end);
    if (line.starts_with('[')) inside = line == heading;
    if (inside && line.starts_with(beginning)) {
      std::string value(line.substr(beginning.size()));
      const std::string through = Through();
      const std::size_t at = through.empty() ? std::string::npos : value.find(through);
      return at == std::string::npos ? value : value.erase(at, through.size());
    }
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  }
  return std::nullopt;
}

void Workplace::WriteMapping(const std::string& name, std::string_view text) const {
  if (!IsMapping(name)) throw std::runtime_error("no mapping file: " + name);
  WriteFile(office() / name, text);
}

std::string Workplace::Mapping(const std::string& name) const {
  return ReadFile(office() / name);
}

void Workplace::RemoveMapping(const std::string& name) const {
  if (!fs::remove(office() / name)) throw std::runtime_error("no mapping file: " + name);
}

void Workplace::WriteWorkFile(const std::string& name, std::string_view text) const {
  fs::create_directories((folder() / name).parent_path());
  WriteFile(folder() / name, text);
}

void Workplace::WriteOfficeFile(const std::string& name, std::string_view text) {
  fs::create_directories((office() / name).parent_path());
  WriteFile(office() / name, text);
  ownFiles_.insert(name);
}

void Workplace::MakeReadOnly(const std::string& name) {
  readOnly_.insert(office() / name);
}

void Workplace::Prepare(bool forNobody) const {
  if (page_) WriteFile(folder() / "page.txt", *page_);
  if (forNobody) OpenToAll();
  constexpr auto kWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  for (const fs::path& path : readOnly_) {
    fs::permissions(path, kWrite, fs::perm_options::remove);
  }
}

void Workplace::LookInto() const {
  for (const fs::path& path : readOnly_) {
    fs::permissions(path, fs::perms::owner_write, fs::perm_options::add);
  }
}

void Workplace::OpenToAll() const {
  fs::permissions(folder(), fs::perms::all);
  for (const auto& entry : fs::recursive_directory_iterator(folder())) {
    if (!entry.is_symlink()) fs::permissions(entry.path(), fs::perms::all);
  }
}

std::set<std::string> Workplace::Leftovers() const {
  std::set<std::string> names;
  for (const auto& entry : fs::directory_iterator(office())) {
    const std::string name = entry.path().filename().string();
    const bool expected = IsMapping(name) || name.find(".db") != std::string::npos ||
                          ownFiles_.contains(name) || entry.is_directory();
    if (!expected) names.insert(name);
  }
  return names;
}

}  // namespace ordex::sessions
