#include "store/db/server_settings.h"

#include <algorithm>
#include <array>
#include <optional>
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

enum class Meaning {
  kIgnored,
  kDriver,
  kSource,
  kDatabase,
  kUser,
  kPassword,
  kIntegrated,
  kNetwork,
  kTimeOut,
  kEncrypt,
  kTrustCertificate,
  kApplication,
  kWorkstation,
  kMars,
  kLanguage,
  kAttachFile,
  kFailoverPartner,
  kIntent,
  kMultiSubnet,
};

struct KnownKey {
  std::string_view name;
  Meaning meaning;
};

constexpr std::array<KnownKey, 53> kKnownKeys = {{
    {"provider", Meaning::kIgnored},
    {"persistsecurityinfo", Meaning::kIgnored},
    {"packetsize", Meaning::kIgnored},
    {"autotranslate", Meaning::kIgnored},
    {"useprocedureforprepare", Meaning::kIgnored},
    {"datatypecompatibility", Meaning::kIgnored},
    {"tagwithcolumncollationwhenpossible", Meaning::kIgnored},
    {"oledbservices", Meaning::kIgnored},
    {"driver", Meaning::kDriver},
    {"datasource", Meaning::kSource},
    {"server", Meaning::kSource},
    {"address", Meaning::kSource},
    {"addr", Meaning::kSource},
    {"networkaddress", Meaning::kSource},
    {"initialcatalog", Meaning::kDatabase},
    {"database", Meaning::kDatabase},
    {"userid", Meaning::kUser},
    {"uid", Meaning::kUser},
    {"user", Meaning::kUser},
    {"username", Meaning::kUser},
    {"password", Meaning::kPassword},
    {"pwd", Meaning::kPassword},
    {"integratedsecurity", Meaning::kIntegrated},
    {"trustedconnection", Meaning::kIntegrated},
    {"networklibrary", Meaning::kNetwork},
    {"network", Meaning::kNetwork},
    {"net", Meaning::kNetwork},
    {"connecttimeout", Meaning::kTimeOut},
    {"connectiontimeout", Meaning::kTimeOut},
    {"logintimeout", Meaning::kTimeOut},
    {"timeout", Meaning::kTimeOut},
    {"encrypt", Meaning::kEncrypt},
    {"useencryptionfordata", Meaning::kEncrypt},
    {"trustservercertificate", Meaning::kTrustCertificate},
    {"applicationname", Meaning::kApplication},
    {"app", Meaning::kApplication},
    {"workstationid", Meaning::kWorkstation},
    {"wsid", Meaning::kWorkstation},
    {"marsconnection", Meaning::kMars},
    {"multipleactiveresultsets", Meaning::kMars},
    {"mars", Meaning::kMars},
    {"currentlanguage", Meaning::kLanguage},
    {"language", Meaning::kLanguage},
    {"attachdbfilename", Meaning::kAttachFile},
    {"initialfilename", Meaning::kAttachFile},
    {"extendedproperties", Meaning::kIgnored},
    {"failoverpartner", Meaning::kFailoverPartner},
    {"applicationintent", Meaning::kIntent},
    {"multisubnetfailover", Meaning::kMultiSubnet},
    {"generaltimeout", Meaning::kIgnored},
    {"localeidentifier", Meaning::kIgnored},
    {"prompt", Meaning::kIgnored},
    {"mode", Meaning::kIgnored},
}};

std::optional<Meaning> MeaningOf(std::string_view name) {
  const std::string plain = PlainName(name);
  const auto known = std::find_if(kKnownKeys.begin(), kKnownKeys.end(),
                                  [&](const KnownKey& each) { return each.name == plain; });
  if (known == kKnownKeys.end()) return std::nullopt;
  return known->meaning;
}

// The name of a known key that `text` ends with, behind a blank or joined to what stands before; as
// long as possible. Short names must stand behind a blank: anything may end in "net".
std::size_t KnownNameAtEnd(std::string_view text) {
  constexpr std::size_t kShortestJoined = 8;
  for (std::size_t start = 0; start < text.size(); ++start) {
    const std::string_view name = text.substr(start);
    if (name.front() == ' ' || !MeaningOf(name)) continue;
    const bool behind_blank = start == 0 || text[start - 1] == ' ';
    if (behind_blank || name.size() >= kShortestJoined) return start;
  }
  return std::string_view::npos;
}

// Passwords and names are taken as they stand, with all that they hold.
bool MayHoldAnything(Meaning meaning) {
  return meaning == Meaning::kPassword || meaning == Meaning::kUser ||
         meaning == Meaning::kApplication;
}

std::string* Field(ServerSettings& settings, Meaning meaning) {
  switch (meaning) {
    case Meaning::kDriver:
      return &settings.driver;
    case Meaning::kSource:
      return &settings.source;
    case Meaning::kDatabase:
      return &settings.database;
    case Meaning::kUser:
      return &settings.user;
    case Meaning::kPassword:
      return &settings.password;
    case Meaning::kNetwork:
      return &settings.network;
    case Meaning::kTimeOut:
      return &settings.timeOut;
    case Meaning::kEncrypt:
      return &settings.encrypt;
    case Meaning::kTrustCertificate:
      return &settings.trustCertificate;
    case Meaning::kApplication:
      return &settings.application;
    case Meaning::kWorkstation:
      return &settings.workstation;
    case Meaning::kMars:
      return &settings.mars;
    case Meaning::kLanguage:
      return &settings.language;
    case Meaning::kAttachFile:
      return &settings.attachFile;
    case Meaning::kFailoverPartner:
      return &settings.failoverPartner;
    case Meaning::kIntent:
      return &settings.intent;
    case Meaning::kMultiSubnet:
      return &settings.multiSubnet;
    case Meaning::kIgnored:
    case Meaning::kIntegrated:
      break;
  }
  return nullptr;
}

bool IsNo(std::string_view value) {
  return EqualAscii(value, "no") || EqualAscii(value, "false") || value == "0" || value.empty();
}

void Take(ServerSettings& settings, const ConnectionKey& key) {
  const std::optional<Meaning> meaning = MeaningOf(key.name);
  if (!meaning) {
    settings.others.push_back(key);
    return;
  }
  if (!key.quoted && !MayHoldAnything(*meaning)) {
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
  if (*meaning == Meaning::kIntegrated) settings.integrated = !IsNo(key.value);
  if (std::string* field = Field(settings, *meaning)) *field = key.value;
}

}  // namespace

ServerSettings ReadServerSettings(std::string_view connectionString) {
  ServerSettings settings;
  const ConnectionString parts(WithSemicolonsAtJoints(connectionString));
  for (const ConnectionKey& key : parts.keys()) Take(settings, key);
  return settings;
}

}  // namespace ordex
