#include "ui/windows/system_processes.h"

#include <windows.h>

#include <tlhelp32.h>

#include "ui/windows/wide_text.h"

namespace ordex {
namespace {

class SnapshotHandle {
 public:
  SnapshotHandle() : handle_(CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0)) {}
  ~SnapshotHandle() {
    if (Taken()) CloseHandle(handle_);
  }
  SnapshotHandle(const SnapshotHandle&) = delete;
  SnapshotHandle& operator=(const SnapshotHandle&) = delete;
  SnapshotHandle(SnapshotHandle&&) = delete;
  SnapshotHandle& operator=(SnapshotHandle&&) = delete;

  bool Taken() const { return handle_ != INVALID_HANDLE_VALUE; }
  HANDLE get() const { return handle_; }

 private:
  HANDLE handle_;
};

}  // namespace

std::optional<SystemVersion> SystemProcesses::Version() const {
  OSVERSIONINFOW version{};
  version.dwOSVersionInfoSize = sizeof(version);
  if (GetVersionExW(&version) == 0) return std::nullopt;
  return SystemVersion{static_cast<int>(version.dwPlatformId),
                       static_cast<int>(version.dwMinorVersion)};
}

std::optional<std::vector<std::string>> SystemProcesses::Snapshot() const {
  const SnapshotHandle snapshot;
  if (!snapshot.Taken()) return std::nullopt;
  std::vector<std::string> names;
  PROCESSENTRY32W entry{};
  entry.dwSize = sizeof(entry);
  for (BOOL more = Process32FirstW(snapshot.get(), &entry); more != 0;
       more = Process32NextW(snapshot.get(), &entry)) {
    names.push_back(Utf8(entry.szExeFile));
  }
  return names;
}

}  // namespace ordex
