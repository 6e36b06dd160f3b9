// Who may read the page file, and what stays of it on a full disk.
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <filesystem>
#include <string>

#include "app/intake.h"
#include "support/window_fixture.h"

namespace ordex::testing {
namespace {

namespace fs = std::filesystem;

constexpr fs::perms kOwnerOnly = fs::perms::owner_read | fs::perms::owner_write;

// No file can grow beyond that size while this lives.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &before_);
    if (handler_ != SIG_ERR) std::signal(SIGXFSZ, handler_);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;

 private:
  rlimit before_{};
  void (*handler_)(int);
};

TEST(PageFileRights, AreTheOwnersAlone) {
  const TempFolder folder;
  TxtfromClipboard(folder.path(), "pagina", FakeClipboard("uno"));
  EXPECT_EQ(fs::status(folder / "pagina.txt").permissions(), kOwnerOnly);
}

TEST(PageFileRights, AreTakenFromAFileThatLayThereOpenToAll) {
  const TempFolder folder;
  folder.Write("pagina.txt", "vecchia");
  fs::permissions(folder / "pagina.txt", fs::perms::all);
  TxtfromClipboard(folder.path(), "pagina", FakeClipboard("uno"));
  EXPECT_EQ(fs::status(folder / "pagina.txt").permissions(), kOwnerOnly);
}

TEST(PageFileOnAFullDisk, EndsTheProgramAndIsNotLeftBehind) {
  WindowFixture fixture(ProfilePage("1842/2025", std::string(std::size_t{8} << 20U, 'x')));
  {
    const FileSizeLimit limit(rlim_t{4} << 20U);
    fixture.Start();
  }
  EXPECT_EQ(fixture.window.ended(), EndReason::kError);
  ASSERT_EQ(fixture.boxes.shown.size(), 1U);
  EXPECT_TRUE(fixture.boxes.shown[0].text.starts_with("Errore di run-time '75': "));
  EXPECT_FALSE(fixture.folder.Holds(kProfileFile));
}

}  // namespace
}  // namespace ordex::testing
