#include "ordex_test.h"

#include <sqlite3.h>

#include <cstdlib>
#include <stdexcept>

#include "base/path_text.h"
#include "base/text.h"
#include "store/db/sqlite_create.h"
#include "ui/common/process.h"
#include "ui/windows/wide_text.h"

namespace ordex::window_tests {
namespace {

constexpr const wchar_t* kSettingsKey = L"Software\\VB and VBA Program Settings\\Zelmo32";

bool HasSettings() {
  HKEY key = nullptr;
  if (RegOpenKeyExW(HKEY_CURRENT_USER, kSettingsKey, 0, KEY_READ, &key) != ERROR_SUCCESS) {
    return false;
  }
  RegCloseKey(key);
  return true;
}

int AddRow(void* rows, int count, char** values, char** /*names*/) {
  std::string row;
  for (int i = 0; i < count; ++i) {
    row += (i == 0 ? "" : "|") + std::string(values[i] == nullptr ? "NULL" : values[i]);
  }
  static_cast<std::vector<std::string>*>(rows)->push_back(row);
  return 0;
}

}  // namespace

Program::Program(const std::string& commandLine) {
  std::wstring line = Wide(commandLine);
  STARTUPINFOW start{};
  start.cb = sizeof(start);
  if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                     &process_) == 0) {
    throw std::runtime_error("cannot start " + commandLine);
  }
}

Program::~Program() {
  if (IsRunning()) Kill();
  CloseHandle(process_.hThread);
  CloseHandle(process_.hProcess);
}

std::optional<int> Program::ExitCode() const {
  if (!WaitFor([this] { return !IsRunning(); })) return std::nullopt;
  DWORD code = 0;
  GetExitCodeProcess(process_.hProcess, &code);
  return static_cast<int>(code);
}

bool Program::IsRunning() const {
  return WaitForSingleObject(process_.hProcess, 0) == WAIT_TIMEOUT;
}

void Program::Kill() const {
  TerminateProcess(process_.hProcess, 1);
  WaitForSingleObject(process_.hProcess, kLimit);
}

void OrdexTest::SetUp() {
  ASSERT_FALSE(HasSettings()) << "this user has settings of Praxion, which the tests would replace";
  ours_ = true;
  settings_.Save("startup", "Security", ";Integrated Security=SSPI;");
  settings_.Save("startup", "Server", "Data Source=file:office.db");
  settings_.Save("Shared", "Id_Utente", "7");
  CreateSqliteDatabase(office_ / "office.db", true);
}

void OrdexTest::TearDown() {
  programs_.clear();
  if (ours_) RegDeleteTreeW(HKEY_CURRENT_USER, kSettingsKey);
}

Program& OrdexTest::Start() {
  const std::string file = EnvironmentText("ORDEX_EXE");
  if (file.empty()) throw std::runtime_error("ORDEX_EXE does not name the program");
  programs_.push_back(std::make_unique<Program>("\"" + file + "\" --dir \"" +
                                                ordex::TextOf(office_.path()) + "\""));
  return *programs_.back();
}

HWND OrdexTest::Open(const std::string& sample) {
  Copy(Sample(sample));
  Start();
  HWND window = Window(kProfileTitle);
  if (window == nullptr) throw std::runtime_error("the window does not open");
  return window;
}

std::vector<std::string> OrdexTest::Rows(const std::string& select) const {
  std::vector<std::string> rows;
  sqlite3* database = nullptr;
  sqlite3_open(ordex::TextOf(office_ / "office.db").c_str(), &database);
  const int code = sqlite3_exec(database, select.c_str(), AddRow, &rows, nullptr);
  if (code != SQLITE_OK) rows.push_back(sqlite3_errmsg(database));
  sqlite3_close(database);
  return rows;
}

std::string Sample(const std::string& name) {
  return ReplaceAll(testing::SourceFile("samples/" + name), "\n", "\r\n");
}

}  // namespace ordex::window_tests
