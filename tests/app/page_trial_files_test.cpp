// That a trial of a page leaves nothing behind in the folder for temporary files.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>

#include "app/page_trial.h"
#include "base/error.h"
#include "findings.h"

namespace ordex::testing {
namespace {

// While this lives, temporary files go into a folder of its own.
class OwnTemporaryFolder {
 public:
  OwnTemporaryFolder() {
    if (const char* before = std::getenv("TMPDIR")) before_ = before;
    setenv("TMPDIR", folder_.path().c_str(), 1);
  }
  ~OwnTemporaryFolder() {
    if (before_) {
      setenv("TMPDIR", before_->c_str(), 1);
    } else {
      unsetenv("TMPDIR");
    }
  }
  OwnTemporaryFolder(const OwnTemporaryFolder&) = delete;
  OwnTemporaryFolder& operator=(const OwnTemporaryFolder&) = delete;
  OwnTemporaryFolder(OwnTemporaryFolder&&) = delete;
  OwnTemporaryFolder& operator=(OwnTemporaryFolder&&) = delete;

  std::size_t FileCount() const { return folder_.FileCount(); }
  void Vanish() const { std::filesystem::remove(folder_.path()); }

 private:
  TempFolder folder_;
  std::optional<std::string> before_;
};

constexpr const char* kTitle = "Profilo del fascicolo - Dati generali\n";

TEST(TrialFiles, AreGoneBehindAPageThatWasReadStoppedOrRefused) {
  const EditedMapping folder;
  const OwnTemporaryFolder temporary;
  const auto read = TryPage(folder.path(), kTitle);
  ASSERT_NE(read, nullptr);
  EXPECT_EQ(read->lines.size(), 2U);
  EXPECT_EQ(temporary.FileCount(), 0U);
  const auto stopped = TryPage(folder.path(), std::string(kTitle) + "Materia\n");
  ASSERT_NE(stopped, nullptr);
  EXPECT_TRUE(stopped->stop.has_value());
  EXPECT_EQ(temporary.FileCount(), 0U);
  EXPECT_EQ(TryPage(folder.path(), "Gentile collega"), nullptr);
  EXPECT_EQ(temporary.FileCount(), 0U);
}

TEST(TrialFiles, AreGoneWhereThePageFileCannotBeWritten) {
  EditedMapping folder;
  // The text becomes the page file's name, which would stand in a folder that does not exist.
  folder.Change(kRestr, "profilo del fascicolo - dati generali=Profilo", "profilo/dati=Profilo");
  const OwnTemporaryFolder temporary;
  int number = 0;
  try {
    TryPage(folder.path(), "profilo/dati\n");
  } catch (const RunTimeError& error) {
    number = error.number();
  }
  EXPECT_EQ(number, 75);
  EXPECT_EQ(temporary.FileCount(), 0U);
}

TEST(TrialFiles, ThatCannotBeMadeAreAFileAccessError) {
  const EditedMapping folder;
  const OwnTemporaryFolder temporary;
  temporary.Vanish();
  int number = 0;
  try {
    TryPage(folder.path(), kTitle);
  } catch (const RunTimeError& error) {
    number = error.number();
  }
  EXPECT_EQ(number, 75);
}

}  // namespace
}  // namespace ordex::testing
