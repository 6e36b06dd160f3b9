// The card of a person: by a click on a party of the case, and as the question of a create.
#include <gmock/gmock.h>
#include <wx/button.h>
#include <wx/choice.h>
#include <wx/hyperlink.h>
#include <wx/stattext.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "database.h"
#include "desk_test.h"

namespace ordex::desktop_tests {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

// What the desktop calls for a mail link: a script in the home that the display has set up, which
// writes down what it was called with.
class MailProgram {
 public:
  MailProgram() {
    const std::filesystem::path script = home_ / "posta.sh";
    Write(script, "#!/bin/sh\nprintf '%s|' \"$@\" >'" + (home_ / "tmp").string() + "'\nmv '" +
                      (home_ / "tmp").string() + "' '" + received_.string() + "'\n");
    std::filesystem::permissions(script, std::filesystem::perms::owner_all);
    Write(home_ / ".local/share/applications/posta.desktop",
          "[Desktop Entry]\nType=Application\nName=Posta\nExec=" + script.string() +
              " %u\nMimeType=x-scheme-handler/mailto;\n");
    Write(home_ / ".config/mimeapps.list",
          "[Default Applications]\nx-scheme-handler/mailto=posta.desktop\n");
  }

  // Each argument that it was called with, and a bar.
  std::string Arguments() const {
    WaitFor([this] { return std::filesystem::exists(received_); });
    std::ifstream in(received_);
    return {std::istreambuf_iterator<char>(in), {}};
  }

 private:
  static void Write(const std::filesystem::path& file, const std::string& text) {
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file) << text;
  }

  std::filesystem::path home_ = std::getenv("HOME");
  std::filesystem::path received_ = home_ / "ricevuto";
};

class PersonCardTest : public DeskTest {
 protected:
  // Clicks on a party of the case that the page belongs to.
  void OpenCardOf(const std::string& name) {
    Open("profilo-contratto.txt");
    Click(Find<wxHyperlinkCtrl>(name));
    card_ = NextDialog("frmInfoAnagrafica");
    ASSERT_NE(card_, nullptr);
  }
  std::string CardText() {
    return OnMain(
        [this] { return Seen<wxStaticText>(*card_, "lblInfo")->GetLabelText().utf8_string(); });
  }

  wxDialog* card_ = nullptr;
};

TEST_F(PersonCardTest, AClickOnTheClientShowsTheCardOfACompany) {
  OpenCardOf("EDILIZIA VALLEBRUNA S.R.L.");
  EXPECT_EQ(OnMain([this] { return card_->GetTitle().utf8_string(); }), "  Info Anagrafica");
  EXPECT_EQ(CardText(),
            "EDILIZIA VALLEBRUNA S.R.L.  \n\ncon sede in VALDOMBRA\nVIA DEI MULINI n. 33\n"
            "P.I. :  00000000002\n\nTel :  000 000102\nFax :  000 000103");
  EXPECT_NE(OnMain([this] {
              return Seen<wxHyperlinkCtrl>(*card_, "amministrazione@vallebruna.example");
            }),
            nullptr);
  EXPECT_THAT(OnMain([this] { return TextsOf(*card_); }), ::testing::Contains("E-mail :  "));
  EXPECT_THAT(OnMain([this] { return TextsOf(*card_); }),
              Not(::testing::Contains(::testing::HasSubstr("Collegare"))));
  EXPECT_THAT(OnMain([this] { return ButtonsOf(*card_); }), ElementsAre("Sì", "No"));
}

TEST_F(PersonCardTest, AClickOnTheAddressCallsTheMailProgramWithItAlone) {
  const MailProgram mail;
  // What could bring a second recipient or a text along is part of the address.
  sessions::RunSql(office_.database(),
                   "UPDATE Anagrafica SET Email = 'a@vallebruna.example?cc=b@altrove.example' "
                   "WHERE Cognome LIKE 'EDILIZIA VALLEBRUNA%'");
  OpenCardOf("EDILIZIA VALLEBRUNA S.R.L.");
  Click(OnMain([this] {
    return Seen<wxHyperlinkCtrl>(*card_, "a@vallebruna.example?cc=b@altrove.example");
  }));
  EXPECT_EQ(mail.Arguments(), "mailto:a@vallebruna.example%3Fcc%3Db@altrove.example|");
  EXPECT_EQ(Ended(), std::nullopt);
}

