#include "ui/windows/registry_settings.h"

#include <windows.h>

#include "base/error.h"
#include "ui/windows/wide_text.h"

namespace ordex {
namespace {

std::string PlaceOf(std::string_view path, std::string_view key) {
  return "\"HKEY_CURRENT_USER\\" + std::string(path) + "\", valore \"" + std::string(key) + "\"";
}

RunTimeError AccessError(std::string_view what, std::string_view path, std::string_view key,
                         LSTATUS code) {
  return MakeError(ErrorNumber::kFileAccess, std::string(what) + " nel registro di sistema " +
                                                 PlaceOf(path, key) + " (codice " +
                                                 std::to_string(code) +
                                                 "). Controllare i diritti dell'utente.");
}

RunTimeError NoTextError(std::string_view path, std::string_view key) {
  return MakeError(ErrorNumber::kTypeMismatch,
                   "nel registro di sistema " + PlaceOf(path, key) +
                       " non è un testo. Sostituirlo con un valore di tipo stringa (REG_SZ).");
}

class RegistryKey {
 public:
  RegistryKey() = default;
  ~RegistryKey() {
    if (key_ != nullptr) RegCloseKey(key_);
  }
  RegistryKey(const RegistryKey&) = delete;
  RegistryKey& operator=(const RegistryKey&) = delete;
  RegistryKey(RegistryKey&&) = delete;
  RegistryKey& operator=(RegistryKey&&) = delete;

  LSTATUS Make(const std::wstring& path) {
    return RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                           KEY_SET_VALUE, nullptr, &key_, nullptr);
  }
  LSTATUS Set(const std::wstring& name, const std::wstring& text) {
    // With its terminator; the registry counts bytes.
    const std::size_t size = (text.size() + 1) * sizeof(wchar_t);
    return RegSetValueExW(key_, name.c_str(), 0, REG_SZ,
                          reinterpret_cast<const BYTE*>(text.c_str()), static_cast<DWORD>(size));
  }

 private:
  HKEY key_ = nullptr;
};

// Reads a text of any length; `text` ends at its terminator.
LSTATUS ReadText(const std::wstring& path, const std::wstring& name, std::wstring& text) {
  constexpr DWORD kUsualLength = 256;
  text.assign(kUsualLength, L'\0');
  for (;;) {
    auto size = static_cast<DWORD>(text.size() * sizeof(wchar_t));
    const LSTATUS code = RegGetValueW(HKEY_CURRENT_USER, path.c_str(), name.c_str(), RRF_RT_REG_SZ,
                                      nullptr, text.data(), &size);
    if (code != ERROR_MORE_DATA) {
      text.resize(text.find(L'\0') == std::wstring::npos ? text.size() : text.find(L'\0'));
      return code;
    }
    text.assign(size / sizeof(wchar_t) + 1, L'\0');
  }
}

}  // namespace

RegistrySettings::RegistrySettings(std::string_view application)
    : root_("Software\\VB and VBA Program Settings\\" + std::string(application)) {}

std::string RegistrySettings::PathOfSection(std::string_view section) const {
  return root_ + "\\" + std::string(section);
}

std::string RegistrySettings::Get(std::string_view section, std::string_view key) const {
  const std::string path = PathOfSection(section);
  std::wstring text;
  const LSTATUS code = ReadText(Wide(path), Wide(key), text);
  if (code == ERROR_FILE_NOT_FOUND) return {};
  if (code == ERROR_UNSUPPORTED_TYPE) throw NoTextError(path, key);
  if (code != ERROR_SUCCESS) throw AccessError("impossibile leggere", path, key, code);
  return Utf8(text);
}

void RegistrySettings::Save(std::string_view section, std::string_view key,
                            std::string_view value) {
  const std::string path = PathOfSection(section);
  RegistryKey registryKey;
  LSTATUS code = registryKey.Make(Wide(path));
  if (code == ERROR_SUCCESS) code = registryKey.Set(Wide(key), Wide(value));
  if (code != ERROR_SUCCESS) throw AccessError("impossibile scrivere", path, key, code);
}

}  // namespace ordex
