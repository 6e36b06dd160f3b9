#include "store/db/server_settings.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "base/text.h"
#include "store/db/ascii.h"
#include "store/db/connection_fragments.h"

namespace ordex {
namespace {

// "Trusted_Connection", "trusted connection": lower case, without blanks and underscores.
std::string PlainName(std::string_view name) {
  std::string plain = LowerAscii(name);
  std::erase_if(plain, [](char letter) { return letter == ' ' || letter == '_'; });
  return plain;
}

using TextField = std::string ServerSettings::*;
using YesNoField = bool ServerSettings::*;

// Where a key's value goes; nowhere where both are null.
struct KnownKey {
  std::string_view name;
  TextField text = nullptr;
  YesNoField yesNo = nullptr;
};

constexpr std::array<KnownKey, 53> kKnownKeys = {{
    {"provider"},
    {"persistsecurityinfo"},
    {"packetsize"},
    {"autotranslate"},
    {"useprocedureforprepare"},
    {"datatypecompatibility"},
    {"tagwithcolumncollationwhenpossible"},
    {"oledbservices"},
    {"driver", &ServerSettings::driver},
    {"datasource", &ServerSettings::source},
    {"server", &ServerSettings::source},
    {"address", &ServerSettings::source},
    {"addr", &ServerSettings::source},
    {"networkaddress", &ServerSettings::source},
    {"initialcatalog", &ServerSettings::database},
    {"database", &ServerSettings::database},
    {"userid", &ServerSettings::user},
    {"uid", &ServerSettings::user},
    {"user", &ServerSettings::user},
    {"username", &ServerSettings::user},
    {"password", &ServerSettings::password},
    {"pwd", &ServerSettings::password},
    {"integratedsecurity", nullptr, &ServerSettings::integrated},
    {"trustedconnection", nullptr, &ServerSettings::integrated},
    {"networklibrary", &ServerSettings::network},
    {"network", &ServerSettings::network},
    {"net", &ServerSettings::network},
    {"connecttimeout", &ServerSettings::timeOut},
    {"connectiontimeout", &ServerSettings::timeOut},
    {"logintimeout", &ServerSettings::timeOut},
    {"timeout", &ServerSettings::timeOut},
    {"encrypt", &ServerSettings::encrypt},
    {"useencryptionfordata", &ServerSettings::encrypt},
    {"trustservercertificate", &ServerSettings::trustCertificate},
    {"applicationname", &ServerSettings::application},
    {"app", &ServerSettings::application},
    {"workstationid", &ServerSettings::workstation},
    {"wsid", &ServerSettings::workstation},
    {"marsconnection", &ServerSettings::mars},
    {"multipleactiveresultsets", &ServerSettings::mars},
    {"mars", &ServerSettings::mars},
    {"currentlanguage", &ServerSettings::language},
    {"language", &ServerSettings::language},
    {"attachdbfilename", &ServerSettings::attachFile},
    {"initialfilename", &ServerSettings::attachFile},
    {"extendedproperties"},
    {"failoverpartner", &ServerSettings::failoverPartner},
    {"applicationintent", &ServerSettings::intent},
    {"multisubnetfailover", &ServerSettings::multiSubnet},
    {"generaltimeout"},
    {"localeidentifier"},
    {"prompt"},
    {"mode"},
}};

// Null where nothing is known of it.
const KnownKey* Known(std::string_view name) {
  const std::string plain = PlainName(name);
  const auto* const known = std::find_if(kKnownKeys.begin(), kKnownKeys.end(),
                                         [&](const KnownKey& each) { return each.name == plain; });
  return known == kKnownKeys.end() ? nullptr : known;
}

// The name of a known key that `text` ends with, behind a blank or joined to what stands before; as
// long as possible. Short names must stand behind a blank: anything may end in "net".
std::size_t KnownNameAtEnd(std::string_view text) {
  constexpr std::size_t kShortestJoined = 8;
  for (std::size_t start = 0; start < text.size(); ++start) {
    const std::string_view name = text.substr(start);
    if (name.front() == ' ' || Known(name) == nullptr) continue;
    const bool behind_blank = start == 0 || text[start - 1] == ' ';
    if (behind_blank || name.size() >= kShortestJoined) return start;
  }
  return std::string_view::npos;
}

// Passwords and names are taken as they stand, with all that they hold.
bool MayHoldAnything(const KnownKey& key) {
  return key.text == &ServerSettings::password || key.text == &ServerSettings::user ||
         key.text == &ServerSettings::application;
}

bool IsNo(std::string_view value) {
  return EqualAscii(value, "no") || EqualAscii(value, "false") || value == "0" || value.empty();
}

void Take(ServerSettings& settings, const ConnectionKey& key) {
  const KnownKey* const known = Known(key.name);
  if (known == nullptr) {
    settings.others.push_back(key);
    return;
  }
  if (!key.quoted && !MayHoldAnything(*known)) {
    // "SRV Password=x": the semicolon before a key was forgotten.
    const std::size_t equals = key.value.find('=');
    const std::string_view before = std::string_view(key.value).substr(0, equals);
    const std::size_t name = equals == std::string::npos ? equals : KnownNameAtEnd(Trim(before));
    if (name != std::string::npos) {
      Take(settings, {key.name, std::string(Trim(before.substr(0, name)))});
      Take(settings, {std::string(Trim(before.substr(name))),
                      std::string(Trim(std::string_view(key.value).substr(equals + 1)))});
      return;
    }
  }
  if (known->yesNo != nullptr) settings.*known->yesNo = !IsNo(key.value);
  if (known->text != nullptr) settings.*known->text = key.value;
}

}  // namespace

ServerSettings ReadServerSettings(std::string_view connectionString) {
  ServerSettings settings;
  const ConnectionString parts(WithSemicolonsAtJoints(connectionString));
  for (const ConnectionKey& key : parts.keys()) Take(settings, key);
  return settings;
}

}  // namespace ordex
