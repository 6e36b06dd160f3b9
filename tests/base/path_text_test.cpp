// Paths made of UTF-8 texts, and texts made of paths.
#include "base/path_text.h"

#include <gtest/gtest.h>

#include <fstream>

#include "scratch_folder.h"

namespace ordex::testing {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kName = "Niccolò Żółć 日本語.txt";

TEST(PathText, LettersOfAllAlphabetsComeBackAsTheyWere) {
  EXPECT_EQ(TextOf(PathOf(kName)), kName);
}

TEST(PathText, IsTheNameThatTheFileHasOnDisk) {
  const ScratchFolder folder;
  std::ofstream(folder.path() / PathOf(kName)) << "testo";
  const fs::directory_entry only = *fs::directory_iterator(folder.path());
  EXPECT_TRUE(only.path().filename().u8string() == u8"Niccolò Żółć 日本語.txt");
  EXPECT_EQ(TextOf(only.path().filename()), kName);
}

TEST(PathText, OfAnEmptyTextIsEmpty) {
  EXPECT_TRUE(PathOf("").empty());
  EXPECT_EQ(TextOf(fs::path()), "");
}

TEST(PathText, GenericTextHasSlashesBetweenTheParts) {
  EXPECT_EQ(GenericTextOf(PathOf("cartella è") / "b" / "c.txt"), "cartella è/b/c.txt");
}

}  // namespace
}  // namespace ordex::testing
