// Two starts of the built program: the second hands its page over to the first, raises its window
// and ends.
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <wx/clipbrd.h>
#include <wx/frame.h>
#include <wx/uiaction.h>

#include <algorithm>
#include <cstdlib>
#include <list>
#include <memory>
#include <utility>

#include "base/error.h"
#include "database.h"
#include "desk_test.h"
#include "peak_memory.h"
#include "program_run.h"
#include "screen.h"
#include "ui/desktop/instance_lock.h"

namespace ordex::desktop_tests {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Optional;

constexpr const char* kProfileTitle = "Ordex - profilo del fascicolo - dati generali";
constexpr const char* kHistoryTitle = "Ordex - storico del fascicolo - elenco eventi";

// The runtime folder of these tests' display.
std::filesystem::path LinkFolder() {
  return std::filesystem::path(std::getenv("XDG_RUNTIME_DIR")) / "ordex";
}

// A text on the clipboard that counts how often it is asked for, by whichever process.
class WatchedText : public wxTextDataObject {
 public:
  WatchedText(const std::string& text, std::shared_ptr<int> asked)
      : wxTextDataObject(wxString::FromUTF8(text)), asked_(std::move(asked)) {}

  bool GetDataHere(const wxDataFormat& format, void* place) const override {
    ++*asked_;
    return wxTextDataObject::GetDataHere(format, place);
  }

 private:
  std::shared_ptr<int> asked_;
};

// How much of a page that is handed over the first takes in.
enum class Reads { kAll, kForItsKind };

class HandOverTest : public ::testing::Test {
 protected:
  HandOverTest() : office_(ORDEX_SOURCE_DIR) {}

  void Copy(const std::string& sample) { CopyText(Sample(sample)); }
  void CopyText(const std::string& text) {
    OnMain([this, text] {
      *asked_ = 0;
      wxTheClipboard->Open();
      wxTheClipboard->SetData(new WatchedText(text, asked_));
      wxTheClipboard->Close();
    });
  }
  ProgramRun& Start() { return runs_.emplace_back(office_); }
  // The window of that title once it takes keys; 0, and fails the test, where none comes.
  static std::int64_t NextWindow(const std::string& title) {
    std::int64_t handle = 0;
    EXPECT_TRUE(WaitFor([&] {
      for (const ScreenWindow& window : WindowsOnScreen()) {
        if (window.title == title && TakesKeys(window.handle)) handle = window.handle;
      }
      return handle != 0;
    })) << title;
    return handle;
  }
  static std::optional<int> EndOf(ProgramRun& run) {
    WaitFor([&] { return run.Ended().has_value(); });
    return run.Ended();
  }
  // Opens the first window on that page.
  ProgramRun& Open(const std::string& sample, const std::string& title) {
    Copy(sample);
    ProgramRun& first = Start();
    window_ = NextWindow(title);
    // It asks once for the page's kind, and once for the page.
    askedByFirst_ = OnMain([this] { return *asked_; });
    EXPECT_GE(askedByFirst_, 2);
    return first;
  }
  // A second start with that page on the clipboard, which must hand over and end. Returns once the
  // first, which is not waited for by the second, has read of the page what it wants to read.
  void HandOver(const std::string& sample, Reads reads = Reads::kAll) {
    Copy(sample);
    EXPECT_THAT(EndOf(Start()), Optional(0));
    const int wanted = reads == Reads::kAll ? askedByFirst_ : askedByFirst_ / 2;
    EXPECT_TRUE(WaitFor([&] { return *asked_ >= wanted; })) << "the first has not read the page";
    Settle();
  }
  static std::vector<std::string> Titles() {
    return OnMain([] {
      std::vector<std::string> titles;
      for (const ScreenWindow& window : WindowsOnScreen()) titles.push_back(window.title);
      return titles;
    });
  }
  std::vector<std::string> Rows(const std::string& select) const {
    return sessions::QueryRows(office_.database(), select);
  }