TEST_F(PersonCardTest, TheSignsOfAnAddressAreDrawnAsTheyAre) {
  sessions::RunSql(office_.database(),
                   "UPDATE Anagrafica SET Email = 'mario_rossi&figli@vallebruna.example' "
                   "WHERE Cognome LIKE 'EDILIZIA VALLEBRUNA%'");
  OpenCardOf("EDILIZIA VALLEBRUNA S.R.L.");
  EXPECT_THAT(OnMain([this] { return DrawnTextsOf(*card_); }),
              ::testing::Contains("mario_rossi&figli@vallebruna.example"));
}

TEST_F(PersonCardTest, EveryTextFitsIntoTheCard) {
  OpenCardOf("IMMOBILIARE PONTEMIRTO S.P.A.");
  EXPECT_TRUE(OnMain([this] {
    const wxRect card = card_->GetScreenRect();
    for (const wxWindow* control : ControlsOf(*card_)) {
      if (control->IsShownOnScreen() && !card.Contains(control->GetScreenRect())) return false;
    }
    return true;
  }));
}

TEST_F(PersonCardTest, EscapeClosesTheCardAndTheWindowGoesOn) {
  OpenCardOf("IMMOBILIARE PONTEMIRTO S.P.A.");
  EXPECT_THAT(CardText(), ::testing::HasSubstr("VIALE CA' ROSSA n. 101"));
  Press(WXK_ESCAPE);
  ASSERT_TRUE(NoBox());
  EXPECT_EQ(Ended(), std::nullopt);
  EXPECT_THAT(NotAsState(), IsEmpty());
  // The window takes keys again.
  Press('D', wxMOD_ALT);
  EXPECT_TRUE(WaitFor([] { return wxWindow::FindWindowByName("lstImport")->IsShownOnScreen(); }));
}

TEST_F(PersonCardTest, ReturnClosesTheCard) {
  OpenCardOf("EDILIZIA VALLEBRUNA S.R.L.");
  Press(WXK_RETURN);
  ASSERT_TRUE(NoBox());
  EXPECT_EQ(Ended(), std::nullopt);
}

TEST_F(PersonCardTest, TheKeyboardReachesAParty) {
  Open("profilo-contratto.txt");
  auto* link = Find<wxHyperlinkCtrl>("EDILIZIA VALLEBRUNA S.R.L.");
  OnMain([=] { link->SetFocus(); });
  ASSERT_TRUE(HasFocus(link));
  Press(WXK_SPACE);
  EXPECT_NE(NextDialog("frmInfoAnagrafica"), nullptr);
}

TEST_F(PersonCardTest, APersonThatIsMaskedAsNullIsToldToBeMissing) {
  sessions::RunSql(office_.database(),
                   "UPDATE Anagrafica SET Cognome = 'CLIENTE NULLO' WHERE ID_Ana = 2");
  OpenCardOf("CLIENTE NULLO");
  EXPECT_EQ(CardText(), "ANAGRAFICA INESISTENTE");
}

TEST_F(PersonCardTest, ACardThatIsClosedWithoutAnAnswerLinksNobody) {
  Open("profilo-lavoro.txt");
  Press(WXK_RETURN);
  EXPECT_EQ(NextBox(), NoCaseBox());
  Press(WXK_RETURN);
  ASSERT_TRUE(NoBox());
  ASSERT_TRUE(HasFocus(Find<wxChoice>("Cliente")));
  Press(WXK_DOWN);
  Press(WXK_TAB);
  ASSERT_TRUE(HasFocus(Find<wxChoice>("Controparte")));
  Press(WXK_DOWN);
  Press(WXK_DOWN);
  Click(Find<wxButton>("Conferma"));
  wxDialog* card = NextDialog("frmInfoAnagrafica");
  ASSERT_NE(card, nullptr);
  EXPECT_EQ(OnMain([=] {
              // Where its lines are broken depends on the font.
              wxString question = wxString::FromUTF8(TextsOf(*card).back());
              question.Replace("\n", " ");
              return question.utf8_string();
            }),
            "Sono stati trovati dati anagrafici corrispondenti a D'AMICO LUCA. Collegare il "
            "cliente a questi dati ?");
  Press(WXK_ESCAPE);
  EXPECT_EQ(NextBox(), CreatedBox());
  EXPECT_THAT(Rows("SELECT ID_Cliente FROM Pratica WHERE ID_Pra = 11"), ElementsAre("12"));
}

}  // namespace
}  // namespace ordex::desktop_tests
