// Rights, links and full disks: what needs the calls of a Unix system to be set up.
#include <fcntl.h>
#include <grp.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>

#include "base/text_file.h"
#include "raised.h"
#include "scratch_folder.h"

namespace ordex {
namespace {

namespace fs = std::filesystem;

constexpr uid_t kNobody = 65534;

// The number of the error that `call` raises in a process of its own, after `prepare` (the exit
// code of a process carries it: none is above 255 here); 0 where it raises none.
template <class Prepare, class Call>
int ErrorOfChild(Prepare prepare, Call call) {
  const pid_t child = fork();
  if (child == 0) {
    prepare();
    _exit(RaisedBy(call).number);
  }
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

// For root no right is ever missing, so root becomes somebody else.
void BecomeUnprivileged() {
  if (geteuid() != 0) return;
  if (setgroups(0, nullptr) != 0 || setgid(kNobody) != 0 || setuid(kNobody) != 0) _exit(254);
}

template <class Call>
int ErrorOfUnprivileged(Call call) {
  return ErrorOfChild(BecomeUnprivileged, call);
}

mode_t ModeOf(const fs::path& path) {
  struct stat info {};
  stat(path.c_str(), &info);
  return info.st_mode & 07777U;
}

TEST(ReplaceTextFileRights, ThePermissionsOfTheOldFileAreKept) {
  const ScratchFolder folder;
  for (const mode_t mode : {0600U, 0640U, 0664U, 0666U, 0755U}) {
    folder.Write("x.txt", "vecchio");
    ASSERT_EQ(chmod((folder / "x.txt").c_str(), mode), 0);
    ReplaceTextFile(folder / "x.txt", "nuovo");
    EXPECT_EQ(ModeOf(folder / "x.txt"), mode);
    EXPECT_EQ(folder.Read("x.txt"), "nuovo");
  }
}

TEST(ReplaceTextFileRights, ANewFileHasThePermissionsOfAnyNewFile) {
  const ScratchFolder folder;
  const mode_t before = umask(027);
  ReplaceTextFile(folder / "x.txt", "nuovo");
  umask(before);
  EXPECT_EQ(ModeOf(folder / "x.txt"), 0640U);
}

TEST(ReplaceTextFileRights, AFolderThatMayNotBeWrittenIsAnErrorAndTheOldTextStands) {
  const ScratchFolder folder;
  folder.Write("x.txt", "vecchio");
  ASSERT_EQ(chmod((folder / "x.txt").c_str(), 0666), 0);
  ASSERT_EQ(chmod(folder.path().c_str(), 0555), 0);
  EXPECT_EQ(ErrorOfUnprivileged([&] { ReplaceTextFile(folder / "x.txt", "nuovo"); }), 75);
  EXPECT_EQ(ErrorOfUnprivileged([&] { ReplaceTextFile(folder / "y.txt", "nuovo"); }), 75);
  EXPECT_EQ(folder.Read("x.txt"), "vecchio");
  EXPECT_EQ(folder.FileCount(), 1U);
}

TEST(ReplaceTextFileRights, AnUnprivilegedUserReplacesAFileOfAFolderThatMayBeWritten) {
  const ScratchFolder folder;
  ASSERT_EQ(chmod(folder.path().c_str(), 0777), 0);
  EXPECT_EQ(ErrorOfUnprivileged([&] {
              ReplaceTextFile(folder / "x.txt", "uno");
              ReplaceTextFile(folder / "x.txt", "due");
            }),
            0);
  EXPECT_EQ(folder.Read("x.txt"), "due");
  EXPECT_EQ(folder.FileCount(), 1U);
}

TEST(ReadTextFileRights, AFileThatMayNotBeReadIsAnAccessError) {
  const ScratchFolder folder;
  folder.Write("x.txt", "segreto");
  ASSERT_EQ(chmod(folder.path().c_str(), 0755), 0);
  ASSERT_EQ(chmod((folder / "x.txt").c_str(), 0), 0);
  EXPECT_EQ(ErrorOfUnprivileged([&] { ReadTextFile(folder / "x.txt"); }), 75);
}

TEST(ReadTextFileRights, AFileOfAFolderThatMayNotBeEnteredIsAnAccessErrorAndNotAMissingFile) {
  const ScratchFolder folder;
  folder.Write("x.txt", "testo");
  ASSERT_EQ(chmod(folder.path().c_str(), 0), 0);
  EXPECT_EQ(ErrorOfUnprivileged([&] { ReadTextFile(folder / "x.txt"); }), 75);
}

TEST(ReadTextFileRights, APipeIsNoTextFile) {
  const ScratchFolder folder;
  ASSERT_EQ(mkfifo((folder / "tubo").c_str(), 0600), 0);
  // Somebody writes into it, else opening it would wait for ever.
  const int writer = open((folder / "tubo").c_str(), O_RDWR);
  ASSERT_GE(writer, 0);
  EXPECT_EQ(RaisedBy([&] { ReadTextFile(folder / "tubo"); }).number, 75);
  close(writer);
}

TEST(ReplaceTextFileLinks, ALinkStaysAndTheFileThatItNamesIsReplaced) {
  const ScratchFolder folder;
  fs::create_directory(folder / "vero");
  folder.Write("vero/x.txt", "vecchio");
  fs::create_symlink("vero/x.txt", folder / "legame.txt");
  ReplaceTextFile(folder / "legame.txt", "nuovo");
  EXPECT_TRUE(fs::is_symlink(folder / "legame.txt"));
  EXPECT_FALSE(fs::is_symlink(folder / "vero/x.txt"));
  EXPECT_EQ(folder.Read("vero/x.txt"), "nuovo");
  EXPECT_EQ(ReadTextFile(folder / "legame.txt"), "nuovo");
}

TEST(ReplaceTextFileLinks, AChainOfLinksIsFollowedToItsEnd) {
  const ScratchFolder folder;
  folder.Write("x.txt", "vecchio");
  ASSERT_EQ(chmod((folder / "x.txt").c_str(), 0600), 0);
  fs::create_symlink(folder / "x.txt", folder / "uno");
  fs::create_symlink("uno", folder / "due");
  ReplaceTextFile(folder / "due", "nuovo");
  EXPECT_EQ(folder.Read("x.txt"), "nuovo");
  EXPECT_EQ(ModeOf(folder / "x.txt"), 0600U);
  EXPECT_EQ(fs::read_symlink(folder / "due"), "uno");
}

TEST(ReplaceTextFileLinks, ALinkToAFileThatDoesNotExistYetCreatesThatFile) {
  const ScratchFolder folder;
  fs::create_directory(folder / "vero");
  fs::create_symlink("vero/x.txt", folder / "legame.txt");
  ReplaceTextFile(folder / "legame.txt", "nuovo");
  EXPECT_TRUE(fs::is_symlink(folder / "legame.txt"));
  EXPECT_EQ(folder.Read("vero/x.txt"), "nuovo");
}

TEST(ReplaceTextFileLinks, LinksThatGoInACircleAreAnError) {
  const ScratchFolder folder;
  fs::create_symlink("due", folder / "uno");
  fs::create_symlink("uno", folder / "due");
  EXPECT_EQ(RaisedBy([&] { ReplaceTextFile(folder / "uno", "nuovo"); }).number, 75);
  EXPECT_EQ(folder.FileCount(), 2U);
}

TEST(ReplaceTextFileLinks, AFileInAFolderReachedByALinkIsReplacedThere) {
  const ScratchFolder folder;
  fs::create_directory(folder / "vero");
  folder.Write("vero/x.txt", "vecchio");
  fs::create_directory_symlink("vero", folder / "legame");
  ReplaceTextFile(folder / "legame/x.txt", "nuovo");
  EXPECT_EQ(folder.Read("vero/x.txt"), "nuovo");
  EXPECT_TRUE(fs::is_symlink(folder / "legame"));
}

TEST(ReplaceTextFileRights, ADiskThatTakesOnlyAPartLeavesTheOldTextAndNothingBesideIt) {
  const ScratchFolder folder;
  folder.Write("x.txt", "vecchio");
  const auto limit_file_size = [] {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{1000, 1000};
    if (setrlimit(RLIMIT_FSIZE, &limit) != 0) _exit(254);
  };
  EXPECT_EQ(ErrorOfChild(limit_file_size,
                         [&] { ReplaceTextFile(folder / "x.txt", std::string(100'000, 'n')); }),
            75);
  EXPECT_EQ(folder.Read("x.txt"), "vecchio");
  EXPECT_EQ(folder.FileCount(), 1U);
}

}  // namespace
}  // namespace ordex
