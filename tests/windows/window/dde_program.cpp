// A program that knows nothing of Ordex but the address of its label.
#include <windows.h>
// The next header needs the one above.
#include <ddeml.h>

#include <functional>

#include "hands.h"
#include "ui/windows/wide_text.h"
#include "waiting.h"

namespace ordex::window_tests {
namespace {

HDDEDATA CALLBACK Ignore(UINT, UINT, HCONV, HSZ, HSZ, HDDEDATA, ULONG_PTR, ULONG_PTR) {
  return nullptr;
}

class Program {
 public:
  Program() { DdeInitializeW(&id_, Ignore, APPCMD_CLIENTONLY, 0); }
  ~Program() { DdeUninitialize(id_); }
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  HSZ Name(std::string_view name) const {
    return DdeCreateStringHandleW(id_, Wide(name).c_str(), CP_WINUNICODE);
  }
  HCONV Connect(const Address& address) const {
    return DdeConnect(id_, Name(address.service), Name(address.topic), nullptr);
  }
  bool Transact(HCONV conversation, UINT type, std::string_view item, UINT format,
                std::string bytes = {}) const {
    BYTE* data = bytes.empty() ? nullptr : reinterpret_cast<BYTE*>(bytes.data());
    return DdeClientTransaction(data, static_cast<DWORD>(bytes.size()), conversation, Name(item),
                                format, type, kLimit, nullptr) != nullptr;
  }

 private:
  DWORD id_ = 0;
};

std::string Bytes(const std::string& text, UINT format) {
  if (format == CF_TEXT) return {text.c_str(), text.size() + 1};
  const std::wstring wide = Wide(text);
  return {reinterpret_cast<const char*>(wide.c_str()), (wide.size() + 1) * sizeof(wchar_t)};
}

Told Converse(const Address& address, const std::function<bool(const Program&, HCONV)>& talk) {
  const Program program;
  HCONV conversation = program.Connect(address);
  if (conversation == nullptr) return Told::kNoConversation;
  const bool taken = talk(program, conversation);
  DdeDisconnect(conversation);
  return taken ? Told::kTaken : Told::kRefused;
}

}  // namespace

Told Poke(const Address& address, const std::string& text, UINT format) {
  return Converse(address, [&](const Program& program, HCONV conversation) {
    return program.Transact(conversation, XTYP_POKE, address.item, format, Bytes(text, format));
  });
}

Told LinkAndPoke(const Address& address, const std::string& text) {
  return Converse(address, [&](const Program& program, HCONV conversation) {
    return program.Transact(conversation, XTYP_ADVSTART, address.item, CF_TEXT) &&
           program.Transact(conversation, XTYP_POKE, address.item, CF_TEXT, Bytes(text, CF_TEXT)) &&
           program.Transact(conversation, XTYP_ADVSTOP, address.item, CF_TEXT);
  });
}

}  // namespace ordex::window_tests
