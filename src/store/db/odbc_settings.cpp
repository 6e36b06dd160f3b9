#include "store/db/odbc_settings.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

#include "base/path_text.h"
#include "base/text.h"
#include "store/db/ascii.h"

namespace ordex {
namespace fs = std::filesystem;
namespace {

enum class Words { kMicrosoft, kFreeTds, kSqlite };

Words WordsOf(std::string_view driver) {
  const std::string lower = LowerAscii(driver);
  if (Contains(lower, "sqlite")) return Words::kSqlite;
  if (Contains(lower, "freetds") || Contains(lower, "tdsodbc")) return Words::kFreeTds;
  return Words::kMicrosoft;
}

// The number in "ODBC Driver 18 for SQL Server"; 0 for another name.
int DriverNumber(std::string_view driver) {
  constexpr std::string_view kBefore = "odbc driver ";
  constexpr std::string_view kBehind = " for sql server";
  const std::string lower = LowerAscii(driver);
  if (!lower.starts_with(kBefore) || !lower.ends_with(kBehind)) return 0;
  int number = 0;
  const char* const end = lower.data() + lower.size() - kBehind.size();
  const auto result = std::from_chars(lower.data() + kBefore.size(), end, number);
  return result.ptr == end ? number : 0;
}

bool IsYes(std::string_view value) {
  return EqualAscii(value, "yes") || EqualAscii(value, "true") || value == "1" ||
         EqualAscii(value, "mandatory") || EqualAscii(value, "strict");
}

// --- values -------------------------------------------------------------------------------------

// Braced only where it must be, and FreeTDS does not undouble what stands in braces.
std::string Braced(std::string_view value, Words words) {
  const bool plain =
      value.find(';') == std::string_view::npos && !value.starts_with('{') && Trim(value) == value;
  if (plain) return std::string(value);
  return "{" + (words == Words::kFreeTds ? std::string(value) : ReplaceAll(value, "}", "}}")) + "}";
}

class Builder {
 public:
  explicit Builder(Words words) : words_(words) {}

  void Add(std::string_view name, std::string_view value) {
    if (value.empty()) return;
    text_.append(name).append("=").append(Braced(value, words_)).append(";");
  }
  void AddDriver(std::string_view driver) {
    text_.append("Driver={").append(ReplaceAll(driver, "}", "}}")).append("};");
  }
  void AddOthers(const std::vector<ConnectionKey>& others) {
    for (const ConnectionKey& key : others) Add(key.name, key.value);
  }

  std::string Take() { return std::move(text_); }

