// The dialog for the names that a page of the justice of the peace masks.
#include <gmock/gmock.h>
#include <wx/button.h>
#include <wx/choice.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "desk_test.h"

namespace ordex::desktop_tests {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

Box MissingBox(const std::string& text) {
  return {"Verifica campi", text, wxICON_EXCLAMATION, {"OK"}};
}

class PartiesDialogTest : public DeskTest {
 protected:
  // The first press, Yes, and the dialog is up.
  void OpenDialog() {
    Open("giudice-di-pace-sinistro.txt");
    Click(Find<wxButton>("Crea"));
    EXPECT_EQ(NextBox(), NoCaseBox());
    Press(WXK_RETURN);
    dialog_ = NextDialog("dlgParti");
    ASSERT_NE(dialog_, nullptr);
  }
  wxTextCtrl* Field(const std::string& name) {
    return OnMain([&] { return Seen<wxTextCtrl>(*dialog_, name); });
  }
  std::string TextOf(const std::string& name) {
    return OnMain([field = Field(name)] { return field->GetValue().utf8_string(); });
  }
  // In place of what stands in the box that has the keys.
  void Overwrite(const std::string& text) {
    Press('a', wxMOD_CONTROL);
    Press(WXK_DELETE);
    Type(text);
  }
  std::vector<std::string> Parties(const std::string& box) {
    return OnMain([choice = Find<wxChoice>(box)] {
      std::vector<std::string> texts;
      for (const wxString& text : choice->GetStrings()) texts.push_back(text.utf8_string());
      return texts;
    });
  }

  wxDialog* dialog_ = nullptr;
};

TEST_F(PartiesDialogTest, ShowsTheNamesOfThePageWithTheKeysInTheFirst) {
  OpenDialog();
  EXPECT_EQ(OnMain([this] { return dialog_->GetTitle().utf8_string(); }), "Parti");
  EXPECT_TRUE(HasFocus(Field("txtAttore")));
  EXPECT_EQ(TextOf("txtAttore"), "P******* S****");
  EXPECT_EQ(TextOf("txtAttoreDifensore"), "F******** N***");
  EXPECT_EQ(TextOf("txtConvenuto"), "T********* A****** S.P.A.");
  EXPECT_EQ(TextOf("txtConvenutoDifensore"), "Q********** F****");
  const std::vector<std::string> texts = OnMain([this] { return TextsOf(*dialog_); });
  for (const char* text : {"Cognome e nome dell'Attore", "Cognome e nome del Convenuto",
                           "Cognome e nome del Difensore"}) {
    EXPECT_THAT(texts, Contains(text));
  }
  EXPECT_THAT(OnMain([this] { return ButtonsOf(*dialog_); }), ElementsAre("OK"));
}

TEST_F(PartiesDialogTest, TypedNamesAreOfferedAndTheCaseIsCreatedWithThem) {
  OpenDialog();
  Overwrite("Pellegrassi Silvio");
  Press(WXK_TAB);
  Press(WXK_TAB);
  EXPECT_TRUE(HasFocus(Field("txtConvenuto")));
  Overwrite("Tornabianca Amelia");
  Press(WXK_RETURN);
  ASSERT_TRUE(NoBox());
  EXPECT_THAT(Parties("Cliente"),
              ElementsAre("P******* S****", "T********* A****** S.P.A.", "N**** G*******",
                          "Pellegrassi Silvio", "Tornabianca Amelia"));
  EXPECT_THAT(NotAsState(), IsEmpty());
  auto* cliente = Find<wxChoice>("Cliente");
  ASSERT_TRUE(HasFocus(cliente));
  for (int i = 0; i < 4; ++i) Press(WXK_DOWN);
  Press(WXK_TAB);
  ASSERT_TRUE(HasFocus(Find<wxChoice>("Controparte")));
  for (int i = 0; i < 5; ++i) Press(WXK_DOWN);
  EXPECT_THAT(NotAsState(), IsEmpty());
  Click(Find<wxButton>("Conferma"));
  EXPECT_EQ(NextBox(), CreatedBox());
  EXPECT_THAT(Rows("SELECT NumeroRegGenerale, ControCognome FROM Pratica WHERE ID_Pra = 11"),
              ElementsAre("5230/2025|Tornabianca Amelia"));
}

TEST_F(PartiesDialogTest, ANameThatThePageShowsMustBeGiven) {
  OpenDialog();
  Overwrite("");
  Press(WXK_RETURN);
  EXPECT_EQ(NextBox(), MissingBox("Specificare il nome ed il cognome dell'attore."));
  Press(WXK_RETURN);
  ASSERT_EQ(NextDialog("dlgParti"), dialog_);
  EXPECT_TRUE(HasFocus(Field("txtAttore")));
  Type("Pellegrassi Silvio");
  Click(Field("txtConvenutoDifensore"));
  Overwrite("  ");
  Click(OnMain([this] { return Seen<wxButton>(*dialog_, "OK"); }));
  EXPECT_EQ(NextBox(),
            MissingBox("Specificare il nome ed il cognome del difensore del convenuto."));
  Press(WXK_ESCAPE);
  ASSERT_EQ(NextDialog("dlgParti"), dialog_);
  EXPECT_TRUE(HasFocus(Field("txtConvenutoDifensore")));
  EXPECT_EQ(TextOf("txtAttore"), "Pellegrassi Silvio");
}

TEST_F(PartiesDialogTest, EscapeClosesItAndTakesNothingOver) {
  OpenDialog();
  Overwrite("Pellegrassi Silvio");
  Press(WXK_ESCAPE);
  ASSERT_TRUE(NoBox());
  EXPECT_EQ(Ended(), std::nullopt) << "the window stays";
  EXPECT_EQ(Action(), "Conferma");
  EXPECT_THAT(Parties("Cliente"),
              ElementsAre("P******* S****", "T********* A****** S.P.A.", "N**** G*******"));
  EXPECT_THAT(NotAsState(), IsEmpty());
}

TEST_F(PartiesDialogTest, APageThatIsHandedOverMeanwhileWaitsAndIsRefused) {
  OpenDialog();
  HandOver("profilo-contratto.txt");
  EXPECT_EQ(NextDialog("dlgParti"), dialog_);
  Press(WXK_RETURN);
  ASSERT_TRUE(NoBox());
  EXPECT_EQ(StatusText(), "Completare l'operazione corrente oppure chiudere il programma.");
  EXPECT_EQ(StatusPicture(), "Stop");
  EXPECT_EQ(Action(), "Conferma");
  EXPECT_THAT(NotAsState(), IsEmpty());
}

}  // namespace
}  // namespace ordex::desktop_tests
