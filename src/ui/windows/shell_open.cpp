#include "ui/windows/shell_open.h"

#include <windows.h>

#include <shellapi.h>

#include "ui/windows/wide_text.h"

namespace ordex {

bool ShellOpen(const std::string& link) {
  // Up to 32 the result is an error's number.
  constexpr INT_PTR kLastError = 32;
  const HINSTANCE result =
      ShellExecuteW(nullptr, L"open", Wide(link).c_str(), nullptr, nullptr, SW_SHOWNORMAL);
  return reinterpret_cast<INT_PTR>(result) > kLastError;
}

}  // namespace ordex