 private:
  Words words_;
  std::string text_;
};

// --- the server ---------------------------------------------------------------------------------

struct ServerName {
  std::string protocol;  // "tcp", "np", "lpc", "admin"
  std::string host;
  std::string instance;
  std::string port;
};

constexpr std::array<std::string_view, 4> kProtocols = {"tcp", "np", "lpc", "admin"};

// "\\SRV\pipe\MSSQL$INST\sql\query"
void TakePipe(std::string_view path, ServerName& server) {
  constexpr std::string_view kInstance = "mssql$";
  const auto parts = Split(path.substr(2), "\\");
  server.host = parts[0];
  if (parts.size() > 2 && LowerAscii(parts[2]).starts_with(kInstance)) {
    server.instance = parts[2].substr(kInstance.size());
  }
}

ServerName ReadServerName(std::string_view source) {
  ServerName server;
  const std::size_t colon = source.find(':');
  if (colon != std::string_view::npos) {
    const std::string protocol = LowerAscii(Trim(source.substr(0, colon)));
    if (std::find(kProtocols.begin(), kProtocols.end(), protocol) != kProtocols.end()) {
      server.protocol = protocol;
      source = Trim(source.substr(colon + 1));
    }
  }
  if (source.starts_with("\\\\")) {
    TakePipe(source, server);
    return server;
  }
  if (const auto halves = SplitOnce(source, ",")) {
    server.port = Trim(halves->right);
    source = Trim(halves->left);
  }
  const auto halves = SplitOnce(source, "\\");
  server.host = Trim(halves ? halves->left : source);
  if (halves) server.instance = Trim(halves->right);
  return server;
}

struct NetworkLibrary {
  std::string_view name;
  std::string_view protocol;
};

constexpr std::array<NetworkLibrary, 4> kNetworkLibraries = {
    {{"dbmssocn", "tcp"}, {"dbnmpntw", "np"}, {"dbmslpcn", "lpc"}, {"dbmsvinn", ""}}};

std::string_view ProtocolOf(std::string_view network) {
  const std::string lower = LowerAscii(network);
  for (const NetworkLibrary& library : kNetworkLibraries) {
    if (library.name == lower) return library.protocol;
  }
  return {};
}

std::string MicrosoftServer(const ServerSettings& settings) {
  const ServerName server = ReadServerName(settings.source);
  if (settings.source.find("\\\\") != std::string::npos) return settings.source;  // a pipe's path
  std::string text =
      server.protocol.empty() ? std::string(ProtocolOf(settings.network)) : server.protocol;
  if (!text.empty()) text.append(":");
  text.append(server.host);
  if (!server.instance.empty()) text.append("\\").append(server.instance);
  if (!server.port.empty()) text.append(",").append(server.port);
  return text;
}

void AddFreeTdsServer(const ServerSettings& settings, Builder& builder) {
  ServerName server = ReadServerName(settings.source);
  if (server.host == "." || EqualAscii(server.host, "(local)")) server.host = "localhost";
  // A port names the instance already.
  if (server.port.empty() && !server.instance.empty()) {
    builder.Add("Server", server.host + "\\" + server.instance);
    return;
  }
  const auto port =
      std::find_if(settings.others.begin(), settings.others.end(),
                   [](const ConnectionKey& key) { return EqualAscii(key.name, "Port"); });
  builder.Add("Server", server.host);
  if (port == settings.others.end())
    builder.Add("Port", server.port.empty() ? "1433" : server.port);
}

// --- the three sets of words --------------------------------------------------------------------

void AddLogon(const ServerSettings& settings, Builder& builder) {
  if (settings.integrated) {
    builder.Add("Trusted_Connection", "Yes");
    return;
  }
  builder.Add("UID", settings.user);
  builder.Add("PWD", settings.password);
}

std::string EncryptWord(const ServerSettings& settings, int driverNumber) {
  constexpr int kEncryptsByDefault = 18;
  if (settings.encrypt.empty()) return driverNumber >= kEncryptsByDefault ? "no" : "";
  const bool strict = EqualAscii(settings.encrypt, "strict");
  if (strict && driverNumber >= kEncryptsByDefault) return "strict";
  return IsYes(settings.encrypt) ? "yes" : "no";
}

std::string YesNo(std::string_view value) {
  if (value.empty()) return {};
  return IsYes(value) ? "yes" : "no";
}

void AddMicrosoft(const ServerSettings& settings, int driverNumber, Builder& builder) {
  builder.Add("Server", MicrosoftServer(settings));
  builder.Add("Database", settings.database);
  AddLogon(settings, builder);
  builder.Add("Encrypt", EncryptWord(settings, driverNumber));
  builder.Add("TrustServerCertificate", YesNo(settings.trustCertificate));
  builder.Add("APP", settings.application);
  builder.Add("WSID", settings.workstation);
  builder.Add("MARS_Connection", YesNo(settings.mars));
  builder.Add("Language", settings.language);
  builder.Add("AttachDBFileName", settings.attachFile);
  builder.Add("Failover_Partner", settings.failoverPartner);
  builder.Add("ApplicationIntent", settings.intent);
  builder.Add("MultiSubnetFailover", YesNo(settings.multiSubnet));
}

void AddFreeTds(const ServerSettings& settings, Builder& builder) {
  AddFreeTdsServer(settings, builder);
  builder.Add("Database", settings.database);
  AddLogon(settings, builder);
  if (IsYes(settings.encrypt)) builder.Add("Encryption", "require");
  builder.Add("APP", settings.application);
  builder.Add("WSID", settings.workstation);
  builder.Add("Language", settings.language);
  builder.Add("AttachDbFilename", settings.attachFile);
  builder.Add("ApplicationIntent", settings.intent);
  const bool has_charset =
      std::any_of(settings.others.begin(), settings.others.end(),
                  [](const ConnectionKey& key) { return EqualAscii(key.name, "ClientCharset"); });
  if (!has_charset) builder.Add("ClientCharset", "UTF-8");
}

// "file:PATH" of the data source, else the database's name.
fs::path DatabaseFile(const ServerSettings& settings, const fs::path& programFolder) {
  constexpr std::string_view kFile = "file:";
  std::string_view file = settings.source;
  if (EqualAscii(Left(file, kFile.size()), kFile)) file.remove_prefix(kFile.size());
  if (Trim(file).empty()) file = settings.database;
  return programFolder / PathOf(Trim(file));
}

unsigned LoginTimeOut(const ServerSettings& settings) {
  constexpr unsigned kUsual = 15;
  unsigned seconds = kUsual;
  const std::string& text = settings.timeOut;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), seconds);
  return result.ec == std::errc{} ? seconds : kUsual;
}

