// The sample pages are recognised as what they are; the texts that look near are refused.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

#include "base/text.h"
#include "import_bench.h"
#include "parse/recognition.h"
#include "support/fake_ports.h"
#include "support/temp_folder.h"

namespace ordex::testing {
namespace {

// What recognition made of a text, and what it did to the user's desktop.
struct Outcome {
  bool goesOn = false;
  int kind = -1;
  std::vector<BoxText> boxes;
  std::string clipboard;
  std::size_t clears = 0;

  bool operator==(const Outcome&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
  out << (outcome.goesOn ? "goes on" : "ends") << ", kind " << outcome.kind << ", clipboard of "
      << outcome.clipboard.size() << " bytes cleared " << outcome.clears << " times";
  for (const BoxText& box : outcome.boxes) out << ", " << box;
  return out;
}

Outcome Recognise(const std::string& text) {
  const TempProgramFolder folder;
  Mappings mappings;
  LocateMappings(mappings, folder.path());
  LoadRestr(mappings);
  Page page;
  HistoryPaging paging;
  FakeClipboard clipboard(text);
  FakeMessageBoxes boxes;
  const bool goesOn = RiconosciPagina(mappings, page, paging, clipboard, boxes);
  return {goesOn, page.iOrdexPage, boxes.shown, clipboard.text, clipboard.clears};
}

// The names of the text files of a folder of the source tree, in order.
std::vector<std::string> TextFiles(const std::string& folder) {
  std::vector<std::string> names;
  for (const auto& entry :
       std::filesystem::directory_iterator(std::filesystem::path(ORDEX_SOURCE_DIR) / folder)) {
    if (entry.path().extension() == ".txt") names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

// The kind that a sample's name tells; 0 for a name that tells none.
int KindByName(const std::string& name) {
  if (name.starts_with("profilo-")) return 1;
  if (name.starts_with("storico-")) return 2;
  if (name.starts_with("agenda-")) return 3;
  if (name.starts_with("giudice-di-pace-")) return 4;
  return 0;
}

TEST(SampleRecognition, EverySamplePageIsRecognisedAsItsKind) {
  const std::vector<std::string> names = TextFiles("samples");
  ASSERT_GE(names.size(), 12U);
  for (const std::string& name : names) {
    const std::string text = SourceFile("samples/" + name);
    ASSERT_NE(KindByName(name), 0) << name;
    EXPECT_EQ(Recognise(text), (Outcome{true, KindByName(name), {}, text, 0})) << name;
  }
}

TEST(SampleRecognition, EverySamplePageIsRecognisedInCapitalsToo) {
  for (const std::string& name : TextFiles("samples")) {
    EXPECT_EQ(Recognise(Upper(SourceFile("samples/" + name))).kind, KindByName(name)) << name;
  }
}

TEST(SampleRecognition, EveryTextThatOnlyLooksNearIsRefused) {
  const std::vector<std::string> names = TextFiles("samples/not-a-page");
  ASSERT_GE(names.size(), 8U);
  const Outcome refused{false,
                        0,
                        {{"La pagina corrente non può essere importata in Praxion.", "Praxion",
                          BoxIcon::kStop, BoxButtons::kOk}},
                        "",
                        1};
  for (const std::string& name : names) {
    EXPECT_EQ(Recognise(SourceFile("samples/not-a-page/" + name)), refused) << name;
  }
}

}  // namespace
}  // namespace ordex::testing
