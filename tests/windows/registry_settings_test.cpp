// The settings in the user's registry, looked at with the system's own calls.
#include "ui/windows/registry_settings.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

#include "base/error.h"

namespace ordex::testing {
namespace {

// An application of the test's own, gone when it is over.
class RegistrySettingsTest : public ::testing::Test {
 protected:
  RegistrySettingsTest() { Forget(); }
  ~RegistrySettingsTest() override { Forget(); }

  void Put(const std::wstring& section, const std::wstring& key, DWORD type, const void* bytes,
           std::size_t size) const {
    RegSetKeyValueW(HKEY_CURRENT_USER, (root_ + L"\\" + section).c_str(), key.c_str(), type, bytes,
                    static_cast<DWORD>(size));
  }
  void PutText(const std::wstring& section, const std::wstring& key,
               const std::wstring& text) const {
    Put(section, key, REG_SZ, text.c_str(), (text.size() + 1) * sizeof(wchar_t));
  }

  // The type and the bytes that stand there, the bytes as units of a text.
  std::pair<DWORD, std::wstring> Stored(const std::wstring& section,
                                        const std::wstring& key) const {
    DWORD type = REG_NONE;
    std::wstring units(4096, L'?');
    auto size = static_cast<DWORD>(units.size() * sizeof(wchar_t));
    const LSTATUS code = RegGetValueW(HKEY_CURRENT_USER, (root_ + L"\\" + section).c_str(),
                                      key.c_str(), RRF_RT_ANY, &type, units.data(), &size);
    if (code != ERROR_SUCCESS) return {REG_NONE, L""};
    units.resize(size / sizeof(wchar_t));
    return {type, units};
  }

  RegistrySettings settings_{"Ordex prova"};

 private:
  void Forget() const { RegDeleteTreeW(HKEY_CURRENT_USER, root_.c_str()); }

  std::wstring root_ = L"Software\\VB and VBA Program Settings\\Ordex prova";
};

TEST_F(RegistrySettingsTest, ReadsWhatTheCaseApplicationWrote) {
  PutText(L"startup", L"Security", L";Integrated Security=SSPI;");
  EXPECT_EQ(settings_.Get("startup", "Security"), ";Integrated Security=SSPI;");
}

TEST_F(RegistrySettingsTest, NamesAreFoundInAnyLetterCase) {
  PutText(L"Shared", L"Id_Utente", L"7");
  EXPECT_EQ(settings_.Get("shared", "id_utente"), "7");
}

TEST_F(RegistrySettingsTest, AnAbsentKeyReadsAsEmptyText) {
  EXPECT_EQ(settings_.Get("startup", "Server"), "");
  PutText(L"startup", L"Security", L"x");
  EXPECT_EQ(settings_.Get("startup", "Server"), "");
}

TEST_F(RegistrySettingsTest, AnEmptyTextReadsAsEmptyText) {
  PutText(L"startup", L"Server", L"");
  EXPECT_EQ(settings_.Get("startup", "Server"), "");
}

TEST_F(RegistrySettingsTest, WritesATextWithItsTerminator) {
  settings_.Save("Shared", "Id_Utente", "-1");
  EXPECT_EQ(Stored(L"Shared", L"Id_Utente"),
            (std::pair<DWORD, std::wstring>(REG_SZ, std::wstring(L"-1\0", 3))));
}

TEST_F(RegistrySettingsTest, LettersOfAllAlphabetsComeBackAsTheyWere) {
  settings_.Save("Città", "Łódź", "Forlì, 日本");
  EXPECT_EQ(settings_.Get("Città", "Łódź"), "Forlì, 日本");
  EXPECT_EQ(Stored(L"Città", L"Łódź").second, std::wstring(L"Forlì, 日本\0", 10));
}

TEST_F(RegistrySettingsTest, LongTextsAreReadWhole) {
  const std::wstring text(1500, L'è');
  PutText(L"startup", L"Server", text);
  std::string expected;
  for (int i = 0; i < 1500; ++i) expected += "è";
  EXPECT_EQ(settings_.Get("startup", "Server"), expected);
}

TEST_F(RegistrySettingsTest, ATextWithoutItsTerminatorIsReadWhole) {
  Put(L"startup", L"Server", REG_SZ, L"abc", 3 * sizeof(wchar_t));
  EXPECT_EQ(settings_.Get("startup", "Server"), "abc");
}

TEST_F(RegistrySettingsTest, WritingLeavesTheOtherValuesAlone) {
  PutText(L"Shared", L"Altro", L"resta");
  PutText(L"startup", L"Server", L"Data Source=SRV");
  settings_.Save("Shared", "Id_Utente", "2");
  EXPECT_EQ(settings_.Get("Shared", "Altro"), "resta");
  EXPECT_EQ(settings_.Get("startup", "Server"), "Data Source=SRV");
}

TEST_F(RegistrySettingsTest, AValueThatIsNoTextIsAnErrorThatNamesIt) {
  const DWORD number = 7;
  Put(L"Shared", L"Id_Utente", REG_DWORD, &number, sizeof(number));
  try {
    settings_.Get("Shared", "Id_Utente");
    FAIL() << "no error";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.code(), ErrorNumber::kTypeMismatch);
    EXPECT_EQ(error.description(),
              "Tipo non corrispondente: nel registro di sistema \"HKEY_CURRENT_USER\\Software\\VB "
              "and VBA Program Settings\\Ordex prova\\Shared\", valore \"Id_Utente\" non è un "
              "testo. Sostituirlo con un valore di tipo stringa (REG_SZ).");
  }
}

}  // namespace
}  // namespace ordex::testing