// A server's name holds no "="; where a semicolon was forgotten, what follows one may be a
// password.
std::string Presentable(std::string_view source) {
  return std::string(source.substr(0, source.find('=')));
}

}  // namespace

OdbcTarget TranslateToOdbc(const ServerSettings& settings, std::string_view driver,
                           const fs::path& programFolder) {
  const std::string used(settings.driver.empty() ? driver : std::string_view(settings.driver));
  const Words words = WordsOf(used);
  Builder builder(words);
  OdbcTarget target;
  target.password = settings.password;
  target.shown = Presentable(settings.source);
  builder.AddDriver(used);
  switch (words) {
    case Words::kMicrosoft:
      AddMicrosoft(settings, DriverNumber(used), builder);
      break;
    case Words::kFreeTds:
      AddFreeTds(settings, builder);
      break;
    case Words::kSqlite:
      target.file = DatabaseFile(settings, programFolder);
      target.shown = TextOf(target.file);
      builder.Add("Database", target.shown);
      // An absent file is an error, and a writer waits as long as without ODBC.
      builder.Add("NoCreat", "1");
      builder.Add("Timeout", settings.timeOut.empty() ? "5000" : settings.timeOut);
      break;
  }
  // Whoever names the driver knows its words.
  if (!settings.driver.empty()) builder.AddOthers(settings.others);
  target.connectionString = builder.Take();
  if (words != Words::kSqlite) target.loginTimeOut = LoginTimeOut(settings);
  return target;
}

std::string ChooseDriver(std::span<const std::string> installed, bool preferFreeTds) {
  constexpr std::array<std::string_view, 4> kOlder = {"SQL Server Native Client 11.0",
                                                      "SQL Server Native Client 10.0",
                                                      "SQL Native Client", "SQL Server"};
  const auto named = [&](std::string_view name) -> std::optional<std::string> {
    const auto found = std::find_if(installed.begin(), installed.end(),
                                    [&](const auto& each) { return EqualAscii(each, name); });
    if (found == installed.end()) return std::nullopt;
    return *found;
  };
  if (preferFreeTds) {
    if (auto free_tds = named("FreeTDS")) return *free_tds;
  }
  const auto newest = std::max_element(
      installed.begin(), installed.end(),
      [](const auto& a, const auto& b) { return DriverNumber(a) < DriverNumber(b); });
  if (newest != installed.end() && DriverNumber(*newest) > 0) return *newest;
  for (const std::string_view name : kOlder) {
    if (auto older = named(name)) return *older;
  }
  return named("FreeTDS").value_or("");
}

}  // namespace ordex
