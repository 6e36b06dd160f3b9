#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <string>
#include <string_view>

#include "base/error.h"
#include "ui/common/process.h"
#include "ui/desktop/instance_lock.h"

namespace ordex::desktop {
namespace fs = std::filesystem;
namespace {

RunTimeError AccessError(std::string_view what, const fs::path& path, std::string_view advice) {
  return MakeError(ErrorNumber::kFileAccess, std::string(what) + " \"" + path.string() + "\". " +
                                                 std::string(advice) + " e riavviare Ordex");
}

// Whether it is a folder of this user that nobody else may enter.
bool IsOurs(const fs::path& folder) {
  struct stat found = {};
  return lstat(folder.c_str(), &found) == 0 && S_ISDIR(found.st_mode) && found.st_uid == getuid() &&
         (found.st_mode & (S_IRWXG | S_IRWXO)) == 0;
}

// The user's own folder for such things, else one in the temporary folder that must be the user's
// and nobody else's: others may write there too.
fs::path RuntimeFolder() {
  const std::string runtime = EnvironmentText("XDG_RUNTIME_DIR");
  fs::path folder = !runtime.empty()
                        ? fs::path(runtime) / "ordex"
                        : fs::temp_directory_path() / ("ordex-" + std::to_string(getuid()));
  if (mkdir(folder.c_str(), S_IRWXU) != 0 && errno != EEXIST) {
    throw AccessError("impossibile creare la cartella", folder,
                      "Controllare che la cartella che la contiene esista e sia scrivibile");
  }
  if (!IsOurs(folder)) {
    throw AccessError("non è riservata a questo utente la cartella", folder, "Eliminarla");
  }
  return folder;
}

fs::path LockFile() {
  return RuntimeFolder() / "lock";
}

}  // namespace

InstanceLock::~InstanceLock() {
  if (handle_ != kNone) close(static_cast<int>(handle_));
}

bool InstanceLock::Acquire() {
  if (handle_ == kNone) {
    handle_ = open(LockFile().c_str(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR);
  }
  if (handle_ == kNone) {
    throw AccessError("impossibile aprire il file", LockFile(), "Eliminarlo");
  }
  if (flock(static_cast<int>(handle_), LOCK_EX | LOCK_NB) == 0) return true;
  if (errno == EWOULDBLOCK) return false;
  throw AccessError("impossibile bloccare il file", LockFile(),
                    "Spostare la sua cartella su un disco di questo computer");
}

std::string LinkService() {
  return (RuntimeFolder() / "link").string();
}

}  // namespace ordex::desktop
