// A person's name cut into surname and first name.
#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "store/party_names.h"
#include "support/office_fixture.h"

namespace ordex::testing {
namespace {

constexpr const char* kUnchanged = "as it was";

struct Name {
  std::string cognome;
  std::string nome;
  bool operator==(const Name&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Name& name) {
  return out << "\"" << name.cognome << "\", \"" << name.nome << "\"";
}

Name Cut(std::string_view text) {
  std::string nome = kUnchanged;
  const std::string cognome = EstraiCognomi(text, nome);
  return {cognome, nome};
}

TEST(EstraiCognomi, CutsAtTheFirstBlank) {
  EXPECT_EQ(Cut("ROSSI MARIO"), (Name{"ROSSI", "MARIO"}));
  EXPECT_EQ(Cut("ROSSI MARIO LUIGI"), (Name{"ROSSI", "MARIO LUIGI"}));
}

TEST(EstraiCognomi, KeepsLetterCase) {
  EXPECT_EQ(Cut("Rossi mario"), (Name{"Rossi", "mario"}));
}

TEST(EstraiCognomi, AParticleOfTwoLettersBelongsToTheSurname) {
  EXPECT_EQ(Cut("DE LUCA MARIO"), (Name{"DE LUCA", "MARIO"}));
  EXPECT_EQ(Cut("DI MAIO LUIGI"), (Name{"DI MAIO", "LUIGI"}));
  EXPECT_EQ(Cut("LA ROCCA ANNA"), (Name{"LA ROCCA", "ANNA"}));
}

TEST(EstraiCognomi, SoDoesAnyOtherFirstWordOfTwoLetters) {
  EXPECT_EQ(Cut("XY BRUNO MARIO"), (Name{"XY BRUNO", "MARIO"}));
}

TEST(EstraiCognomi, AFirstWordOfTwoLettersWithoutAFurtherBlankIsNotCut) {
  EXPECT_EQ(Cut("DE LUCA"), (Name{"DE LUCA", kUnchanged}));
  EXPECT_EQ(Cut("RE ANNA"), (Name{"RE ANNA", kUnchanged}));
}

TEST(EstraiCognomi, AFirstWordOfThreeLettersBelongsToTheSurname) {
  EXPECT_EQ(Cut("DEL RE ANNA"), (Name{"DEL RE", "ANNA"}));
  EXPECT_EQ(Cut("XYZ BRUNO MARIO"), (Name{"XYZ BRUNO", "MARIO"}));
  EXPECT_EQ(Cut("DEL RE"), (Name{"DEL RE", kUnchanged}));
}

TEST(EstraiCognomi, AParticleOfFiveLettersIsMissedByOneAndCutOff) {
  EXPECT_EQ(Cut("DELLA ROSA MARIO"), (Name{"DELLA", "ROSA MARIO"}));
  EXPECT_EQ(Cut("DEGLI ESPOSTI ANNA"), (Name{"DEGLI", "ESPOSTI ANNA"}));
}

TEST(EstraiCognomi, AFirstWordOfFourLettersIsTakenForAParticle) {
  EXPECT_EQ(Cut("ROSA BIANCHI MARIA"), (Name{"ROSA BIANCHI", "MARIA"}));
  EXPECT_EQ(Cut("ROSA MARIA"), (Name{"ROSA MARIA", kUnchanged}));
}

TEST(EstraiCognomi, OneParticleStepLeadsIntoTheNext) {
  // The second blank stands at 4, where the step for three letters goes on, and finds none.
  EXPECT_EQ(Cut("DE  ROSSI"), (Name{"DE  ROSSI", kUnchanged}));
  // The second blank stands at 5, where the step for four letters goes on.
  EXPECT_EQ(Cut("DE A BIANCHI"), (Name{"DE A BIANCHI", kUnchanged}));
  EXPECT_EQ(Cut("DEL  ROSSI"), (Name{"DEL  ROSSI", kUnchanged}));
}

TEST(EstraiCognomi, ThreeBlanksOrMoreLeaveTheTextWhole) {
  EXPECT_EQ(Cut("DE LA CRUZ MARIA"), (Name{"DE LA CRUZ MARIA", kUnchanged}));
  EXPECT_EQ(Cut("ROSSI   MARIO"), (Name{"ROSSI   MARIO", kUnchanged}));
}

TEST(EstraiCognomi, OneWordIsASurname) {
  EXPECT_EQ(Cut("ROSSI"), (Name{"ROSSI", kUnchanged}));
  EXPECT_EQ(Cut(""), (Name{"", kUnchanged}));
}

TEST(EstraiCognomi, TrimsBlanksAtBothEndsBeforeCounting) {
  EXPECT_EQ(Cut("   ROSSI MARIO   "), (Name{"ROSSI", "MARIO"}));
  EXPECT_EQ(Cut("   "), (Name{"", kUnchanged}));
}

TEST(EstraiCognomi, RemovesEveryDoubleQuote) {
  EXPECT_EQ(Cut("\"ROSSI\" MARIO"), (Name{"ROSSI", "MARIO"}));
  EXPECT_EQ(Cut("RO\"SSI MA\"RIO"), (Name{"ROSSI", "MARIO"}));
}

TEST(EstraiCognomi, ABlankThatAQuoteHidFromTrimmingIsTheFirstBlank) {
  EXPECT_EQ(Cut("\" ROSSI\" MARIO"), (Name{"", "ROSSI MARIO"}));
}

TEST(EstraiCognomi, OfTwoBlanksInARowTheSecondStaysWithTheFirstName) {
  EXPECT_EQ(Cut("ROSSI  MARIO"), (Name{"ROSSI", " MARIO"}));
}

TEST(EstraiCognomi, CountsPositionsInCharacters) {
  EXPECT_EQ(Cut("RUSTIGNÈ MAURO"), (Name{"RUSTIGNÈ", "MAURO"}));
  // Two characters, three bytes.
  EXPECT_EQ(Cut("DÈ LUCA MARIO"), (Name{"DÈ LUCA", "MARIO"}));
}

TEST(EstraiCognomi, TakesTextsOfUpTo32767Characters) {
  const std::string longest = "ROSSI " + std::string(32761, 'A');
  EXPECT_EQ(Cut(longest), (Name{"ROSSI", std::string(32761, 'A')}));
  EXPECT_EQ(ErrorNumberOf([&] { Cut(longest + "A"); }), 6);
}

}  // namespace
}  // namespace ordex::testing
