#include <windows.h>

#include "base/error.h"
#include "ui/desktop/instance_lock.h"

namespace ordex::desktop {
namespace {

// Names without "Global" in front are those of the user's session: a colleague on the same terminal
// server has an Ordex of his own.
constexpr const wchar_t* kName = L"Local\\Ordex";

}  // namespace

InstanceLock::~InstanceLock() {
  if (handle_ != kNone) CloseHandle(reinterpret_cast<HANDLE>(handle_));
}

bool InstanceLock::Acquire() {
  HANDLE mutex = CreateMutexW(nullptr, FALSE, kName);
  const DWORD code = GetLastError();
  if (mutex == nullptr) {
    // It is there, but belongs to an instance with more rights than this one.
    if (code == ERROR_ACCESS_DENIED) return false;
    throw MakeError(ErrorNumber::kFileAccess,
                    "impossibile verificare se Ordex è già in esecuzione (codice " +
                        std::to_string(code) + ")");
  }
  if (code == ERROR_ALREADY_EXISTS) {
    CloseHandle(mutex);
    return false;
  }
  handle_ = reinterpret_cast<std::intptr_t>(mutex);
  return true;
}

// The application of the DDE address "Ordex|MAIN".
std::string LinkService() {
  return "Ordex";
}

}  // namespace ordex::desktop
