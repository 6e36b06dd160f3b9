#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "base/error.h"
#include "ui/desktop/instance_lock.h"

namespace ordex::desktop {
namespace fs = std::filesystem;
namespace {

// The user's own folder for such things, else one in the temporary folder that must be the user's
// and nobody else's: others may write there too.
fs::path RuntimeFolder() {
  const char* runtime = std::getenv("XDG_RUNTIME_DIR");  // NOLINT(concurrency-mt-unsafe)
  fs::path folder = runtime != nullptr && *runtime != '\0'
                        ? fs::path(runtime) / "ordex"
                        : fs::temp_directory_path() / ("ordex-" + std::to_string(getuid()));
  mkdir(folder.c_str(), S_IRWXU);
  struct stat found = {};
  const bool ours = lstat(folder.c_str(), &found) == 0 && S_ISDIR(found.st_mode) &&
                    found.st_uid == getuid() && (found.st_mode & (S_IRWXG | S_IRWXO)) == 0;
  if (!ours) {
    throw MakeError(ErrorNumber::kFileAccess,
                    "la cartella \"" + folder.string() +
                        "\" non è riservata a questo utente. Eliminarla e riavviare Ordex.");
  }
  return folder;
}

}  // namespace

InstanceLock::~InstanceLock() {
  if (handle_ != kNone) close(static_cast<int>(handle_));
}

bool InstanceLock::Acquire() {
  if (handle_ == kNone) {
    const fs::path file = RuntimeFolder() / "lock";
    handle_ = open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR);
  }
  if (handle_ == kNone)
    throw MakeError(ErrorNumber::kFileAccess, "impossibile creare il file di blocco");
  return flock(static_cast<int>(handle_), LOCK_EX | LOCK_NB) == 0;
}

std::string LinkService() {
  return (RuntimeFolder() / "link").string();
}

}  // namespace ordex::desktop
