// The text of the person card, piece by piece.
#include <gtest/gtest.h>

#include <string>

#include "support/person_fixture.h"

namespace ordex::testing {
namespace {

class PersonCardText : public ::testing::Test {
 protected:
  // Adds a person with those columns and returns the text of its card.
  std::string CardOf(const std::string& columns, const std::string& values) {
    person_.office.Do("INSERT INTO Anagrafica (ID_Ana, " + columns + ") VALUES (50, " + values +
                      ")");
    person_.Fill(50);
    return person_.card.lblInfo;
  }

  PersonFixture person_;
};

TEST(PersonCard, OfAWomanHoldsAllItsPieces) {
  PersonFixture person(Office::Data::kSample);
  person.Fill(7);
  EXPECT_EQ(person.card.lblInfo,
            "STARNOTTI  GELINDA\r\n"
            "\r\nnata in BORGO LENZA il 30/12/1979"
            "\r\nresidente in VALDOMBRA"
            "\r\nPIAZZA DELL'OLMO n. 2/B"
            "\r\nC.F. :  STRGND00X00X000X"
            "\r\n\r\nTel :  000 000607");
}

TEST(PersonCard, OfAManSaysNato) {
  PersonFixture person(Office::Data::kSample);
  person.Fill(4);
  EXPECT_EQ(person.card.lblInfo,
            "D'AMICO  LUCA\r\n"
            "\r\nnato in MONTEFOSCO il 14/09/1987"
            "\r\nresidente in MONTEFOSCO"
            "\r\nVICOLO DELL'ORTO n. 5"
            "\r\nC.F. :  DMCLCU00X00X000X"
            "\r\n\r\nTel :  000 000304");
}

TEST(PersonCard, OfACompanyHoldsSeatAndVatNumberButNoBirthAndNoTaxCode) {
  PersonFixture person(Office::Data::kSample);
  person.Fill(2);
  EXPECT_EQ(person.card.lblInfo,
            "EDILIZIA VALLEBRUNA S.R.L.  \r\n"
            "\r\ncon sede in VALDOMBRA"
            "\r\nVIA DEI MULINI n. 33"
            "\r\nP.I. :  00000000002"
            "\r\n\r\nTel :  000 000102"
            "\r\nFax :  000 000103");
}

TEST_F(PersonCardText, WritesTheNameInCapitals) {
  EXPECT_EQ(CardOf("Cognome, Nome, IsFisicaGiuridica", "'Rustignè', 'Mauro', 1"),
            "RUSTIGNÈ  MAURO\r\n");
}

TEST_F(PersonCardText, OfAPersonWhoseSexIsNotMIsFeminine) {
  EXPECT_EQ(
      CardOf("Cognome, Nome, IsFisicaGiuridica, LuogoNascita", "'ROSSI', 'ANNA', 1, 'MONTEFOSCO'"),
      "ROSSI  ANNA\r\n\r\nnata in MONTEFOSCO");
}

TEST_F(PersonCardText, WithABirthDateAloneKeepsTheBlankOfBothPieces) {
  EXPECT_EQ(CardOf("Cognome, Nome, IsFisicaGiuridica, Sesso, DataNascita",
                   "'ROSSI', 'LUCA', 1, 'M', '1980-02-03 00:00:00'"),
            "ROSSI  LUCA\r\n\r\nnato  il 03/02/1980");
}

TEST_F(PersonCardText, WithoutACityShowsNoAddress) {
  EXPECT_EQ(CardOf("Cognome, Nome, IsFisicaGiuridica, IndirizzoRes, NumCivicoRes",
                   "'ROSSI', 'LUCA', 1, 'VIA ROMA', '3'"),
            "ROSSI  LUCA\r\n");
}

TEST_F(PersonCardText, WithoutAStreetShowsNoHouseNumber) {
  EXPECT_EQ(CardOf("Cognome, Nome, IsFisicaGiuridica, CittaRes, NumCivicoRes",
                   "'ROSSI', 'LUCA', 1, 'MONTEFOSCO', '3'"),
            "ROSSI  LUCA\r\n\r\nresidente in MONTEFOSCO");
}

TEST_F(PersonCardText, WithoutAHouseNumberEndsAtTheStreet) {
  EXPECT_EQ(CardOf("Cognome, Nome, CittaRes, IndirizzoRes",
                   "'OLMETO S.N.C.', '', 'MONTEFOSCO', 'STRADA OLMETO'"),
            "OLMETO S.N.C.  \r\n\r\ncon sede in MONTEFOSCO\r\nSTRADA OLMETO");
}

TEST_F(PersonCardText, OfACompanyIgnoresBirthAndTaxCode) {
  EXPECT_EQ(CardOf("Cognome, Nome, IsFisicaGiuridica, LuogoNascita, DataNascita, CodiceFiscale",
                   "'OLMETO S.N.C.', '', 0, 'MONTEFOSCO', '1983-06-01 00:00:00', '00000000008'"),
            "OLMETO S.N.C.  \r\n");
}

TEST_F(PersonCardText, OfAPersonIgnoresTheVatNumber) {
  EXPECT_EQ(
      CardOf("Cognome, Nome, IsFisicaGiuridica, PartitaIva", "'ROSSI', 'LUCA', 1, '00000000001'"),
      "ROSSI  LUCA\r\n");
}

TEST_F(PersonCardText, WithAFaxAloneHasOneLineBreakBeforeIt) {
  EXPECT_EQ(CardOf("Cognome, Nome, IsFisicaGiuridica, NumeroFax", "'ROSSI', 'LUCA', 1, '000 1'"),
            "ROSSI  LUCA\r\n\r\nFax :  000 1");
}

TEST(PersonCard, OfNobodySaysThatThereIsNoSuchPersonAndIsSmall) {
  PersonFixture person;
  person.Fill(1);
  EXPECT_EQ(person.card.lblInfo, "ANAGRAFICA INESISTENTE");
  EXPECT_EQ(person.card.lblInfo2, "");
  EXPECT_EQ(person.card.height, 1380);
}

TEST_F(PersonCardText, OfANameThatHoldsNulloSaysThatThereIsNoSuchPersonAndShowsNoAddress) {
  EXPECT_EQ(CardOf("Cognome, Nome, CittaRes, Email", "'Annullotti', 'LUCA', 'MONTEFOSCO', 'a@b.c'"),
            "ANAGRAFICA INESISTENTE");
  EXPECT_EQ(person_.card.lblInfo2, "");
}

TEST(PersonCard, OfAnExistingPersonIsHigherThanThatOfNobody) {
  PersonFixture person(Office::Data::kSample);
  person.Fill(4);
  EXPECT_GT(person.card.height, 1380);
}

TEST(PersonCard, ShowsAnEmailAddressAsALink) {
  PersonFixture person(Office::Data::kSample);
  person.Fill(4);
  EXPECT_EQ(person.card.Label1, "E-mail :  ");
  EXPECT_EQ(person.card.lblInfo2, "luca.damico@posta.example");
  EXPECT_EQ(person.card.lblInfo2Pointer, Pointer::kHand);
}

TEST(PersonCard, WithoutAnEmailAddressHasAnEmptyLabelAndTheArrow) {
  PersonFixture person(Office::Data::kSample);
  person.Fill(4);
  person.Fill(6);
  EXPECT_EQ(person.card.Label1, "");
  EXPECT_EQ(person.card.lblInfo2, "");
  EXPECT_EQ(person.card.lblInfo2Pointer, Pointer::kArrow);
}

}  // namespace
}  // namespace ordex::testing
