#include "base/text_file.h"

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>

#include "raised.h"
#include "scratch_folder.h"

namespace ordex {
namespace {

TEST(ReadTextFile, GivesTheTextAsItStands) {
  const ScratchFolder folder;
  folder.Write("pagina.txt", "Sezione: città\r\nx\ny\r");
  EXPECT_EQ(ReadTextFile(folder / "pagina.txt"), "Sezione: città\r\nx\ny\r");
}

TEST(ReadTextFile, AnEmptyFileIsAnEmptyText) {
  const ScratchFolder folder;
  folder.Write("vuoto.txt", "");
  EXPECT_EQ(ReadTextFile(folder / "vuoto.txt"), "");
}

TEST(ReadTextFile, DropsAByteOrderMark) {
  const ScratchFolder folder;
  folder.Write("bom.txt",
               "\xEF\xBB\xBF"
               "è");
  EXPECT_EQ(ReadTextFile(folder / "bom.txt"), "è");
}

TEST(ReadTextFile, WhatIsNoUtf8IsReadAsWindows1252) {
  const ScratchFolder folder;
  folder.Write("vecchio.txt", "\xB0 commento \x80\r\nattivit\xE0=X");
  EXPECT_EQ(ReadTextFile(folder / "vecchio.txt"), "° commento €\r\nattività=X");
}

TEST(ReadTextFile, KeepsZeroBytes) {
  const ScratchFolder folder;
  const std::string text("a\0b", 3);
  folder.Write("zero.txt", text);
  EXPECT_EQ(ReadTextFile(folder / "zero.txt"), text);
}

TEST(ReadTextFile, AMissingFileIsAnErrorThatNamesIt) {
  const ScratchFolder folder;
  const std::string name = (folder / "manca è.txt").string();
  EXPECT_EQ(RaisedBy([&] { ReadTextFile(folder / "manca è.txt"); }),
            (Raised{53, "Impossibile trovare il file: \"" + name + "\""}));
}

TEST(ReadTextFile, AFileOfAMissingFolderIsNotFound) {
  const ScratchFolder folder;
  EXPECT_EQ(RaisedBy([&] { ReadTextFile(folder / "manca" / "x.txt"); }).number, 53);
}

TEST(ReadTextFile, AFolderIsNoTextFile) {
  const ScratchFolder folder;
  EXPECT_EQ(
      RaisedBy([&] { ReadTextFile(folder.path()); }),
      (Raised{75, "Errore di accesso al file: impossibile leggere \"" + folder.path().string() +
                      "\". Controllare che la cartella esista e che i diritti bastino."}));
}

TEST(ReplaceTextFile, WritesANewFile) {
  const ScratchFolder folder;
  ReplaceTextFile(folder / "nuovo.txt", "città\r\n");
  EXPECT_EQ(folder.Read("nuovo.txt"), "città\r\n");
  EXPECT_EQ(folder.FileCount(), 1U);
}

TEST(ReplaceTextFile, ReplacesTheWholeOldContent) {
  const ScratchFolder folder;
  folder.Write("mappa.txt", "un testo vecchio e lungo");
  ReplaceTextFile(folder / "mappa.txt", "nuovo");
  EXPECT_EQ(folder.Read("mappa.txt"), "nuovo");
  EXPECT_EQ(folder.FileCount(), 1U);
}

TEST(ReplaceTextFile, WritesTheBytesAsTheyAre) {
  const ScratchFolder folder;
  const std::string text("a\0\n\r\n\xE8", 6);
  ReplaceTextFile(folder / "x.txt", text);
  EXPECT_EQ(folder.Read("x.txt"), text);
}

TEST(ReplaceTextFile, AnEmptyTextEmptiesTheFile) {
  const ScratchFolder folder;
  folder.Write("x.txt", "vecchio");
  ReplaceTextFile(folder / "x.txt", "");
  EXPECT_EQ(folder.Read("x.txt"), "");
}

TEST(ReplaceTextFile, ANameInTheWorkingFolderNeedsNoFolderName) {
  const ScratchFolder folder;
  const auto before = std::filesystem::current_path();
  std::filesystem::current_path(folder.path());
  ReplaceTextFile("x.txt", "testo");
  std::filesystem::current_path(before);
  EXPECT_EQ(folder.Read("x.txt"), "testo");
}

TEST(ReplaceTextFile, WhatIsWrittenReadsBack) {
  const ScratchFolder folder;
  const std::string text(300'000, 'x');
  ReplaceTextFile(folder / "à.txt", text + "È");
  EXPECT_EQ(ReadTextFile(folder / "à.txt"), text + "È");
}

TEST(ReplaceTextFile, AMissingFolderIsAnErrorThatNamesTheFile) {
  const ScratchFolder folder;
  const auto file = folder / "manca" / "x.txt";
  EXPECT_EQ(RaisedBy([&] { ReplaceTextFile(file, "testo"); }),
            (Raised{75, "Errore di accesso al file: impossibile scrivere \"" + file.string() +
                            "\". Controllare che la cartella esista e che i diritti bastino."}));
  EXPECT_EQ(folder.FileCount(), 0U);
}

TEST(ReplaceTextFile, AFolderIsNotReplacedAndNothingIsLeftBesideIt) {
  const ScratchFolder folder;
  std::filesystem::create_directory(folder / "cartella");
  folder.Write("cartella/dentro.txt", "x");
  EXPECT_EQ(RaisedBy([&] { ReplaceTextFile(folder / "cartella", "testo"); }).number, 75);
  EXPECT_EQ(folder.Read("cartella/dentro.txt"), "x");
  EXPECT_EQ(folder.FileCount(), 1U);
}

TEST(ReplaceTextFile, AReaderSeesTheOldTextOrTheNewAndNeverAHalf) {
  const ScratchFolder folder;
  const std::string one(200'000, 'a');
  const std::string other(100'000, 'b');
  ReplaceTextFile(folder / "x.txt", one);
  std::atomic<bool> done = false;
  std::thread writer([&] {
    for (int i = 0; i < 100; ++i) ReplaceTextFile(folder / "x.txt", i % 2 == 0 ? other : one);
    done = true;
  });
  int halves = 0;
  while (!done) {
    const std::string seen = ReadTextFile(folder / "x.txt");
    if (seen != one && seen != other) ++halves;
  }
  writer.join();
  EXPECT_EQ(halves, 0);
}

TEST(ReplaceTextFile, TwoWritersAtTheSameTimeLeaveTheTextOfOneOfThem) {
  const ScratchFolder folder;
  const std::string one(200'000, 'a');
  const std::string other(150'000, 'b');
  for (int round = 0; round < 20; ++round) {
    std::thread first([&] { ReplaceTextFile(folder / "x.txt", one); });
    std::thread second([&] { ReplaceTextFile(folder / "x.txt", other); });
    first.join();
    second.join();
    const std::string seen = folder.Read("x.txt");
    ASSERT_TRUE(seen == one || seen == other);
    ASSERT_EQ(folder.FileCount(), 1U);
  }
}

}  // namespace
}  // namespace ordex