  sessions::Workplace office_;
  std::list<ProgramRun> runs_;
  std::int64_t window_ = 0;
  std::shared_ptr<int> asked_ = std::make_shared<int>(0);
  int askedByFirst_ = 0;
};

// The clipboard's text, the page file's and what the desktop itself holds of it, and no more.
TEST_F(HandOverTest, APageOfTwentyMegabytesTakesFourTimesItsSizeInMemoryAtMost) {
  constexpr std::size_t kSize = 20'000'000;
  const auto memoryOf = [this](const std::string& page) {
    CopyText(page);
    ProgramRun& run = Start();
    window_ = NextWindow(kProfileTitle);
    const std::size_t peak = sessions::PeakMemoryOf(run.id());
    EXPECT_GT(peak, 0U);
    PressIn(window_, WXK_ESCAPE);
    EXPECT_THAT(EndOf(run), Optional(0));
    return peak;
  };
  const std::string page = Sample("profilo-contratto.txt");
  std::string large = page + "\n";
  while (large.size() < kSize) large += "Avviso della cancelleria senza etichetta, riga su riga\n";
  EXPECT_LE(memoryOf(large) - memoryOf(page), 4 * kSize);
}

TEST_F(HandOverTest, AFurtherProfileIsTakenAndUpdatedByTheFirst) {
  ProgramRun& first = Open("profilo-contratto.txt", kProfileTitle);
  HandOver("profilo-condominio.txt");
  EXPECT_THAT(Titles(), ElementsAre(kProfileTitle));
  EXPECT_EQ(NextWindow(kProfileTitle), window_);
  PressIn(window_, WXK_RETURN);
  const std::int64_t box = NextWindow("Pratica Praxion aggiornata");
  EXPECT_THAT(Rows("SELECT ID_PraRel FROM PraOrdex"), ElementsAre("3"));
  PressIn(box, WXK_RETURN);
  EXPECT_THAT(EndOf(first), Optional(0));
  EXPECT_THAT(Titles(), IsEmpty());
  EXPECT_THAT(office_.Leftovers(), IsEmpty());
}

TEST_F(HandOverTest, AFurtherHistoryIsAddedToTheFirst) {
  ProgramRun& first = Open("storico-pagina-1.txt", kHistoryTitle);
  HandOver("storico-pagina-2.txt");
  EXPECT_THAT(Titles(), ElementsAre(kHistoryTitle));
  // The search has the keys; the one hit is chosen with Return, then Return updates.
  for (const char digit : std::string("1842")) PressIn(window_, digit);
  for (int i = 0; i < 3; ++i) PressIn(window_, WXK_RETURN);
  const std::int64_t box = NextWindow("Pratica Praxion aggiornata");
  EXPECT_THAT(Rows("SELECT ID_PraRel, count(*), min(Progressivo), max(Progressivo) "
                   "FROM EventiPraOrdex"),
              ElementsAre("2|30|1|30"));
  PressIn(box, WXK_RETURN);
  EXPECT_THAT(EndOf(first), Optional(0));
}

TEST_F(HandOverTest, APageOfAnotherKindLeavesTheWorkOfTheFirstAlone) {
  ProgramRun& first = Open("profilo-contratto.txt", kProfileTitle);
  HandOver("agenda-settimana.txt", Reads::kForItsKind);
  EXPECT_THAT(Titles(), ElementsAre(kProfileTitle));
  EXPECT_EQ(first.Ended(), std::nullopt);
  PressIn(window_, WXK_RETURN);
  const std::int64_t box = NextWindow("Pratica Praxion aggiornata");
  EXPECT_THAT(Rows("SELECT ID_PraRel FROM PraOrdex"), ElementsAre("2"));
  PressIn(box, WXK_RETURN);
  EXPECT_THAT(EndOf(first), Optional(0));
}

TEST_F(HandOverTest, AnUnknownPageEndsTheFirstAfterItsBox) {
  ProgramRun& first = Open("profilo-contratto.txt", kProfileTitle);
  HandOver("not-a-page/sessione-scaduta.txt", Reads::kForItsKind);
  PressIn(NextWindow("Praxion"), WXK_RETURN);
  EXPECT_THAT(EndOf(first), Optional(3));
  EXPECT_THAT(Titles(), IsEmpty());
}

TEST_F(HandOverTest, TheSecondStartRaisesTheWindowOfTheFirst) {
  Open("profilo-contratto.txt", kProfileTitle);
  EXPECT_EQ(office_.Setting("Shared", "OrdexHandle"), std::to_string(window_));
  wxFrame* other = OnMain([] {
    auto* frame = new wxFrame(nullptr, wxID_ANY, "Un altro programma");
    frame->Show();
    frame->Raise();
    return frame;
  });
  EXPECT_NE(NextWindow("Un altro programma"), 0);
  HandOver("profilo-contratto.txt");
  EXPECT_TRUE(WaitFor([this] { return TakesKeys(window_); }));
  OnMain([=] { other->Destroy(); });
}

TEST_F(HandOverTest, OfTenStartsAtOnceOneWindowIsLeft) {
  Copy("profilo-contratto.txt");
  for (int i = 0; i < 10; ++i) Start();
  const auto running = [this] {
    return std::count_if(runs_.begin(), runs_.end(),
                         [](ProgramRun& run) { return !run.Ended().has_value(); });
  };
  EXPECT_TRUE(WaitFor([&] { return running() == 1; }));
  window_ = NextWindow(kProfileTitle);
  EXPECT_THAT(Titles(), ElementsAre(kProfileTitle));
  EXPECT_EQ(running(), 1);
  for (ProgramRun& run : runs_) EXPECT_EQ(run.Ended().value_or(0), 0);
  // While it still takes pages in it takes no key.
  EXPECT_TRUE(WaitFor([&] {
    if (TakesKeys(window_)) wxUIActionSimulator().Char(WXK_ESCAPE);
    return running() == 0;
  }));
  for (ProgramRun& run : runs_) EXPECT_EQ(run.Ended(), 0);
}

TEST_F(HandOverTest, AfterAFirstThatWasKilledAStartOpensAWindowAgain) {
  ProgramRun& first = Open("profilo-contratto.txt", kProfileTitle);
  first.Kill();
  ASSERT_TRUE(WaitFor([] { return WindowsOnScreen().empty(); }));
  ProgramRun& second = Start();
  window_ = NextWindow(kProfileTitle);
  EXPECT_EQ(second.Ended(), std::nullopt);
  EXPECT_EQ(office_.Setting("Shared", "OrdexHandle"), std::to_string(window_));
  // And it takes pages itself.
  HandOver("profilo-condominio.txt");
  PressIn(window_, WXK_RETURN);
  NextWindow("Pratica Praxion aggiornata");
  EXPECT_THAT(Rows("SELECT ID_PraRel FROM PraOrdex"), ElementsAre("3"));
}

TEST_F(HandOverTest, LockAndLinkAreOpenToTheUserAlone) {
  Open("profilo-contratto.txt", kProfileTitle);
  const auto rights = [](const std::filesystem::path& path) {
    struct stat found = {};
    EXPECT_EQ(lstat(path.c_str(), &found), 0) << path;
    return found.st_mode & 0777U;
  };
  EXPECT_EQ(rights(LinkFolder()), 0700U);
  EXPECT_EQ(rights(LinkFolder() / "lock"), 0600U);
  EXPECT_EQ(rights(LinkFolder() / "link") & 0077U, 0U);
}

TEST_F(HandOverTest, AFolderThatOthersMayEnterIsRefused) {
  std::filesystem::create_directories(LinkFolder());
  std::filesystem::permissions(LinkFolder(), std::filesystem::perms::all);
  Copy("profilo-contratto.txt");
  ProgramRun& run = Start();
  PressIn(NextWindow("Ordex"), WXK_RETURN);
  EXPECT_THAT(EndOf(run), Optional(4));
  std::filesystem::remove_all(LinkFolder());
}

TEST(InstanceLockTest, SaysWhichFolderCannotBeMadeAndWhatToDo) {
  const std::string runtime = std::getenv("XDG_RUNTIME_DIR");
  setenv("XDG_RUNTIME_DIR", "/assente", 1);
  std::string told;
  try {
    desktop::InstanceLock().Acquire();
  } catch (const RunTimeError& error) {
    told = error.description();
  }
  setenv("XDG_RUNTIME_DIR", runtime.c_str(), 1);
  EXPECT_EQ(
      told,
      "Errore di accesso al file: impossibile creare la cartella \"/assente/ordex\". Controllare "
      "che la cartella che la contiene esista e sia scrivibile e riavviare Ordex");
}

TEST_F(HandOverTest, AWindowThatIsClosedGivesTheUserBackAndKeepsItsHandle) {
  ProgramRun& run = Open("profilo-contratto.txt", kProfileTitle);
  EXPECT_EQ(office_.Setting("Shared", "Id_Utente"), "7");
  PressIn(window_, WXK_ESCAPE);
  EXPECT_THAT(EndOf(run), Optional(0));
  EXPECT_EQ(office_.Setting("Shared", "Id_Utente"), "-1");
  EXPECT_EQ(office_.Setting("Shared", "OrdexHandle"), std::to_string(window_));
  EXPECT_THAT(Rows("SELECT count(*) FROM PraOrdex"), ElementsAre("0"));
}

}  // namespace
}  // namespace ordex::desktop_tests
