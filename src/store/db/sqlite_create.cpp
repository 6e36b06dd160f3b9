#include "store/db/sqlite_create.h"

#include <array>
#include <random>
#include <string>
#include <system_error>

#include "base/path_text.h"
#include "store/db/embedded_sql.h"
#include "store/db/sqlite_error.h"
#include "store/db/sqlite_file.h"

namespace ordex {
namespace fs = std::filesystem;
namespace {

RunTimeError CreateError(const fs::path& file, std::string_view problem) {
  return SqliteFileError(file, "impossibile creare il database: " + std::string(problem));
}

RunTimeError ExistsError(const fs::path& file) {
  return CreateError(file, "il file esiste già; indicare un altro nome o spostare il file");
}

// The error's own words, without the standard wording that will stand in front again.
std::string_view Detail(const RunTimeError& error) {
  std::string_view text = error.description();
  const std::string wording = Describe(ErrorNumber::kDatabase) + ": ";
  if (text.starts_with(wording)) text.remove_prefix(wording.size());
  return text;
}

constexpr std::array<std::string_view, 3> kWorkingFiles = {"-wal", "-shm", "-journal"};

// What a database of the same name left behind would be played back into the new one.
void RequireFree(const fs::path& file) {
  std::error_code ignored;
  if (fs::exists(fs::symlink_status(file, ignored))) throw ExistsError(file);
  for (const std::string_view ending : kWorkingFiles) {
    const fs::path beside = fs::path(file).concat(ending);
    if (fs::exists(beside, ignored)) {
      throw CreateError(file, "accanto c'è ancora \"" + TextOf(beside) +
                                  "\", resto di un altro database; spostarlo o cancellarlo");
    }
  }
}

// A file beside the wanted one, removed with all that the engine puts beside it.
class TemporaryFile {
 public:
  explicit TemporaryFile(const fs::path& wanted)
      : path_(fs::path(wanted).concat("." + std::to_string(std::random_device{}()) + ".nuovo")) {}
  ~TemporaryFile() {
    std::error_code ignored;
    fs::remove(path_, ignored);
    for (const std::string_view ending : kWorkingFiles) {
      fs::remove(fs::path(path_).concat(ending), ignored);
    }
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  TemporaryFile(TemporaryFile&&) = delete;
  TemporaryFile& operator=(TemporaryFile&&) = delete;

  const fs::path& path() const { return path_; }

 private:
  fs::path path_;
};

void Fill(sqlite3* database, bool sample) {
  RunSqlite(database, "PRAGMA journal_mode=WAL");
  RunSqlite(database, "BEGIN IMMEDIATE");
  RunSqlite(database, std::string(kEmbeddedTables).c_str());
  if (sample) RunSqlite(database, std::string(kSampleOffice).c_str());
  RunSqlite(database, "COMMIT");
}

// For file systems without links. Where there is a file of that name already, copying fails and
// leaves it alone; the only failure that can leave a half of ours behind is a disk that is full.
void CopyInto(const fs::path& made, const fs::path& file) {
  std::error_code failure;
  fs::copy_file(made, file, failure);
  if (!failure) return;
  if (failure == std::errc::file_exists) throw ExistsError(file);
  if (failure != std::errc::no_space_on_device) {
    throw CreateError(file, SqliteErrorText(SQLITE_CANTOPEN, {}));
  }
  std::error_code ignored;
  fs::remove(file, ignored);
  throw CreateError(file, SqliteErrorText(SQLITE_FULL, {}));
}

void PutInPlace(const fs::path& made, const fs::path& file) {
  std::error_code failure;
  fs::create_hard_link(made, file, failure);
  if (failure == std::errc::file_exists) throw ExistsError(file);
  if (failure) CopyInto(made, file);
}

}  // namespace

void CreateSqliteDatabase(const fs::path& file, bool sample) {
  RequireFree(file);
  const TemporaryFile made(file);
  try {
    const SqliteHandle database = MakeSqliteFile(made.path());
    Fill(database.get(), sample);
  } catch (const RunTimeError& error) {
    throw CreateError(file, Detail(error));
  }
  PutInPlace(made.path(), file);
}

}  // namespace ordex
