#include "ui/common/process.h"

#include <windows.h>

#include <shellapi.h>

#include <memory>

#include "ui/windows/wide_text.h"

namespace ordex {
namespace {

struct LocalMemory {
  void operator()(wchar_t** words) const { LocalFree(static_cast<void*>(words)); }
};

}  // namespace

// What `argv` holds went through the old code page, which knows some alphabets only.
std::vector<std::string> Arguments(int, const char* const*) {
  int count = 0;
  const std::unique_ptr<wchar_t*, LocalMemory> words(CommandLineToArgvW(GetCommandLineW(), &count));
  std::vector<std::string> arguments;
  for (int i = 1; words && i < count; ++i) arguments.push_back(Utf8(words.get()[i]));
  return arguments;
}

std::string EnvironmentText(const std::string& name) {
  const std::wstring wideName = Wide(name);
  // The size that is asked for includes the terminator; the length that is given back does not.
  std::wstring value(GetEnvironmentVariableW(wideName.c_str(), nullptr, 0), L'\0');
  value.resize(
      GetEnvironmentVariableW(wideName.c_str(), value.data(), static_cast<DWORD>(value.size())));
  return Utf8(value);
}

std::filesystem::path ExecutableFile(const char*) {
  constexpr std::size_t kLongestPath = 32768;  // of any, with its terminator
  std::wstring file(kLongestPath, L'\0');
  file.resize(GetModuleFileNameW(nullptr, file.data(), static_cast<DWORD>(file.size())));
  return file;
}

}  // namespace ordex
